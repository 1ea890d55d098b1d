// The start of the program in its two phases, and its end.
#pragma once

#include <string>

#include "core/session/session.h"

namespace session {

// Phase 1, once: folders, dempath.dat, language, ellipsoids, datum table. A folder or file that can't be written
// changes nothing else.
void form_load(Session& session, Ports& ports, const std::string& program_path);

struct Activation {
  bool sheet_dialog_up = false;
  bool Frame2_visible = false;
};

enum class Activated {
  nothing,         // the return from a dialog, or the very first pass
  settings_asked,  // there are no settings: Frame2 is to be shown
  list_filled      // the sheet list was read
};

// Phase 2, at the first show and at each return from a dialog.
Activated form_activate(Session& session, Ports& ports, const Activation& activation);

// The small files beside the settings: \BoringOut.set, \danmen.dat with the section line, \Rockview3d.set.
void start_files_r(Session& session, platform::Files& files);

// The window's caption by the datum.
std::string window_caption(const Session& session);

// menu_web_henkann: runs \Tilefetch.exe of the program folder. A missing one shows nothing.
void menu_web_henkann(const Session& session, Ports& ports);

// menu_end: closes what is open. The process ends afterwards.
void menu_end(Session& session);

// Command22 of the entry tab: asks whether unsaved entries are to be kept; `save` is called for Yes.
Redraw Command22(Session& session, Ports& ports, const std::function<void()>& save);

}  // namespace session
