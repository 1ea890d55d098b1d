#include "core/session/undo.h"

#include "core/project_folders.h"
#include "core/session/entry.h"
#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "core/undo.h"

namespace session {

namespace {

constexpr platform::Message entry_first{"入力中の地点を保存するか閉じてから行って下さい。",
                                        "Please save or close the observation in the entry panel first."};

using Move = core::Undone (*)(platform::Journal&, platform::Prompts&);

Redraw move(Session& session, Ports& ports, Move menu) {
  if (session.entry.open && session.flags.data_dirty == 1) {
    ports.prompts.message(entry_first);
    return Redraw::none;
  }
  entry_close(session);
  const core::Undone undone = menu(ports.journal, ports.prompts);
  if (!undone.japanese.empty()) session.notice = {undone.japanese, undone.english};
  if (!undone.files_changed) return Redraw::overlay;
  project_r(session, ports);
  return Redraw::all;
}

}  // namespace

void journal_r(Session& session, Ports& ports) {
  const core::Settings& settings = session.settings;
  const std::string observations = core::chisou_men(settings.project_path);
  for (const std::string& folder : {settings.program_path, settings.program_path + "\\Tiltvane", settings.project_path,
                                    observations, observations + "\\txt", observations + "\\csv"})
    ports.files.remove_left_over(folder);
  if (session.state_folder.empty()) return;
  ports.journal.open(session.state_folder, settings.project_path, settings.program_path);
}

Redraw menu_undo(Session& session, Ports& ports) {
  return move(session, ports, core::menu_undo);
}

Redraw menu_redo(Session& session, Ports& ports) {
  return move(session, ports, core::menu_redo);
}

void project_r(Session& session, Ports& ports) {
  core::File11_refresh(session.boxes, ports.files);
  start_files_r(session, ports.files);
  if (session.sheet_shown()) registry_r(session, ports);
}

}  // namespace session
