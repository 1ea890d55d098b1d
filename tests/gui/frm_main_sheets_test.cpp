// The sheet list, the settings and the picture save as the main window joins them.
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "gui/main_window.h"
#include "ui/canvas_view.h"

namespace {

struct Frm_main_sheets : support::Main_window {
  // What is to be done in the next dialog that waits for its end.
  template <typename Act>
  void in_dialog(const char* action, Act act) {
    bool acted = false;
    QTimer::singleShot(50, window.get(), [&] {
      acted = true;
      act(QApplication::activeModalWidget());
    });
    find<QAction>(action)->trigger();
    EXPECT_TRUE(acted);
  }
};

}  // namespace

TEST_F(Frm_main_sheets, ACellOfTheSheetDialogChoosesItsRowInTheListAndOpensIt) {
  make_project("English");
  write(program() + "/chizuset.dat", {" 100 ", " 80 ", " 24 "});
  QImage picture(40, 30, QImage::Format_RGB32);
  for (const char* stem : {"543817", "543806"})
    picture.save(QString::fromStdString(program() + "/map/" + stem + ".bmp"));
  files.remove(program() + "/map/free.set");  // without a frame it stands in no cell
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  in_dialog("view_sheet_index", [](QWidget* dialog) {
    ASSERT_TRUE(dialog);
    QTest::mouseClick(dialog->findChild<QAbstractScrollArea*>("Picture1")->viewport(), Qt::LeftButton, {}, {95, 40});
  });
  EXPECT_EQ(session.current_sheet, "543817");
  const QModelIndex current = find<QListView>("List2")->currentIndex();
  EXPECT_EQ(current.siblingAtColumn(1).data().toString(), "543817");
}

TEST_F(Frm_main_sheets, SavingAnotherDatumBringsTheSheetToItsOtherCorners) {
  make_project("English");
  write(program() + "/ZUMEI.CSV", {"543817,x,,,,,,360500.0,1390000.0,360511.5,1385948.4,,361000.0,1385230.0,361011.5,"
                                   "1385218.4"});
  files.copy(program() + "/map/free.bmp", program() + "/map/543817.bmp");
  files.remove(program() + "/map/free.bmp");
  session::form_load(session, ports, program());
  window = std::make_unique<ui::Frm_main>(session, ports);
  window->start();
  open_sheet();
  ASSERT_EQ(session.current_sheet, "543817");
  EXPECT_EQ(session.canvas.geo_x0, 13'887'500);
  find<QAction>("menu_settei")->trigger();
  find<QRadioButton>("Option7")->setChecked(true);
  find<QAbstractButton>("Command10")->click();
  EXPECT_EQ(prompts.shown, std::vector<std::string>{});
  EXPECT_EQ(session.canvas.geo_x0, static_cast<float>(499938.4 / 3600 * 100000));  // 138 52 18.4
}

TEST_F(Frm_main_sheets, TheScrollBarsMoveTheMapByTheirChange) {
  open("English");
  open_sheet();
  for (int i = 0; i < 10; ++i) find<QAbstractButton>("Command16")->click();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const QImage before = canvas->map_image();
  find<QScrollBar>("HScroll1")->setValue(find<QScrollBar>("HScroll1")->value() + 600);
  find<QScrollBar>("VScroll1")->setValue(find<QScrollBar>("VScroll1")->value() + 300);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, -600);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -300);
  EXPECT_EQ(canvas->map_image().copy(0, 0, 100, 100), before.copy(40, 20, 100, 100));
}

TEST_F(Frm_main_sheets, TheSavedPictureIsTheCanvasWithoutTheRubberBand) {
  open("English");
  open_sheet();
  auto* canvas = find<ui::Canvas_view>("Picture1");
  const auto save = [&](const QString& name) {
    in_dialog("menu_gazou_save", [&](QWidget* dialog) {
      ASSERT_TRUE(dialog);
      dialog->findChild<QLineEdit*>("Text16")->setText(name);
      dialog->findChild<QRadioButton*>("Option3")->setChecked(true);
      dialog->findChild<QAbstractButton*>("Command29")->click();
    });
    return QImage(QString::fromStdString(project()) + "/" + name + ".png").convertToFormat(QImage::Format_RGB32);
  };
  const QImage plain = save("plain");
  ASSERT_EQ(plain.size(), canvas->size());
  EXPECT_EQ(plain.pixelColor(75, 75), QColor(10, 200, 30));
  session.zoom_rubber = {true, 900, 900, 6000, 6000};
  const double scale = session.canvas.canvas_scale;
  EXPECT_EQ(save("with"), plain);
  EXPECT_EQ(session.canvas.canvas_scale, scale);  // the save takes no step of the zoom
  EXPECT_NE(canvas->map_image(), plain);          // scale bar and north are in the saved one
}
