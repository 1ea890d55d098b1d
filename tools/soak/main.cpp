// soak --sample <folder made by make_sample> [--seed N] [--minutes M | --steps M] [--log FILE] ...
// Drives the program's window at random on a copy of the sample, and fails where anything breaks.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStyleFactory>

#include <cstdio>

#include "platform/memory.h"
#include "soak/driver.h"
#include "ui/fonts.h"
#include "ui/toolkit_text.h"

namespace {

using namespace soak;

struct Arguments {
  Run_choices choices;
  std::string sample, log, place = "/tmp";
  bool keep = false;
};

Arguments read_arguments(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Drives Terranote's window at random on a copy of a sample project.");
  parser.addHelpOption();
  const auto option = [&](const char* name, const char* told, const char* usual) {
    parser.addOption({name, told, name, usual});
  };
  option("sample", "folder that make_sample made", "");
  option("seed", "of all choices", "1");
  option("steps", "to take; 0: no limit", "0");
  option("minutes", "to run; 0: no limit", "0");
  option("log", "file of all steps; standard output without one", "");
  option("place", "folder in which the copy is made", QDir::tempPath().toUtf8().constData());
  option("check-every", "steps from one look at the files to the next", "500");
  option("longest-block", "seconds that a step may take", "10");
  option("growth", "MiB that the memory may grow by; 0: it isn't judged, as under a sanitizer", "24");
  parser.addOption({"keep", "the copy is kept"});
  parser.process(application);
  Arguments read;
  read.choices.seed = parser.value("seed").toULongLong();
  read.choices.steps = parser.value("steps").toLong();
  read.choices.minutes = parser.value("minutes").toDouble();
  if (read.choices.steps == 0 && read.choices.minutes == 0) read.choices.steps = 2000;
  read.choices.check_every = parser.value("check-every").toLong();
  read.choices.longest_block = parser.value("longest-block").toDouble();
  read.choices.allowed_growth = parser.value("growth").toDouble();
  read.sample = ui::from_toolkit(parser.value("sample"));
  read.log = ui::from_toolkit(parser.value("log"));
  read.place = ui::from_toolkit(parser.value("place"));
  read.keep = parser.isSet("keep");
  return read;
}

Run* told_to = nullptr;

// What the toolkit complains of is counted; it is no fault of the run by itself.
void toolkit_says(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (!told_to || type == QtDebugMsg || type == QtInfoMsg) return;
  count(told_to->log, "toolkit", ui::from_toolkit(text.left(100)));
  log_line(told_to->log, "toolkit: " + ui::from_toolkit(text));
}

void judge_trend(Run& run, const char* what, const Memory_trend& trend, double allowed) {
  if (!trend.judged || allowed == 0) return log_line(run.log, std::string(what) + ": not judged");
  char text[200];
  std::snprintf(text, sizeof text, "%s over the last three quarters: %.1f to %.1f, bound %.0f", what, trend.from,
                trend.to, allowed);
  log_line(run.log, text);
  std::fprintf(stderr, "%s\n", text);
  if (trend.growth() > allowed) fault(run.log, std::string(what) + " grows");
}

int report(Run& run) {
  if (run.memory.empty()) run.memory.push_back({});
  judge_trend(run, "memory (MiB)", trend_of(run.memory), run.choices.allowed_growth);
  judge_trend(run, "widgets", widget_trend_of(run.memory), run.choices.allowed_widgets);
  log_counts(run.log);
  char text[300];
  std::snprintf(text, sizeof text,
                "seed %llu: %ld steps in %.1f minutes, %zu faults; memory at rest %.0f to %.0f MiB, most %.0f; "
                "longest block %.1f s",
                static_cast<unsigned long long>(run.choices.seed), run.log.step.load(),
                seconds_since_start(run.log) / 60, run.log.faults.size(), run.memory.front().mebibytes,
                run.memory.back().mebibytes, run.most_memory, run.dog.worst.load());
  log_line(run.log, text);
  std::fprintf(stderr, "%s\n", text);
  return run.log.faults.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  platform::give_back_large_blocks();
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Terranote");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  ui::use_fonts_with_japanese();
  const Arguments arguments = read_arguments(application);
  Run run(arguments.choices);
  if (!log_open(run.log, arguments.log) || !place_make(run.place, arguments.place, arguments.sample)) return 2;
  run.dog.longest = arguments.choices.longest_block;
  run.instruments.ports = run.place.program() + "/ports";
  run.book.root = run.place.root;
  run.book.state = run.place.state();
  book_begin(run.book);
  told_to = &run;
  qInstallMessageHandler(toolkit_says);
  log_crashes(run.log);
  log_line(run.log, "seed " + std::to_string(run.choices.seed) + " in " + run.place.root.string());
  watch(run.dog);
  drive(run);
  watch_end(run.dog);
  const int status = report(run);
  qInstallMessageHandler(nullptr);
  if (status == 0 && !arguments.keep) place_remove(run.place);
  return status;
}
