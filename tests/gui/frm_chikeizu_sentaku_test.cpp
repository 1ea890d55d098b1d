#include "ui/frm_chikeizu_sentaku.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "core/session/sheet.h"
#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "gui/main_window.h"

namespace {

// Two whole sheets, corner to corner: in cells of 100 x 80 units from a margin of 40, 543817 has its middle at pixel
// (95, 40), 543806 at (45, 80).
struct Sheet_dialog : support::Main_window {
  std::unique_ptr<ui::Frm_chikeizu_sentaku> dialog;
  const QPoint north_east{95, 40}, south_west{45, 80}, between{45, 40};

  void make(const std::string& language) {
    make_project(language);
    files.remove(program() + "/map/free.bmp");
    write(program() + "/ZUMEI.CSV", {"543817,杉沢"});
    write(program() + "/chizuset.dat", {" 100 ", " 80 ", " 24 "});
    for (const char* stem : {"543817", "543806"}) files.write_whole(program() + "/map/" + stem + ".bmp", "x");
  }
  void open_dialog() {
    session::form_load(session, ports, program());
    session::form_activate(session, ports, {});
    session::form_activate(session, ports, {});
    dialog = std::make_unique<ui::Frm_chikeizu_sentaku>(session, ports);
    dialog->show();
    QTest::qWait(10);
  }
  QAbstractScrollArea* grid() const { return dialog->findChild<QAbstractScrollArea*>("Picture1"); }
  QSpinBox* box(const char* name) const { return dialog->findChild<QSpinBox*>(name); }
  QString told() const { return dialog->findChild<QLabel*>("told")->text(); }
  void click(QPoint at) const { QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, at); }
};

}  // namespace

TEST_F(Sheet_dialog, AClickOnACellChoosesItsSheet) {
  make("English");
  open_dialog();
  click(between);
  EXPECT_TRUE(dialog->isVisible());
  click(north_east);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->chosen_stem(), "543817");
}

TEST_F(Sheet_dialog, TheOtherButtonsOfTheMouseChooseNothing) {
  make("English");
  open_dialog();
  QTest::mouseClick(grid()->viewport(), Qt::RightButton, {}, north_east);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->chosen_stem(), "");
}

TEST_F(Sheet_dialog, TheSheetUnderTheMouseIsNamed) {
  make("Japanese");
  open_dialog();
  EXPECT_EQ(told(), "図葉をクリックするか、矢印キーとEnterで選ぶと地図を開きます。");
  QTest::mouseMove(grid()->viewport(), north_east);
  EXPECT_EQ(told(), "杉沢  543817");
  QTest::mouseMove(grid()->viewport(), south_west);
  EXPECT_EQ(told(), "543806  543806");
}

TEST_F(Sheet_dialog, ArrowsAndEnterChooseASheetToo) {
  make("English");
  open_dialog();
  QTest::keyClick(grid(), Qt::Key_Up);
  QTest::keyClick(grid(), Qt::Key_Down);
  EXPECT_EQ(told(), "543806  543806");
  QTest::keyClick(grid(), Qt::Key_Right);
  EXPECT_EQ(told(), "543817  543817");
  QTest::keyClick(grid(), Qt::Key_Return);
  EXPECT_EQ(dialog->chosen_stem(), "543817");
}

TEST_F(Sheet_dialog, CloseChoosesNothing) {
  make("English");
  open_dialog();
  dialog->findChild<QPushButton*>("Command2")->click();
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_EQ(dialog->chosen_stem(), "");
}

