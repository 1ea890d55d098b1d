#include "ui/guard.h"

#include <new>

#include "core/save_messages.h"
#include "platform/failures.h"

namespace ui {

bool guarded(platform::Prompts& prompts, const std::function<void()>& procedure) {
  try {
    procedure();
    return true;
  } catch (const platform::Failure& failure) {
    core::operation_failed(prompts, failure);
  } catch (const std::bad_alloc&) {
    prompts.message("メモリが足りないため、この操作を中断しました。",
                    "This operation was ended because there is not enough memory.");
  }
  return false;
}

}  // namespace ui
