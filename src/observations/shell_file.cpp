#include "observations/shell_file.h"

namespace observations {
namespace {

using platform::Open_result;

// The text of a failure, one for both languages; none where the reason has no text of its own.
const char* told(Open_result result) {
  switch (result) {
    case Open_result::no_memory:
      return "メモリまたはリソースが足りません。";
    case Open_result::no_file:
      return "ファイルが見つかりません。";
    case Open_result::no_path:
      return "パスが見つかりません。";
    case Open_result::bad_format:
      return "不正な形式の実行ファイルです。";
    case Open_result::denied:
      return "アクセスは拒否されました。";
    default:
      return nullptr;
  }
}

}  // namespace

Open_result Shell_file2(platform::Processes& processes, const std::string& file) {
  return processes.open(file);
}

bool Shell_file(platform::Processes& processes, platform::Prompts& prompts, const std::string& file) {
  const Open_result result = Shell_file2(processes, file);
  if (result == Open_result::opened) return true;
  if (const char* text = told(result))
    prompts.message(platform::Message{text, text});
  else
    prompts.message("開くプログラムがありません: " + file, "No program opens this file: " + file);
  return false;
}

}  // namespace observations
