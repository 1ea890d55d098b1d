// The two dialogs that choose which routes are drawn: frm_keiro the text tracks of \chisou_men\gps, frm_keiroNMEA the
// NMEA logs of any folder. A choice is a list file of \chisou_men, rewritten whole; see routes.h for its paths.
#pragma once

#include <string>
#include <vector>

#include "core/project_settings.h"
#include "platform/files.h"
#include "platform/prompts.h"

namespace instruments {

// The boxes of both dialogs. Only frm_keiroNMEA has a folder to browse.
struct Route_boxes {
  std::string Dir1;
  std::vector<core::File_choice> List1;  // the files of the folder, those that are drawn ticked
};

// Opening of frm_keiro: the *.txt of \chisou_men\gps, those of keiro_out.dat ticked.
void frm_keiro_load(platform::Files& files, const core::Settings& settings, Route_boxes& boxes);
// Opening of frm_keiroNMEA: Dir1 is the folder of the first log that is drawn, if it is there, or else
// \chisou_men\gps; then as Dir1_change.
void frm_keiroNMEA_load(platform::Files& files, const core::Settings& settings, Route_boxes& boxes);
// Another folder: its *.NME, those of keiro_out2.dat ticked.
void Dir1_change(platform::Files& files, const core::Settings& settings, Route_boxes& boxes, const std::string& folder);

// OK: the list holds what is ticked and nothing else. False with a message, and the file as it was, for a name that
// can't be stored. File_failure when it can't be written.
bool frm_keiro_Command1(platform::Files& files, platform::Prompts& prompts, const core::Settings& settings,
                        const Route_boxes& boxes);
bool frm_keiroNMEA_Command1(platform::Files& files, platform::Prompts& prompts, const core::Settings& settings,
                            const Route_boxes& boxes);
// Ticks all.
void Command3(Route_boxes& boxes);

}  // namespace instruments
