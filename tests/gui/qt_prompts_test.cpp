#include "ui/qt_prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace {

// What stood on the screen while a message was up; the message is then answered with the key.
struct Seen {
  QWidget* over = nullptr;
  QString text;
  Qt::CursorShape cursor = Qt::BlankCursor;
};

Seen answer_with(Qt::Key key, const std::function<void()>& ask) {
  Seen seen;
  QTimer::singleShot(0, [&] {  // it comes with the message's own events
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    seen.over = box->parentWidget();
    seen.text = box->text();
    if (QApplication::overrideCursor()) seen.cursor = QApplication::overrideCursor()->shape();
    QTest::keyClick(box, key);
  });
  ask();
  return seen;
}

struct Qt_prompts : ::testing::Test {
  QWidget window;
  ui::Qt_prompts prompts;
  void SetUp() override {
    prompts.stand_over(&window);
    prompts.use_language("Japanese");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
};

}  // namespace

TEST_F(Qt_prompts, EscIsNoAndEnterIsYes) {
  bool answer = true;
  answer_with(Qt::Key_Escape, [&] { answer = prompts.yes_no({"消しますか。", "Delete?"}); });
  EXPECT_FALSE(answer);
  const Seen seen = answer_with(Qt::Key_Return, [&] { answer = prompts.yes_no({"消しますか。", "Delete?"}); });
  EXPECT_TRUE(answer);
  EXPECT_EQ(seen.text, "消しますか。");
}

// The keyboard goes back to where it was: to a dialog that doesn't bar the main window too.
TEST_F(Qt_prompts, AMessageStandsOverTheWindowInUse) {
  EXPECT_EQ(answer_with(Qt::Key_Return, [&] { prompts.message({"a", "a"}); }).over, &window);
  QDialog dialog(&window);
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_EQ(answer_with(Qt::Key_Return, [&] { prompts.message({"a", "a"}); }).over, &dialog);
}

TEST_F(Qt_prompts, AMessageInALongOperationHasAnOrdinaryCursor) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  EXPECT_EQ(answer_with(Qt::Key_Return, [&] { prompts.message({"a", "a"}); }).cursor, Qt::ArrowCursor);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  QApplication::restoreOverrideCursor();
}
