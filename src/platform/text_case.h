// Upper and lower case as the system compares names: ASCII, full-width Latin, Greek and Cyrillic letters, the ones that
// code page 932 has in both cases.
#pragma once

#include <string>
#include <string_view>

namespace platform {

std::string fold_case(std::string_view text);  // to lower case
std::string upper_case(std::string_view text);
bool same_name(std::string_view a, std::string_view b);  // equal without regard to case

}  // namespace platform
