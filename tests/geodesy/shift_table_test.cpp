#include "geodesy/shift_table.h"

#include <gtest/gtest.h>

#include <random>

#include "geodesy/sample_rows.h"
#include "geodesy/walk.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/temporary_folder.h"

namespace {

using namespace geodesy;

constexpr char headers[] = "JGD2000-TokyoDatum Ver.2.1.2\r\nMeshCode   dB(sec)   dL(sec)\r\n";

Shift_table table_of(const std::string& rows) {
  Shift_table table;
  read_par(headers + rows, table);
  return table;
}

void expect_row(const Shift_table& table, int row, int mesh, float dB, float dL) {
  EXPECT_EQ(table.mesh[row], mesh) << row;
  EXPECT_EQ(table.dB[row], dB) << row;
  EXPECT_EQ(table.dL[row], dL) << row;
}

TEST(Read_par, TakesThePublishedLayout) {
  const Shift_table table = table_of("46303582  12.79799  -8.13354\r\n46303583  12.79879  -8.13749\r\n");
  ASSERT_EQ(table.count, 2);
  expect_row(table, 1, 46303582, 12.79799f, -8.13354f);
  expect_row(table, 2, 46303583, 12.79879f, -8.13749f);
}

TEST(Read_par, GivesTheVersionFromThe20thCharacter) {
  Shift_table table;
  EXPECT_EQ(read_par("JGD2000-TokyoDatum Ver.2.1.2\r\nx\r\n", table), "Ver.2.1.2");
  EXPECT_EQ(read_par("1234567890123456789\r\nx\r\n", table), "");
  EXPECT_EQ(read_par("short", table), "");
  EXPECT_EQ(read_par("", table), "");
  // "1234567890123456" and then 地図版ａ in code page 932: the 20th character is the fourth of them.
  EXPECT_EQ(read_par("1234567890123456\x92\x6e\x90\x7d\x94\xc5\x82\x81\r\n", table), "ａ");
}

TEST(Read_par, TakesCommasBlanksAndTabs) {
  const Shift_table table = table_of("54400000,1.5,-2.5\r\n54400001 , 3 ,\t-4\r\n54400002\t5   -6  \r\n");
  ASSERT_EQ(table.count, 3);
  expect_row(table, 1, 54400000, 1.5f, -2.5f);
  expect_row(table, 2, 54400001, 3, -4);
  expect_row(table, 3, 54400002, 5, -6);
}

TEST(Read_par, ValuesMayRunOverLineEndsOfAnyKind) {
  const Shift_table table = table_of("\r\n\r\n54400000\n1\r2\r\n\r\n54400001 3\r\n4 54400002 5 6");
  ASSERT_EQ(table.count, 3);
  expect_row(table, 1, 54400000, 1, 2);
  expect_row(table, 2, 54400001, 3, 4);
  expect_row(table, 3, 54400002, 5, 6);
}

TEST(Read_par, ACommaBehindTheLastValueShiftsNothing) {
  const Shift_table table = table_of("54400000,1,2,\r\n54400001,3,4,\r\n");
  ASSERT_EQ(table.count, 2);
  expect_row(table, 2, 54400001, 3, 4);
}

TEST(Read_par, AnEmptyValueAndATextReadAsNought) {
  const Shift_table table = table_of("54400000,,2\r\n54400001 abc 4\r\n54400002 5x 6e1\r\n");
  ASSERT_EQ(table.count, 3);
  expect_row(table, 1, 54400000, 0, 2);
  expect_row(table, 2, 54400001, 0, 4);
  expect_row(table, 3, 54400002, 5, 60);
}

TEST(Read_par, ALastRowCutShortIsNone) {
  EXPECT_EQ(table_of("54400000 1 2\r\n54400001 3").count, 1);
  EXPECT_EQ(table_of("54400000 1 2\r\n54400001\r\n").count, 1);
  EXPECT_EQ(table_of("54400000 1 2\r\n \r\n\r\n").count, 1);
  EXPECT_EQ(table_of("").count, 0);
}

TEST(Read_par, TheEndOfTextByteEndsIt) {
  EXPECT_EQ(table_of("54400000 1 2\r\n\x1a"
                     "54400001 3 4\r\n")
                .count,
            1);
}

TEST(Read_par, ARowWhoseNumbersDoNotFitIsLeftOut) {
  const Shift_table table = table_of("99999999999 1 2\r\n54400000 1e39 2\r\n54400000 1 -1e300\r\n54400001 3 4\r\n");
  ASSERT_EQ(table.count, 1);
  expect_row(table, 1, 54400001, 3, 4);
}

TEST(Read_par, AFileOfOneLineOrNoneHasNoRows) {
  for (const char* bytes : {"", "\r\n", "54400000 1 2", "54400000 1 2\r\n54400000 1 2"}) {
    Shift_table table;
    read_par(bytes, table);
    EXPECT_EQ(table.count, 0) << bytes;
    EXPECT_EQ(find_row(table, 54400000, 1), 0);
  }
}

TEST(Read_par, StopsAtTheLimit) {
  std::string bytes = headers;
  for (int row = 0; row < largest_shift_rows; ++row) bytes += "54400000 1 2\n";
  Shift_table table;
  read_par(bytes + "54400001 3 4\n", table);
  EXPECT_EQ(table.count, largest_shift_rows);
  EXPECT_EQ(find_row(table, 54400001, 1), 0);
  EXPECT_EQ(find_row(table, 54400000, 400'000), 400'000);
}

TEST(Read_par, ReplacesTheRowsOfAnEarlierRead) {
  Shift_table table = table_of("54400000 1 2\r\n54400001 3 4\r\n");
  read_par(std::string(headers) + "54400002 5 6\r\n", table);
  EXPECT_EQ(table.count, 1);
  EXPECT_EQ(find_row(table, 54400000, 1), 0);
  EXPECT_EQ(find_row(table, 54400002, 1), 1);
}

TEST(Load_par, ReadsAFile) {
  const support::Temporary_folder folder;
  platform::Disk_files files;
  const std::string path = platform::join_path(folder.text(), "TKY2JGD.par");
  files.write_whole(path, std::string(headers) + "46303582  12.79799  -8.13354\r\n");
  Shift_table table;
  EXPECT_EQ(load_par(files, path, table), "Ver.2.1.2");
  ASSERT_EQ(table.count, 1);
  expect_row(table, 1, 46303582, 12.79799f, -8.13354f);
}

TEST(Load_par, AMissingFileLeavesTheTableEmpty) {
  const support::Temporary_folder folder;
  platform::Disk_files files;
  Shift_table table = table_of("54400000 1 2\r\n");
  EXPECT_EQ(load_par(files, platform::join_path(folder.text(), "TKY2JGD.par"), table), "");
  EXPECT_EQ(table.count, 0);
  EXPECT_EQ(find_row(table, 54400000, 1), 0);
}

TEST(Load_par, AFolderInThePlaceOfTheFileLeavesTheTableEmpty) {
  const support::Temporary_folder folder;
  platform::Disk_files files;
  Shift_table table;
  EXPECT_EQ(load_par(files, folder.text(), table), "");
  EXPECT_EQ(table.count, 0);
}

// Says that it is there and long, and then can't be read.
class Faulty_files : public platform::Disk_files {
 public:
  std::int64_t size = 100;
  int reads = 0;
  std::int64_t length(const std::string&) override { return size; }
  std::string read_bytes(const std::string&) override {
    ++reads;
    throw platform::File_failure("torn away");
  }
};

TEST(Load_par, AFileThatCanNotBeReadLeavesTheTableEmpty) {
  Faulty_files files;
  Shift_table table = table_of("54400000 1 2\r\n");
  EXPECT_EQ(load_par(files, "\\TKY2JGD.par", table), "");
  EXPECT_EQ(table.count, 0);
  EXPECT_EQ(files.reads, 1);
}

TEST(Load_par, AFileBeyondAllMeasureIsNotTakenIntoMemory) {
  Faulty_files files;
  files.size = largest_par_bytes + 1;
  Shift_table table;
  EXPECT_EQ(load_par(files, "\\TKY2JGD.par", table), "");
  EXPECT_EQ(files.reads, 0);
}

TEST(Load_par, ReadsThePublishedRows) {
  const std::string path = support::shared_data("TKY2JGD_subset.par");
  platform::Disk_files files;
  Shift_table table;
  if (files.length(path) == 0) GTEST_SKIP() << "no ../shared/data/TKY2JGD_subset.par beside the repository";
  EXPECT_EQ(load_par(files, path, table), "Ver.2.1.2");
  ASSERT_EQ(table.count, 1383);
  expect_row(table, 1, 37410292, -9.52452f, -5.16004f);
  expect_row(table, 1383, 54405591, 11.37235f, -12.02927f);
}

TEST(Find_row, FindsWhatAWalkFindsInUnsortedTablesWithRepeatedCodes) {
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    Shift_table table;
    table.count = static_cast<int>(random() % 400);
    const auto code = [&] {
      return static_cast<int>(5440 * 10000 + random() % 3 * 100 + random() % 3 * 10 + random() % 8);
    };
    for (int row = 1; row <= table.count; ++row) table.mesh[row] = code();
    index_rows(table);
    for (int i = 0; i < 1500; ++i) {
      const int from = table.count == 0 ? 1 : static_cast<int>(1 + random() % static_cast<unsigned>(table.count));
      const int sought = code();
      ASSERT_EQ(find_row(table, sought, from), geodesy_test::walk(table, sought, from)) << round << " " << sought;
    }
  }
}

TEST(Find_row, FindsEveryCodeOfTheRegion) {
  Shift_table table;
  for (const int code : {30200000, 30200099, 30207700, 69547799, 70557799, 53394547}) table.mesh[++table.count] = code;
  index_rows(table);
  for (int row = 1; row <= table.count; ++row) EXPECT_EQ(find_row(table, table.mesh[row], 1), row);
}

TEST(Find_row, CodesThatNoPositionHasAreNotFoundAndDoNoHarm) {
  Shift_table table;
  const int odd[] = {0,        -1,       -54400000, 29200000,   71200000,       54190000,
                     54560000, 54408000, 54400800,  2147483647, -2147483647 - 1};
  for (const int code : odd) table.mesh[++table.count] = code;
  table.mesh[++table.count] = 54400000;
  index_rows(table);
  for (const int code : odd) EXPECT_EQ(find_row(table, code, 1), 0) << code;
  EXPECT_EQ(find_row(table, 54400000, 1), table.count);
}

TEST(Find_row, OfATableWithoutRowsIsNought) {
  const Shift_table table;
  EXPECT_EQ(find_row(table, 54400000, 1), 0);
}

}  // namespace
