#include "platform/qt/qt_processes.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <string>

#ifdef _WIN32
#include <windows.h>

#include <shellapi.h>
#endif

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

bool is_address(const std::string& text) {
  return text.starts_with("http:") || text.starts_with("https:");
}

// What stands in the way of a file before any program is asked.
Open_result look_at(const QString& path) {
  const QFileInfo file(path);
  if (!file.dir().exists()) return Open_result::no_path;
  if (!file.exists()) return Open_result::no_file;
  return file.isReadable() ? Open_result::opened : Open_result::denied;
}

#ifdef _WIN32

// The numbers that ShellExecute gives back; above 32 it has opened the file.
Open_result result_of(INT_PTR number) {
  if (number > 32) return Open_result::opened;
  switch (number) {
    case 0:
    case SE_ERR_OOM:
      return Open_result::no_memory;
    case SE_ERR_FNF:
      return Open_result::no_file;
    case SE_ERR_PNF:
      return Open_result::no_path;
    case ERROR_BAD_FORMAT:
      return Open_result::bad_format;
    case SE_ERR_ACCESSDENIED:
      return Open_result::denied;
    default:
      return Open_result::failed;
  }
}

Open_result ask_system(const QString& path) {
  const std::wstring file = QDir::toNativeSeparators(path).toStdWString();
  const std::wstring folder = qEnvironmentVariable("windir").toStdWString();
  return result_of(
      reinterpret_cast<INT_PTR>(ShellExecuteW(nullptr, L"open", file.c_str(), nullptr, folder.c_str(), SW_SHOWNORMAL)));
}

#else

Open_result ask_system(const QString& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path)) ? Open_result::opened : Open_result::failed;
}

#endif

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
  if (is_address(file_or_address)) return QDesktopServices::openUrl(QUrl(to_qt(file_or_address)));
  return QDesktopServices::openUrl(QUrl::fromLocalFile(to_qt(files_.native_path(file_or_address))));
}

Open_result Qt_processes::open(const std::string& file_or_address) {
  if (is_address(file_or_address))
    return open_with_program(file_or_address) ? Open_result::opened : Open_result::failed;
  const QString path = to_qt(files_.native_path(file_or_address));
  const Open_result fault = look_at(path);
  return fault == Open_result::opened ? ask_system(path) : fault;
}

}  // namespace platform
