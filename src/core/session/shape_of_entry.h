// The shape of the record in the entry panel, for the export as a Shapefile.
#pragma once

#include "core/session/session.h"
#include "exchange/shape_list.h"

namespace session {

// What the panel shows, saved or not: a polygon of the current record's vertices where the panel's mark is that of an
// enclosure in either language, otherwise the point of the position boxes. A polygon has no points without a current
// record, and when another one stands in its row by now.
exchange::Shape shape_of_entry(const observations::Entry& entry, const observations::Registry& registry);

// "Shapeファイル作成": writes that shape as \TMP.TMP of the program folder; frm_Shape is to be opened then.
// File_failure when it can't be written.
void Command7(const Session& session, Ports& ports);

}  // namespace session
