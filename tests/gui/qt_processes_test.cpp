#include "platform/qt/qt_processes.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>

#include <filesystem>

#include "support/temporary_folder.h"

namespace {

using platform::Open_result;

// Files and addresses go to a text browser of the test instead of the machine's programs.
struct Qt_processes : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files files;
  platform::Qt_processes processes{files};
  QTextBrowser browser;

  Qt_processes() {
    for (const char* scheme : {"file", "http"}) QDesktopServices::setUrlHandler(scheme, &browser, "setSource");
  }
  ~Qt_processes() override {
    for (const char* scheme : {"file", "http"}) QDesktopServices::unsetUrlHandler(scheme);
  }
  std::string path(const std::string& name) const { return folder.text() + "\\" + name; }
};

TEST_F(Qt_processes, OpenAFileByItsNameInAnyCase) {
  files.write_whole(path("露頭 #1.txt"), "a");
  EXPECT_EQ(processes.open(path("露頭 #1.TXT")), Open_result::opened);
  EXPECT_EQ(browser.source().toLocalFile().toStdString(), (folder.path() / "露頭 #1.txt").string());
}

TEST_F(Qt_processes, OpenAnAddressAsItStands) {
  EXPECT_EQ(processes.open("http://example.com/a?b=1"), Open_result::opened);
  EXPECT_EQ(browser.source().toString().toStdString(), "http://example.com/a?b=1");
}

TEST_F(Qt_processes, TellWhatIsMissing) {
  EXPECT_EQ(processes.open(path("none.txt")), Open_result::no_file);
  EXPECT_EQ(processes.open(path("none\\none.txt")), Open_result::no_path);
  EXPECT_TRUE(browser.source().isEmpty());
}

TEST_F(Qt_processes, TellThatAFileMustNotBeRead) {
  files.write_whole(path("a.txt"), "a");
  std::filesystem::permissions(folder.path() / "a.txt", std::filesystem::perms::none);
  if (QFileInfo(QString::fromStdString((folder.path() / "a.txt").string())).isReadable())
    GTEST_SKIP() << "this user reads everything";
  EXPECT_EQ(processes.open(path("a.txt")), Open_result::denied);
}

}  // namespace
