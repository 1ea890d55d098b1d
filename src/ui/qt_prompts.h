// Message boxes of the toolkit behind the port.
#pragma once

#include "platform/prompts.h"

class QWidget;

namespace ui {

class Qt_prompts : public platform::Prompts {
 public:
  // The window that the boxes stand over; none before there is one.
  void stand_over(QWidget* window) { window_ = window; }

 protected:
  platform::Answer show(Kind kind, const std::string& text) override;

 private:
  QWidget* window_ = nullptr;
};

}  // namespace ui
