// A recorded or invented talk between the program and an instrument, as a text of one step a line:
//    > o1            wait until the program has sent these bytes, which take no line end
//    < 001,L,N20W    send a line, ended by CR LF
//    raw EN          send bytes without a line end; \r \n \t \\ \xHH stand for theirs
//    wait 500        milliseconds
//    baud 9600       from here on send no faster than this line would; 0: as fast as it goes
//    repeat 999 <#,L,N20W   send so many lines, "#" being 1, 2, 3, ...; a blank behind "<" isn't sent
//    unplug          the device goes away; also "close"
//    plug            it comes back; also "open"
//    again           from the first step
// Empty lines and lines that begin with "#" tell nothing. Behind the last step the device stays silent.
#pragma once

#include <atomic>
#include <string>
#include <string_view>
#include <vector>

#include "emulator/pseudo_terminal.h"

namespace emulator {

enum class Step_kind { expect, send, wait, baud, unplug, plug, again };

struct Step {
  Step_kind kind = Step_kind::wait;
  std::string text;  // of expect and send: the bytes
  int number = 0;    // of wait and baud
};

struct Conversation {
  std::vector<Step> steps;
  std::string fault;  // the first line that is no step; empty when all are
};

Conversation conversation_of(std::string_view text);
// The conversation of a file; a file that can't be read has a fault.
Conversation conversation_of_file(const std::string& path);

// Bytes at the speed of a line of that many baud (ten bits a byte); 0 for all at once. False when they didn't all go.
bool send_at(Pseudo_terminal& line, std::string_view bytes, int baud, const std::atomic<bool>& stop);

// Plays it over the line, which is plugged in first where it isn't, until `stop`. False when a step could not be done.
bool converse(Pseudo_terminal& line, const Conversation& conversation, const std::atomic<bool>& stop);

}  // namespace emulator
