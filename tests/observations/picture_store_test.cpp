#include "observations/picture_store.h"

#include <gmock/gmock.h>

#include "observations/store_place.h"

namespace {

using observations::Taken;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string name_required = "地点名称を必ず入力して下さい。";
const std::string done = "登録が完了しました。";

struct Picture_store : testing::Test, support::Store_place {
  // Chooses a file and takes it into a place.
  Taken take(int place, const std::string& name) {
    boxes.File1 = name;
    if (place == 0) return observations::Command10(pictures_context(), boxes);
    return place == 1 ? observations::Command11(pictures_context(), boxes)
                      : observations::Command12(pictures_context(), boxes);
  }
  bool store() { return observations::Command5(pictures_context(), boxes); }
  bool text_1(const std::string& name, bool edit = false) {
    boxes.Text1 = name;
    return observations::Text1_change(pictures_context(), boxes, edit);
  }
  std::vector<std::string> listed() const {
    std::vector<std::string> names;
    for (const auto& picture : boxes.File2) names.push_back(picture.name);
    return names;
  }
  std::vector<std::string> in_store() { return disk.list(project + "\\image\\081115-001", "*"); }
};

TEST_F(Picture_store, ListsPicturesAndSoundsByName) {
  for (const char* name : {"b.JPG", "a.png", "c.wav", "note.txt", "d.bmp", "e.gif"}) photo(name, "x");
  EXPECT_THAT(observations::File1_list(files, photos), ElementsAre("a.png", "b.JPG", "c.wav", "d.bmp"));
  EXPECT_THAT(observations::File1_list(files, photos + "\\none"), IsEmpty());
}

TEST_F(Picture_store, OpensWithTheFoldersOfTheLastTime) {
  disk.write_whole(program("psettei.dat"), photos + "\r\n" + project + "\r\n");
  observations::frm_sel_picture_load(pictures_context(), boxes, "081115-002", "1.0", "2.0");
  EXPECT_EQ(boxes.Dir1, photos);
  EXPECT_EQ(boxes.Dir2, project);
  EXPECT_EQ(boxes.Text1, "081115-002");
  EXPECT_EQ(boxes.Text2, "1.0");
  EXPECT_EQ(boxes.Text3, "2.0");
}

TEST_F(Picture_store, OpensInTheProjectTheFirstTime) {
  observations::frm_sel_picture_load(pictures_context(), boxes, "", "", "");
  EXPECT_EQ(boxes.Dir1, project);
  EXPECT_EQ(boxes.Dir2, project + "\\image");
}

TEST_F(Picture_store, StoresAPhotoAsABitmapUnderItsName) {
  photo("RIMG0001.JPG", support::red_blue);
  EXPECT_EQ(take(0, "RIMG0001.JPG"), Taken::picture);
  ASSERT_TRUE(store());
  EXPECT_THAT(prompts.shown, ElementsAre(done));
  EXPECT_THAT(in_store(), ElementsAre("081115-001.dat", "081115-001.txt", "RIMG0001.bmp"));
  EXPECT_TRUE(support::same_bytes(stored_bytes("RIMG0001.bmp"), support::red_blue));
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp.bmp")), support::red_blue));
  EXPECT_EQ(stored_bytes("081115-001.txt"), "081115-001\r\n");
  EXPECT_EQ(disk.read_bytes(program("psettei.dat")), photos + "\r\n\r\n");
}

TEST_F(Picture_store, WritesTheListToTheByte) {
  photo("RIMG0001.JPG", support::red_blue);
  photo("voice.wav", "RIFF    WAVE");
  take(0, "RIMG0001.JPG");
  take(2, "voice.wav");
  ASSERT_TRUE(store());
  EXPECT_TRUE(support::same_as_golden(stored_bytes("081115-001.dat"), "observations/point.dat"));
  EXPECT_EQ(stored_bytes("voice.wav"), "RIFF    WAVE");
}

TEST_F(Picture_store, CopiesABitmapAsItIs) {
  photo("Map.BMP", "BM not even a picture");
  take(1, "Map.BMP");
  ASSERT_TRUE(store());
  EXPECT_EQ(stored_bytes("Map.BMP"), "BM not even a picture");
  EXPECT_EQ(disk.length(program("tmp.bmp")), 0);
}

TEST_F(Picture_store, HasTwoLinesBehindTheFirstForTwoPhotos) {
  photo("a.bmp", support::red_blue);
  photo("b.png", support::blue_red);
  take(0, "a.bmp");
  take(1, "b.png");
  ASSERT_TRUE(store());
  EXPECT_EQ(stored_bytes("081115-001.dat"), "081115-001,13976712.5,3568123.6, 2 \r\n 1 ,a.bmp,\r\n 2 ,b.bmp,\r\n");
  EXPECT_TRUE(boxes.places[0].path.empty() && boxes.places[1].path.empty());
}

TEST_F(Picture_store, AddsToThePicturesThatAPointHas) {
  photo("a.bmp", support::red_blue);
  photo("b.bmp", support::blue_red);
  take(0, "a.bmp");
  ASSERT_TRUE(store());
  take(0, "b.bmp");
  ASSERT_TRUE(store());
  EXPECT_EQ(stored_bytes("081115-001.dat"), "081115-001,13976712.5,3568123.6, 2 \r\n 1 ,a.bmp,\r\n 2 ,b.bmp,\r\n");
  EXPECT_THAT(listed(), ElementsAre("a.bmp", "b.bmp"));
}

TEST_F(Picture_store, AsksForANameAndLeavesNothingButTheFolders) {
  photo("a.JPG", support::red_blue);
  take(0, "a.JPG");
  for (const char* name : {"", "   "}) {
    boxes.Text1 = name;
    EXPECT_FALSE(store());
  }
  EXPECT_THAT(prompts.shown, ElementsAre(name_required, name_required));
  EXPECT_FALSE(disk.folder_exists(project + "\\image"));
  EXPECT_THAT(disk.list(folder.text(), "*"), ElementsAre("psettei.dat"));
  prompts.use_language("English");
  EXPECT_FALSE(store());
  EXPECT_EQ(prompts.shown.back(), name_required);
}

TEST_F(Picture_store, RefusesNamesThatLeaveTheProject) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  for (const char* name : {"..", "..\\x", "a/b", "C:a", "C:\\a", "\\\\host\\a", "nul", "COM1", "a,b", "a:b"}) {
    prompts.shown.clear();
    boxes.Text1 = name;
    EXPECT_FALSE(store()) << name;
    EXPECT_THAT(prompts.shown, ElementsAre("地点名称に使えない名前です: " + std::string(name)));
    EXPECT_FALSE(observations::Command7(pictures_context(), boxes)) << name;
  }
  boxes.Text1 = "山\xF0\x9F\x98\x80";
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown.back(), HasSubstr("次の文字は保存できません。書き換えて下さい: \xF0\x9F\x98\x80"));
  EXPECT_FALSE(disk.folder_exists(project + "\\image"));
  EXPECT_THAT(processes.started, IsEmpty());
}

