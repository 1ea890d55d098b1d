#include "instruments/measurement_files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "instruments/data_place.h"
#include "instruments/in_pieces.h"

namespace {

using namespace instruments;
using platform::Answer;
using Texts = std::vector<std::string>;

struct Measurement_files : testing::Test, support::Data_place {
  std::string saved(const std::string& Text1 = "-7.5") { return Command10(context(), list, Text1); }
  Texts shown_lines() const {
    Texts lines;
    for (const Measurement_row& row : list.rows) lines.push_back(row.line);
    return lines;
  }
};

TEST_F(Measurement_files, SavesTheTickedRowsTurnedAnew) {
  show_three();
  EXPECT_EQ(saved(), "001-003_2008-11-15_09-30-00.csv");
  EXPECT_TRUE(support::same_as_golden(program_bytes("Tiltvane\\001-003_2008-11-15_09-30-00.csv"),
                                      "instruments/measurements_japanese.csv"));
  EXPECT_EQ(prompts.shown, Texts{"001-003_2008-11-15_09-30-00.csvとして保存しました。"});
}

TEST_F(Measurement_files, SavesUnderTheEnglishHeader) {
  speak("English");
  show_three();
  const std::string name = saved();
  EXPECT_TRUE(support::same_as_golden(program_bytes("Tiltvane\\" + name), "instruments/measurements_english.csv"));
  EXPECT_EQ(prompts.shown, Texts{"Saved Filename is [001-003_2008-11-15_09-30-00.csv]"});
}

TEST_F(Measurement_files, NamesAFileByItsFirstAndLastTickedRow) {
  show_three();
  list.rows[0].ticked = false;
  EXPECT_EQ(saved(), "002-003_2008-11-15_09-30-00.csv");
}

TEST_F(Measurement_files, ReadsBackWhatItSaved) {
  show_three();
  const std::string name = saved();
  Measurement_list read;
  Tiltvane_out(read, files, tiltvane_folder(folder.text(), name));
  ASSERT_EQ(read.rows.size(), 3u);
  EXPECT_EQ(read.rows[2].line, support::without_plane);
  EXPECT_FALSE(read.rows[0].ticked);
  EXPECT_EQ(saved_files(files, folder.text()), Texts{name});
}

TEST_F(Measurement_files, AsksForATickedRow) {
  EXPECT_EQ(saved(), "");
  show_three();
  for (Measurement_row& row : list.rows) row.ticked = false;
  speak("English");
  EXPECT_EQ(saved(), "");
  EXPECT_EQ(prompts.shown, (Texts{"保存するデータを選択して下さい。", "Please select saved data"}));
  EXPECT_EQ(saved_files(files, folder.text()), Texts{});
}

TEST_F(Measurement_files, TellsThatAFileCouldNotBeSaved) {
  show_three();
  files.failing_write = 1;
  EXPECT_EQ(saved(), "");
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_EQ(prompts.shown[0].rfind("保存できません: ", 0), 0u);
}

TEST_F(Measurement_files, DeletesAFileAfterTwoQuestions) {
  put_program("Tiltvane\\a.csv", {"x"});
  prompts.answers = {Answer::yes, Answer::yes};
  EXPECT_TRUE(Command1(context(), "a.csv"));
  EXPECT_EQ(prompts.shown, (Texts{"a.csvを削除しますか。", "a.csvを本当に削除しますか。復活はできません。"}));
  EXPECT_EQ(saved_files(files, folder.text()), Texts{});
}

TEST_F(Measurement_files, TakesADeletionBack) {
  platform::Journal journal(disk);
  platform::Journal_files kept(disk, journal);
  disk.make_folder(folder.text() + "\\state");
  ASSERT_EQ(journal.open(folder.text() + "\\state", project, folder.text()), platform::Journal_state::kept);
  put_program("Tiltvane\\a.csv", {support::plane_alone});
  prompts.answers = {platform::Answer::yes, platform::Answer::yes};
  EXPECT_TRUE(Command1({settings, kept, clock, prompts, &journal}, "a.csv"));
  EXPECT_EQ(journal.undo().outcome, platform::Undo_outcome::done);
  EXPECT_EQ(program_bytes("Tiltvane\\a.csv"), support::lines_932({support::plane_alone}));
}

TEST_F(Measurement_files, AsksTheTwoQuestionsInEnglish) {
  put_program("Tiltvane\\a.csv", {"x"});
  speak("English");
  prompts.answers = {Answer::yes, Answer::no};
  EXPECT_FALSE(Command1(context(), "a.csv"));
  EXPECT_EQ(prompts.shown, (Texts{"a.csv Delete true?", "a.csv Delete true?It is not possible to revive. "}));
  EXPECT_EQ(saved_files(files, folder.text()), Texts{"a.csv"});
}

TEST_F(Measurement_files, KeepsAFileWhoseFirstQuestionIsDeclined) {
  put_program("Tiltvane\\a.csv", {"x"});
  EXPECT_FALSE(Command1(context(), "a.csv"));
  EXPECT_EQ(prompts.shown.size(), 1u);
  EXPECT_EQ(saved_files(files, folder.text()), Texts{"a.csv"});
}

TEST_F(Measurement_files, DeletesNothingOutsideTheFolder) {
  put_program("henkaku.dat", {"7"});
  prompts.answers = {Answer::yes, Answer::yes};
  EXPECT_FALSE(Command1(context(), "..\\henkaku.dat"));
  EXPECT_FALSE(Command1(context(), ""));
  EXPECT_TRUE(prompts.shown.empty());
  EXPECT_GT(disk.length(folder.text() + "\\henkaku.dat"), 0);
}

TEST_F(Measurement_files, TellsThatAFileCouldNotBeDeleted) {
  prompts.answers = {Answer::yes, Answer::yes};
  EXPECT_FALSE(Command1(context(), "gone.csv"));
  EXPECT_EQ(prompts.shown.size(), 3u);
}

TEST_F(Measurement_files, KnowsBothHeadersAndTheOlderForm) {
  for (const Texts& lines :
       {Texts{measurement_header(true), support::plane_alone}, Texts{measurement_header(false), support::plane_alone},
        Texts{"計測NO,計測モード,走向", support::plane_alone}}) {
    put_program("TMP2.TMP", lines);
    Tiltvane_out2(list, files, folder.text());
    EXPECT_EQ(shown_lines(), Texts{support::plane_alone});
    EXPECT_TRUE(list.memory);
  }
}

TEST_F(Measurement_files, EndsADumpAtItsEnd) {
  put_program("Tiltvane.tmp", {"1,P,N20W,30E,0.1", "END", "2,P,N20W,30E,0.1"});
  Tiltvane_out(list, files, folder.text() + "\\Tiltvane.tmp");
  EXPECT_EQ(shown_lines(), Texts{"1,P,N20W,30E,0.1"});
  EXPECT_FALSE(list.memory);
}

TEST_F(Measurement_files, LeavesOutLinesOfSixCharacters) {
  put_program("TMP2.TMP", {"", "1,2,3,", "1,2,3,4"});
  Tiltvane_out2(list, files, folder.text());
  EXPECT_EQ(shown_lines(), Texts{"1,2,3,4"});
}

// The same rule as for the lines of the wire: "断層,あい," has six characters.
TEST_F(Measurement_files, CountsCharactersAndNotBytes) {
  put_program("TMP2.TMP", {"断層,あい,", "断層,あい,う"});
  Tiltvane_out2(list, files, folder.text());
  EXPECT_EQ(shown_lines(), Texts{"断層,あい,う"});
}

// Another program's file, cut in the middle of a character, with control characters and half a code.
TEST_F(Measurement_files, ShowsTheLinesOfAFileThatIsNone) {
  disk.make_folder(folder.text() + "\\Tiltvane");
  const std::string path = folder.text() + "\\Tiltvane\\wrong.csv";
  disk.write_whole(path, std::string("\xff\xfe\x31\0,\0P\0,\0\r\0\n\0", 14) + "\x81\r\n12,L,N20W,30E\r\n\x93\xfa\x96");
  Tiltvane_out(list, files, path);
  ASSERT_FALSE(list.rows.empty());
  EXPECT_NE(std::find(list.rows.begin(), list.rows.end(), Measurement_row{"12,L,N20W,30E", false}), list.rows.end());
  for (Measurement_row& row : list.rows) row.ticked = row.line.starts_with("12,");
  EXPECT_EQ(saved(), "012-012_2008-11-15_09-30-00.csv");
}

TEST_F(Measurement_files, ShowsTwelveHundredRowsAndSaysThatThereAreMore) {
  Texts lines(1200, support::plane_alone);
  put_program("TMP2.TMP", lines);
  Tiltvane_out2(list, files, folder.text());
  EXPECT_EQ(list.rows.size(), 1200u);
  EXPECT_FALSE(list.shortened);
  lines.push_back(support::plane_alone);
  put_program("TMP2.TMP", lines);
  Tiltvane_out2(list, files, folder.text());
  EXPECT_EQ(list.rows.size(), 1200u);
  EXPECT_TRUE(list.shortened);
}

TEST_F(Measurement_files, ReadsNoMoreOfAMillionLinesThanItShows) {
  support::In_pieces million;
  million.size = 65'536;
  for (int i = 0; i < 1'000'000; ++i) million.bytes += "1,P,N20W,30E\r\n";
  Tiltvane_out(list, million, "a.csv");
  EXPECT_EQ(list.rows.size(), 1200U);
  EXPECT_TRUE(list.shortened);
  EXPECT_LE(million.handed, 1);  // 1,201 lines of 14 bytes end in the first piece
}

TEST_F(Measurement_files, HasNoRowsWithoutAFile) {
  show_three();
  Tiltvane_out2(list, files, folder.text());
  EXPECT_TRUE(list.rows.empty());
}

TEST_F(Measurement_files, ReadsTheChosenFileAgain) {
  put_program("Tiltvane\\a.csv", {measurement_header(true), support::plane_alone});
  list.memory = true;
  EXPECT_TRUE(再表示(list, context(), "a.csv"));
  EXPECT_EQ(shown_lines(), Texts{support::plane_alone});
  EXPECT_FALSE(list.memory);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Measurement_files, HasNoOtherDisplayOfTheMemory) {
  show_three();
  list.memory = true;
  speak("English");
  EXPECT_FALSE(再表示(list, context(), ""));
  EXPECT_EQ(list.rows.size(), 3u);
  EXPECT_EQ(prompts.shown, Texts{"Tiltvaneのメモリーは偏角表示ができません。"});
}

TEST_F(Measurement_files, NamesTheMarks) {
  std::string names;
  for (const char* mark : {"＋", "×", "●", "■", "◆", "▲", "▼", "★"}) names += std::string(mark_token(mark)) + " ";
  EXPECT_EQ(names, "Cross DCross Circle Rect Spade Triangle RTriangle Star ");
  EXPECT_EQ(mark_token("○"), "");
}

}  // namespace
