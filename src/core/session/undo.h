// Undo and redo of what was done to the project's files, and the reading of all that may have changed with them.
#pragma once

#include "core/session/session.h"

namespace session {

// Opens the journal of the project in force, below session.state_folder (none where that is empty), and removes what a
// killed save left in the project. To be called at the start and whenever the project may be another.
void journal_r(Session& session, Ports& ports);

// menu_undo and menu_redo. With unsaved entries in the panel nothing is done but said; a panel without any closes.
Redraw menu_undo(Session& session, Ports& ports);
Redraw menu_redo(Session& session, Ports& ports);

// Reads the project's files again: registry, strata, section line, list of registration files.
void project_r(Session& session, Ports& ports);

}  // namespace session
