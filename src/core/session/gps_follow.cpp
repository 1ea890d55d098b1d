#include "core/session/gps_follow.h"

#include "core/session/entry.h"
#include "core/session/gps_sheet.h"
#include "core/session/tools.h"

namespace session {

void gps_start(Session& session, Ports& ports, platform::Serial_port& port) {
  instruments::gps_start(session.gps, session.flags, port, session.boxes, ports.clock);
}

void gps_stop(Session& session, platform::Serial_port& port) {
  instruments::gps_stop(session.gps, session.flags, port);
}

Gps_followed gps_tick(Session& session, Ports& ports, platform::Serial_port& port) {
  Gps_followed result;
  const instruments::Gps_step step = instruments::Timer2(session.gps, session.flags, port, ports.clock);
  if (!step.moved || !session.sheet_shown()) return result;
  const Gps_sheet sheet =
      gps_sheet(session.sheets, session.catalogue, session.current_sheet, step.longitude, step.latitude);
  result.moved = true;
  result.Label16 = sheet.Label16;
  result.outside = sheet.found == Gps_sheet::Found::outside;
  result.data_path = data_path_text(sheet, session.settings.project_path);
  result.redraw = Redraw::overlay;
  if (sheet.found == Gps_sheet::Found::listed)
    result.row = sheet.row;
  else if (sheet.found == Gps_sheet::Found::shown)
    result.redraw = bring_into_sight(session, {session.gps.mark.longitude, session.gps.mark.latitude});
  return result;
}

}  // namespace session
