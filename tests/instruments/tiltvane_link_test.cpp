#include "instruments/tiltvane_link.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>

#include "instruments/fake_serial.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/text_files.h"
#include "support/fault_files.h"
#include "support/fixed_clock.h"
#include "support/golden.h"
#include "support/memory_files.h"
#include "support/places.h"
#include "support/scripted_prompts.h"

namespace {

using instruments::Link_timer;
using instruments::Status_colour;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr const char* not_there = "Tiltvaneが見つかりません。Tiltvaneの電源,ケーブル接続を確認して下さい。";
constexpr const char* record = "001,P,N20W,30E,3,0,0,2008/11/15 10:20:30,1,0,0,V,,,,\r\n";

struct Tiltvane_link : testing::Test {
  support::Memory_files memory;
  support::Fault_files files{memory};
  support::Scripted_prompts prompts;
  support::Fixed_clock clock{{2008, 11, 15, 10, 20, 30}};
  support::Fake_serial serial;
  const std::string program = "C:\\program";
  instruments::Link_ports ports{serial, files, prompts, clock, program};
  instruments::Tiltvane_boxes boxes;
  instruments::Tiltvane_link link;

  Tiltvane_link() {
    prompts.use_language("Japanese");
    boxes = instruments::Tiltvane_boxes_r(files, program);
    boxes.Text1 = "-7";
  }

  std::string bytes(const std::string& name) {
    const std::string path = program + "\\" + name;
    return files.length(path) == 0 ? std::string{} : files.read_bytes(path);
  }
  std::vector<std::string> table() { return platform::read_lines(files, program + "\\TMP2.TMP"); }
  bool is_logged(const std::string& what) const {
    return std::find(serial.log.begin(), serial.log.end(), what) != serial.log.end();
  }
  std::string label() const { return link.status.text.japanese; }

