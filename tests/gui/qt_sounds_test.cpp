#include "platform/qt/qt_sounds.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>

#include "support/temporary_folder.h"

namespace {

const std::string wave("RIFF\x24\0\0\0WAVEfmt ", 16);

struct Qt_sounds : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files files;
  std::string sound = folder.text() + "\\voice.wav";

  void SetUp() override {
    if (QStandardPaths::findExecutable("true").isEmpty() || QStandardPaths::findExecutable("false").isEmpty())
      GTEST_SKIP() << "this machine has no programs that do nothing";
    files.write_whole(sound, wave);
  }
  bool played(const QStringList& players) { return platform::Qt_sounds(files, players).play(sound); }
};

TEST_F(Qt_sounds, TakesTheFirstPlayerThatPlays) {
  EXPECT_TRUE(played({"true"}));
  EXPECT_TRUE(played({"no-such-player", "false", "true"}));
}

TEST_F(Qt_sounds, SaysSoWhenNothingPlays) {
  EXPECT_FALSE(played({}));
  EXPECT_FALSE(played({"no-such-player"}));
  EXPECT_FALSE(played({"false"}));
}

TEST_F(Qt_sounds, PlaysNothingThatIsNoSound) {
  files.write_whole(sound, "no sound");
  EXPECT_FALSE(played({"true"}));
  files.write_whole(sound, "RIFF");
  EXPECT_FALSE(played({"true"}));
  files.remove(sound);
  EXPECT_FALSE(played({"true"}));
}

TEST_F(Qt_sounds, ReturnsWhileThePlayerPlaysOn) {
  const std::string player = (folder.path() / "player").string();
  files.write_whole(player, "#!/bin/sh\ncp \"$1\" \"$1.heard\"\nexec sleep 30\n");
  QFile(QString::fromStdString(player)).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  QElapsedTimer timer;
  timer.start();
  {
    platform::Qt_sounds sounds(files, {QString::fromStdString(player)});
    EXPECT_TRUE(sounds.play(sound));
    EXPECT_EQ(files.read_bytes(sound + ".heard"), wave) << "the player was given the file";
    files.remove(sound + ".heard");
    EXPECT_TRUE(sounds.play(sound)) << "the first one gives way";
    EXPECT_EQ(files.read_bytes(sound + ".heard"), wave);
  }
  EXPECT_LT(timer.elapsed(), 15000);
}

}  // namespace
