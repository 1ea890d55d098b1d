// Starts the toolkit, makes the ports, opens the main window.
#include <QApplication>
#include <QScreen>
#include <QStyleFactory>

#include "core/language.h"
#include "core/session/session.h"
#include "core/session/start_up.h"
#include "platform/files.h"
#include "platform/memory.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/qt_processes.h"
#include "platform/qt/qt_sheets.h"
#include "platform/qt/qt_sounds.h"
#include "platform/user_folders.h"
#include "ui/fonts.h"
#include "ui/frm_main.h"
#include "ui/qt_prompts.h"
#include "ui/toolkit_language.h"
#include "ui/toolkit_text.h"

int main(int argc, char** argv) {
  platform::give_back_large_blocks();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Terranote");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  ui::use_fonts_with_japanese();

  platform::Disk_files disk;
  platform::Journal journal(disk);
  platform::Journal_files files(disk, journal);
  platform::Qt_pictures pictures;
  platform::Qt_processes processes(files);
  ui::Qt_prompts prompts;
  platform::System_clock clock;
  platform::Qt_sheets sheets(files, processes, platform::sheet_helper());
  platform::Qt_sounds sounds(files);
  session::Ports ports{files, pictures, prompts, processes, clock, journal, sheets, sounds};

  session::Session session;
  session.state_folder = platform::state_folder();
  session::form_load(session, ports, ui::from_toolkit(QApplication::applicationDirPath()));

  ui::use_toolkit_language(core::is_japanese(session.settings.language));
  ui::Frm_main window(session, ports);
  prompts.stand_over(&window);
  // A small screen is filled; the window's own size is that of a large one.
  if (QApplication::primaryScreen()->availableSize().width() < 1700) window.setWindowState(Qt::WindowMaximized);
  window.start();
  return QApplication::exec();
}