  void search() {
    boxes.Check3 = 1;
    instruments::link_start(link, boxes, ports);
  }
  void search_ticks(int count) {
    for (int i = 0; i < count; ++i) instruments::timer1_tick(link, boxes, ports);
  }
  void read(std::deque<std::string> said) {
    boxes.Check3 = 0;
    serial.devices[5] = std::move(said);
    instruments::link_start(link, boxes, ports);
  }
  // The number of ticks on which the records came; 0 when none of them did.
  int read_ticks(int count) {
    for (int i = 1; i <= count; ++i)
      if (instruments::timer3_tick(link, boxes, ports)) return i;
    return 0;
  }
};

// ---- the search

TEST_F(Tiltvane_link, BeginsTheSearchAtPortOneWithTheProbe) {
  memory.write_whole(program + "\\TMP2.TMP", "old table");
  serial.devices[1] = {};
  search();
  EXPECT_THAT(serial.log, ElementsAre("port 1", "open 1", "write o1"));
  EXPECT_EQ(serial.settings, "9600,n,8,1");
  EXPECT_EQ(link.port, 1);
  EXPECT_EQ(link.tick, 2);
  EXPECT_EQ(link.buf, "");
  EXPECT_EQ(link.timer, Link_timer::Timer1);
  EXPECT_EQ(label(), "Tiltvaneを探しています。");
  EXPECT_STREQ(link.status.text.english, "Seaching Tiltvane");
  EXPECT_EQ(link.status.colour, Status_colour::magenta);
  EXPECT_TRUE(link.status.blinks);
  EXPECT_EQ(bytes("TMP2.TMP"), "");
  EXPECT_EQ(bytes("RSPORT.dat"), "05\r\n999\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n-7\r\n1\r\n");
}

TEST_F(Tiltvane_link, StaysAtAPortForTenQuietTicksAndLeavesItOnTheEleventh) {
  serial.devices[1] = {};
  serial.devices[2] = {};
  search();
  search_ticks(10);
  EXPECT_EQ(link.port, 1);
  EXPECT_EQ(link.quiet, 10);
  EXPECT_EQ(boxes.Combo8, "05");
  search_ticks(1);
  EXPECT_EQ(link.port, 2);
  EXPECT_EQ(link.quiet, 0);
  EXPECT_EQ(boxes.Combo8, "02");
  EXPECT_THAT(serial.log, ElementsAre("port 1", "open 1", "write o1", "close", "port 2", "open 2", "write o1"));
}

TEST_F(Tiltvane_link, CountsAPortThatCannotBeOpenedAsSilent) {
  serial.devices[2] = {};
  search();
  search_ticks(10);
  EXPECT_EQ(link.port, 1);
  search_ticks(1);
  EXPECT_EQ(link.port, 2);
  EXPECT_TRUE(is_logged("write o1"));
}

TEST_F(Tiltvane_link, ProbesAPortThatIsPluggedInWhileItIsTried) {
  search();
  search_ticks(3);
  serial.devices[1] = {"001,P\r\nEND"};
  search_ticks(1);
  EXPECT_EQ(link.timer, Link_timer::Timer3);
  EXPECT_EQ(boxes.Combo8, "01");
}

TEST_F(Tiltvane_link, TriesFiftyPortsAndNeverTouchesTheNext) {
  for (int number = 1; number <= 60; ++number) serial.devices[number] = {};
  search();
  search_ticks(50 * 11 - 1);
  EXPECT_EQ(link.port, 50);
  EXPECT_EQ(link.timer, Link_timer::Timer1);
  EXPECT_THAT(prompts.shown, IsEmpty());
  search_ticks(1);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_TRUE(is_logged("open 50"));
  EXPECT_FALSE(is_logged("port 51"));
  EXPECT_FALSE(serial.is_open());
  EXPECT_EQ(boxes.Combo8, "50");
  EXPECT_EQ(label(), "Tiltvane未接続");
  EXPECT_STREQ(link.status.text.english, "Tiltvane don't connect");
  EXPECT_EQ(link.status.colour, Status_colour::red);
  EXPECT_FALSE(link.status.blinks);
  EXPECT_THAT(prompts.shown, ElementsAre(not_there));
  search_ticks(20);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Tiltvane_link, TellsTheSilenceInEnglish) {
  prompts.use_language("English");
  search();
  search_ticks(50 * 11);
  EXPECT_THAT(prompts.shown, ElementsAre("There is not Tiltvane.  "));
}

TEST_F(Tiltvane_link, CountsQuietTicksInARow) {
  serial.devices[1] = {"", "", "", "", "", "", "", "", "", "", "0", "", "", "", "", "", "", "", "", "", "", "END"};
  search();
  search_ticks(21);
  EXPECT_EQ(link.port, 1);
  search_ticks(1);
  EXPECT_EQ(link.timer, Link_timer::Timer3);
}

TEST_F(Tiltvane_link, FindsAnEndThatIsSplitOverTwoReads) {
  serial.devices[1] = {};
  serial.devices[2] = {};
  serial.devices[3] = {"001,P,N20W\r\nE", "N", "D\r\n"};
  search();
  search_ticks(22 + 2);
  EXPECT_EQ(link.timer, Link_timer::Timer1);
  search_ticks(1);
  EXPECT_EQ(link.timer, Link_timer::Timer3);
  EXPECT_EQ(boxes.Combo8, "03");
  EXPECT_EQ(label(), "Tiltvaneと接続しました。");
  EXPECT_STREQ(link.status.text.english, "it connects Tiltvane. ");
  EXPECT_EQ(link.status.colour, Status_colour::blue);
  EXPECT_FALSE(link.status.blinks);
  EXPECT_TRUE(std::equal(serial.log.end() - 4, serial.log.end(),
                         std::vector<std::string>{"close", "port 3", "open 3", "write o999"}.begin()));
  EXPECT_EQ(link.buf, "");
  EXPECT_EQ(bytes("RSPORT.dat").substr(0, 4), "03\r\n");
}

// A receiver that sends its position each second is never quiet for eleven ticks.
TEST_F(Tiltvane_link, LeavesADeviceThatTalksButIsNoClinometer) {
  serial.devices[1] = std::deque<std::string>(1000, "$GPRMC,,V*00\r\n");
  serial.devices[2] = {"001,P,N20W\r\nEND"};
  search();
  search_ticks(instruments::most_probe_ticks);
  EXPECT_EQ(link.port, 2);
  search_ticks(1);
  EXPECT_EQ(link.timer, Link_timer::Timer3);
}

// The timer may tick before the instrument could have answered; such ticks are let pass.
TEST_F(Tiltvane_link, DoesNothingOnATickBelowOne) {
  serial.devices[1] = {"001,P,N20W\r\nEND"};
  search();
  link.tick = -2;
  search_ticks(2);
  EXPECT_EQ(link.tick, 0);
  EXPECT_EQ(link.buf, "");
  EXPECT_EQ(link.quiet, 0);
  EXPECT_EQ(link.timer, Link_timer::Timer1);
  search_ticks(1);
  EXPECT_EQ(link.timer, Link_timer::Timer3);
  serial.devices[1] = {"END"};
  link.tick = -1;
  EXPECT_EQ(read_ticks(1), 0);
  EXPECT_EQ(link.buf, "");
  EXPECT_EQ(read_ticks(1), 1);
}

TEST_F(Tiltvane_link, RunsOneOfItsTimersOnly) {
  serial.devices[1] = {"001,P,N20W\r\n"};
  search();
  EXPECT_EQ(read_ticks(3), 0);
  EXPECT_EQ(link.tick, 2);
  EXPECT_EQ(serial.devices[1].size(), 1u) << "the download read what the search was waiting for";
  serial.devices[1] = {"END"};
  search_ticks(1);
  ASSERT_EQ(link.timer, Link_timer::Timer3);
  serial.devices[1] = {"END"};
  search_ticks(5);
  EXPECT_EQ(link.tick, 0);
  EXPECT_EQ(serial.devices[1].size(), 1u);
}

TEST_F(Tiltvane_link, StopsTheSearchAndClosesThePort) {
  serial.devices[1] = {};
  search();
  search_ticks(2);
  instruments::Command50(link, serial);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_FALSE(serial.is_open());
  EXPECT_FALSE(link.status.blinks);
  EXPECT_EQ(label(), "");
  search_ticks(30);
  EXPECT_EQ(link.port, 1);
  EXPECT_THAT(prompts.shown, IsEmpty());
}

// ---- the download

TEST_F(Tiltvane_link, SendsTheCountAsThreeDigits) {
  boxes.Text15 = "7";
  read({});
  EXPECT_THAT(serial.log, ElementsAre("port 5", "open 5", "write o007"));
  EXPECT_EQ(link.timer, Link_timer::Timer3);
  EXPECT_EQ(link.tick, 0);
  EXPECT_EQ(link.quiet, 0);
}

TEST_F(Tiltvane_link, AsksForAllRecordsAtFirst) {
  read({});
  EXPECT_THAT(serial.log, ElementsAre("port 5", "open 5", "write o999"));
  EXPECT_EQ(serial.settings, "9600,n,8,1");
}

TEST_F(Tiltvane_link, WritesTheSettingsBeforeEveryDownload) {
  read({});
  EXPECT_EQ(bytes("RSPORT.dat"), "05\r\n999\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n-7\r\n0\r\n");
  boxes.Text15 = "12";
  boxes.Text1 = "-6.5";
  read({});
  EXPECT_EQ(bytes("RSPORT.dat"), "05\r\n012\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n-6.5\r\n0\r\n");
}

TEST_F(Tiltvane_link, ClosesAnOpenPortBeforeTheDownload) {
  serial.devices[2] = {};
  serial.set_port(2);
  serial.open();
  serial.log.clear();
  link.buf = "of before";
  link.tick = link.quiet = 7;
  read({});
  EXPECT_THAT(serial.log, ElementsAre("close", "port 5", "open 5", "write o999"));
  EXPECT_EQ(link.buf, "");
  EXPECT_EQ(link.tick, 0);
  EXPECT_EQ(link.quiet, 0);
}

TEST_F(Tiltvane_link, CountsQuietTicksOfTheDownloadInARow) {
  std::deque<std::string> said(50);
  said.push_back(record);
  said.insert(said.end(), 50, "");
  said.push_back("END");
  read(said);
  EXPECT_EQ(read_ticks(200), 102);
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Tiltvane_link, StopsTheDownloadAndKeepsWhatHadCome) {
  read({record, record, "END"});
  read_ticks(1);
  instruments::Command50(link, serial);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_FALSE(serial.is_open());
  EXPECT_EQ(read_ticks(60), 0);
  EXPECT_EQ(bytes("Tiltvane.tmp"), record);
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Tiltvane_link, WritesTwoSettingsLinesInTheSmallDialog) {
  instruments::Link_ports small{serial, files, prompts, clock, program, false};
  instruments::link_start(link, boxes, small);
  EXPECT_EQ(bytes("RSPORT.dat"), "05\r\n999\r\n");
}

TEST_F(Tiltvane_link, WaitsThroughFiftyQuietTicksAndGivesUpOnTheFiftyFirst) {
  read({});
  EXPECT_EQ(read_ticks(50), 0);
  EXPECT_EQ(link.timer, Link_timer::Timer3);
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(read_ticks(1), 0);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_FALSE(serial.is_open());
  EXPECT_EQ(label(), "Tiltvane未接続");
  EXPECT_EQ(link.status.colour, Status_colour::red);
  EXPECT_THAT(prompts.shown, ElementsAre(not_there));
  EXPECT_EQ(read_ticks(100), 0);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Tiltvane_link, CountsAPortThatCannotBeOpenedAsSilentInTheDownloadToo) {
  boxes.Combo8 = "09";
  instruments::link_start(link, boxes, ports);
  EXPECT_EQ(read_ticks(50), 0);
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(read_ticks(1), 0);
  EXPECT_THAT(prompts.shown, ElementsAre(not_there));
}

TEST_F(Tiltvane_link, EndsWithTheToldMessageWhenTheAdapterIsPulled) {
  serial.reads_until_gone = 3;
  read({record, record, record, record, "END"});
  EXPECT_EQ(read_ticks(53), 0);
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(read_ticks(1), 0);
  EXPECT_THAT(prompts.shown, ElementsAre(not_there));
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_EQ(bytes("Tiltvane.tmp"), std::string(record) + record + record);
}

TEST_F(Tiltvane_link, HasWhatCameInTheLogBeforeItIsLookedAt) {
  read({"001,P,N2", "0W,30E\r\nE", "ND\r\n"});
  read_ticks(1);
  EXPECT_EQ(bytes("Tiltvane.tmp"), "001,P,N2");
  EXPECT_EQ(bytes("TMP2.TMP"), "");
  read_ticks(1);
  EXPECT_EQ(bytes("Tiltvane.tmp"), "001,P,N20W,30E\r\nE");
  files.log.clear();
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_EQ(files.log.front(), "append C:\\program\\Tiltvane.tmp");
}

TEST_F(Tiltvane_link, MakesTheTableAfterAnEndInTwoPieces) {
  read({"", record, "E", "", "ND\r\n"});
  EXPECT_EQ(read_ticks(60), 5);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_FALSE(serial.is_open());
  EXPECT_EQ(link.record_count, 1u);
  EXPECT_EQ(link.file_name, "001-001_2008-11-15_10-20-30.csv");
  EXPECT_EQ(bytes("TMP.TMP"), std::string(record) + "END\r\n");
  EXPECT_EQ(table().at(1), "001,P,N20W,30E,3,  ,  ,2008/11/15 10:20:30,1,0,0,N27W,30E,3,  ,  ,-7,-,-,-,-,-7");
  EXPECT_THAT(prompts.shown, IsEmpty());
}

// The table as it was worked out by hand from the bands: a plane, one with the instrument's own declination of 5 taken
// off, a lineation, a record without a plane, an unknown mode, a position, a mark in Japanese.
TEST_F(Tiltvane_link, WritesTheTableByteForByte) {
  read({support::bytes_of(support::golden_file("instruments/answer.txt"))});
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_TRUE(support::same_as_golden(bytes("TMP2.TMP"), "instruments/TMP2.TMP"));
  EXPECT_EQ(link.file_name, "001-007_2008-11-15_10-20-30.csv");
}

TEST_F(Tiltvane_link, WritesTheJapaneseHeaderInBothLanguages) {
  prompts.use_language("English");
  read({std::string(record) + "END"});
  read_ticks(1);
  EXPECT_THAT(table().at(0), testing::StartsWith("IDNO,計測モード,走向,傾斜,ﾛｰﾙ角,線構造方位"));
}

TEST_F(Tiltvane_link, SkipsLinesOfSixCharactersAndLess) {
  read({"1,P,N2\r\n\r\n002,P,N\r\nEND\r\n"});
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_EQ(link.record_count, 1u);
  EXPECT_EQ(link.file_name.substr(0, 7), "002-002");
}

TEST_F(Tiltvane_link, TakesTwelveHundredRecordsAtMost) {
  for (const int count : {1199, 1200, 1201, 5000}) {
    std::string answer;
    for (int i = 0; i < count; ++i) answer += record;
    read({answer + "END"});
    EXPECT_EQ(read_ticks(1), 1);
    EXPECT_EQ(link.record_count, static_cast<std::size_t>(std::min(count, 1200)));
    EXPECT_EQ(table().size(), link.record_count + 1);
  }
}

// The numbers are those of the first and the last record as they came, whatever lies between.
TEST_F(Tiltvane_link, NamesTheFileByTheFirstAndTheLastNumber) {
  read({"7,P,N20W,30E\r\n999,P,N20W,30E\r\n12,P,N20W,30E\r\nEND\r\n"});
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_EQ(link.file_name, "007-012_2008-11-15_10-20-30.csv");
}

TEST_F(Tiltvane_link, NamesNoFileForAnAnswerWithoutRecords) {
  read({"END\r\n"});
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_EQ(link.file_name, "");
  EXPECT_EQ(link.record_count, 0u);
  EXPECT_EQ(table().size(), 1u);
}

TEST_F(Tiltvane_link, TakesALongLineWithEndForTheEndAndNotForARecord) {
  read({std::string(record) + "END of the memory,1,2,3\r\n"});
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_EQ(link.record_count, 1u);
  EXPECT_EQ(link.file_name.substr(0, 7), "001-001");
}

// A byte that ends a text file would hide all records behind it.
TEST_F(Tiltvane_link, KeepsTheRecordsBehindGarbage) {
  const std::string noise("\x1a\x00\x81\xff\xfe,\x07,\xa0garbage\r\n", 18);
  read({record + noise + "002,P,N10E,20S\r\n" + "END\r\n"});
  EXPECT_EQ(read_ticks(1), 1);
  EXPECT_EQ(link.record_count, 3u);
  EXPECT_THAT(table(), Contains(testing::StartsWith("002,P,N10E,20S")));
  EXPECT_EQ(bytes("TMP.TMP"), record + noise + "002,P,N10E,20S\r\nEND\r\n");
}

TEST_F(Tiltvane_link, GivesUpOnADeviceThatNeverEnds) {
  read(std::deque<std::string>(50, std::string(100'000, 'x')));
  EXPECT_EQ(read_ticks(41), 0);
  EXPECT_THAT(prompts.shown, ElementsAre(not_there));
  EXPECT_EQ(link.timer, Link_timer::none);
}

TEST_F(Tiltvane_link, TakesALongAnswerInManyPiecesWithoutGoingThroughItAgain) {
  std::string answer;
  for (int i = 0; i < 30'000; ++i) answer += record;
  std::deque<std::string> pieces;
  for (std::size_t at = 0; at < answer.size(); at += 100) pieces.push_back(answer.substr(at, 100));
  pieces.push_back("END");
  read(pieces);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_GT(read_ticks(20'000), 15'000);
  // Sixteen thousand ticks on 1.7 MB; looking at all of it each time would be 13 GB.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(Tiltvane_link, EndsTheDownloadWhenTheLogCannotBeWritten) {
  read({record, "END"});
  files.room = 10;
  EXPECT_THROW(read_ticks(1), platform::File_failure);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_FALSE(serial.is_open());
  EXPECT_EQ(link.status.colour, Status_colour::red);
}

TEST_F(Tiltvane_link, BeginsNothingWhenTheSettingsCannotBeWritten) {
  files.read_only = true;
  boxes.Check3 = 1;
  EXPECT_THROW(instruments::link_start(link, boxes, ports), platform::File_failure);
  boxes.Check3 = 0;
  EXPECT_THROW(instruments::link_start(link, boxes, ports), platform::File_failure);
  EXPECT_EQ(link.timer, Link_timer::none);
  EXPECT_THAT(serial.log, IsEmpty());
}

// ---- a download that broke off

TEST_F(Tiltvane_link, OffersADownloadThatBrokeOff) {
  EXPECT_EQ(instruments::broken_download(files, program).path, "");
  read({record, "002,P,N10E,20S\r\n003,L,N2"});
  read_ticks(60);
  const instruments::Broken_download broken = instruments::broken_download(files, program);
  EXPECT_EQ(broken.path, "C:\\program\\Tiltvane.tmp");
  EXPECT_EQ(broken.records, 2u);
  EXPECT_TRUE(broken.cut);
  ASSERT_TRUE(instruments::read_again(link, boxes, ports));
  EXPECT_EQ(link.record_count, 2u);
  EXPECT_EQ(link.file_name.substr(0, 7), "001-002");
  EXPECT_THAT(table(), Not(Contains(testing::StartsWith("003"))));
  EXPECT_EQ(instruments::broken_download(files, program).path, "") << "it was read";
  EXPECT_FALSE(instruments::read_again(link, boxes, ports));
}

TEST_F(Tiltvane_link, OffersNothingAfterAWholeDownload) {
  read({record, "END"});
  read_ticks(2);
  EXPECT_EQ(instruments::broken_download(files, program).path, "");
}

TEST_F(Tiltvane_link, OffersAWholeDownloadWhoseTableCouldNotBeWritten) {
  read({record, "END"});
  files.failing_write = 4;  // two pieces for the log, then \TMP.TMP, then the table
  EXPECT_THROW(read_ticks(2), platform::File_failure);
  EXPECT_EQ(instruments::broken_download(files, program).records, 1u);
  EXPECT_TRUE(instruments::read_again(link, boxes, ports));
  EXPECT_EQ(table().size(), 2u);
}

TEST_F(Tiltvane_link, EmptiesTheLogAtTheStartAndKeepsTheLastOne) {
  read({record});
  read_ticks(60);
  read({});
  EXPECT_EQ(bytes("Tiltvane.tmp"), "");
  EXPECT_EQ(bytes("Tiltvane.old"), record);
  read_ticks(60);
  EXPECT_EQ(instruments::broken_download(files, program).path, "C:\\program\\Tiltvane.old");
  read({});
  EXPECT_EQ(bytes("Tiltvane.old"), record) << "a download that brings nothing costs nothing";
}

TEST_F(Tiltvane_link, OffersTheDownloadBeforeOneThatBroughtNoiseOnly) {
  read({record});
  read_ticks(60);
  read({"\xff\x80\r\n,"});
  read_ticks(60);
  EXPECT_EQ(instruments::broken_download(files, program).path, "C:\\program\\Tiltvane.old");
  EXPECT_EQ(instruments::broken_download(files, program).records, 1u);
  read({});
  EXPECT_EQ(bytes("Tiltvane.old"), record);
}

// There is the table of an older download; the answer is written, and then the disk fails.
TEST_F(Tiltvane_link, OffersABrokenDownloadAgainWhoseTableCouldNotBeWritten) {
  memory.write_whole(program + "\\TMP2.TMP", "the table of an older download\r\n");
  read({record});
  read_ticks(60);
  files.failing_write = 2;
  EXPECT_THROW(instruments::read_again(link, boxes, ports), platform::File_failure);
  EXPECT_EQ(instruments::broken_download(files, program).records, 1u);
  EXPECT_TRUE(instruments::read_again(link, boxes, ports));
  EXPECT_EQ(instruments::broken_download(files, program).path, "");
}

TEST_F(Tiltvane_link, LeavesALogThatCannotBeRead) {
  memory.write_whole(program + "\\Tiltvane.tmp", record);
  files.unreadable = "Tiltvane.tmp";
  EXPECT_THROW(instruments::GeoRead_start(link, boxes, ports), platform::File_failure);
  EXPECT_EQ(memory.read_bytes(program + "\\Tiltvane.tmp"), record);
  EXPECT_THROW(instruments::read_again(link, boxes, ports), platform::File_failure);
  EXPECT_EQ(instruments::broken_download(files, program).path, "") << "what can't be read is not offered";
}

}  // namespace
