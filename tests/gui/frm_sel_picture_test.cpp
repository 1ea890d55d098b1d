#include "ui/frm_sel_picture.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>

#include "gui/clipping.h"
#include "gui/gui_support.h"
#include "observations/observation_place.h"
#include "platform/qt/qt_pictures.h"
#include "support/fake_ports.h"
#include "ui/picture_view.h"
#include "ui/thumbnails.h"
#include "ui/toolkit_text.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A picture whose left half is red and whose right half is blue.
QImage red_and_blue(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) image.setPixel(x, y, x < width / 2 ? 0xffff0000u : 0xff0000ffu);
  return image;
}

bool is_red(QRgb colour) {
  return qRed(colour) > 200 && qBlue(colour) < 60;
}
bool is_blue(QRgb colour) {
  return qBlue(colour) > 200 && qRed(colour) < 60;
}

// The dialog on a project with a record, and a folder of photos beside it.
struct Frm_sel_picture : testing::TestWithParam<const char*> {
  support::Observation_place place;
  platform::Qt_pictures pictures;
  support::Recorded_processes processes;
  support::Other_ports other{place.files};
  session::Ports ports{place.files, pictures,      place.prompts, processes,
                       place.clock, other.journal, other.sheets,  other.sounds};
  std::unique_ptr<session::Session> session = std::make_unique<session::Session>();
  std::unique_ptr<ui::Frm_sel_picture> dialog;
  std::string photos = place.folder.text() + "\\photo";

  Frm_sel_picture() {
    place.disk.make_folder(photos);
    photo("a.jpg", red_and_blue(1200, 800), "JPG");
    photo("b.png", red_and_blue(30, 60), "PNG");
    place.disk.write_whole(photos + "\\voice.wav", "RIFF    WAVE");
    place.disk.write_whole(place.folder.text() + "\\psettei.dat", photos + "\r\n");
    place.put_lines({support::point_at("13976712.5", "3568123.6", "081115-001")});
    session->settings = place.settings;
    session->settings.language = GetParam();
    place.prompts.use_language(GetParam());
    observations::chisoumen_read(session->registry, place.files, 1, {place.path()});
    observations::boxes_from_record(session->entry.boxes, session->registry.rows[1]);
  }
  void photo(const std::string& name, const QImage& image, const char* format) const {
    const std::string folder = (place.folder.path() / "photo").string();
    ASSERT_TRUE(image.save(ui::to_toolkit(folder + "/" + name), format));
  }
  bool japanese() const { return std::string(GetParam()) == "Japanese"; }
  void open(bool edit = false) {
    dialog = std::make_unique<ui::Frm_sel_picture>(*session, ports, edit);
    dialog->show();
    QCoreApplication::processEvents();
  }
  template <typename Widget>
  Widget* find(const char* name) const {
    auto* widget = dialog->findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no widget " << name;
    return widget;
  }
  void press(const char* name) const { find<QAbstractButton>(name)->click(); }
  void choose(int row) const { find<QListWidget>("File1")->setCurrentRow(row); }
  void type(const char* name, const QString& text) const {
    find<QLineEdit>(name)->setFocus();
    find<QLineEdit>(name)->selectAll();
    QTest::keyClicks(find<QLineEdit>(name), text);
    QTest::keyClick(find<QLineEdit>(name), Qt::Key_Return);
  }
  std::string stored(const std::string& name, const std::string& point = "081115-001") const {
    return place.project + "\\image\\" + point + "\\" + name;
  }
  // The preview once it shows a picture.
  QImage preview() const {
    auto* view = find<ui::Picture_view>("preview");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view->picture().isNull(); }));
    return view->picture();
  }
  void store_one() {
    choose(0);
    press("Command10");
    press("Command5");
    place.prompts.shown.clear();
  }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Frm_sel_picture, testing::Values("Japanese", "English"));

