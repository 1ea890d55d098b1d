// The attribute table of the second set: a dBASE III table of one text column and one record.
#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace exchange {

inline constexpr std::size_t dbf_text_width = 254;  // bytes, the most that a text column can have

// The content of the table. `column` is a name of up to 10 ASCII letters; `text` is written in code page 932, and what
// goes beyond dbf_text_width bytes is dropped by whole characters. `today` is the date of the last change.
std::string dbf_bytes(std::string_view column, std::string_view text, const platform::Date_time& today);

}  // namespace exchange