TEST_F(Picture_store, RefusesAFileWhoseNameTheListCanNotHold) {
  for (const char* name : {"a,b.jpg", "\xF0\x9F\x98\x80.jpg"}) {
    photo(name, support::red_blue);
    take(0, name);
    EXPECT_FALSE(store()) << name;
    EXPECT_THAT(prompts.shown.back(), HasSubstr("登録できないファイル名です: "));
  }
  EXPECT_FALSE(disk.folder_exists(project + "\\image"));
}

TEST_F(Picture_store, RefusesTwoFilesThatWouldBecomeOne) {
  photo("a.jpg", support::red_blue);
  photo("A.png", support::blue_red);
  take(0, "a.jpg");
  take(1, "A.png");
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown, ElementsAre("同じファイル名が2つあります: A.bmp"));
  EXPECT_FALSE(disk.folder_exists(project + "\\image"));
}

TEST_F(Picture_store, NeedsAProject) {
  settings.project_path.clear();
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("基本設定")));
}

TEST_F(Picture_store, AsksBeforeItReplacesAPicture) {
  photo("a.jpg", support::red_blue);
  take(0, "a.jpg");
  ASSERT_TRUE(store());
  photo("a.jpg", support::blue_red);
  take(0, "a.jpg");
  prompts.answers = {platform::Answer::no};
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown.back(), HasSubstr("a.bmp"));
  EXPECT_TRUE(support::same_bytes(stored_bytes("a.bmp"), support::red_blue));
  prompts.answers = {platform::Answer::yes};
  EXPECT_TRUE(store());
  EXPECT_TRUE(support::same_bytes(stored_bytes("a.bmp"), support::blue_red));
  EXPECT_EQ(stored_bytes("081115-001.dat"), "081115-001,13976712.5,3568123.6, 1 \r\n 1 ,a.bmp,\r\n");
}

