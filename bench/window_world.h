// The world that the benches of the window stand in: a project folder of its own, a quarter sheet with its eight
// neighbours of 4000 x 3000 pixels, and the main window with a canvas of 1600 x 1000.
#pragma once

#include <QApplication>
#include <QImage>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/journal.h"
#include "platform/prompts.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/qt_processes.h"
#include "platform/sheets.h"
#include "platform/sounds.h"
#include "ui/canvas_view.h"
#include "ui/frm_main.h"

namespace bench {

inline constexpr int sheet_width = 4000, sheet_height = 3000;

class Silent_prompts : public platform::Prompts {
 protected:
  platform::Answer show(Kind, const std::string& text) override {
    std::fprintf(stderr, "message: %s\n", text.c_str());
    return platform::Answer::ok;
  }
};

struct Folder {
  std::filesystem::path path;
  Folder() {
    path = std::filesystem::temp_directory_path() / ("terranote_bench_" + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(path / "program" / "map");
    std::filesystem::create_directories(path / "project" / "chisou_men");
    std::ofstream(path / "project" / "chisou_men" / "genchi.csv");
    std::ofstream settings(path / "program" / "settei.ini");
    settings << "\r\n\r\n"
             << (path / "project").string() << "\r\n04\r\n9600\r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\nFalse\r\n"
             << "sheet1\r\n\r\n\r\n\r\n\r\nTrue\r\nFalse\r\ngenchi.csv\r\n";
  }
  ~Folder() { std::filesystem::remove_all(path); }
};

// A sheet with fine lines, which a reduction has to work for.
inline QImage sheet_image(int number) {
  QImage image(sheet_width, sheet_height, QImage::Format_Indexed8);
  QList<QRgb> colours;
  for (int i = 0; i < 256; ++i) colours.append(qRgb(i, (i * 7 + number * 40) % 256, 255 - i));
  image.setColorTable(colours);
  for (int y = 0; y < sheet_height; ++y) {
    uchar* const row = image.scanLine(y);
    for (int x = 0; x < sheet_width; ++x) row[x] = static_cast<uchar>((x * y / 97 + number * 31) & 255);
  }
  return image;
}

// The chosen sheet 53390055 and its neighbours to the east and south.
inline void write_sheets(const Folder& folder) {
  int number = 0;
  for (const char* stem :
       {"54390000", "54390005", "54390100", "53397050", "53397055", "53397150", "53397000", "53397005", "53397100"})
    sheet_image(number++).save(QString::fromStdString((folder.path / "program/map" / stem).string() + ".bmp"));
}

struct World {
  Folder folder;
  platform::Disk_files files;
  platform::Qt_pictures pictures;
  platform::Qt_processes processes{files};
  Silent_prompts prompts;
  platform::System_clock clock;
  platform::Journal journal{files};
  platform::No_sheets no_sheets;
  platform::No_sounds no_sounds;
  session::Ports ports{files, pictures, prompts, processes, clock, journal, no_sheets, no_sounds};
  session::Session session;
  std::unique_ptr<ui::Frm_main> window;
  ui::Canvas_view* canvas = nullptr;

  void open() {
    session::form_load(session, ports, (folder.path / "program").string());
    window = std::make_unique<ui::Frm_main>(session, ports);
    window->resize(1600 + 520, 1000 + 130);
    window->start();
    canvas = window->findChild<ui::Canvas_view*>("Picture1");
    canvas->setFixedSize(1600, 1000);
    QApplication::processEvents();
  }
};

// The world with its nine sheets on the canvas.
inline std::unique_ptr<World> mosaic_world() {
  auto made = std::make_unique<World>();
  write_sheets(made->folder);
  made->open();
  session::chizu_out(made->session, made->ports, session::row_of(made->session.sheets, "54390000"));
  return made;
}

}  // namespace bench