TEST_F(Sheet_dialog, StartsWithTheSettingsThatWereSavedAndSavesWhatIsSet) {
  make("Japanese");
  open_dialog();
  EXPECT_EQ(box("cell_width")->value(), 100);
  EXPECT_EQ(box("cell_height")->value(), 80);
  EXPECT_EQ(box("text_height")->value(), 24);
  box("cell_width")->setValue(150);
  box("text_height")->setValue(30);
  auto* save = dialog->findChild<QPushButton*>("Command1");
  EXPECT_EQ(save->text(), "表示設定保存");
  save->click();
  EXPECT_EQ(files.read_bytes(program() + "/chizuset.dat"), " 150 \r\n 80 \r\n 30 \r\n");
  EXPECT_TRUE(dialog->isVisible());
  // Cells of 150: the middle of 543817 is at (40 + 150 + 75) / 2 pixels.
  click({132, 40});
  EXPECT_EQ(dialog->chosen_stem(), "543817");
}

TEST_F(Sheet_dialog, SettingsThatCannotBeSavedAreToldInOneSentence) {
  make("Japanese");
  open_dialog();
  watched.read_only = true;
  dialog->findChild<QPushButton*>("Command1")->click();
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"表示設定を保存できません: " + program() + "\\chizuset.dat"});
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(Sheet_dialog, AnEmptyFolderIsSaid) {
  for (const auto& [language, said] : {std::pair{"Japanese", "地図フォルダに図葉がありません。"},
                                       std::pair{"English", "The map folder holds no sheet."}}) {
    make(language);
    for (const char* stem : {"543817", "543806"}) files.remove(program() + "/map/" + stem + ".bmp");
    open_dialog();
    EXPECT_EQ(told(), said);
    click(north_east);
    QTest::keyClick(grid(), Qt::Key_Right);
    QTest::keyClick(grid(), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
  }
}

namespace {

// Lists 3001 sheets without the time that it takes to write them.
class Many_sheets : public platform::Disk_files {
 public:
  std::vector<std::string> list(const std::string& folder, std::string_view pattern) override {
    if (pattern != "*.bmp") return Disk_files::list(folder, pattern);
    std::vector<std::string> names;
    for (int i = 0; i <= maps::index_limit; ++i) names.push_back(std::to_string(500'000 + i) + ".bmp");
    return names;
  }
};

}  // namespace

TEST_F(Sheet_dialog, MoreThan3000SheetsAreToldOnceAndTheFirstAreShown) {
  for (const auto& [language, said] : {std::pair{"Japanese", "図葉が多すぎます。先頭の3000枚だけを表示します。"},
                                       std::pair{"English", "There are too many sheets. The first 3000 are shown."}}) {
    make(language);
    open_dialog();
    prompts.shown.clear();
    Many_sheets many;
    session::Ports crowded{many, pictures, prompts, processes, other.clock, other.journal, other.sheets, other.sounds};
    dialog = std::make_unique<ui::Frm_chikeizu_sentaku>(session, crowded);
    EXPECT_EQ(prompts.shown, std::vector<std::string>{said});
    EXPECT_FALSE(told().isEmpty());
  }
}

TEST_F(Sheet_dialog, NothingIsClippedAndEverythingHasAName) {
  for (const char* language : {"Japanese", "English"}) {
    make(language);
    open_dialog();
    for (const QSize size : {QSize(860, 600), dialog->minimumSizeHint()}) {
      dialog->resize(size);
      QTest::qWait(10);
      EXPECT_TRUE(support::nothing_clipped(dialog.get())) << language << " " << size.width();
    }
    EXPECT_EQ(support::nameless_widgets(*dialog).join(", ").toStdString(), "") << language;
  }
}

TEST_F(Sheet_dialog, TheSheetThatIsDrawnIsMarkedAndBroughtIntoView) {
  make("English");
  write(program() + "/chizuset.dat", {" 600 ", " 400 ", " 24 "});
  for (const char* stem : {"543800", "543877"}) files.write_whole(program() + "/map/" + stem + ".bmp", "x");
  open_dialog();
  session.current_sheet = "543800";  // the south-west end of 8 x 8 cells of 300 x 200 pixels
  dialog = std::make_unique<ui::Frm_chikeizu_sentaku>(session, ports);
  dialog->show();
  QTest::qWait(10);
  QTest::keyClick(grid(), Qt::Key_Return);
  EXPECT_EQ(dialog->chosen_stem(), "543800");
}
