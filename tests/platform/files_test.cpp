#include "platform/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

#include "platform/failures.h"
#include "support/golden.h"
#include "support/temporary_folder.h"

using platform::Disk_files;
using platform::File_failure;
using platform::join_path;
using platform::stays_inside;

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class Files_on_disk : public ::testing::Test {
 protected:
  std::string path(const std::string& name) const { return folder_.text() + "\\" + name; }
  std::string content(const std::string& name) const { return support::bytes_of((folder_.path() / name).string()); }
  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_.path() / name, std::ios::binary) << bytes;
  }
  // Everything in the folder, temporary files too.
  Names all_names() const {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder_.path())) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  support::Temporary_folder folder_;
  Disk_files files_;
};

TEST_F(Files_on_disk, HandOutAFileInPiecesUntilTheyAreStopped) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += std::to_string(i) + "\n";
  put("a.txt", bytes);
  std::string got;
  std::size_t pieces = 0, largest = 0;
  files_.read_pieces(path("A.TXT"), [&](std::string_view piece) {
    got += piece;
    largest = std::max(largest, piece.size());
    return ++pieces > 0;
  });
  EXPECT_EQ(got, bytes);
  EXPECT_GT(pieces, 1U);
  EXPECT_LE(largest, 1'000'000U);
  pieces = 0;
  files_.read_pieces(path("a.txt"), [&](std::string_view) { return ++pieces < 2; });
  EXPECT_EQ(pieces, 2U);
  EXPECT_THROW(files_.read_pieces(path("none.txt"), [](std::string_view) { return true; }), File_failure);
}

TEST_F(Files_on_disk, TellLengthZeroForWhatIsNoFile) {
  put("a.txt", "12345");
  put("empty.txt", "");
  fs::create_directory(folder_.path() / "sub");
  EXPECT_EQ(files_.length(path("a.txt")), 5);
  EXPECT_EQ(files_.length(path("empty.txt")), 0);
  EXPECT_EQ(files_.length(path("missing.txt")), 0);
  EXPECT_EQ(files_.length(path("sub")), 0);
  EXPECT_EQ(files_.length(path("missing\\a.txt")), 0);
  EXPECT_EQ(files_.length(path("a.txt\\b.txt")), 0);
  EXPECT_EQ(files_.length(""), 0);
  EXPECT_EQ(files_.length(path(std::string("a.txt\0b", 7))), 0);
  EXPECT_EQ(files_.length(path(std::string(5000, 'x'))), 0);
  std::string deep = folder_.text();
  for (int i = 0; i < 200'000; ++i) deep += "\\a";
  EXPECT_EQ(files_.length(deep), 0);
  EXPECT_THROW(files_.write_whole(deep, "x"), File_failure);
}

TEST_F(Files_on_disk, TakeBothSeparators) {
  fs::create_directories(folder_.path() / "a" / "b");
  put("a/b/c.txt", "c");
  EXPECT_EQ(files_.read_bytes(folder_.text() + "\\a\\b\\c.txt"), "c");
  EXPECT_EQ(files_.read_bytes(folder_.text() + "/a\\b/c.txt"), "c");
  EXPECT_EQ(files_.read_bytes(folder_.text() + "\\\\a\\b\\\\c.txt"), "c");
  EXPECT_TRUE(files_.folder_exists(folder_.text() + "\\a\\b\\"));
}

TEST_F(Files_on_disk, AreFoundWithoutRegardToCase) {
  fs::create_directories(folder_.path() / "Chisou_Men" / "ＡΩЖ");
  put("Chisou_Men/ＡΩЖ/Souzyo.DAT", "x");
  EXPECT_EQ(files_.read_bytes(path("chisou_men\\ａωж\\SOUZYO.dat")), "x");
  EXPECT_TRUE(files_.folder_exists(path("CHISOU_MEN\\ａΩЖ")));
  EXPECT_EQ(files_.length(path("chisou_men\\ＡΩЖ\\other.dat")), 0);
  EXPECT_EQ(files_.native_path(path("chisou_men\\ａωж\\SOUZYO.dat")),
            (folder_.path() / "Chisou_Men" / "ＡΩЖ" / "Souzyo.DAT").string());
  EXPECT_EQ(files_.native_path(path("chisou_men\\New.dat")), (folder_.path() / "Chisou_Men" / "New.dat").string());
}

TEST_F(Files_on_disk, OfTwoNamesThatDifferInCaseTheOneAsWrittenIsMeant) {
  put("a.txt", "small");
  put("A.txt", "large");
  if (content("a.txt") != "small") GTEST_SKIP() << "this file system has no case";
  EXPECT_EQ(files_.read_bytes(path("a.txt")), "small");
  EXPECT_EQ(files_.read_bytes(path("A.txt")), "large");
  EXPECT_EQ(files_.read_bytes(path("a.TXT")), "large");  // neither: the first in byte order
}

TEST_F(Files_on_disk, AreWrittenUnderTheNameThatExists) {
  put("SETTEI.INI", "old");
  files_.write_whole(path("settei.ini"), "new");
  files_.append(path("Settei.ini"), "er");
  EXPECT_EQ(content("SETTEI.INI"), "newer");
  EXPECT_EQ(all_names(), Names{"SETTEI.INI"});
}

TEST_F(Files_on_disk, AreSeenAsSoonAsTheyAppearInAnyCase) {
  for (int i = 0; i < 50; ++i) {
    const std::string name = "File" + std::to_string(i) + ".Txt";
    ASSERT_EQ(files_.length(path("FILE" + std::to_string(i) + ".TXT")), 0);
    put(name, "x");  // as another program would
    ASSERT_EQ(files_.length(path("FILE" + std::to_string(i) + ".TXT")), 1) << i;
    fs::remove(folder_.path() / name);
    ASSERT_EQ(files_.length(path("FILE" + std::to_string(i) + ".TXT")), 0) << i;
  }
}

TEST_F(Files_on_disk, AreSoughtQuicklyInALargeFolder) {
  for (int i = 0; i < 3000; ++i) put(std::to_string(500000 + i) + ".bmp", "");
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 3000; ++i) EXPECT_EQ(files_.length(path(std::to_string(500000 + i) + ".set")), 0);
  EXPECT_EQ(files_.list(folder_.text(), "*.BMP").size(), 3000U);
  // About 0.03 s; one scan of the folder for each name would take over 3 s.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST_F(Files_on_disk, ReadRaisesAFailureThatNamesTheFile) {
  try {
    files_.read_bytes(path("missing.txt"));
    FAIL();
  } catch (const File_failure& failure) {
    EXPECT_NE(std::string(failure.what()).find(path("missing.txt")), std::string::npos) << failure.what();
  }
  EXPECT_THROW(files_.read_bytes(folder_.text()), File_failure);
  EXPECT_THROW(files_.read_bytes(""), File_failure);
}