TEST_P(Frm_sel_picture, HasEveryWidgetByItsNameAndTheBoxesOfThePanel) {
  open();
  for (const char* name :
       {"Text1", "Text2", "Text3", "Dir1", "Dir2", "File1", "File2", "Command5", "Command7", "Command10", "Command11",
        "Command12", "gazou_kaiten", "gazou_kaiten2", "photo_read", "close"})
    find<QWidget>(name);
  EXPECT_EQ(dialog->objectName(), "frm_sel_picture");
  EXPECT_EQ(dialog->windowTitle(), japanese() ? "画像とテキストの登録" : "Pictures and Text of a Point");
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "081115-001");
  EXPECT_EQ(find<QLineEdit>("Text2")->text(), "13976712.5");
  EXPECT_EQ(find<QLineEdit>("Text3")->text(), "3568123.6");
  EXPECT_EQ(ui::from_toolkit(find<QLineEdit>("Dir1")->text()), photos);
  EXPECT_FALSE(find<QComboBox>("points")->isVisible());
}

TEST_P(Frm_sel_picture, IsClippedNowhereAndNamesEveryBox) {
  for (const bool edit : {false, true}) {
    open(edit);
    choose(0);
    press("Command10");
    for (const QSize size : {dialog->size(), QSize(1500, 900), dialog->minimumSizeHint()}) {
      dialog->resize(size);
      QCoreApplication::processEvents();
      EXPECT_TRUE(support::nothing_clipped(dialog.get())) << size.width() << " x " << size.height();
    }
    EXPECT_EQ(support::nameless_widgets(*dialog).join(", ").toStdString(), "");
  }
}

TEST_P(Frm_sel_picture, FitsASmallScreen) {
  open(true);
  EXPECT_LE(dialog->width(), 1280);
  EXPECT_LE(dialog->height(), 620);
  EXPECT_LE(dialog->minimumSizeHint().height(), 620);
  EXPECT_LE(dialog->minimumSizeHint().width(), 1100);
}

TEST_P(Frm_sel_picture, ShowsThePicturesOfTheFolderSmall) {
  open();
  auto* list = find<QListWidget>("File1");
  ASSERT_EQ(list->count(), 3);
  EXPECT_EQ(list->item(0)->text(), "a.jpg");
  EXPECT_EQ(list->item(2)->text(), "voice.wav");
  const auto left_half = [&] { return list->item(0)->icon().pixmap(104, 78).toImage().pixel(10, 30); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return is_red(left_half()); }));
}

TEST_P(Frm_sel_picture, TakesShowsTurnsAndStoresAPhoto) {
  open();
  QSignalSpy registered(dialog.get(), &ui::Frm_sel_picture::registered);
  choose(0);
  EXPECT_FALSE(find<QPushButton>("gazou_kaiten")->isEnabled()) << "only a place is turned";
  press("Command10");
  QImage shown = preview();
  EXPECT_TRUE(is_red(shown.pixel(10, shown.height() / 2)));
  find<ui::Picture_view>("preview")->show_word("");
  press("gazou_kaiten");  // left becomes top
  shown = preview();
  EXPECT_LT(shown.width(), shown.height());
  EXPECT_TRUE(is_red(shown.pixel(shown.width() / 2, 10)));
  EXPECT_TRUE(is_blue(shown.pixel(shown.width() / 2, shown.height() - 10)));
  press("Command5");
  EXPECT_THAT(place.prompts.shown, ElementsAre("登録が完了しました。"));
  EXPECT_EQ(registered.count(), 1);
  const platform::Picture kept = pictures.decode(place.disk.read_bytes(stored("a.bmp"))).picture;
  EXPECT_EQ(kept.width, 800);
  EXPECT_EQ(kept.height, 1200);
  EXPECT_TRUE(is_red(platform::pixel(kept, 400, 20)));
  EXPECT_EQ(place.disk.read_bytes(stored("081115-001.dat")), "081115-001,13976712.5,3568123.6, 1 \r\n 1 ,a.bmp,\r\n");
  EXPECT_EQ(find<QListWidget>("File2")->count(), 1);
  EXPECT_EQ(find<QPlainTextEdit>("text")->toPlainText(), "081115-001");
}

