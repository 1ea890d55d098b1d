#include "observations/declination.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <limits>
#include <set>

#include "platform/failures.h"
#include "support/fault_files.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/temporary_folder.h"
#include "table_rows.h"

namespace {

using namespace observations;
using observations_test::golden_rows;
using observations_test::number;

std::string published_bytes() {
  return support::bytes_of(support::golden_file("observations/igrf10.coef"));
}

const std::string east_dipole = "EAST 2005.00 1 1 0\r\n1 0 -30000 0 0 0\r\n1 1 0 -30000 0 0\r\n";

// A program folder of the test's own.
struct Declination : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files disk;
  support::Fault_files files{disk};
  Coefficients kept;

  std::string path() const { return platform::join_path(folder.text(), "igrf10.coef"); }
  void put(const std::string& bytes) { disk.write_whole(path(), bytes); }
  void set_time(int seconds) {
    using std::filesystem::file_time_type;
    std::filesystem::last_write_time(folder.path() / "igrf10.coef",
                                     file_time_type::clock::now() + std::chrono::seconds(seconds));
  }
  double at(double latitude, double longitude) { return declination(files, folder.text(), kept, latitude, longitude); }
};

TEST_F(Declination, AgreesWithTheIndependentSynthesis) {
  put(published_bytes());
  const auto rows = golden_rows("declination.csv");
  ASSERT_GT(rows.size(), 180u);
  for (const auto& row : rows)
    EXPECT_NEAR(at(number(row, "latitude"), number(row, "longitude")), number(row, "declination"), 1e-7)
        << row.at("latitude") << " " << row.at("longitude");
}

TEST_F(Declination, AgreesWithTheSampleAndItsFile) {
  const auto rows = observations_test::rows_of(support::shared_data("declination_sample.csv"));
  const std::string bytes = support::bytes_of(support::shared_data("igrf10.coef"));
  if (rows.empty() || bytes.empty()) GTEST_SKIP() << "no ../shared/data/declination_sample.csv beside the repository";
  put(bytes);
  for (const auto& row : rows)
    EXPECT_NEAR(at(number(row, "lat"), number(row, "lon")), number(row, "decl_deg"), 1e-6) << row.at("place");
}

TEST_F(Declination, StaysWithinNinetyDegreesWhereTheFieldPointsSouth) {
  // McMurdo: 144.16 degrees by both components.
  put(published_bytes());
  EXPECT_NEAR(at(-77.8419, 166.6863), -35.837315, 1e-6);
}

TEST_F(Declination, HasAValueAtThePoles) {
  put(published_bytes());
  EXPECT_TRUE(std::isfinite(at(90, 0)));
  EXPECT_TRUE(std::isfinite(at(-90, 139)));
  EXPECT_NEAR(at(90, 30), at(89.99999999, 30), 1e-5);
}

TEST_F(Declination, ANorthComponentOfZeroIsADivisionFailure) {
  put("FLAT 2005.00 1 1 0\r\n1 1 0 -30000 0 0\r\n");  // h(1,1) alone: east only at latitude and longitude 0
  EXPECT_THROW(at(0, 0), platform::Division_failure);
}

TEST_F(Declination, APlaceThatIsNoNumberIsADivisionFailure) {
  put(published_bytes());
  EXPECT_THROW(at(std::numeric_limits<double>::infinity(), 0), platform::Division_failure);
  EXPECT_THROW(at(0, std::numeric_limits<double>::quiet_NaN()), platform::Division_failure);
}

TEST_F(Declination, CoefficientsBeyondArithmeticAreADivisionFailure) {
  put("HUGE 2005.00 1 1 0\r\n1 0 -1.7e308 0 0 0\r\n1 1 1.7e308 1.7e308 0 0\r\n");
  EXPECT_THROW(at(45, 45), platform::Division_failure);
}

TEST_F(Declination, AMissingFileIsAFileFailureWithOneSentence) {
  EXPECT_THROW(at(35, 139), platform::File_failure);
  EXPECT_EQ(take_coefficients(files, folder.text(), kept), Coefficient_fault::missing);
  const auto sentence = sentence_of(kept.fault);
  ASSERT_TRUE(sentence);
  EXPECT_NE(std::string(sentence->japanese).find("igrf10.coef"), std::string::npos);
  EXPECT_NE(std::string(sentence->english).find("igrf10.coef"), std::string::npos);
}

