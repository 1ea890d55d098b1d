// make_sample [--progress] [--full-size | --sheet-width <pixels>] <target folder>
// Writes the sample: <target folder>/program and <target folder>/project. With --progress it prints "3 16" when the
// third of 16 pictures is done. make_sample --general <folder> Writes what belongs into any program folder.

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QTextStream>
#include <string_view>

#include "make_sample/folders.h"
#include "platform/failures.h"

namespace {

constexpr int full_width = 4000, least_width = 100, most_width = 8000;

// An installed family with Japanese letters, one of even strokes before any other; empty when there is none.
QString japanese_family() {
  const QStringList installed = QFontDatabase::families(QFontDatabase::Japanese);
  for (const char* wanted : {"IPAGothic", "IPAPGothic", "Noto Sans CJK JP", "Noto Sans JP", "TakaoGothic", "VL Gothic",
                             "MS Gothic", "Yu Gothic", "Meiryo"})
    if (installed.contains(QLatin1String(wanted))) return QLatin1String(wanted);
  return installed.value(0);
}

int say(const QString& sentence) {
  QTextStream(stderr) << sentence << '\n';
  return 1;
}

void print_progress(int made, int of) {
  QTextStream(stdout) << made << ' ' << of << Qt::endl;
}

// False with a wrong or missing argument.
bool read_arguments(const QStringList& arguments, sample::Making& making) {
  QStringList rest = arguments.mid(1);
  if (rest.value(0) == "--progress") {
    making.progress = print_progress;
    rest.removeFirst();
  }
  if (rest.size() == 2 && rest[0] == "--full-size") {
    making.sheet_width = full_width;
    rest.removeFirst();
  } else if (rest.size() == 3 && rest[0] == "--sheet-width") {
    making.sheet_width = rest[1].toInt();
    rest.remove(0, 2);
  }
  if (rest.size() != 1 || rest[0].startsWith('-') || rest[0].isEmpty()) return false;
  making.target = QDir(rest[0]).absolutePath().toStdString();
  return making.sheet_width >= least_width && making.sheet_width <= most_width;
}

int make_sample(platform::Files& files, const QStringList& arguments) {
  sample::Making making;
  if (!read_arguments(arguments, making))
    return say(
        "usage: make_sample [--progress] [--full-size | --sheet-width <pixels, 100 to 8000>] <target folder>\n"
        "       make_sample --general <folder>");
  if (!sample::may_write(files, making.target))
    return say(
        QString("%1 was not made by make_sample, so it is left alone.").arg(QString::fromStdString(making.target)));
  making.font = japanese_family();
  if (making.font.isEmpty()) say("No Japanese font is installed, so the maps are drawn without names.");
  sample::make_folders(files, making);
  return 0;
}

// The general files have no letters to draw, so the toolkit isn't started for them.
int make(platform::Files& files, int argc, char** argv) {
  if (argc == 3 && std::string_view(argv[1]) == "--general") {
    sample::make_general(files, QDir(QString::fromLocal8Bit(argv[2])).absolutePath().toStdString());
    return 0;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  return make_sample(files, QCoreApplication::arguments());
}

}  // namespace

int main(int argc, char** argv) {
  platform::Disk_files files;
  try {
    return make(files, argc, argv);
  } catch (const platform::Failure& failure) {
    return say(QString("The sample could not be made: %1.").arg(QString::fromStdString(failure.what())));
  }
}
