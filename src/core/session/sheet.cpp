#include "core/session/sheet.h"

#include <algorithm>
#include <utility>

#include "core/session/tools.h"
#include "maps/boundaries.h"
#include "platform/failures.h"

namespace session {

namespace {

// A table longer than the catalogue is used as far as it fits.
void catalogue_r(Session& session, Ports& ports) {
  core::Settings& settings = session.settings;
  try {
    maps::zumei_read(ports.files, session.catalogue, settings.program_path, session.option5(), settings.datum_mode,
                     settings.language);
  } catch (const platform::Subscript_failure&) {
    // The list is read at each return to the window until a sheet is drawn; once is enough to be told.
    const std::string rows = std::to_string(maps::catalogue_limit);
    if (!std::exchange(session.long_table_told, true))
      ports.prompts.message("図葉一覧表が大きすぎます。先頭の" + rows + "行だけを使います。",
                            "The table of sheet names is too long. Its first " + rows + " rows are used.");
  }
  ports.prompts.use_language(settings.language);
}

Sheet_list listed(const Session& session, Ports& ports) {
  Sheet_list sheets;
  for (const std::string& file : ports.files.list(core::sheet_folder(session.settings, session.boxes), "*.bmp")) {
    const maps::Sheet_name name = maps::chikeizu_name_get(session.catalogue, file, session.settings.language);
    sheets.List1.push_back(name.display);
    sheets.List2.push_back(name.stem);
  }
  return sheets;
}

// One sentence for all the pictures that could not be loaded.
void tell_failures(const maps::Load_report& report, platform::Prompts& prompts) {
  if (report.failures.empty()) return;
  std::string japanese, english;
  for (const maps::Picture_failure& failure : report.failures) {
    if (!japanese.empty()) japanese += "\n", english += "\n";
    japanese += maps::failure_text(failure, true);
    english += maps::failure_text(failure, false);
  }
  prompts.message(japanese, english);
}

// Strikes that need a declination are shown as they were read where there is none; told once in a run.
void tell_uncorrected(Session& session, platform::Prompts& prompts) {
  const auto sentence = observations::sentence_of(session.coefficients.fault);
  const auto& symbols = session.drawn_records.symbols;
  const bool uncorrected = std::any_of(symbols.begin(), symbols.end(), [](const observations::Symbol& symbol) {
    return symbol.kind != observations::Symbol_kind::none && !symbol.true_north;
  });
  if (sentence && uncorrected && !std::exchange(session.field_fault_told, true)) prompts.message(*sentence);
}

}  // namespace

void registry_r(Session& session, Ports& ports) {
  observations::Entry& entry = session.entry;
  const observations::Record before = entry.open ? session.registry.rows[entry.touroku] : observations::Record{};
  const std::string path = observations::registry_file(session.settings);
  try {
    const int passes = path.empty() ? 0 : std::max(1, session.settings.registry_count);
    observations::chisoumen_read(session.registry, ports.files, passes, {path});
  } catch (const platform::Subscript_failure&) {
    const std::string shown = std::to_string(session.registry.N);
    ports.prompts.message(
        "地点登録ファイルを最後まで読み込めません。先頭の" + shown + "点だけを表示し、変更は保存しません。",
        "The point registration file can't be read to its end. Its first " + shown +
            " points are shown, and no change of them is saved.");
  }
  observations::entry_follow_read(entry, session.registry, before);
  if (session.highlighted > session.registry.N) session.highlighted = 0;
  observations::take_coefficients(ports.files, session.settings.program_path, session.coefficients);
  session.drawn_records = observations::drawn_records(session.registry, session.coefficients.field, session.canvas);
  tell_uncorrected(session, ports.prompts);
  const std::vector<std::string> base_data = observations::reference_paths(session.settings.project_path);
  observations::chisoumen_read4(session.reference_points, ports.files, static_cast<int>(base_data.size()), base_data);
  instruments::routes_r(ports.files, session.settings.project_path, session.routes);
}

bool registry_follow(Session& session, Ports& ports) {
  if (!observations::is_changed(session.registry, ports.files)) return false;
  const observations::Entry& entry = session.entry;
  const bool panel_is_marked = entry.open && session.highlighted == entry.touroku;
  registry_r(session, ports);
  if (panel_is_marked) session.highlighted = entry.touroku;  // a new record stands behind those that came
  return true;
}

int row_of(const Sheet_list& sheets, const std::string& stem) {
  const auto found = std::find(sheets.List2.begin(), sheets.List2.end(), stem);
  return found == sheets.List2.end() ? -1 : static_cast<int>(found - sheets.List2.begin());
}

void sheet_list_r(Session& session, Ports& ports) {
  catalogue_r(session, ports);
  maps::gyousei_read(ports.files, session.settings.program_path, session.boundaries);
  session.sheets = listed(session, ports);
  session.sheets.selected = row_of(session.sheets, session.current_sheet);
  // Without a sheet in the list the map is cleared.
  if (session.sheets.List2.empty()) session.current_sheet.clear();
}

Redraw chizu_out(Session& session, Ports& ports, int row, const std::function<void(int, int)>& progress) {
  Sheet_list& sheets = session.sheets;
  if (row < 0 || row >= static_cast<int>(sheets.List2.size())) return Redraw::none;
  const std::string stem = sheets.List2[static_cast<std::size_t>(row)];
  const maps::Sheet_choice choice{stem, core::sheet_folder(session.settings, session.boxes), session.option5(),
                                  session.view.Text1};
  const maps::Load_report report =
      maps::chizu_out(ports.files, ports.pictures, session.catalogue, choice, session.canvas, session.mosaic, progress);
  sheets.selected = row;
  session.current_sheet = stem;
  session.bars = {};
  measure_bars(session);
  tell_failures(report, ports.prompts);
  registry_r(session, ports);
  return Redraw::all;
}

}  // namespace session
