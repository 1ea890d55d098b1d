#include "ui/toolkit_language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>

TEST(Toolkit_language, TheToolkitsOwnTextsFollowEachSwitch) {
  if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_ja.qm"))
    GTEST_SKIP() << "the toolkit's Japanese texts are not on this machine";
  const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
  EXPECT_EQ(cancel(), "Cancel");
  for (int i = 0; i < 2; ++i) {
    ui::use_toolkit_language(true);
    EXPECT_EQ(cancel(), "キャンセル");
    ui::use_toolkit_language(false);
    EXPECT_EQ(cancel(), "Cancel");
  }
}
