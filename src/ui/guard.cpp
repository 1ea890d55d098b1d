#include "ui/guard.h"

#include <new>
#include <string>

#include "platform/failures.h"

namespace ui {

bool guarded(platform::Prompts& prompts, const std::function<void()>& procedure) {
  try {
    procedure();
    return true;
  } catch (const platform::File_failure& failure) {
    prompts.message(std::string("ファイルを読み書きできませんでした: ") + failure.what(),
                    std::string("A file could not be read or written: ") + failure.what());
  } catch (const platform::Failure& failure) {
    prompts.message(std::string("この操作を中断しました: ") + failure.what(),
                    std::string("This operation was ended: ") + failure.what());
  } catch (const std::bad_alloc&) {
    prompts.message("メモリが足りないため、この操作を中断しました。",
                    "This operation was ended because there is not enough memory.");
  }
  return false;
}

}  // namespace ui