TEST_P(Frm_sel_picture, TakesByTheKeyboardIntoTheNextFreePlace) {
  open();
  choose(1);
  auto* list = find<QListWidget>("File1");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Return);
  choose(0);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(find<QToolButton>("place_0")->toolTip(), "b.png");
  EXPECT_EQ(find<QToolButton>("place_1")->toolTip(), "a.jpg");
  EXPECT_THAT(place.prompts.shown, IsEmpty());
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  QTest::keyClick(dialog.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_THAT(place.disk.list(place.project + "\\image\\081115-001", "*.bmp"), ElementsAre("a.bmp", "b.bmp"));
}

TEST_P(Frm_sel_picture, EmptiesAPlace) {
  open();
  choose(0);
  press("Command11");
  press("empty");
  EXPECT_THAT(ui::from_toolkit(find<QToolButton>("place_1")->toolTip()), HasSubstr("2"));
  press("Command5");
  EXPECT_EQ(find<QListWidget>("File2")->count(), 0);
}

TEST_P(Frm_sel_picture, PlaysASound) {
  open();
  choose(2);
  press("Command12");
  EXPECT_THAT(other.sounds.played, ElementsAre(photos + "\\voice.wav"));
  EXPECT_TRUE(find<ui::Picture_view>("preview")->picture().isNull());
  press("play");
  EXPECT_EQ(other.sounds.played.size(), 2u);
}

TEST_P(Frm_sel_picture, AsksForAName) {
  open();
  choose(0);
  press("Command10");
  find<QLineEdit>("Text1")->clear();
  press("Command5");
  EXPECT_THAT(place.prompts.shown, ElementsAre("地点名称を必ず入力して下さい。"));
  EXPECT_FALSE(place.disk.folder_exists(place.project + "\\image"));
  EXPECT_EQ(find<QToolButton>("place_0")->toolTip(), "a.jpg") << "the picture stays in its place";
}

TEST_P(Frm_sel_picture, ShowsNothingForABrokenPicture) {
  place.disk.write_whole(photos + "\\a.jpg", "no picture");
  open();
  // Pictures are made in turn: when the next one's is there the broken one has been given up.
  choose(1);
  preview();
  choose(0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return find<ui::Picture_view>("preview")->picture().isNull(); }));
  EXPECT_EQ(find<ui::Picture_view>("preview")->word(), "");
}

TEST_P(Frm_sel_picture, AsksBeforeItDropsWhatIsInAPlace) {
  open();
  press("close");
  EXPECT_THAT(place.prompts.shown, IsEmpty()) << "nothing would be lost";
  open();
  choose(0);
  press("Command10");
  place.prompts.answers = {platform::Answer::cancel};
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  ASSERT_EQ(place.prompts.shown.size(), 1u);
  EXPECT_EQ(place.prompts.shown[0], japanese() ? "枠に入れたものがまだ登録されていません。登録しますか。"
                                               : "What the places hold isn't stored yet. Do you want to store it?");
  EXPECT_TRUE(dialog->isVisible());
  place.prompts.answers = {platform::Answer::no};
  dialog->close();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(place.disk.length(stored("a.bmp")), 0);
}

TEST_P(Frm_sel_picture, StoresWhatIsInAPlaceWhenItIsAskedToAtTheEnd) {
  open();
  choose(0);
  press("Command10");
  place.prompts.answers = {platform::Answer::yes};
  press("close");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_GT(place.disk.length(stored("a.bmp")), 0);
}

TEST_P(Frm_sel_picture, StaysWhenWhatIsInAPlaceCannotBeStored) {
  open();
  choose(0);
  press("Command10");
  find<QLineEdit>("Text1")->clear();
  place.prompts.answers = {platform::Answer::yes};
  press("close");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(place.prompts.shown.size(), 2u) << "the question, and that a name is required";
}

