// The measurement files of the program's folder \Tiltvane: the list that shows one of them or the memory of the
// instrument, and its buttons for saving ticked rows and for deleting a file. What a column holds: tiltvane_line.h.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/project_settings.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/journal.h"
#include "platform/prompts.h"

namespace instruments {

inline constexpr int list_limit = 1200;  // rows of the list; a file's further lines are not shown

inline constexpr platform::Message no_row_to_save{"保存するデータを選択して下さい。", "Please select saved data"};
inline constexpr platform::Message no_ticked_row{"選択されたデータがありません。", "There is no selected data."};
inline constexpr platform::Message memory_as_it_is{"Tiltvaneのメモリーは偏角表示ができません。",
                                                   "Tiltvaneのメモリーは偏角表示ができません。"};

struct Measurement_row {
  std::string line;
  bool ticked = false;
  bool operator==(const Measurement_row&) const = default;
};

// List1, and where its rows come from.
struct Measurement_list {
  std::vector<Measurement_row> rows;
  std::string file;        // path of the file that fills it
  bool memory = false;     // it shows the memory, \TMP2.TMP
  bool shortened = false;  // the file has more rows than the list
};

struct Data_context {
  const core::Settings& settings;
  platform::Files& files;
  platform::Clock& clock;
  platform::Prompts& prompts;
  platform::Journal* journal = nullptr;  // of what `files` writes; none where nothing can be taken back
};

// Begins an operation that can be taken back; it ends with the object. What came from the instrument and what was saved
// of it stand outside of every operation: an undo must not take them away.
std::unique_ptr<platform::Journal_operation> undoable(const Data_context& context, const char* japanese,
                                                      const char* english);

// The folder \Tiltvane of the program, and a file in it.
std::string tiltvane_folder(const std::string& program_path, const std::string& name = {});
// The names of the saved files (FileImage), in the order of the folder.
std::vector<std::string> saved_files(platform::Files& files, const std::string& program_path);

// Fills the list from a saved file or from an unprocessed dump of the memory. Header lines and lines of 6 characters or
// less are left out; a line with "END" in it ends the text. Nothing is ticked. A file that is missing or can't be read
// has no rows.
void Tiltvane_out(Measurement_list& list, platform::Files& files, const std::string& path);
// The same from \TMP2.TMP, the memory after its download.
void Tiltvane_out2(Measurement_list& list, platform::Files& files, const std::string& program_path);
// Reads the chosen file of FileImage again. With none chosen the list stays, and the memory says that it has no other
// display. True when the list was filled.
bool 再表示(Measurement_list& list, const Data_context& context, const std::string& FileImage);

// The lines of the ticked rows in their order.
std::vector<std::string> ticked_lines(const Measurement_list& list);

// Saves the ticked rows as a file of \Tiltvane, with the declination of Text1 worked into them anew; a row without a
// plane stays as it is. The file's name; empty, with a message, where no row is ticked or the file can't be written.
std::string Command10(const Data_context& context, const Measurement_list& list, const std::string& Text1);

// Deletes a saved file after two questions. False where one is declined or the file can't be removed.
bool Command1(const Data_context& context, const std::string& FileImage);

// The marks that a measurement can bear and their names: "＋" is "Cross". Empty for any other text.
std::string_view mark_token(std::string_view mark);

}  // namespace instruments
