// The entry panel and the map together: what the menu of a point, the panel's buttons and the presses that belong to
// them do to the session. The rules of a record are those of observations/registry_edit.h and registry_save.h.
#pragma once

#include <vector>

#include "core/language.h"
#include "core/session/mouse.h"
#include "core/session/session.h"
#include "observations/memo.h"
#include "observations/photo_read.h"

namespace session {

// The rows of the table of presses that belong to observations: vertices, the free end of a line, the picked position,
// the menu of a point, the link of a mark. `ports` must outlive the tools.
void add_entry_tools(Map_tools& tools, Ports& ports);

// The record whose menu is up, as the menu names it; empty where there is none.
std::string menu_label(const Session& session);

// mnu_sinki, mnu_henkou and mnu_del at the place of the last press (session.entry_click). True when the panel opened,
// or for mnu_del when the record is gone; the table is read again then.
bool mnu_sinki(Session& session, Ports& ports);
bool mnu_henkou(Session& session, Ports& ports);
bool mnu_del(Session& session, Ports& ports);
// The same for a record of the table beside the map.
bool mnu_henkou(Session& session, Ports& ports, int touroku);

// Before the panel takes another record: what is typed and not saved is offered to be kept. False when it stays open,
// since a save was asked for and refused.
bool leave_entry(Session& session, Ports& ports);

struct Entry_saved {
  bool saved = false;
  std::vector<core::Caption_set> captions;  // to be set when the language table was read
};
// Command9, "保存": the record and its memo; the table is read again.
Entry_saved Command9(Session& session, Ports& ports);
// Points from the photos of a folder; what is open in the panel stays.
observations::Photo_result photo_read(Session& session, Ports& ports, const std::string& folder,
                                      geodesy::Point position);
// "他の地層面に追加".
bool surface_add(Session& session, Ports& ports);
// The panel goes without a question.
void entry_close(Session& session);
// The person changed a box of the panel.
void entry_edited(Session& session);

// Command6, "線(囲み)開始", and Command31, "線終了": the last vertex is the free end that a right press fixed, else the
// mouse's last place on the map.
Redraw Command6(Session& session, Ports& ports);
Redraw Command31(Session& session);
// Leaves an open line without its vertices, and disarms the pick of a position. True when there was one.
bool entry_tool_left(Session& session);

// Command1, "入力シート登録": the record's copy of the template is filled in and opened.
bool Command1(Session& session, Ports& ports);
// Command23, "メモ表示".
observations::Memo_shown Command23(Session& session, Ports& ports);

// A record is marked on the map, and in the table beside it: the one next to a place, or of a number (0: none). The map
// moves where the record is out of sight.
Redraw highlight_at(Session& session, double x, double y);
Redraw highlight(Session& session, int touroku);

// Moves the map so that a position in the records' units stands in its middle, unless it is in sight already.
Redraw bring_into_sight(Session& session, geodesy::Point position);

}  // namespace session