TEST_F(Picture_store, WritesNothingForAPictureThatCanNotBeRead) {
  photo("a.bmp", support::red_blue);
  photo("b.jpg", "no picture");
  take(0, "a.bmp");
  take(1, "b.jpg");
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown, ElementsAre("画像を読み込めません: " + photos + "\\b.jpg"));
  EXPECT_FALSE(disk.folder_exists(project + "\\image"));
  EXPECT_EQ(boxes.places[0].path, photos + "\\a.bmp") << "what was taken stays";
}

TEST_F(Picture_store, LeavesATextThatIsThere) {
  ASSERT_TRUE(store());
  disk.write_whole(stored("081115-001.txt"), "wall of sandstone\r\n");
  ASSERT_TRUE(store());
  EXPECT_EQ(stored_bytes("081115-001.txt"), "wall of sandstone\r\n");
}

TEST_F(Picture_store, TellsAFaultOfTheDiskAndKeepsTheOldList) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  ASSERT_TRUE(store());
  const std::string before = stored_bytes("081115-001.dat");
  photo("b.bmp", support::red_blue);
  take(0, "b.bmp");
  files.failing_write = 3;  // psettei.dat, the picture, then the list
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown.back(), HasSubstr("保存できません: "));
  EXPECT_EQ(stored_bytes("081115-001.dat"), before);
  prompts.answers = {platform::Answer::yes};  // the picture itself lies there already
  EXPECT_TRUE(store());
  EXPECT_THAT(listed(), ElementsAre("a.bmp", "b.bmp"));
}

TEST_F(Picture_store, StoresThoughTheFoldersAreNotRemembered) {
  files.failing_write = 1;
  EXPECT_TRUE(store());
  EXPECT_THAT(prompts.shown, ElementsAre(done));
  EXPECT_EQ(disk.length(program("psettei.dat")), 0);
}

TEST_F(Picture_store, TurnsThroughTheTwoTemporaryBitmaps) {
  photo("a.JPG", support::red_blue);
  take(0, "a.JPG");
  ASSERT_TRUE(observations::gazou_kaiten(pictures_context(), boxes.places[0]));
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp0.bmp")), support::red_blue));
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp.bmp")), support::red_over_blue));
  ASSERT_TRUE(observations::gazou_kaiten(pictures_context(), boxes.places[0]));
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp0.bmp")), support::red_over_blue));
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp.bmp")), support::blue_red));
  ASSERT_TRUE(store());
  EXPECT_TRUE(support::same_bytes(stored_bytes("a.bmp"), support::blue_red));
}

TEST_F(Picture_store, TurnsTheOtherWayRound) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  ASSERT_TRUE(observations::gazou_kaiten2(pictures_context(), boxes.places[0]));
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp.bmp")), support::blue_over_red));
  EXPECT_EQ(boxes.places[0].quarter_turns, 3);
  ASSERT_TRUE(store());
  EXPECT_TRUE(support::same_bytes(stored_bytes("a.bmp"), support::blue_over_red));
}