TEST_P(Frm_sel_picture, EditsAPointOfTheStore) {
  open();
  store_one();
  session->entry.boxes.Text14[observations::box_touroku_no] = "";
  session->entry.boxes.Text14[observations::box_X] = "1.0";
  open(true);
  auto* points = find<QComboBox>("points");
  ASSERT_EQ(points->count(), 1);
  EXPECT_EQ(find<QListWidget>("File2")->count(), 0);
  points->setCurrentIndex(0);
  emit points->activated(0);
  EXPECT_EQ(find<QLineEdit>("Text1")->text(), "081115-001");
  EXPECT_EQ(find<QLineEdit>("Text2")->text(), "13976712.5") << "from the store";
  ASSERT_EQ(find<QListWidget>("File2")->count(), 1);
  find<QListWidget>("File2")->setCurrentRow(0);
  preview();
  press("gazou_kaiten2");
  press("Command5");
  EXPECT_EQ(pictures.decode(place.disk.read_bytes(stored("a.bmp"))).picture.width, 800);
  find<QListWidget>("File2")->setCurrentRow(0);
  press("remove");
  press("Command5");
  EXPECT_EQ(place.disk.read_bytes(stored("081115-001.dat")), "081115-001,13976712.5,3568123.6, 0 \r\n");
}

TEST_P(Frm_sel_picture, FollowsTheNameThatIsTyped) {
  open();
  store_one();
  type("Text1", "other");
  EXPECT_EQ(find<QListWidget>("File2")->count(), 0);
  EXPECT_THAT(ui::from_toolkit(find<QLineEdit>("Dir2")->text()), testing::EndsWith("other"));
  type("Text1", "081115-001");
  EXPECT_EQ(find<QListWidget>("File2")->count(), 1);
  EXPECT_THAT(place.prompts.shown, IsEmpty()) << "the return key stores nothing";
}

TEST_P(Frm_sel_picture, RegistersThePhotosOfTheFolder) {
  open();
  QSignalSpy registered(dialog.get(), &ui::Frm_sel_picture::registered);
  press("photo_read");
  EXPECT_EQ(registered.count(), 0) << "the question was declined";
  EXPECT_THAT(place.prompts.shown, ElementsAre(HasSubstr("2")));
  place.prompts.answers = {platform::Answer::yes};
  press("photo_read");
  EXPECT_EQ(registered.count(), 1);
  EXPECT_EQ(session->registry.N, 3);
  EXPECT_EQ(session->registry.rows[2].gazou, "a.jpg");
  EXPECT_EQ(session->registry.rows[3].X, 13976712.5);
  EXPECT_THAT(ui::from_toolkit(find<QLabel>("told")->text()), testing::EndsWith("2"));
}

TEST_P(Frm_sel_picture, OpensTheText) {
  open();
  store_one();
  press("Command7");
  EXPECT_THAT(processes.started, ElementsAre(stored("081115-001.txt")));
}

TEST_P(Frm_sel_picture, GoesWhileSmallPicturesAreStillBeingMade) {
  for (int i = 0; i < 40; ++i) photo("p" + std::to_string(i) + ".jpg", red_and_blue(600, 400), "JPG");
  open();
  dialog.reset();
  QCoreApplication::processEvents();
}

TEST(Thumbnail, IsScaledAndTurned) {
  platform::Qt_pictures limits;
  QImage image = red_and_blue(400, 200);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  ASSERT_TRUE(image.save(&buffer, "PNG"));
  const QImage small = ui::thumbnail_of(bytes.toStdString(), 0, 100);
  EXPECT_EQ(small.size(), QSize(100, 50));
  const QImage turned = ui::thumbnail_of(bytes.toStdString(), 1, 100);
  EXPECT_EQ(turned.size(), QSize(50, 100));
  EXPECT_TRUE(is_red(turned.pixel(25, 5)));
  EXPECT_EQ(ui::thumbnail_of(bytes.toStdString(), ui::as_the_camera_tells, 1000).size(), QSize(400, 200));
  EXPECT_TRUE(ui::thumbnail_of(bytes.toStdString().substr(0, 60), 0, 100).isNull()) << "cut short";
  EXPECT_TRUE(ui::thumbnail_of("", 0, 100).isNull());
}

}  // namespace
