#include "ui/sample_maker.h"

#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QProgressDialog>
#include <QTemporaryDir>

#include "ui/toolkit_text.h"

namespace ui {

using session::Sample_making;

namespace {

// The tool prints "3 16" when the third of 16 pictures is done.
void show_progress(QProcess& process, QProgressDialog& window) {
  while (process.canReadLine()) {
    const QList<QByteArray> numbers = process.readLine().trimmed().split(' ');
    if (numbers.size() != 2) continue;
    window.setMaximum(numbers[1].toInt());
    window.setValue(numbers[0].toInt());
  }
}

void build(QProgressDialog& window, bool japanese) {
  window.setObjectName("sample_making");
  window.setWindowTitle("Terranote");
  window.setLabelText(japanese ? QStringLiteral("サンプルの地図を作成しています…")
                               : QStringLiteral("Making the maps of the sample…"));
  window.setCancelButtonText(japanese ? QStringLiteral("中止") : QStringLiteral("Stop"));
  window.setMinimumWidth(window.fontMetrics().averageCharWidth() * 60);
  window.setAutoReset(false);
  window.setAutoClose(false);
  window.setMinimumDuration(0);
  window.setRange(0, 0);
}

// Serves the window until the tool has ended.
void run(QProcess& process, QProgressDialog& window) {
  QEventLoop loop;
  QObject::connect(&process, &QProcess::readyReadStandardOutput, &window, [&] { show_progress(process, window); });
  QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
  QObject::connect(&process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) loop.quit();
  });
  QObject::connect(&window, &QProgressDialog::canceled, &process, &QProcess::kill);
  process.start();
  window.show();
  if (process.state() != QProcess::NotRunning) loop.exec();
}

// What the tool itself said last, or else what kept it from working.
std::string reason_of(QProcess& process) {
  const QList<QByteArray> said = process.readAllStandardError().trimmed().split('\n');
  return said.last().isEmpty() ? from_toolkit(process.program() + ": " + process.errorString())
                               : said.last().toStdString();
}

void tell_failure(platform::Prompts& prompts, const std::string& reason) {
  prompts.message("サンプルを作成できませんでした: " + reason, "The sample could not be made: " + reason);
}

// What follows takes a second or two and can't be stopped.
void show_placing(QProgressDialog& window, bool japanese) {
  window.setLabelText(japanese ? QStringLiteral("サンプルを置いています…")
                               : QStringLiteral("Putting the sample in place…"));
  window.setCancelButton(nullptr);
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool has_worked(const QProcess& process) {
  return process.error() == QProcess::UnknownError && process.exitStatus() == QProcess::NormalExit &&
         process.exitCode() == 0;
}

}  // namespace

Sample_making make_sample(const std::string& tool, bool japanese, platform::Prompts& prompts,
                          const session::Take_sample& take) {
  const QTemporaryDir aside;
  if (!aside.isValid()) {
    tell_failure(prompts, from_toolkit(aside.errorString()));
    return Sample_making::failed;
  }
  const QString folder = aside.filePath("sample");
  QProcess process;
  process.setProgram(to_toolkit(tool));
  process.setArguments({"--progress", folder});
  QProgressDialog window;
  build(window, japanese);
  run(process, window);
  if (window.wasCanceled()) return Sample_making::stopped;
  if (!has_worked(process)) {
    window.hide();
    tell_failure(prompts, reason_of(process));
    return Sample_making::failed;
  }
  show_placing(window, japanese);
  take(from_toolkit(folder));
  return Sample_making::made;
}

}  // namespace ui
