#include "core/save_messages.h"

namespace core {

namespace {

using platform::File_cause;
using platform::File_failure;

platform::Message words_of(File_cause cause) {
  switch (cause) {
    case File_cause::disk_full:
      return {"（ディスクの空きが足りません）", " (the disk is full)"};
    case File_cause::not_allowed:
      return {"（書き込みや読み込みの許可がありません）", " (permission denied)"};
    case File_cause::missing:
      return {"（ファイルまたはフォルダがありません）", " (the file or its folder is not there)"};
    case File_cause::in_use:
      return {"（ほかのプログラムが使用中です）", " (another program is using it)"};
    case File_cause::too_large:
      return {"（ファイルが大きすぎます）", " (the file is too large)"};
    case File_cause::broken:
      return {"（ディスクの読み書きに失敗しました）", " (the disk could not be read or written)"};
    case File_cause::unknown:
      break;
  }
  return {"", ""};
}

}  // namespace

void file_failed(platform::Prompts& prompts, const platform::Message& sentence, const std::string& path,
                 const File_failure& failure) {
  const platform::Message cause = words_of(failure.cause);
  prompts.message(sentence.japanese + path + cause.japanese, sentence.english + path + cause.english);
}

void write_failed(platform::Prompts& prompts, const std::string& path, const File_failure& failure) {
  file_failed(prompts, {"保存できません: ", "The file can't be saved: "}, path, failure);
}

void operation_failed(platform::Prompts& prompts, const platform::Failure& failure) {
  if (const auto* of_file = dynamic_cast<const File_failure*>(&failure)) {
    const bool known = of_file->cause != File_cause::unknown;
    file_failed(prompts, {"ファイルを読み書きできませんでした: ", "A file could not be read or written: "},
                known ? of_file->file : failure.what(), *of_file);
    return;
  }
  prompts.message(std::string("この操作を中断しました: ") + failure.what(),
                  std::string("This operation was ended: ") + failure.what());
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