TEST_F(Declination, EachFaultHasItsOwnSentence) {
  put("");
  EXPECT_EQ(take_coefficients(files, folder.text(), kept), Coefficient_fault::missing);
  put("no model here\r\n");
  EXPECT_EQ(take_coefficients(files, folder.text(), kept), Coefficient_fault::no_model);
  put(std::string(largest_coefficient_bytes + 1, '1'));
  EXPECT_EQ(take_coefficients(files, folder.text(), kept), Coefficient_fault::no_model);
  put(published_bytes());
  files.unreadable = "igrf10";
  EXPECT_EQ(take_coefficients(files, folder.text(), kept), Coefficient_fault::unreadable);
  EXPECT_FALSE(sentence_of(Coefficient_fault::none));
  std::set<std::string> sentences;
  for (const auto fault : {Coefficient_fault::missing, Coefficient_fault::unreadable, Coefficient_fault::no_model})
    sentences.insert(sentence_of(fault)->english);
  EXPECT_EQ(sentences.size(), 3u);
}

TEST_F(Declination, AFileThatBecomesReadableIsTaken) {
  put(published_bytes());
  files.unreadable = "igrf10";
  take_coefficients(files, folder.text(), kept);
  files.unreadable.clear();
  EXPECT_EQ(take_coefficients(files, folder.text(), kept), Coefficient_fault::none);
}

TEST_F(Declination, TheTablesAreKeptWhileTheFileIsUnchanged) {
  put(published_bytes());
  for (int i = 0; i < 20; ++i) at(35, 139);
  EXPECT_EQ(files.calls("read_bytes"), 1);
}

TEST_F(Declination, AnotherLengthIsReadAnew) {
  put(published_bytes());
  at(0, 0);
  put(east_dipole);
  EXPECT_NEAR(at(0, 0), 45, 1e-9);
  EXPECT_EQ(kept.field.model, "EAST");
}

TEST_F(Declination, AnotherTimeStampIsReadAnew) {
  std::string west = east_dipole;
  west.replace(west.find("1 1 0 -3"), 8, "1 1 0 +3");
  put(east_dipole);
  set_time(-100);
  EXPECT_NEAR(at(0, 0), 45, 1e-9);
  put(west);
  set_time(-50);
  EXPECT_NEAR(at(0, 0), -45, 1e-9);
}

TEST_F(Declination, AFileThatDisappearsIsNotRememberedAsThere) {
  put(published_bytes());
  at(35, 139);
  disk.remove(path());
  EXPECT_THROW(at(35, 139), platform::File_failure);
  EXPECT_EQ(kept.field.order, 0);
}

TEST_F(Declination, AnotherProgramFolderIsAnotherFile) {
  put(published_bytes());
  at(35, 139);
  support::Temporary_folder other;
  EXPECT_EQ(take_coefficients(files, other.text(), kept), Coefficient_fault::missing);
}

TEST_F(Declination, TheLabelShowsOneDecimal) {
  EXPECT_EQ(declination_label(-7.04), (Declination_label{"偏角 -7.0°", "declination -7.0 Deg"}));
  EXPECT_EQ(declination_label(0.25).japanese, "偏角 0.3°");
  EXPECT_EQ(declination_label(-0.04).english, "declination 0.0 Deg");
}

TEST_F(Declination, TheTypedDeclinationIsOneLine) {
  henkaku_w(files, folder.text(), "-7.25");
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(platform::join_path(folder.text(), "henkaku.dat")),
                                      "observations/henkaku.dat"));
  EXPECT_EQ(henkaku_r(files, folder.text()), "-7.25");
}

TEST_F(Declination, TheTypedDeclinationIsKeptAsItStands) {
  henkaku_w(files, folder.text(), " 7,5 西 ");
  EXPECT_EQ(henkaku_r(files, folder.text()), " 7,5 西 ");
}

TEST_F(Declination, WithoutATypedDeclinationTheTextIsEmpty) {
  EXPECT_EQ(henkaku_r(files, folder.text()), "");
}

TEST_F(Declination, AFullDiskLeavesTheTypedDeclination) {
  henkaku_w(files, folder.text(), "7");
  files.failing_write = 1;
  EXPECT_THROW(henkaku_w(files, folder.text(), "8"), platform::File_failure);
  EXPECT_EQ(henkaku_r(files, folder.text()), "7");
}

}  // namespace
