#include "core/save_messages.h"

namespace core {

void write_failed(platform::Prompts& prompts, const std::string& path) {
  prompts.message("保存できません: " + path, "The file can't be saved: " + path);
}

void read_in_part(platform::Prompts& prompts, const std::string& path) {
  prompts.message("地点登録ファイルの全体を読み込めていないため、保存しません: " + path,
                  "The file was not read as a whole, so it is left as it is: " + path);
}

bool unknown_characters(platform::Prompts& prompts, const std::string& unknown) {
  if (unknown.empty()) return false;
  prompts.message("次の文字は保存できません。書き換えて下さい: " + unknown,
                  "These characters can't be stored, please replace them: " + unknown);
  return true;
}

}  // namespace core