TEST_F(Picture_store, IsTheSameAgainAfterFourTurns) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  for (int i = 0; i < 4; ++i) ASSERT_TRUE(observations::gazou_kaiten(pictures_context(), boxes.places[0]));
  EXPECT_EQ(boxes.places[0].quarter_turns, 0);
  EXPECT_TRUE(support::same_bytes(disk.read_bytes(program("tmp.bmp")), support::red_blue));
}

TEST_F(Picture_store, TurnsNothingWithoutAPicture) {
  photo("b.jpg", "no picture");
  photo("voice.wav", "RIFF    WAVE");
  take(1, "b.jpg");
  take(2, "voice.wav");
  for (auto& place : boxes.places) EXPECT_FALSE(observations::gazou_kaiten(pictures_context(), place));
  EXPECT_EQ(disk.length(program("tmp.bmp")), 0);
}

TEST_F(Picture_store, TellsAPictureThatCannotBeReadForATurn) {
  photo("b.jpg", "no picture");
  take(1, "b.jpg");
  EXPECT_FALSE(observations::gazou_kaiten(pictures_context(), boxes.places[1]));
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("画像を読み込めません: ")));
}

TEST_F(Picture_store, KeepsAListThatCannotBeRead) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  ASSERT_TRUE(store());
  const std::string before = stored_bytes("081115-001.dat");
  photo("b.bmp", support::red_blue);
  take(0, "b.bmp");
  files.unreadable = "081115-001.dat";
  boxes.File2_point.clear();
  EXPECT_FALSE(store());
  EXPECT_THAT(prompts.shown.back(), HasSubstr("画像の一覧を読み込めないため、保存しません: "));
  EXPECT_EQ(stored_bytes("081115-001.dat"), before);
  files.unreadable.clear();
  EXPECT_TRUE(store());
  EXPECT_THAT(stored_bytes("081115-001.dat"), HasSubstr("a.bmp"));
}

TEST_F(Picture_store, DoesNotTurnWhatCanNotBeWritten) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  files.read_only = true;
  EXPECT_FALSE(observations::gazou_kaiten(pictures_context(), boxes.places[0]));
  EXPECT_EQ(boxes.places[0].quarter_turns, 0);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("エラー発生！")));
}

TEST_F(Picture_store, TakesAPhotoUpright) {
  photo("a.jpg", support::exif("II", 6));
  EXPECT_EQ(take(0, "a.jpg"), Taken::picture);
  EXPECT_EQ(boxes.places[0].quarter_turns, 1);
}

TEST_F(Picture_store, PlaysASoundAndShowsNoPicture) {
  photo("Voice.WAV", "RIFF    WAVE");
  EXPECT_EQ(take(1, "Voice.WAV"), Taken::sound);
  EXPECT_THAT(sounds.played, ElementsAre(photos + "\\Voice.WAV"));
  EXPECT_THAT(processes.started, IsEmpty());
  EXPECT_EQ(boxes.places[1].path, photos + "\\Voice.WAV");
}

TEST_F(Picture_store, LetsTheAssociatedProgramPlayWhereThereIsNoPlayer) {
  photo("voice.wav", "RIFF    WAVE");
  platform::No_sounds silent;
  const observations::Picture_context quiet{settings, files, pictures, prompts, processes, silent, journal};
  boxes.File1 = "voice.wav";
  EXPECT_EQ(observations::Command12(quiet, boxes), Taken::sound);
  EXPECT_THAT(processes.started, ElementsAre(photos + "\\voice.wav"));
}

TEST_F(Picture_store, TakesNothingThatIsNotThere) {
  EXPECT_EQ(take(0, ""), Taken::nothing);
  EXPECT_EQ(take(0, "gone.jpg"), Taken::nothing);
  EXPECT_TRUE(boxes.places[0].path.empty());
}

