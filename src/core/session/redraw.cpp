#include "core/session/redraw.h"

#include "core/session/sheet.h"
#include "maps/boundaries.h"
#include "maps/grid_out.h"
#include "observations/chiten_out.h"
#include "observations/reference_points_out.h"

namespace session {

void place_section_controls(Session& session) {
  Section_controls& controls = session.section_controls;
  controls.visible = session.section_known && session.sheet_shown();
  if (!controls.visible) return;
  const maps::Canvas_point first = maps::henkan_px(session.canvas, session.section.x1, session.section.y1);
  const maps::Canvas_point second = maps::henkan_px(session.canvas, session.section.x2, session.section.y2);
  controls.x0 = first.x * maps::twips_per_unit;
  controls.y0 = first.y * maps::twips_per_unit;
  controls.x1 = second.x * maps::twips_per_unit;
  controls.y1 = second.y * maps::twips_per_unit;
}

namespace {

observations::Chiten_choice chiten_choice(const Session& session) {
  using observations::Number_shown;
  const Number_shown number = session.boxes.Option9 ? Number_shown::measurement : Number_shown::registration;
  return {session.view.Check5, session.view.Check6, session.view.Check2 ? number : Number_shown::none};
}

}  // namespace

void 画面再表示(Session& session, drawing::Surface& surface) {
  place_section_controls(session);
  if (!session.sheet_shown()) {
    surface.clear(drawing::white);
    return;
  }
  maps::Grid_out(surface, session.canvas, session.mosaic,
                 {session.view.Check3, session.option5(), session.current_sheet});
  maps::gyousei_out(surface, session.canvas, session.boundaries);
  const observations::Chiten_choice choice = chiten_choice(session);
  observations::reference_points_out(surface, session.canvas, session.reference_points, choice);
  if (session.view.Check8) instruments::routes_out(surface, session.canvas, session.routes);
  observations::chiten_out(surface, session.canvas, session.registry, session.drawn_records, choice);
}

Redraw re_gamen(Session& session, Ports& ports) {
  const Sheet_list& sheets = session.sheets;
  if (sheets.selected >= 0) session.current_sheet = sheets.List2[static_cast<std::size_t>(sheets.selected)];
  if (session.sheet_shown()) registry_r(session, ports);
  return Redraw::all;
}

}  // namespace session
