// One run: everything that the driver, the noise and the days of work share.
#pragma once

#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/session/session.h"
#include "soak/field_kit.h"
#include "soak/file_book.h"
#include "soak/memory_curve.h"
#include "soak/place.h"
#include "soak/ports.h"
#include "soak/random.h"
#include "soak/run_log.h"
#include "soak/watchdog.h"
#include "ui/frm_main.h"

namespace soak {

struct Run;

// Where a planned step finds itself at work; with anything else in front the plan is given up.
enum class Where { main, popup, dialog, anywhere };

// One step of a day of work.
struct Task {
  Where where = Where::main;
  std::string name;
  std::function<void(Run&)> act;
  int rest = 0;  // milliseconds before the next step
};

struct Run_choices {
  std::uint64_t seed = 1;
  long steps = 0;      // 0: no limit
  double minutes = 0;  // 0: no limit
  long check_every = 500;
  double longest_block = 10;  // seconds
  // What the fitted lines may rise over the last three quarters of the run. At rest the same window shows the same
  // sheet, so that memory swings by some MiB with the records and the holes in the heap; a leak of one KiB at each step
  // would be 24 MiB after the 25,000 steps of 15 minutes. Widgets at rest are those of the windows that are made once.
  double allowed_growth = 24;  // MiB; 0: not judged
  double allowed_widgets = 60;
};

struct Run {
  explicit Run(const Run_choices& chosen) : choices(chosen), random(chosen.seed) {}

  Run_choices choices;
  Random random;
  Random failing{7};  // of the recorded ports, so that their number of calls changes nothing else
  Run_log log;
  Place place;
  File_book book;
  Consent consent;
  Instruments instruments;
  Watchdog dog{log};
  std::vector<Memory_sample> memory;
  double most_memory = 0;

  // Of the program that is running now.
  session::Session* session = nullptr;
  QPointer<ui::Frm_main> window;

  std::deque<Task> plan;
  std::vector<QPointer<QWidget>> windows_seen;  // that were open at the last step
  long next_check = 0;
  int busy_level = 0;        // of the event loop in which a step is under way
  int coming_to_rest = 0;    // steps so far that closed what was open
  bool sheet_asked = false;  // at rest: the sheet with which memory is compared was opened
  std::string sheet_at_rest;
  bool resting = false;    // a check is due
  bool last_look = false;  // this start of the program is only looked at
  bool ended = false;
  int starts = 0;     // of the program
  int next_wait = 0;  // milliseconds that the step asked for
};

}  // namespace soak
