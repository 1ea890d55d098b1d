// The two languages: the word in Language.set, and the captions of the main window, the basic settings and the 3D model
// frame as tables. The forms are designed in Japanese. The short list has both texts of a caption; the long list is set
// by a switch to English only, so once English was shown its entries stay English until the next start.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/project_settings.h"

namespace core {

// Index of a control that is no member of a control array.
inline constexpr int no_index = -1;

struct Caption {
  const char* control;
  int index;
  const char* japanese;  // the long list: the caption of the design
  const char* english;
};

std::span<const Caption> captions_short();
std::span<const Caption> captions_long();

// A caption to be set now.
struct Caption_set {
  std::string_view control;
  int index;
  std::string_view text;
};

// The word of \Language.set in the program folder: its first field, whatever the word is. "English" when the file is
// missing or empty or can't be read.
std::string language_r(platform::Files& files, const std::string& program_path);
// Writes the word. File_failure when it can't be written.
void language_w(platform::Files& files, const std::string& program_path, const std::string& language);

// "Japanese" only is Japanese; any other word gives English captions.
bool is_japanese(std::string_view language);

// Reads Language.set into the settings and the prompts and gives the captions to set, in the order of the tables: the
// short list in Japanese, or both lists in English.
std::vector<Caption_set> Language_set(Settings& settings, platform::Files& files, platform::Prompts& prompts);

// A choice in the language menu: writes the word and runs Language_set. A message when it can't be written; the
// language in force then stays.
std::vector<Caption_set> menu_language(Settings& settings, const std::string& language, platform::Files& files,
                                       platform::Prompts& prompts);

// The caption that a control of the tables shows now, in a dialog opened later too; empty for a control of neither.
std::string caption_of(const Settings& settings, std::string_view control, int index = no_index);

// Name of the mark kind of an enclosure in the language in force: "範囲" or "Area".
std::string area_word(const Settings& settings);

}  // namespace core
