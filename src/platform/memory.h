// How the process gives memory back.
#pragma once

namespace platform {

// Large blocks (pictures, whole files) go back to the system as soon as they are freed. Called once at the start; does
// nothing where the system does so by itself.
void give_back_large_blocks();

// What was freed between blocks in use goes back too: the heap of a long day is full of such holes. Takes some
// milliseconds; called where a sheet has been opened.
void give_back_holes();

}  // namespace platform
