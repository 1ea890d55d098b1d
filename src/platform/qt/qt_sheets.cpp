#include "platform/qt/qt_sheets.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <iterator>

#include "platform/failures.h"
#include "platform/qt/excel.h"

namespace platform {

namespace {

constexpr const char* book_name = "book.xls";
constexpr const char* filled_name = "filled.xls";
constexpr int end_seconds = 10;  // for the helper to end the office program

struct Reply {
  const char* word;
  Sheet_outcome outcome;
};
constexpr Reply replies[] = {
    {"filled", Sheet_outcome::filled},     {"bad_cell", Sheet_outcome::bad_cell},
    {"no_sheet", Sheet_outcome::no_sheet}, {"no_program", Sheet_outcome::no_program},
    {"failed", Sheet_outcome::failed},
};

// The interpreters that may know the office program: its own, the system's, and the one that the user's path names,
// which need not be the system's.
QStringList interpreters() {
  const QString office = QFileInfo(QStandardPaths::findExecutable("soffice")).canonicalPath();
  QStringList found;
  for (const QString& one : {office.isEmpty() ? QString() : QStandardPaths::findExecutable("python", {office}),
                             QStandardPaths::findExecutable("python3", {"/usr/bin", "/usr/local/bin"}),
                             QStandardPaths::findExecutable("python3")})
    if (!one.isEmpty() && !found.contains(one)) found.append(one);
  return found;
}

QByteArray order_of(const Sheet_job& job, const QTemporaryDir& scratch, int seconds) {
  QJsonArray cells;
  for (const Cell& cell : job.cells)
    cells.append(QJsonArray{QString::fromStdString(cell.address), QString::fromStdString(cell.text)});
  return QJsonDocument(QJsonObject{{"book", scratch.filePath(book_name)},
                                   {"filled", scratch.filePath(filled_name)},
                                   {"profile", scratch.filePath("profile")},
                                   {"sheet", QString::fromStdString(job.sheet)},
                                   {"cells", cells},
                                   {"seconds", seconds}})
      .toJson(QJsonDocument::Compact);
}

// What the helper printed; its end, good or bad, tells nothing, since the office program may break at its own.
QByteArray run_helper(const QString& interpreter, const Sheet_helper& helper, const QByteArray& order) {
  QProcess process;
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start(interpreter, {"-I", QString::fromStdString(helper.script)});
  process.write(order);
  process.closeWriteChannel();
  if (!process.waitForFinished((helper.seconds + end_seconds) * 1000) && process.state() != QProcess::NotRunning) {
    process.terminate();
    if (!process.waitForFinished(end_seconds * 1000)) process.kill();
    process.waitForFinished();
  }
  return process.readAllStandardOutput();
}

Sheet_outcome outcome_of(const QByteArray& printed) {
  for (const QByteArray& line : printed.split('\n'))
    for (const Reply& reply : replies)
      if (line.trimmed() == "reply: " + QByteArray(reply.word)) return reply.outcome;
  return Sheet_outcome::failed;
}

bool is_filled(Sheet_outcome outcome) {
  return outcome == Sheet_outcome::filled || outcome == Sheet_outcome::bad_cell;
}

}  // namespace

Sheet_helper sheet_helper(const std::string& helpers) {
  return {helpers + "/fill_sheet.py"};
}

Sheet_outcome Qt_sheets::fill(const Sheet_job& job) {
  const Sheet_outcome driven = excel_fill({files_.native_path(job.workbook), job.sheet, job.cells});
  if (driven != Sheet_outcome::no_program) return driven;
  try {
    const Sheet_outcome outcome = fill_with_helper(job);
    if (!is_filled(outcome)) return outcome;
    return processes_.open_with_program(job.workbook) ? outcome : Sheet_outcome::not_shown;
  } catch (const File_failure&) {  // the workbook could not be read, copied aside or written
    return Sheet_outcome::failed;
  }
}

// The helper never touches the workbook itself: it reads a copy and makes another, which replaces the workbook's
// content as a whole.
Sheet_outcome Qt_sheets::fill_with_helper(const Sheet_job& job) {
  if (!QFileInfo::exists(QString::fromStdString(helper_.script))) return Sheet_outcome::no_program;
  const QTemporaryDir scratch;
  if (!scratch.isValid()) throw File_failure("there is no room for temporary files");
  Disk_files disk;
  disk.write_whole(scratch.filePath(book_name).toStdString(), files_.read_bytes(job.workbook));
  const QByteArray order = order_of(job, scratch, helper_.seconds);
  Sheet_outcome outcome = Sheet_outcome::no_program;
  for (const QString& interpreter : interpreters()) {
    outcome = outcome_of(run_helper(interpreter, helper_, order));
    if (outcome != Sheet_outcome::no_program) break;
  }
  if (!is_filled(outcome)) return outcome;
  const std::string filled = disk.read_bytes(scratch.filePath(filled_name).toStdString());
  if (filled.empty()) throw File_failure("the workbook came back empty");
  files_.write_whole(job.workbook, filled);
  return outcome;
}

}  // namespace platform
