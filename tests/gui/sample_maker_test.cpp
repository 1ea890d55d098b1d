#include "ui/sample_maker.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "gui/clipping.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace {

using session::Sample_making;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

QProgressDialog* window_shown() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->objectName() == "sample_making" && widget->isVisible()) return qobject_cast<QProgressDialog*>(widget);
  return nullptr;
}

// A tool of the test's own: a shell script that is told "--progress <folder>".
struct Sample_maker : testing::Test {
  support::Temporary_folder folder;
  support::Scripted_prompts prompts;
  std::string tool = folder.text() + "/make_sample";
  std::string taken;     // what the file "made" of the folder handed over held
  std::string taken_at;  // that folder
  QString said_then;     // what the window said meanwhile

  void SetUp() override {
    if (!std::filesystem::exists("/bin/sh")) GTEST_SKIP() << "there is no /bin/sh for a tool of the test's own";
  }
  Sample_making make_with(const std::string& lines, bool japanese = false) {
    std::ofstream(tool) << "#!/bin/sh\n" << lines;
    std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
    return make(japanese);
  }
  Sample_making make(bool japanese = false) {
    prompts.use_language(japanese ? "Japanese" : "English");
    return ui::make_sample(tool, japanese, prompts, [&](const std::string& made) {
      taken_at = made;
      if (const QProgressDialog* const window = window_shown()) said_then = window->labelText();
      std::getline(std::ifstream(made + "/made"), taken);
    });
  }
};

// Does something with the window as soon as it is there and `ready`, within ten seconds.
template <typename Ready, typename Action>
void when(Ready ready, Action action, int tries = 1000) {
  QTimer::singleShot(10, qApp, [=] {
    QProgressDialog* const window = window_shown();
    if (window && ready(*window))
      action(*window);
    else if (tries > 0)
      when(ready, action, tries - 1);
  });
}

}  // namespace

TEST_F(Sample_maker, HandsOverWhatTheToolMadeAndRemovesIt) {
  EXPECT_EQ(make_with("mkdir \"$2\"; echo \"$1\" >\"$2/made\""), Sample_making::made);
  EXPECT_EQ(taken, "--progress");
  EXPECT_EQ(said_then.toStdString(), "Putting the sample in place…");
  EXPECT_FALSE(std::filesystem::exists(taken_at));
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_EQ(window_shown(), nullptr);
}

TEST_F(Sample_maker, ShowsHowFarTheToolIs) {
  int maximum = 0;
  when([](const QProgressDialog& window) { return window.value() == 3; },
       [&](const QProgressDialog& window) {
         maximum = window.maximum();
         std::ofstream(folder.text() + "/go on") << "x";
       });
  EXPECT_EQ(make_with("echo 3 16\nwhile [ ! -e \"$(dirname \"$0\")/go on\" ]; do sleep 0.05; done\n"),
            Sample_making::made);
  EXPECT_EQ(maximum, 16);
}

TEST_F(Sample_maker, StopsTheToolWithTheWindowsButton) {
  when([](const QProgressDialog&) { return true; },
       [](const QProgressDialog& window) { window.findChild<QPushButton*>()->click(); });
  EXPECT_EQ(make_with("exec sleep 60"), Sample_making::stopped);
  EXPECT_EQ(taken_at, "");
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(Sample_maker, SaysWhatTheToolSaidWhenItFails) {
  EXPECT_EQ(make_with("echo first >&2; echo The disk is full. >&2; exit 1"), Sample_making::failed);
  EXPECT_THAT(prompts.shown, ElementsAre("The sample could not be made: The disk is full."));
  EXPECT_EQ(taken_at, "");
}

TEST_F(Sample_maker, SaysWhenTheToolIsMissing) {
  EXPECT_EQ(make(true), Sample_making::failed);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("サンプルを作成できませんでした: " + tool)));
}

TEST_F(Sample_maker, SaysWhenThereIsNoRoomForTheMaking) {
  if (!std::filesystem::exists("/proc")) GTEST_SKIP() << "there is no /proc, a folder where nobody can make one";
  const QByteArray former = qgetenv("TMPDIR");
  qputenv("TMPDIR", "/proc");
  EXPECT_EQ(make_with("exit 0"), Sample_making::failed);
  if (former.isNull())
    qunsetenv("TMPDIR");
  else
    qputenv("TMPDIR", former);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("The sample could not be made: ")));
  EXPECT_EQ(taken_at, "");
}

TEST_F(Sample_maker, SaysWhenTheToolCrashes) {
  EXPECT_EQ(make_with("kill -SEGV $$"), Sample_making::failed);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("The sample could not be made: " + tool)));
}

TEST_F(Sample_maker, IsInTheLanguageInForceAndClipsNothing) {
  for (const bool japanese : {true, false}) {
    QString label, button;
    testing::AssertionResult clipped = testing::AssertionFailure() << "no window";
    when([](const QProgressDialog&) { return true; },
         [&](const QProgressDialog& window) {
           label = window.labelText();
           button = window.findChild<QPushButton*>()->text();
           clipped = support::nothing_clipped(&window);
           window.findChild<QPushButton*>()->click();
         });
    make_with("exec sleep 60", japanese);
    EXPECT_EQ(label.toStdString(), japanese ? "サンプルの地図を作成しています…" : "Making the maps of the sample…");
    EXPECT_EQ(button.toStdString(), japanese ? "中止" : "Stop");
    EXPECT_TRUE(clipped);
  }
}
