// The basic settings dialog, `Frame2`: folders, registration files, numbering, datum, sheet folder, GPS port, input
// sheet, map cut. It lays out the boxes of core/project_settings.h and holds no rule of its own.
#pragma once

#include <QDialog>
#include <QPoint>

#include <functional>
#include <memory>

#include "core/project_settings.h"
#include "platform/files.h"
#include "platform/journal.h"
#include "platform/prompts.h"

class QGroupBox;

namespace ui {

class Folder_box;

// What is typed lives in the widgets; `boxes` are the session's own: Save writes the widgets into them, Cancel reads
// settei.ini into them again. Closing by the window's frame cancels too, and goes also while there is no settei.ini.
class Frame2_dialog : public QDialog {
  Q_OBJECT

 public:
  Frame2_dialog(core::Settings& settings, core::Settings_boxes& boxes, platform::Files& files,
                platform::Prompts& prompts, QWidget* parent = nullptr);

  std::function<void()> saved;   // settei.ini was written and the project state set; called before `closed`
  std::function<void()> closed;  // the dialog has gone, by Save, by Cancel or by the window's frame

  // The making and deleting of registration files can be taken back from now on.
  void keep_in(platform::Journal& journal) { journal_ = &journal; }
  // Fills the widgets from the boxes; the first showing does it by itself.
  void boxes_out();
  // Sets all captions in the language of the settings.
  void Language_set();

 protected:
  void reject() override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  // frame2.cpp: layout
  void lay_out();
  QWidget* project_page();
  QWidget* map_page();
  QWidget* entry_page();
  QGroupBox* project_group();
  QGroupBox* registry_group();
  QGroupBox* sheet_group();
  QGroupBox* cut_group();
  QGroupBox* gps_group();
  QGroupBox* frame12_group();
  void connect_all();

  // frame2_boxes.cpp: between widgets and boxes, and the buttons
  core::Settings_boxes boxes_in() const;
  void widgets_fill(const core::Settings_boxes& shown);
  void registries_fill(const core::Settings_boxes& shown);
  void pages_fit();
  void frame_files_fill(const QString& folder);
  void project_chosen(const QString& folder);
  void sheet_folder_chosen(int index);
  void save();
  void cancel();
  void finish(int result);
  void project_make();
  void registry_make();
  void registries_delete();
  void frame12_show(bool shown);
  // From now to its end what is done to files is one operation of the journal, where there is one.
  std::unique_ptr<platform::Journal_operation> operation(const char* japanese, const char* english);

  core::Settings& settings_;
  core::Settings_boxes& boxes_;
  platform::Files& files_;
  platform::Prompts& prompts_;
  platform::Journal* journal_ = nullptr;
  QString listed_folder_;      // the project folder whose files File11 shows
  bool frame_closed_ = false;  // the window's frame was used
  QPoint held_at_;             // where the mouse took hold of the dialog
};

}  // namespace ui
