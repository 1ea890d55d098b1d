#include "platform/qt/qt_sheets.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "support/fake_ports.h"
#include "support/fault_files.h"
#include "support/golden.h"
#include "support/places.h"
#include "support/temporary_folder.h"

namespace {

using platform::Sheet_outcome;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string real_script = support::in_checkout("src/platform/qt/fill_sheet.py");

QString interpreter() {
  const QString system = QStandardPaths::findExecutable("python3", {"/usr/bin"});
  return system.isEmpty() ? QStandardPaths::findExecutable("python3") : system;
}

struct Qt_sheets : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files disk;
  support::Fault_files files{disk};
  support::Recorded_processes processes;
  std::string book = folder.text() + "/現地 票.xls";

  void SetUp() override { disk.write_whole(book, "the workbook"); }
  std::string content() { return disk.read_bytes(book); }
  Sheet_outcome fill(const platform::Sheet_helper& helper, const std::vector<platform::Cell>& cells = {{"B2", "a"}},
                     const std::string& sheet = "sheet1") {
    return platform::Qt_sheets(files, processes, helper).fill({book, sheet, cells});
  }
};

// A helper of the test's own instead of the script: "order" is what it was told.
struct Qt_sheets_helper : Qt_sheets {
  void SetUp() override {
    Qt_sheets::SetUp();
    if (interpreter().isEmpty()) GTEST_SKIP() << "python3 is not installed";
  }
  Sheet_outcome fill_with(const std::string& lines, int seconds = 20) {
    const std::string script = folder.text() + "/helper.py";
    std::ofstream(script) << "import json, os, sys, time\norder = json.load(sys.stdin)\n" << lines;
    return fill({script, seconds});
  }
};

TEST_F(Qt_sheets, HasNoProgramWithoutItsScript) {
  EXPECT_EQ(fill({folder.text() + "/gone.py"}), Sheet_outcome::no_program);
  EXPECT_EQ(content(), "the workbook");
  EXPECT_THAT(processes.started, IsEmpty());
}

TEST_F(Qt_sheets, FindsItsScriptAmongTheHelpers) {
  // As the build puts it beside the program itself.
  const std::string helpers = QCoreApplication::applicationDirPath().toStdString() + "/../src";
  EXPECT_EQ(support::bytes_of(platform::sheet_helper(helpers).script), support::bytes_of(real_script));
}

TEST_F(Qt_sheets_helper, PutsTheFilledCopyInThePlaceOfTheWorkbook) {
  EXPECT_EQ(fill_with("copy = open(order['book']).read()\n"
                      "open(order['filled'], 'w').write(copy + order['sheet'] + str(order['cells']))\n"
                      "print('reply: filled')\n"),
            Sheet_outcome::filled);
  EXPECT_EQ(content(), "the workbooksheet1[['B2', 'a']]");
  EXPECT_THAT(processes.started, ElementsAre(book));
}

TEST_F(Qt_sheets_helper, GoesByTheReplyAndNotByTheEnd) {
  EXPECT_EQ(fill_with("open(order['filled'], 'w').write('x')\n"
                      "print('noise\\nreply: bad_cell', flush=True)\nos.abort()\n"),
            Sheet_outcome::bad_cell);
  EXPECT_EQ(content(), "x");
  EXPECT_EQ(processes.started.size(), 1u);
}

TEST_F(Qt_sheets_helper, LeavesTheWorkbookWithEveryOtherReply) {
  const std::pair<const char*, Sheet_outcome> rows[] = {
      {"print('reply: no_sheet')", Sheet_outcome::no_sheet},
      {"print('reply: no_program')", Sheet_outcome::no_program},
      {"print('reply: failed')", Sheet_outcome::failed},
      {"print('reply: filled, or so')", Sheet_outcome::failed},
      {"print('filled')", Sheet_outcome::failed},
      {"", Sheet_outcome::failed},
      {"raise SystemExit(3)", Sheet_outcome::failed},
      {"print('reply: filled')", Sheet_outcome::failed},  // and nothing is there
      {"open(order['filled'], 'w'); print('reply: filled')", Sheet_outcome::failed},
      {"open(order['book'], 'w').write('gone'); print('reply: no_sheet')", Sheet_outcome::no_sheet},
  };
  for (const auto& [lines, outcome] : rows) {
    EXPECT_EQ(fill_with(lines), outcome) << lines;
    EXPECT_EQ(content(), "the workbook") << lines;
  }
  EXPECT_THAT(processes.started, IsEmpty());
}

