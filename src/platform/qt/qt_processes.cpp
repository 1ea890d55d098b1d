#include "platform/qt/qt_processes.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace platform {

namespace {

QString to_qt(const std::string& text) {
  return QString::fromStdString(text);
}

// "X.exe" as it stands, or "X" where no such file is there.
QString executable_path(Files& files, const std::string& executable) {
  const QString path = to_qt(files.native_path(executable));
  if (QFileInfo(path).isExecutable()) return path;
  if (executable.size() > 4 && executable.ends_with(".exe")) {
    const QString bare = to_qt(files.native_path(executable.substr(0, executable.size() - 4)));
    if (QFileInfo(bare).isExecutable()) return bare;
  }
  return {};
}

}  // namespace

bool Qt_processes::start(const std::string& executable, const std::vector<std::string>& arguments,
                         const std::string& folder) {
  const QString path = executable_path(files_, executable);
  if (path.isEmpty() || !QFileInfo(path).isFile()) return false;
  QStringList list;
  for (const std::string& argument : arguments) list.append(to_qt(argument));
  return QProcess::startDetached(path, list, to_qt(files_.native_path(folder)));
}

bool Qt_processes::open_with_program(const std::string& file_or_address) {
  const bool address = file_or_address.starts_with("http:") || file_or_address.starts_with("https:");
  return QDesktopServices::openUrl(address ? QUrl(to_qt(file_or_address))
                                           : QUrl::fromLocalFile(to_qt(files_.native_path(file_or_address))));
}

}  // namespace platform
