#include "soak/place.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>

#include "platform/text_files.h"
#include "soak/field_kit.h"
#include "soak/file_book.h"

namespace soak {

namespace fs = std::filesystem;

namespace {

void put(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

// settei.ini holds whole paths: what lay below the sample now lies below the root. Line 2, the template of input
// sheets, is empty in the sample.
void mend_settings(const fs::path& root, const std::string& sample) {
  const fs::path path = root / "program/settei.ini";
  std::string bytes = bytes_of(path);
  for (const std::string& former : {sample, QDir::toNativeSeparators(QString::fromStdString(sample)).toStdString()})
    for (std::size_t at = bytes.find(former); at != std::string::npos;
         at = bytes.find(former, at + root.string().size()))
      bytes.replace(at, former.size(), root.string());
  const std::string no_template = "/program\r\n\r\n";
  if (const std::size_t at = bytes.find(no_template); at != std::string::npos)
    bytes.replace(at, no_template.size(), "/program\r\nframe.xls\r\n");
  put(root / "program/frame.xls", "a workbook");
  put(path, bytes);
}

void put_pictures(const fs::path& folder) {
  fs::create_directories(folder);
  QImage picture(640, 480, QImage::Format_RGB32);
  picture.fill(QColor(120, 140, 60));
  for (const char* name : {"outcrop.jpg", "outcrop2.png", "露頭.bmp", "thin.jpeg"})
    picture.save(QString::fromStdString((folder / name).string()));
  QImage(1, 3000, QImage::Format_Mono).save(QString::fromStdString((folder / "narrow.png").string()));
  put(folder / "broken.jpg", bytes_of(folder / "outcrop.jpg").substr(0, 400));
  put(folder / "empty.png", "");
  put(folder / "voice.wav", std::string("RIFF\x24\0\0\0WAVEfmt ", 16) + std::string(28, '\0'));
}

void put_tracks(const Place& place) {
  const std::string log = receiver_log();
  put(place.root / "logs/drive.NME", "@Sonygps/ver1.0/wgs-84\r\n" + log);
  put(place.root / "logs/cut.nme", log.substr(0, log.size() / 3));
  put(place.root / "logs/binary.nme", std::string(5000, '\xFE'));
  put(place.root / "project/chisou_men/gps/drive.NME", log);
  std::string track, logger;
  for (int i = 0; i < 400; ++i) {
    const std::string second = std::to_string(10 + i % 50);
    track += std::to_string(502785 + i) + ".25," + std::to_string(128405 + i / 2) +
             ".5,812.0,2008/11/15 10:20:" + second + "," + (i % 100 ? "1" : "0") + "\r\n";
    logger += "2008/11/15,0120" + second + ",3541.1234,N,13945.6789,E\r\n";
  }
  put(place.root / "project/chisou_men/gps/081115.txt", track);
  put(place.root / "project/chisou_men/gps/logger.csv", logger);
  put(place.root / "project/data/logger.csv", logger);
  put(place.root / "logs/logger.csv", logger);
}

}  // namespace

bool place_make(Place& place, const std::string& parent, const std::string& sample) {
  QTemporaryDir folder(QString::fromStdString(parent) + "/soak-XXXXXX");
  folder.setAutoRemove(false);
  std::error_code fault;
  place.root = fs::canonical(folder.path().toStdString(), fault);
  if (!folder.isValid() || fault || !fs::exists(fs::path(sample) / "program/settei.ini")) {
    std::fprintf(stderr, "No folder can be made below %s, or %s holds no sample.\n", parent.c_str(), sample.c_str());
    return false;
  }
  for (const char* part : {"program", "project"})
    fs::copy(fs::path(sample) / part, place.root / part, fs::copy_options::recursive | fs::copy_options::skip_symlinks);
  mend_settings(place.root, fs::canonical(sample).string());
  put_pictures(place.root / "pictures");
  put_tracks(place);
  for (const char* made : {"project2/chisou_men", "out", "state", "here", "program/ports"})
    fs::create_directories(place.root / made);
  fs::current_path(place.root / "here");
  return true;
}

void place_remove(const Place& place) {
  std::error_code fault;
  fs::current_path("/", fault);
  fs::remove_all(place.root, fault);
}

}  // namespace soak