TEST_F(Files_on_disk, AFileTooLargeForMemoryIsRefused) {
  put("a.txt", "x");
  std::error_code fault;
  fs::resize_file(folder_.path() / "a.txt", 2'000'000'001, fault);  // a hole: it takes no room on the disk
  if (fault) GTEST_SKIP() << "no file of 2 GB can be made here: " << fault.message();
  EXPECT_EQ(files_.length(path("a.txt")), 2'000'000'001);
  EXPECT_THROW(files_.read_bytes(path("a.txt")), File_failure);
}

TEST_F(Files_on_disk, WriteWholeReplacesTheContentAndLeavesNothingElse) {
  files_.write_whole(path("a.txt"), "one");
  EXPECT_EQ(content("a.txt"), "one");
  files_.write_whole(path("a.txt"), std::string("two\0\xff", 5));
  EXPECT_EQ(content("a.txt"), std::string("two\0\xff", 5));
  files_.write_whole(path("a.txt"), "");
  EXPECT_EQ(content("a.txt"), "");
  EXPECT_EQ(all_names(), Names{"a.txt"});
  const std::string large(3'000'000, 'x');
  files_.write_whole(path("a.txt"), large);
  EXPECT_EQ(files_.read_bytes(path("a.txt")), large);
}

TEST_F(Files_on_disk, AppendAddsAtTheEndAndMakesAMissingFile) {
  files_.append(path("log.txt"), "one\r\n");
  files_.append(path("log.txt"), "two\r\n");
  EXPECT_EQ(content("log.txt"), "one\r\ntwo\r\n");
  EXPECT_THROW(files_.append(path("missing\\log.txt"), "x"), File_failure);
  EXPECT_THROW(files_.append(folder_.text(), "x"), File_failure);
}

TEST_F(Files_on_disk, CopyReplacesTheTargetOrLeavesItAsItWas) {
  put("from.txt", "new");
  put("to.txt", "old");
  EXPECT_THROW(files_.copy(path("missing.txt"), path("to.txt")), File_failure);
  EXPECT_EQ(content("to.txt"), "old");
  files_.copy(path("from.txt"), path("TO.txt"));
  EXPECT_EQ(content("to.txt"), "new");
  files_.copy(path("to.txt"), path("to.txt"));
  EXPECT_EQ(content("to.txt"), "new");
  EXPECT_EQ(all_names(), (Names{"from.txt", "to.txt"}));
}

TEST_F(Files_on_disk, RemoveTakesFilesOnly) {
  put("A.txt", "x");
  fs::create_directory(folder_.path() / "sub");
  EXPECT_TRUE(files_.remove(path("a.TXT")));
  EXPECT_FALSE(files_.remove(path("a.txt")));
  EXPECT_FALSE(files_.remove(path("sub")));
  EXPECT_FALSE(files_.remove(""));
  EXPECT_EQ(all_names(), Names{"sub"});
}

TEST_F(Files_on_disk, MakeFolderMakesOneFolder) {
  EXPECT_TRUE(files_.make_folder(path("chisou_men")));
  EXPECT_TRUE(files_.make_folder(path("CHISOU_MEN")));
  EXPECT_EQ(all_names(), Names{"chisou_men"});
  EXPECT_TRUE(files_.make_folder(path("Chisou_men\\csv")));
  EXPECT_TRUE(fs::is_directory(folder_.path() / "chisou_men" / "csv"));
  EXPECT_FALSE(files_.make_folder(path("missing\\csv")));
  put("file", "x");
  EXPECT_FALSE(files_.make_folder(path("file")));
  EXPECT_FALSE(files_.folder_exists(path("file")));
}

TEST_F(Files_on_disk, ListGivesTheFilesOfAPatternInTheOrderOfTheFoldedNames) {
  for (const char* name : {"b.csv", "A.CSV", "a.csv.bak", "c.Csv", "ab.csv", "none", "ｂ.csv", "Ａ.csv"}) put(name, "");
  fs::create_directory(folder_.path() / "folder.csv");
  EXPECT_EQ(files_.list(folder_.text(), "*.csv"), (Names{"A.CSV", "ab.csv", "b.csv", "c.Csv", "Ａ.csv", "ｂ.csv"}));
  EXPECT_EQ(files_.list(folder_.text(), "a.*"), (Names{"A.CSV", "a.csv.bak"}));
  EXPECT_EQ(files_.list(folder_.text(), "*").size(), 8U);
  EXPECT_EQ(files_.list(folder_.text(), "NONE"), Names{"none"});
  EXPECT_EQ(files_.list(folder_.text(), "*.txt"), Names{});
  EXPECT_EQ(files_.list(folder_.text(), ""), Names{});
  EXPECT_EQ(files_.list(path("missing"), "*"), Names{});
  EXPECT_EQ(files_.list(path("b.csv"), "*"), Names{});
}

TEST_F(Files_on_disk, TimeStampIsTheLastChange) {
  put("a.txt", "x");
  const auto now =
      std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::system_clock::now().time_since_epoch())
          .count();
  EXPECT_NEAR(static_cast<double>(files_.time_stamp(path("A.txt"))), static_cast<double>(now), 60000);
  EXPECT_EQ(files_.time_stamp(path("missing.txt")), 0);
  EXPECT_EQ(files_.time_stamp(folder_.text()), 0);
}

TEST_F(Files_on_disk, WriteWholeIntoAMissingFolderFailsAndNamesTheFile) {
  put("file", "x");
  for (const char* name : {"missing\\a.txt", "file\\a.txt"}) {
    try {
      files_.write_whole(path(name), "new");
      FAIL() << name;
    } catch (const File_failure& failure) {
      EXPECT_NE(std::string(failure.what()).find(path(name)), std::string::npos) << failure.what();
    }
  }
  EXPECT_THROW(files_.write_whole(folder_.text(), "new"), File_failure);
  EXPECT_THROW(files_.write_whole("", "new"), File_failure);
  EXPECT_THROW(files_.write_whole(path(std::string("a\0b", 3)), "new"), File_failure);
  EXPECT_THROW(files_.write_whole(path(std::string(300, 'x')), "new"), File_failure);
  EXPECT_EQ(all_names(), Names{"file"});
}

#ifndef _WIN32

TEST_F(Files_on_disk, NamesThatAreNoUtf8AreListedAndOpened) {
  const std::string odd = "\xb1\xb2\xff.csv";
  put(odd, "x");
  if (!fs::exists(folder_.path() / odd)) GTEST_SKIP() << "this file system refuses such names";
  EXPECT_EQ(files_.list(folder_.text(), "*.CSV"), Names{odd});
  EXPECT_EQ(files_.read_bytes(path(odd)), "x");
  EXPECT_EQ(files_.length(path("\xb1\xb2\xff.CSV")), 1);
}

TEST_F(Files_on_disk, WriteWholeKeepsThePermissionBits) {
  put("a.txt", "old");
  fs::permissions(folder_.path() / "a.txt", fs::perms{0640});
  files_.write_whole(path("a.txt"), "new");
  EXPECT_EQ(fs::status(folder_.path() / "a.txt").permissions(), fs::perms{0640});
  const mode_t mask = umask(0);
  umask(mask);
  files_.write_whole(path("b.txt"), "new");
  EXPECT_EQ(fs::status(folder_.path() / "b.txt").permissions(), fs::perms{0666U & ~mask});
}

TEST_F(Files_on_disk, WriteWholeFollowsALinkThatStays) {
  fs::create_directory(folder_.path() / "sub");
  put("sub/real.txt", "old");
  fs::create_symlink("sub/real.txt", folder_.path() / "link.txt");
  fs::create_symlink("link.txt", folder_.path() / "second.txt");
  files_.write_whole(path("second.txt"), "new");
  EXPECT_EQ(content("sub/real.txt"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_.path() / "link.txt"));
  EXPECT_TRUE(fs::is_symlink(folder_.path() / "second.txt"));
  EXPECT_EQ(all_names(), (Names{"link.txt", "second.txt", "sub"}));
}

TEST_F(Files_on_disk, WriteWholeMakesTheMissingTargetOfALink) {
  fs::create_symlink("new.txt", folder_.path() / "link.txt");
  files_.write_whole(path("link.txt"), "new");
  EXPECT_EQ(content("new.txt"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_.path() / "link.txt"));
}

TEST_F(Files_on_disk, LinksInACircleAndDevicesAreRefused) {
  fs::create_symlink("b.txt", folder_.path() / "a.txt");
  fs::create_symlink("a.txt", folder_.path() / "b.txt");
  fs::create_symlink("/dev/null", folder_.path() / "null.txt");
  ASSERT_EQ(mkfifo((folder_.path() / "pipe").c_str(), 0600), 0);
  for (const char* name : {"a.txt", "null.txt", "pipe"}) {
    EXPECT_THROW(files_.write_whole(path(name), "x"), File_failure) << name;
    EXPECT_THROW(files_.append(path(name), "x"), File_failure) << name;
    EXPECT_THROW(files_.read_bytes(path(name)), File_failure) << name;
    EXPECT_EQ(files_.length(path(name)), 0) << name;
  }
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(all_names(), (Names{"a.txt", "b.txt", "null.txt", "pipe"}));
}

// Runs `action` in a child process and returns its exit code; -1 when a signal ended it.
template <typename Action>
int in_child(Action action) {
  const pid_t child = fork();
  if (child == 0) _exit(action());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

constexpr uid_t ordinary_user = 65534;  // whoever it is, not root, who may write everywhere

TEST_F(Files_on_disk, AReadOnlyFolderOrFileGivesAFailure) {
  put("a.txt", "old");
  const fs::path file = folder_.path() / "a.txt";
  if (geteuid() == 0) {
    ASSERT_EQ(chown(file.c_str(), ordinary_user, ordinary_user), 0);
    ASSERT_EQ(chown(folder_.path().c_str(), ordinary_user, ordinary_user), 0);
  }
  const auto fails = [](auto action) {
    try {
      action();
    } catch (const File_failure&) {
      return true;
    }
    return false;
  };
  EXPECT_EQ(in_child([&] {
              if (geteuid() == 0 && setuid(ordinary_user) != 0) return 100;
              fs::permissions(file, fs::perms{0400});
              if (!fails([&] { files_.write_whole(path("a.txt"), "new"); })) return 1;
              if (!fails([&] { files_.append(path("a.txt"), "new"); })) return 2;
              fs::permissions(file, fs::perms{0000});
              if (!fails([&] { files_.read_bytes(path("a.txt")); })) return 3;
              fs::permissions(file, fs::perms{0600});
              fs::permissions(folder_.path(), fs::perms{0500});
              if (!fails([&] { files_.write_whole(path("a.txt"), "new"); })) return 4;
              if (!fails([&] { files_.write_whole(path("b.txt"), "new"); })) return 5;
              if (files_.make_folder(path("sub")) || files_.remove(path("a.txt"))) return 6;
              return 0;
            }),
            0);
  EXPECT_EQ(content("a.txt"), "old");
  EXPECT_EQ(all_names(), Names{"a.txt"});
}

// In the child no file can grow beyond 1000 bytes, which fails as a full disk does: in the middle of a write.
template <typename Action>
int in_child_with_small_files(Action action) {
  return in_child([&] {
    const rlimit limit{1000, 1000};
    if (std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR || setrlimit(RLIMIT_FSIZE, &limit) != 0) return 3;
    try {
      action();
    } catch (const File_failure&) {
      return 1;
    }
    return 0;
  });
}

TEST_F(Files_on_disk, AWriteThatRunsFullLeavesTheOldFileWhole) {
  put("a.txt", "old");
  put("log.txt", std::string(990, 'x'));
  const std::string large(5000, 'n');
  EXPECT_EQ(in_child_with_small_files([&] { files_.write_whole(path("a.txt"), "fits"); }), 0);
  EXPECT_EQ(content("a.txt"), "fits");
  EXPECT_EQ(in_child_with_small_files([&] { files_.write_whole(path("a.txt"), large); }), 1);
  EXPECT_EQ(in_child_with_small_files([&] { files_.write_whole(path("b.txt"), large); }), 1);
  EXPECT_EQ(in_child_with_small_files([&] { files_.append(path("log.txt"), large); }), 1);
  EXPECT_EQ(content("a.txt"), "fits");
  EXPECT_EQ(content("log.txt"), std::string(990, 'x'));
  EXPECT_EQ(all_names(), (Names{"a.txt", "log.txt"}));
}

TEST_F(Files_on_disk, AKillInTheMiddleOfASaveLeavesTheOldOrTheNewFileWhole) {
  const std::string one(200'000, '1');
  const std::string two(300'000, '2');
  files_.write_whole(path("a.txt"), one);
  int leftovers = 0;
  for (int round = 0; round < 30; ++round) {
    const pid_t child = fork();
    if (child == 0)
      for (;;) {
        files_.write_whole(path("a.txt"), two);
        files_.write_whole(path("a.txt"), one);
      }
    usleep(static_cast<useconds_t>(1000 + 700 * round));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string left = content("a.txt");
    ASSERT_TRUE(left == one || left == two) << left.size() << " bytes left";
    for (const std::string& name : all_names())
      if (name != "a.txt") ++leftovers;
    for (const std::string& name : all_names())
      if (name != "a.txt") fs::remove(folder_.path() / name);
  }
  std::printf("30 kills, %d of them in the middle of a write\n", leftovers);
  EXPECT_EQ(files_.list(folder_.text(), "*.txt"), Names{"a.txt"});
}

#endif

TEST(Files_paths, AreJoinedWithOneSeparator) {
  EXPECT_EQ(join_path("C:\\data", "a.txt"), "C:\\data\\a.txt");
  EXPECT_EQ(join_path("C:\\data\\", "a.txt"), "C:\\data\\a.txt");
  EXPECT_EQ(join_path("C:\\data\\", "\\a.txt"), "C:\\data\\a.txt");
  EXPECT_EQ(join_path("C:\\data", "\\chisou_men\\a.csv"), "C:\\data\\chisou_men\\a.csv");
  EXPECT_EQ(join_path("/home/a/", "b"), "/home/a\\b");
  EXPECT_EQ(join_path("/", "b"), "\\b");
  EXPECT_EQ(join_path("", "b"), "b");
}

TEST(Files_paths, StayInsideWhenTheyAreBareNames) {
  for (const char* name : {"a.txt", "表.csv", ".hidden", "a..b", "...a", " a", "com.txt", "com10", "lpt", "console.txt",
                           "nul_.txt", "a b.csv"})
    EXPECT_TRUE(stays_inside(name)) << name;
  for (const char* name : {"",    " ",        ".",     "..",       "...",      ".. ",  ". .",    "a\\b",
                           "a/b", "\\a",      "..\\a", "C:a",      "C:",       "a:b",  "con",    "CON.txt",
                           "Nul", "nul .txt", "com1",  "LPT9.csv", "com¹.txt", "aux.", "CONIN$", "a.txt:stream"})
    EXPECT_FALSE(stays_inside(name)) << name;
  EXPECT_FALSE(stays_inside(std::string_view("a\0b", 3)));
}

}  // namespace