TEST_F(Picture_store, ReadsAPointBack) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  ASSERT_TRUE(store());
  boxes.Text2 = "1";
  boxes.Text3 = "2";
  EXPECT_FALSE(text_1("other"));
  EXPECT_THAT(listed(), IsEmpty());
  EXPECT_EQ(boxes.Dir2, project + "\\image\\other");
  EXPECT_TRUE(text_1("081115-001"));
  EXPECT_EQ(boxes.Text2, "1") << "a new picture has the position of the panel";
  EXPECT_TRUE(text_1(" 081115-001 ", true));
  EXPECT_EQ(boxes.Text2, "13976712.5");
  EXPECT_EQ(boxes.Text3, "3568123.6");
  EXPECT_THAT(listed(), ElementsAre("a.bmp"));
  EXPECT_EQ(boxes.Dir2, project + "\\image\\081115-001");
  EXPECT_FALSE(text_1("..\\081115-001"));
  EXPECT_EQ(boxes.Dir2, project + "\\image");
}

TEST_F(Picture_store, OpensAPointByItsFolder) {
  ASSERT_TRUE(store());
  boxes.Text1 = "other";
  prompts.shown.clear();
  EXPECT_TRUE(observations::Dir2_change(pictures_context(), boxes, project + "/IMAGE\\081115-001\\", true));
  EXPECT_EQ(boxes.Text1, "081115-001");
  EXPECT_THAT(prompts.shown, IsEmpty());
  const std::string away[] = {photos, project, project + "\\image", project + "\\image\\a\\b", project + "\\image\\..",
                              ""};
  for (const std::string& text : away) {
    EXPECT_FALSE(observations::Dir2_change(pictures_context(), boxes, text, true)) << text;
    EXPECT_THAT(prompts.shown.back(), HasSubstr(project + "\\image"));
    EXPECT_EQ(boxes.Text1, "081115-001");
  }
}

TEST_F(Picture_store, FindsTheRecordsThatHaveAPoint) {
  EXPECT_THAT(observations::points_in_store(pictures_context(), registry), IsEmpty());
  put_lines({support::point_at("1.0", "2.0", "081115-002"), support::point_at("1.0", "2.0", "081115-001*4"),
             support::point_at("1.0", "2.0", "081115-001*5"), support::point_at("1.0", "2.0", "..")});
  read();
  ASSERT_TRUE(store());
  EXPECT_THAT(observations::points_in_store(pictures_context(), registry), ElementsAre("081115-001"));
}

TEST_F(Picture_store, ShowsTheTextOfThePoint) {
  EXPECT_EQ(observations::point_text(pictures_context(), boxes), "");
  ASSERT_TRUE(store());
  EXPECT_EQ(observations::point_text(pictures_context(), boxes), "081115-001");
  boxes.Text1 = "..";
  EXPECT_EQ(observations::point_text(pictures_context(), boxes), "");
}

TEST_F(Picture_store, TakesAPictureOutOfTheListAndLeavesItsFile) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  ASSERT_TRUE(store());
  observations::File2_remove(boxes, 1);
  EXPECT_THAT(listed(), ElementsAre("a.bmp"));
  observations::File2_remove(boxes, 0);
  ASSERT_TRUE(store());
  EXPECT_EQ(stored_bytes("081115-001.dat"), "081115-001,13976712.5,3568123.6, 0 \r\n");
  EXPECT_TRUE(support::same_bytes(stored_bytes("a.bmp"), support::red_blue));
}

TEST_F(Picture_store, ReadsThePointOfANewNameBeforeItStores) {
  photo("a.bmp", support::red_blue);
  take(0, "a.bmp");
  ASSERT_TRUE(store());
  boxes.Text1 = "b";
  ASSERT_TRUE(store());
  EXPECT_EQ(disk.read_bytes(stored("b.dat", "b")), "b,13976712.5,3568123.6, 0 \r\n") << "not the list of the other";
  boxes.Text1 = "081115-001";
  ASSERT_TRUE(store());
  EXPECT_THAT(stored_bytes("081115-001.dat"), HasSubstr("a.bmp"));
}

