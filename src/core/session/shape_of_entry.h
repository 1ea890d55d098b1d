// The shape of the record in the entry panel, for the export as a Shapefile.
#pragma once

#include "exchange/shape_list.h"
#include "observations/registry_edit.h"
#include "platform/files.h"

namespace session {

// What the panel shows, saved or not: a polygon of the current record's vertices where the panel's mark is that of an
// enclosure in either language, otherwise the point of the position boxes. Without a current record a polygon has no
// points.
exchange::Shape shape_of_entry(const observations::Entry& entry, const observations::Registry& registry);

// "Shapeファイル作成": writes that shape as \TMP.TMP of the program folder; frm_Shape is to be opened then.
// File_failure when it can't be written.
void Command7(const core::Settings& settings, const observations::Entry& entry, const observations::Registry& registry,
              platform::Files& files);

}  // namespace session
