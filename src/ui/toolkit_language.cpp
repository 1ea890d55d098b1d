#include "ui/toolkit_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace ui {

void use_toolkit_language(bool japanese) {
  constexpr const char* name = "toolkit_texts";
  auto* const application = QCoreApplication::instance();
  delete application->findChild<QTranslator*>(name);  // it takes itself out of use
  if (!japanese) return;
  auto* const texts = new QTranslator(application);
  texts->setObjectName(name);
  if (texts->load("qtbase_ja", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(texts);
}

}  // namespace ui
