#include "observations/registry.h"

#include <gtest/gtest.h>

#include "observations/observation_place.h"
#include "platform/failures.h"
#include "support/places.h"

namespace {

using support::point_at;
using support::simple_point;

struct Registry_read : testing::Test, support::Observation_place {};
struct Registry_bytes : testing::Test, support::Observation_place {};
struct Registry_backup : testing::Test, support::Observation_place {};
struct Registry_file : testing::Test, support::Observation_place {};

TEST_F(Registry_read, CountsTheRecordsFromOne) {
  put_lines({simple_point, point_at("1.0", "2.0", "b")});
  read();
  EXPECT_EQ(registry.N, 2);
  EXPECT_EQ(registry.rows[1].touroku_no, "081115-001*3");
  EXPECT_EQ(registry.rows[2].touroku_no, "b");
  EXPECT_TRUE(registry.complete);
}

TEST_F(Registry_read, SkipsALineThatHoldsTheNoDataTextInAnyColumn) {
  put_lines({point_at("1.0", "2.0", "a"), " 0 ,1.0,2.0,,x-99991,,,,b", point_at("3.0", "-9999.0", "c"),
             point_at("4.0", "2.0", "d")});
  read();
  ASSERT_EQ(registry.N, 2);
  EXPECT_EQ(registry.rows[2].touroku_no, "d");
}

TEST_F(Registry_read, HasNoRecordsForAMissingOrEmptyFile) {
  put_lines({simple_point});
  read();
  put("");
  read();
  EXPECT_EQ(registry.N, 0);
  EXPECT_TRUE(registry.complete);
  observations::chisoumen_read(registry, files, 1, {path("missing.csv")});
  EXPECT_EQ(registry.N, 0);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Registry_read, ReadsTheFirstFileInEveryPass) {
  put_lines({point_at("1.0", "2.0", "a")});
  put_lines({point_at("1.0", "2.0", "b")}, "b.csv");
  observations::chisoumen_read(registry, files, 3, {path(), path("b.csv"), path("b.csv")});
  ASSERT_EQ(registry.N, 3);
  EXPECT_EQ(registry.rows[3].touroku_no, "a");
  EXPECT_FALSE(registry.complete) << "a save would write the records three times";
  EXPECT_EQ(files.calls("read_bytes " + path("b.csv")), 0);
}

TEST_F(Registry_read, KeepsAnEmptyLineAsARecord) {
  put_lines({point_at("1.0", "2.0", "a"), "", point_at("1.0", "2.0", "c")});
  read();
  ASSERT_EQ(registry.N, 3);
  EXPECT_EQ(registry.rows[2].size, 2);
}

TEST_F(Registry_read, FailsAtRecord15001AndIsIncomplete) {
  std::string bytes;
  for (int i = 1; i <= 15'000; ++i) bytes += std::to_string(i) + ",1,2\r\n";
  put(bytes);
  read();
  EXPECT_EQ(registry.N, 15'000);
  EXPECT_EQ(registry.rows[15'000].boundary, 15'000);
  EXPECT_TRUE(registry.complete);
  put(bytes + "15001,1,2\r\n");
  EXPECT_THROW(read(), platform::Subscript_failure);
  EXPECT_EQ(registry.N, 15'000);
  EXPECT_FALSE(registry.complete);
  for (int i = 15'002; i <= 50'001; ++i) bytes += std::to_string(i) + ",1,2\r\n";
  put(bytes);
  EXPECT_THROW(read(), platform::Subscript_failure);
  EXPECT_EQ(registry.N, 15'000);
}

TEST_F(Registry_read, ReadsTheDeletedLinesBeyondTheLimitWithoutAFault) {
  std::string bytes;
  for (int i = 1; i <= 50'001; ++i) bytes += i % 10 == 0 ? "1,1,2\r\n" : "1,-9999,2\r\n";
  put(bytes);
  read();
  EXPECT_EQ(registry.N, 5000);
}

TEST_F(Registry_read, IsIncompleteWhereAVertexCountGoesBeyondTheColumns) {
  put_lines({point_at("1.0", "2.0", "a"), "0,1,2,,,,,,b,,線,2,0,0,0,0,0,0,0,,,,,139,5,6,"});
  EXPECT_THROW(read(), platform::Subscript_failure);
  EXPECT_EQ(registry.N, 1);
  EXPECT_FALSE(registry.complete);
}

TEST_F(Registry_read, IsIncompleteWhenTheFileCanNotBeRead) {
  put_lines({simple_point});
  files.unreadable = "tani.csv";
  read();
  EXPECT_EQ(registry.N, 0);
  EXPECT_FALSE(registry.complete);
}

TEST_F(Registry_read, IsIncompleteWithTextBehindAnEndOfTextMark) {
  put(support::lines_932({simple_point}) + "\x1a" + support::lines_932({simple_point}));
  read();
  EXPECT_EQ(registry.N, 1);
  EXPECT_FALSE(registry.complete);
  put(support::lines_932({simple_point}) + "\x1a");
  read();
  EXPECT_EQ(registry.N, 1);
  EXPECT_TRUE(registry.complete);
}

TEST_F(Registry_read, ReadsAgainAfterAFailure) {
  put_lines({"0,1,2,,,,,,b,,線,2,0,0,0,0,0,0,0,,,,,139,5,6,"});
  EXPECT_THROW(read(), platform::Subscript_failure);
  put_lines({simple_point});
  read();
  EXPECT_EQ(registry.N, 1);
  EXPECT_TRUE(registry.complete);
}

// tests/golden/observations/*.csv were put together by hand from the columns of the format.
struct Golden_registry : testing::TestWithParam<const char*> {
  support::Observation_place place;
};

TEST_P(Golden_registry, ComesBackByteForByte) {
  const std::string name = std::string("observations/") + GetParam();
  place.put(support::bytes_of(support::golden_file(name)));
  place.read();
  ASSERT_TRUE(place.registry.complete);
  ASSERT_GT(place.registry.N, 0);
  EXPECT_TRUE(support::same_as_golden(observations::registry_bytes(place.registry), name));
}
INSTANTIATE_TEST_SUITE_P(BothLanguages, Golden_registry,
                         testing::Values("marks_japanese.csv", "marks_english.csv", "vertices.csv",
                                         "odd_lines_saved.csv", "odd_bytes_saved.csv"));

TEST_F(Registry_bytes, TurnOddLinesIntoTheOnesThatAreTold) {
  put(support::bytes_of(support::golden_file("observations/odd_lines.csv")));
  read();
  EXPECT_TRUE(support::same_as_golden(observations::registry_bytes(registry), "observations/odd_lines_saved.csv"));
}

// Half-width and user-defined characters, one of two codes for a character, bytes without one, NUL, other line ends, no
// line end, numbers beyond a double, columns beyond the last one, and marks that the list doesn't offer.
TEST_F(Registry_bytes, TurnOddBytesIntoTheOnesThatAreTold) {
  put(support::bytes_of(support::golden_file("observations/odd_bytes.csv")));
  read();
  EXPECT_TRUE(registry.complete);
  EXPECT_EQ(registry.N, 11);
  EXPECT_TRUE(support::same_as_golden(observations::registry_bytes(registry), "observations/odd_bytes_saved.csv"));
}

TEST_F(Registry_bytes, LeaveOutARecordWhoseXIsNoDataAndKeepOneWhoseYIs) {
  put_lines({point_at("1.0", "2.0", "a"), point_at("1.0", "2.0", "b"), point_at("1.0", "2.0", "c")});
  read();
  registry.rows[1].X = -9999;
  registry.rows[2].Y = -9999;
  EXPECT_EQ(observations::registry_bytes(registry),
            support::lines_932({point_at("1.0", "-9999.0", "b"), point_at("1.0", "2.0", "c")}));
}

TEST_F(Registry_bytes, AreNothingForATableWithoutRecords) {
  EXPECT_EQ(observations::registry_bytes(registry), "");
}

TEST_F(Registry_backup, CopiesEveryCsvOfTheFolder) {
  put("one");
  put("two", "SAWA.CSV");
  put("three", "souzyo.dat");
  observations::registry_backup(files, project);
  EXPECT_EQ(disk.read_bytes(path("csv\\tani.csv")), "one");
  EXPECT_EQ(disk.read_bytes(path("csv\\SAWA.CSV")), "two");
  EXPECT_EQ(disk.length(path("csv\\souzyo.dat")), 0);
}

TEST_F(Registry_backup, GoesOnSilentlyAfterACopyThatFails) {
  put("one", "a.csv");
  put("two", "b.csv");
  files.failing_write = 1;
  observations::registry_backup(files, project);
  EXPECT_EQ(disk.length(path("csv\\a.csv")), 0);
  EXPECT_EQ(disk.read_bytes(path("csv\\b.csv")), "two");
}

TEST_F(Registry_file, LiesInTheFolderOfTheProject) {
  EXPECT_EQ(observations::registry_file(settings), path());
}

TEST_F(Registry_file, IsNoneForANameThatLeavesTheFolder) {
  for (const char* name : {"", "..\\tani.csv", "a/b.csv", "..", "C:x.csv"}) {
    settings.registry_name = name;
    EXPECT_EQ(observations::registry_file(settings), "") << name;
  }
}

TEST(Registry_record, IsGeographicOnlyBeyondAMillionInBoth) {
  observations::Record record;
  record.X = -1'000'001;
  record.Y = 1'000'001;
  EXPECT_TRUE(observations::is_geographic(record));
  record.Y = 1'000'000;
  EXPECT_FALSE(observations::is_geographic(record));
}

}  // namespace
