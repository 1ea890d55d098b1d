#include "ui/frame10.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <memory>

#include "platform/qt/qt_pictures.h"
#include "support/fake_ports.h"
#include "support/fault_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace {

struct Frame10 : ::testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files disk;
  support::Fault_files files{disk};
  platform::Qt_pictures pictures;
  support::Recorded_processes processes;
  support::Scripted_prompts prompts;
  support::Other_ports other{files};
  session::Ports ports{files, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
  core::Settings settings;
  std::unique_ptr<ui::Frame10_dialog> dialog;

  // The canvas is 6 x 4 and green.
  void SetUp() override {
    settings.project_path = folder.text();
    const auto canvas = [] {
      QImage image(6, 4, QImage::Format_RGB32);
      image.fill(QColor(0, 255, 0));
      return image;
    };
    dialog = std::make_unique<ui::Frame10_dialog>(ports, settings, canvas);
    dialog->show();
  }

  void save(const QString& name, const char* format) {
    dialog->findChild<QLineEdit*>("Text16")->setText(name);
    dialog->findChild<QRadioButton*>(format)->setChecked(true);
    dialog->findChild<QPushButton*>("Command29")->click();
  }
};

}  // namespace

TEST_F(Frame10, SavesTheCanvasInThreeFormats) {
  for (const auto& [format, ending] : {std::pair{"Option1", ".bmp"}, {"Option2", ".jpg"}, {"Option3", ".png"}}) {
    save("map", format);
    const QImage read(QString::fromStdString(folder.text() + "/map" + ending));
    ASSERT_EQ(read.size(), QSize(6, 4)) << ending;
    EXPECT_GT(read.pixelColor(3, 2).green(), 250) << ending;
    EXPECT_FALSE(dialog->isVisible());
    dialog->show();
  }
}

TEST_F(Frame10, AsksBeforeItReplacesAFileAlsoWhereTheEndingWasTyped) {
  disk.write_whole(folder.text() + "/map.png", "old");
  prompts.answers = {platform::Answer::no, platform::Answer::no, platform::Answer::yes};
  save("map", "Option3");
  save("map.png", "Option3");
  EXPECT_EQ(prompts.shown.size(), 2u);
  EXPECT_EQ(disk.read_bytes(folder.text() + "/map.png"), "old");
  EXPECT_TRUE(dialog->isVisible());
  save("map.png", "Option3");
  EXPECT_NE(disk.read_bytes(folder.text() + "/map.png"), "old");
}

TEST_F(Frame10, AFolderThatCannotBeWrittenIsToldOnceAndTheFrameStays) {
  files.read_only = true;
  save("map", "Option3");
  EXPECT_EQ(prompts.shown.size(), 1u);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->findChild<QLineEdit*>("Text16")->text(), "map");
}

TEST_F(Frame10, WithoutANameSaysSoAndStays) {
  save("", "Option1");
  EXPECT_EQ(prompts.shown.size(), 1u);
  EXPECT_TRUE(dialog->isVisible());
}