TEST_F(Qt_sheets_helper, EndsAHelperThatDoesNotEnd) {
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(fill_with("time.sleep(300)\n", -9), Sheet_outcome::failed);  // a second in all
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
}

TEST_F(Qt_sheets_helper, TellsASheetThatCouldNotBeShown) {
  processes.works = false;
  EXPECT_EQ(fill_with("open(order['filled'], 'w').write('x'); print('reply: filled')"), Sheet_outcome::not_shown);
  EXPECT_EQ(content(), "x");
}

TEST_F(Qt_sheets_helper, FailsWhereTheWorkbookCantBeReadOrWritten) {
  const std::string works = "open(order['filled'], 'w').write('x'); print('reply: filled')";
  files.read_only = true;
  EXPECT_EQ(fill_with(works), Sheet_outcome::failed);
  EXPECT_EQ(content(), "the workbook");
  disk.remove(book);
  EXPECT_EQ(fill_with(works), Sheet_outcome::failed);
  EXPECT_THAT(processes.started, IsEmpty());
}

// The script itself with the office program.

struct Path_variable {
  QByteArray old = qgetenv("PATH");
  ~Path_variable() { qputenv("PATH", old); }
};

bool has_uno() {
  return QProcess::execute(interpreter(), {"-I", "-c", "import uno"}) == 0;
}

// An office program that never comes to work, and tells its process.
TEST_F(Qt_sheets_helper, EndsAnOfficeProgramThatDoesNotCome) {
  if (!has_uno()) GTEST_SKIP() << "python3-uno is not installed";
  const Path_variable path;
  const std::string office = folder.text() + "/soffice", told = folder.text() + "/process";
  std::ofstream(office) << "#!/bin/sh\necho $$ >'" << told << "'\nexec sleep 300\n";
  std::filesystem::permissions(office, std::filesystem::perms::owner_all);
  qputenv("PATH", QByteArray::fromStdString(folder.text()) + ":" + path.old);
  EXPECT_EQ(fill({real_script, 2}), Sheet_outcome::failed);
  EXPECT_EQ(content(), "the workbook");
  const std::string process = support::bytes_of(told);
  ASSERT_FALSE(process.empty());
  EXPECT_FALSE(std::filesystem::exists("/proc/" + process.substr(0, process.find('\n'))));
}

// Two sheets with a title each, in the office program's own XML.
std::string flat_workbook() {
  const std::string row =
      "<table:table-row><table:table-cell office:value-type=\"string\"><text:p>題</text:p></table:table-cell>"
      "</table:table-row></table:table>";
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><office:document"
         " xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
         " xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\""
         " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
         " office:version=\"1.3\" office:mimetype=\"application/vnd.oasis.opendocument.spreadsheet\">"
         "<office:body><office:spreadsheet>"
         "<table:table table:name=\"表紙\">" +
         row + "<table:table table:name=\"Sheet1\">" + row + "</office:spreadsheet></office:body></office:document>";
}

