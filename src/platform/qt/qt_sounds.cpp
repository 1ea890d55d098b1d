#include "platform/qt/qt_sounds.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <utility>

#ifdef _WIN32
#include <QDir>
#include <QLibrary>
#endif

namespace platform {

namespace {

constexpr int start_wait = 1000;  // milliseconds
constexpr int fault_wait = 150;   // a player that finds no loudspeaker ends within this
constexpr int stop_wait = 500;

// The first bytes of every .wav file: "RIFF", a length, "WAVE".
bool is_wave(Files& files, const std::string& path) {
  constexpr std::int64_t header = 12;
  QFile file(QString::fromStdString(files.native_path(path)));
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(header);
  return start.startsWith("RIFF") && start.mid(8) == "WAVE";
}

#ifdef _WIN32

// PlaySound of the system's multimedia library; it plays on by itself.
bool system_plays(const QString& file) {
  constexpr unsigned long at_once = 0x0001, no_default = 0x0002, is_file_name = 0x00020000;
  using Play_sound = int(__stdcall*)(const wchar_t*, void*, unsigned long);
  const auto play = reinterpret_cast<Play_sound>(QLibrary::resolve("winmm", "PlaySoundW"));
  if (!play) return false;
  const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
  return play(path.c_str(), nullptr, at_once | no_default | is_file_name) != 0;
}

#else

bool system_plays(const QString&) {
  return false;
}

#endif

}  // namespace

Qt_sounds::Qt_sounds(Files& files) : Qt_sounds(files, {"paplay", "aplay"}) {}

Qt_sounds::Qt_sounds(Files& files, QStringList players) : files_(files), players_(std::move(players)) {
  // What a player prints goes nowhere, so that it never waits for a reader.
  player_.setStandardInputFile(QProcess::nullDevice());
  player_.setStandardOutputFile(QProcess::nullDevice());
  player_.setStandardErrorFile(QProcess::nullDevice());
}

Qt_sounds::~Qt_sounds() {
  stop();
}

bool Qt_sounds::play(const std::string& path) {
  if (!is_wave(files_, path)) return false;
  const QString file = QFileInfo(QString::fromStdString(files_.native_path(path))).absoluteFilePath();
  if (system_plays(file)) return true;
  for (const QString& player : players_)
    if (play_with(player, file)) return true;
  return false;
}

bool Qt_sounds::play_with(const QString& player, const QString& file) {
  const QString program = QStandardPaths::findExecutable(player);
  if (program.isEmpty()) return false;
  stop();
  player_.start(program, {file});
  if (!player_.waitForStarted(start_wait)) return false;
  if (!player_.waitForFinished(fault_wait)) return true;
  return player_.exitStatus() == QProcess::NormalExit && player_.exitCode() == 0;
}

void Qt_sounds::stop() {
  if (player_.state() == QProcess::NotRunning) return;
  player_.kill();
  player_.waitForFinished(stop_wait);
}

}  // namespace platform
