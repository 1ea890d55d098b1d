// Serial lines and the dialogs that use them, on the offscreen platform.
#include <gmock/gmock.h>

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QFont font("IPAPGothic");
  font.setPointSizeF(10);
  QApplication::setFont(font);
  return RUN_ALL_TESTS();
}
