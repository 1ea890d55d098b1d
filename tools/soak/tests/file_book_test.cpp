#include "soak/file_book.h"

#include <gmock/gmock.h>

#include <fstream>

#include "soak/place.h"
#include "soak/project_check.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct File_book : ::testing::Test {
  support::Temporary_folder folder;
  soak::Run_log log;
  soak::File_book book;
  soak::Place place;

  File_book() {
    place.root = book.root = fs::canonical(folder.path());
    book.state = place.state();
    put("program/settei.ini", settings());
    put("project/chisou_men/a.csv", "1,2,3,,,,,,\r\n");
    fs::create_directories(book.state);
    soak::book_begin(book);
  }
  static std::string settings() {
    std::string bytes = "\r\n\r\n\r\n04\r\n9600\r\n";
    for (const char* flag : {"True", "False", "False", "True", "False"}) bytes += std::string(flag) + "\r\n";
    return bytes +
           "sheet1\r\n\r\n\r\n\r\n\r\nTrue\r\nFalse\r\na.csv\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n\r\nTrue\r\nFalse\r\n";
  }
  // Past the port.
  void put(const std::string& name, const std::string& bytes) {
    fs::create_directories((place.root / name).parent_path());
    std::ofstream(place.root / name, std::ios::binary) << bytes;
    std::error_code ignored;  // the clock of files is coarse
    fs::last_write_time(place.root / name, fs::file_time_type::clock::now() + std::chrono::seconds(++later), ignored);
  }
  void write(const std::string& name, const std::string& bytes) {
    put(name, bytes);
    soak::note_content(book, place.root / name, bytes);
  }
  std::vector<std::string> faults() {
    soak::book_check(book, log);
    soak::project_check(place, book, log);
    return log.faults;
  }
  int later = 0;
};

TEST_F(File_book, FindsNothingInAProjectThatIsWhole) {
  write("project/chisou_men/txt/7.txt", "memo\r\n");
  EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(File_book, FindsAFileThatHoldsSomethingElse) {
  write("project/data.dat", "one\r\n");
  put("project/data.dat", "two\r\n");
  EXPECT_THAT(faults(), ElementsAre(HasSubstr("doesn't hold what was written")));
}

TEST_F(File_book, FindsFilesThatWentAndCame) {
  fs::remove(place.root / "project/chisou_men/a.csv");
  put("project/new.txt", "");
  soak::book_check(book, log);
  EXPECT_THAT(log.faults, ElementsAre(HasSubstr("came without the port"), HasSubstr("is gone")));
}

TEST_F(File_book, FindsATemporaryFile) {
  put("project/chisou_men/.terranote-123-4.tmp", "");
  EXPECT_THAT(faults(), ElementsAre(HasSubstr("temporary file was left")));
}

TEST_F(File_book, FindsABrokenRegistrationFile) {
  write("project/chisou_men/a.csv", "1,2,3,,,,,,\r\n1,2\r\n");
  EXPECT_THAT(faults(), ElementsAre(HasSubstr("line 2 doesn't end with a comma")));
}

TEST_F(File_book, FindsSettingsThatLostALine) {
  write("program/settei.ini", settings().substr(0, settings().size() - 7));
  EXPECT_THAT(faults(), ElementsAre(HasSubstr("settei.ini has 26 lines")));
}

TEST_F(File_book, FindsAPictureThatCannotBeRead) {
  write("project/image/7/7_1.bmp", "BM");
  EXPECT_THAT(faults(), ElementsAre(HasSubstr("picture that was written can't be read")));
}

TEST_F(File_book, FindsATornJournal) {
  put("state/tani/marks", "TERRANOTEJOURNAL");
  EXPECT_THAT(faults(), ElementsAre(HasSubstr("journal isn't whole")));
}

TEST_F(File_book, KnowsWhatLiesOutside) {
  EXPECT_TRUE(soak::is_inside(book, place.root / "project/not/there.csv"));
  EXPECT_FALSE(soak::is_inside(book, place.root / "../other"));
  fs::create_directory_symlink("/", place.root / "out");
  EXPECT_FALSE(soak::is_inside(book, place.root / "out/file"));
}

TEST_F(File_book, LetsWhatWasMadeOrRemovedBeforeGoUnasked) {
  write("project/chisou_men/new.csv", "");
  EXPECT_TRUE(soak::may_go_unasked(book, place.root / "project/chisou_men/new.csv"));
  write("project/chisou_men/new.csv", "x\r\n");
  EXPECT_FALSE(soak::may_go_unasked(book, place.root / "project/chisou_men/new.csv"));
  EXPECT_FALSE(soak::may_go_unasked(book, place.root / "project/chisou_men/a.csv"));
  soak::note_gone(book, place.root / "project/chisou_men/a.csv");
  soak::note_content(book, place.root / "project/chisou_men/a.csv", "1,2,3,,,,,,\r\n");
  EXPECT_TRUE(soak::may_go_unasked(book, place.root / "project/chisou_men/a.csv"));
}

}  // namespace
