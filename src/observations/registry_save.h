// The buttons that write a registration file: "保存" and "他の地層面に追加".
#pragma once

#include <vector>

#include "core/language.h"
#include "observations/registry_edit.h"

namespace observations {

struct Save_result {
  bool saved = false;                       // the panel is closed; the table must be read and drawn again
  bool measurement_in_use = false;          // the measurement number was another record's already
  std::vector<core::Caption_set> captions;  // to be set when the language table was read
};

// "保存". Moves the boxes into the current record, writes the whole file and then the memo's, and copies the project's
// registries into the backup folder. Not saved, with a message, without a registration file in use or a current record,
// with several files, with characters that the file can't hold, when the table is not all that the file holds, and when
// a file can't be written: table and file are then as they were, and the panel stays open.
Save_result Command9(Edit_context context, Entry& entry, Registry& registry);

// "他の地層面に追加": appends a short record of the boxes to \chisou_men\<Combo2>.csv, which loses its deleted lines.
// It has no column 19, so a strike with Check9 ticked takes the declination there; a second message says so. False,
// with a message, without another surface than the one in use, and where Command9 refuses.
bool surface_add(Edit_context context, const Entry& entry);

}  // namespace observations
