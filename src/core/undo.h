// Undo and redo as the menu has them: captions, and what is said to the user.
#pragma once

#include <string>
#include <string_view>

#include "platform/journal.h"
#include "platform/prompts.h"

namespace core {

// "元に戻す: 保存" or "Undo: Save"; without the title where there is nothing to undo.
std::string undo_caption(const platform::Journal& journal, std::string_view language);
// "やり直す: 保存" or "Redo: Save".
std::string redo_caption(const platform::Journal& journal, std::string_view language);

// What menu_undo and menu_redo did.
struct Undone {
  bool files_changed = false;     // the project must be read and drawn again
  std::string japanese, english;  // what was done, for the status bar; empty otherwise
};

// Takes back the newest operation, or does again the last one that was taken back. Where that can't be, a message tells
// why and names the files (ten at most). Where the newest operation was not kept, undo asks before it goes to the one
// before.
Undone menu_undo(platform::Journal& journal, platform::Prompts& prompts);
Undone menu_redo(platform::Journal& journal, platform::Prompts& prompts);

}  // namespace core