// Turns a file into another form by a run of the office program of its own.
std::string converted(const std::string& bytes, const std::string& from, const QString& to, const QString& filter) {
  const support::Temporary_folder folder;
  const QString place = QString::fromStdString(folder.text());
  std::ofstream(folder.text() + "/a." + from, std::ios::binary) << bytes;
  QProcess process;
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start("soffice", {"--headless", "-env:UserInstallation=file://" + place + "/profile", "--convert-to",
                            to + filter, "--outdir", place + "/out", place + "/a." + QString::fromStdString(from)});
  EXPECT_TRUE(process.waitForFinished(120'000));
  return support::bytes_of(folder.text() + "/out/a." + to.toStdString());
}

// Place of the sheet in front: bytes 10 and 11 of the record WINDOW1 (0x3D, 18 bytes) of a workbook.
int sheet_in_front(const std::string& workbook) {
  const std::size_t record = workbook.find(std::string("\x3D\0\x12\0", 4));
  return record == std::string::npos ? -1 : static_cast<unsigned char>(workbook.at(record + 14));
}

struct Qt_sheets_office : Qt_sheets {
  void SetUp() override {
    if (QStandardPaths::findExecutable("soffice").isEmpty())
      GTEST_SKIP() << "the office program (soffice) is not installed";
    if (!has_uno()) GTEST_SKIP() << "python3-uno is not installed";
    static const std::string workbook = converted(flat_workbook(), "fods", "xls", ":MS Excel 97");
    disk.write_whole(book, workbook);
  }
  std::string read_back() { return converted(content(), "xls", "fods", ""); }
};

TEST_F(Qt_sheets_office, FillsInTheNamedSheetAndPutsItInFront) {
  EXPECT_EQ(sheet_in_front(content()), 0);
  EXPECT_EQ(fill({real_script}, {{"B2", "北緯 35度41分22.2秒"}, {"$C$3", "081115-001"}}), Sheet_outcome::filled);
  EXPECT_THAT(processes.started, ElementsAre(book));
  EXPECT_EQ(sheet_in_front(content()), 1);
  const std::string xml = read_back();
  const std::size_t sheet = xml.find("table:name=\"Sheet1\""), latitude = xml.find("北緯 35度41分22.2秒</text:p>");
  ASSERT_NE(latitude, std::string::npos);
  EXPECT_GT(latitude, sheet);
  EXPECT_GT(xml.find(">081115-001</text:p>"), latitude);
  EXPECT_NE(xml.find("題</text:p>"), xml.rfind("題</text:p>"));  // both titles are still there
}

TEST_F(Qt_sheets_office, SetsTextsAndNeverFormulas) {
  const std::vector<platform::Cell> cells = {
      {"A2", "=1+1"},  {"A3", "=cmd|'/c calc'!A1"},     {"A4", "+1"},          {"A5", "@SUM(1)"},
      {"A6", "00123"}, {"A7", "a\"b'c\\d\ne\r\nf"},     {"A8", "{=1+1}"},      {"A9", "'quoted"},
      {"A10", "-1"},   {"A11", std::string("x\0y", 3)}, {"A12", "2008/11/15"}, {"A13", "\xFF<&>"}};
  EXPECT_EQ(fill({real_script}, cells), Sheet_outcome::filled);
  const std::string xml = read_back();
  for (const char* no_text : {"table:formula", "value-type=\"float\"", "value-type=\"date\"", "value-type=\"boolean\""})
    EXPECT_EQ(xml.find(no_text), std::string::npos) << no_text;
  for (const char* text : {"=1+1", "=cmd|&apos;/c calc&apos;!A1", "+1", "@SUM(1)", "00123", "a&quot;b&apos;c\\d", "e",
                           "f", "{=1+1}", "&apos;quoted", "-1", "xy", "2008/11/15", "&lt;&amp;&gt;"})
    EXPECT_NE(xml.find(std::string(text) + "</text:p>"), std::string::npos) << text;
}

TEST_F(Qt_sheets_office, LeavesTheWorkbookWhereThereIsNoSuchSheet) {
  const std::string before = content();
  EXPECT_EQ(fill({real_script}, {{"B2", "a"}}, "sheet9"), Sheet_outcome::no_sheet);
  EXPECT_TRUE(content() == before);
}

TEST_F(Qt_sheets_office, SetsTheOtherCellsWhenAnAddressIsNone) {
  EXPECT_EQ(fill({real_script}, {{"B0", "lost"}, {"no cell", "lost"}, {"", "lost"}, {"B2", "kept"}}),
            Sheet_outcome::bad_cell);
  const std::string xml = read_back();
  EXPECT_NE(xml.find(">kept</text:p>"), std::string::npos);
  EXPECT_EQ(xml.find("lost"), std::string::npos);
}

TEST_F(Qt_sheets_office, FailsForAFileThatIsNoWorkbook) {
  const std::string picture("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
  disk.write_whole(book, picture);
  EXPECT_EQ(fill({real_script}), Sheet_outcome::failed);
  EXPECT_TRUE(content() == picture);
  EXPECT_THAT(processes.started, IsEmpty());
}

TEST_F(Qt_sheets_office, LeavesNothingBesideTheWorkbook) {
  ASSERT_EQ(fill({real_script}), Sheet_outcome::filled);
  const std::filesystem::directory_iterator found(folder.path());
  EXPECT_EQ(std::distance(begin(found), end(found)), 1);
}

}  // namespace
