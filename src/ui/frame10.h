// The frame "Image File Save", `Frame10`: the canvas as a bmp, jpeg or png file.
#pragma once

#include <QDialog>
#include <QImage>

#include <functional>

#include "core/project_settings.h"
#include "core/session/session.h"

class QLineEdit;
class QRadioButton;

namespace ui {

class Frame10_dialog : public QDialog {
  Q_OBJECT

 public:
  // `picture` gives the canvas as it is shown.
  Frame10_dialog(session::Ports& ports, const core::Settings& settings, std::function<QImage()> picture,
                 QWidget* parent = nullptr);

 private:
  void lay_out(bool japanese);
  void Command29();

  session::Ports& ports_;
  std::function<QImage()> picture_;
  QLineEdit* Text16_ = nullptr;
  class Folder_box* Dir2_ = nullptr;
  QRadioButton* Option_[3] = {};
};

}  // namespace ui