TEST_F(Picture_store, KeepsListedNamesThatLeadAwayButNeverFollowsThem) {
  disk.make_folder(project + "\\image");
  disk.make_folder(project + "\\image\\081115-001");
  disk.write_whole(project + "\\secret.bmp", support::red_blue);
  const std::string bytes = "081115-001,1.0,2.0, 1 \r\n 1 ,..\\..\\secret.bmp,\r\n";
  disk.write_whole(stored("081115-001.dat"), bytes);
  ASSERT_TRUE(text_1("081115-001", true));
  EXPECT_EQ(observations::place_from_store(pictures_context(), boxes, 0), -1);
  ASSERT_TRUE(store());
  EXPECT_EQ(stored_bytes("081115-001.dat"), bytes);
}

TEST_F(Picture_store, TurnsAPictureOfTheStoreInItsPlace) {
  photo("a.jpg", support::red_blue);
  take(0, "a.jpg");
  ASSERT_TRUE(store());
  ASSERT_EQ(observations::place_from_store(pictures_context(), boxes, 0), 0);
  EXPECT_EQ(observations::place_from_store(pictures_context(), boxes, 0), 0) << "it is there already";
  ASSERT_TRUE(observations::gazou_kaiten(pictures_context(), boxes.places[0]));
  prompts.shown.clear();
  ASSERT_TRUE(store());
  EXPECT_THAT(prompts.shown, ElementsAre(done)) << "no question about itself";
  EXPECT_TRUE(support::same_bytes(stored_bytes("a.bmp"), support::red_over_blue));
  EXPECT_THAT(listed(), ElementsAre("a.bmp"));
}

TEST_F(Picture_store, SaysThatNoPlaceIsFree) {
  photo("a.jpg", support::red_blue);
  photo("b.jpg", support::red_blue);
  take(0, "a.jpg");
  ASSERT_TRUE(store());
  for (int place = 0; place < 3; ++place) take(place, "b.jpg");
  EXPECT_EQ(observations::place_from_store(pictures_context(), boxes, 0), -1);
  EXPECT_THAT(prompts.shown.back(), HasSubstr("空いている枠がありません"));
  EXPECT_EQ(observations::place_from_store(pictures_context(), boxes, 9), -1);
}

TEST_F(Picture_store, OpensTheTextOfThePoint) {
  ASSERT_TRUE(store());
  EXPECT_TRUE(observations::Command7(pictures_context(), boxes));
  EXPECT_THAT(processes.started, ElementsAre(stored("081115-001.txt")));
  boxes.Text1.clear();
  EXPECT_FALSE(observations::Command7(pictures_context(), boxes));
  EXPECT_EQ(prompts.shown.back(), name_required);
}

TEST_F(Picture_store, IsTakenBackAsOneOperation) {
  support::Temporary_folder state;
  platform::Journal kept(disk);
  ASSERT_EQ(kept.open(state.text(), project, folder.text()), platform::Journal_state::kept);
  platform::Journal_files watched(disk, kept);
  const observations::Picture_context context{settings, watched, pictures, prompts, processes, sounds, kept};
  photo("a.jpg", support::red_blue);
  photo("b.jpg", support::blue_red);
  take(0, "a.jpg");
  take(1, "b.jpg");
  ASSERT_TRUE(observations::Command5(context, boxes));
  // A later turn writes the temporary bitmap again, and is no obstacle.
  take(0, "b.jpg");
  ASSERT_TRUE(observations::gazou_kaiten(context, boxes.places[0]));
  EXPECT_EQ(kept.undo().outcome, platform::Undo_outcome::done);
  EXPECT_THAT(in_store(), IsEmpty());
  EXPECT_EQ(kept.redo().outcome, platform::Undo_outcome::done);
  EXPECT_THAT(in_store(), ElementsAre("081115-001.dat", "081115-001.txt", "a.bmp", "b.bmp"));
}

}  // namespace
