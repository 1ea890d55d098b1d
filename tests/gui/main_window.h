// The main window on a program folder and a project of its own.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QListView>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

#include "core/session/start_up.h"
#include "platform/qt/qt_pictures.h"
#include "platform/text_files.h"
#include "support/fake_ports.h"
#include "support/fault_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "ui/frm_main.h"

namespace support {

// The window on a program folder with one free sheet of 36 seconds each way and a 40 x 30 picture.
struct Main_window : ::testing::Test {
  Temporary_folder folder;
  platform::Disk_files files;
  platform::Qt_pictures pictures;
  Recorded_processes processes;
  Scripted_prompts prompts;
  Fault_files watched{files};
  Other_ports other{watched};
  platform::Journal_files kept{watched, other.journal};
  session::Ports ports{kept, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
  session::Session session;
  std::unique_ptr<ui::Frm_main> window;

  std::string program() const { return folder.text() + "/program"; }
  std::string project() const { return folder.text() + "/project"; }

  void write(const std::string& path, const std::vector<std::string>& lines) {
    platform::Line_writer out;
    for (const std::string& line : lines) out.line(line);
    files.write_whole(path, out.bytes());
  }

  void make_project(const std::string& language) {
    for (const std::string& made : {program(), project(), project() + "/chisou_men", program() + "/map"})
      files.make_folder(made);
    write(project() + "/chisou_men/genchi.csv", {});
    write(program() + "/Language.set", {language});
    write(program() + "/settei.ini",
          {"",      "",       project(), "04",  "9600", "True", "False", "False", "True",
           "False", "sheet1", "",        "",    "",     "",     "True",  "False", "genchi.csv",
           "1000",  "1000",   "500",     "100", "6000", "6000", "",      "True",  "False"});
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(10, 200, 30));
    picture.save(QString::fromStdString(program() + "/map/free.bmp"));
    write(program() + "/map/free.set", {"139,0,0,35,0,36,139,0,36,35,0,0"});
  }

  void open(const std::string& language, QSize size = {1366, 720}) {
    make_project(language);
    session::form_load(session, ports, program());
    window = std::make_unique<ui::Frm_main>(session, ports);
    window->resize(size);
    window->start();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    QCoreApplication::processEvents();
  }

  template <typename Widget>
  Widget* find(const char* name) {
    auto* found = window->findChild<Widget*>(name);
    EXPECT_TRUE(found) << name;
    return found;
  }

  void open_sheet() {
    auto* list = find<QListView>("List2");
    const QModelIndex row = list->model()->index(0, 1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
    QCoreApplication::processEvents();
  }
};

}  // namespace support
