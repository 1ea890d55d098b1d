#include "core/session/start_up.h"

#include "core/choice_lists.h"
#include "core/language.h"
#include "core/project_folders.h"
#include "core/session/sheet.h"
#include "core/settei.h"
#include "core/settings_files.h"
#include "drawing/text_split.h"
#include "platform/text_files.h"

namespace session {

namespace {

const platform::Message unsaved{"データが保存されていません。保存しますか。", "Data is not preserved. Do preserve it?"};

// souzyo.dat: "1, 2 ,Tuff,200, ...": field 3 is the surface's name; the base itself is no stratum.
std::vector<std::string> stratum_names_r(platform::Files& files, const std::string& project_path) {
  std::vector<std::string> names;
  std::array<std::string, drawing::settings_fields> fields;
  for (const std::string& line : platform::read_lines(files, core::chisou_men(project_path, "souzyo.dat"))) {
    drawing::split_csv(line, fields);
    if (!fields[2].empty() && fields[2] != "Base") names.push_back(fields[2]);
  }
  return names;
}

// A program folder that can't be written is told at the first save, not at every start.
void dempath_reset(platform::Files& files, const std::string& program_path) {
  try {
    core::dempath_w(files, program_path, program_path);
  } catch (const platform::File_failure&) {  // the elevation dialog then shows what the file held before
  }
}

}  // namespace

void form_load(Session& session, Ports& ports, const std::string& program_path) {
  core::Settings& settings = session.settings;
  settings.program_path = program_path;
  core::program_folders_make(ports.files, program_path);
  session.boxes = core::settei_defaults(settings);
  settings.project_path = session.boxes.Dir4;
  dempath_reset(ports.files, program_path);
  settings.language = core::language_r(ports.files, program_path);
  ports.prompts.use_language(settings.language);
  session.canvas.zoom_factor = 0.5;
  geodesy::load_par(ports.files, program_path + "\\TKY2JGD.par", session.shifts);
}

Activated form_activate(Session& session, Ports& ports, const Activation& activation) {
  core::Settings& settings = session.settings;
  session.stratum_names = stratum_names_r(ports.files, settings.project_path);
  if (session.sheet_shown() || activation.sheet_dialog_up || activation.Frame2_visible) return Activated::nothing;
  if (session.start_guard == 1) {
    session.start_guard = 2;
    return Activated::nothing;
  }
  if (!core::settei_r(settings, session.boxes, ports.files, ports.prompts)) return Activated::settings_asked;
  start_files_r(session, ports.files);
  settings.language = core::language_r(ports.files, settings.program_path);
  ports.prompts.use_language(settings.language);
  sheet_list_r(session, ports);
  // The receiver is no tool of the mouse: one that is read goes on.
  session.flags = {.gps_running = session.flags.gps_running, .pan_flag = 1, .pan_flag_v = 1};
  session.cut_map_project = core::is_cut_map_project(ports.files, settings.project_path);
  if (session.cut_map_project) session.canvas.grid_nx = session.canvas.grid_ny = 100;
  session.stratum_names = stratum_names_r(ports.files, settings.project_path);
  session.start_guard = 2;
  return Activated::list_filled;
}

void start_files_r(Session& session, platform::Files& files) {
  const std::string& program = session.settings.program_path;
  session.boring_out_folder = core::boring_out_r(files, program);
  session.section_known = core::danmen_line_r(files, program, session.section);
  session.rockview_folder = core::rockview3d_r(files, program);
}

std::string window_caption(const Session& session) {
  return session.settings.datum_mode == 1 ? "Terranote Ver '08.06.05 (WGS-84)"
                                          : "Terranote Ver '08.06.05 (Tokyo Datum)";
}

void menu_web_henkann(const Session& session, Ports& ports) {
  const std::string& program = session.settings.program_path;
  ports.processes.start(platform::join_path(program, "Tilefetch.exe"), {}, program);
}

void menu_end(Session& session) {
  session.flags.gps_running = 0;
}

Redraw Command22(Session& session, Ports& ports, const std::function<void()>& save) {
  if (session.flags.data_dirty == 1 && ports.prompts.yes_no(unsaved) && save) save();
  return Redraw::all;
}

}  // namespace session
