// Starts the toolkit, makes the ports, opens the main window.
#include <QApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QStyleFactory>

#include "core/language.h"
#include "core/session/first_start.h"
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
#include "ui/icons.h"
#include "ui/qt_prompts.h"
#include "ui/sample_maker.h"
#include "ui/toolkit_language.h"
#include "ui/toolkit_text.h"

namespace {

// What an installed program needs for its first start; for any other it says no more than the place.
session::First_start first_start_of(const platform::Program_place& place, ui::Qt_prompts& prompts) {
  const bool japanese = QLocale::system().language() == QLocale::Japanese;
  session::First_start start;
  start.place = place;
  start.language = japanese ? "Japanese" : "English";
  start.documents = ui::from_toolkit(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  start.make_sample = [&prompts, tool = place.helpers + "/make_sample"](bool in_japanese, const auto& take) {
    return ui::make_sample(tool, in_japanese, prompts, take);
  };
  return start;
}

}  // namespace

int main(int argc, char** argv) {
  platform::give_back_large_blocks();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Terranote");
  QApplication::setDesktopFileName("terranote");
  QApplication::setWindowIcon(ui::make_icon(ui::Icon::program));
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  ui::use_fonts_with_japanese();

  const platform::Program_place place = platform::program_place(ui::from_toolkit(QApplication::applicationDirPath()));
  platform::Disk_files disk;
  platform::Journal journal(disk);
  platform::Journal_files files(disk, journal);
  platform::Qt_pictures pictures;
  platform::Qt_processes processes(files);
  ui::Qt_prompts prompts;
  platform::System_clock clock;
  platform::Qt_sheets sheets(files, processes, platform::sheet_helper(place.helpers));
  platform::Qt_sounds sounds(files);
  session::Ports ports{files, pictures, prompts, processes, clock, journal, sheets, sounds};

  session::Session session;
  session.state_folder = platform::state_folder();
  const std::string program_path = session::first_start(first_start_of(place, prompts), files, prompts);
  if (program_path.empty()) return 1;
  session::form_load(session, ports, program_path);

  ui::use_toolkit_language(core::is_japanese(session.settings.language));
  ui::Frm_main window(session, ports);
  prompts.stand_over(&window);
  // A small screen is filled; the window's own size is that of a large one.
  if (QApplication::primaryScreen()->availableSize().width() < 1700) window.setWindowState(Qt::WindowMaximized);
  window.start();
  return QApplication::exec();
}
