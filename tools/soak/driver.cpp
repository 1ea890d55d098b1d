#include "soak/driver.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "core/session/start_up.h"
#include "platform/journal.h"
#include "platform/qt/qt_pictures.h"
#include "soak/days.h"
#include "soak/hand.h"
#include "soak/noise.h"
#include "soak/project_check.h"
#include "ui/toolkit_text.h"

namespace soak {

namespace {

constexpr int busy_wait = 1;       // milliseconds until the next look while a step is under way
constexpr int most_to_rest = 400;  // steps that closing everything may take
constexpr int noise_instead = 14;  // one planned step in so many is noise

void take_step(Run& run);

void schedule(Run& run, int milliseconds) {
  // What was ordered in an earlier start of the program is void.
  QTimer::singleShot(milliseconds, qApp, [&run, start = run.starts] {
    if (start == run.starts) take_step(run);
  });
}

bool is_over(const Run& run) {
  const bool steps = run.choices.steps > 0 && run.log.step >= run.choices.steps;
  return steps || (run.choices.minutes > 0 && seconds_since_start(run.log) > run.choices.minutes * 60);
}

// Counts each window that has come up since the last step.
void see_windows(Run& run) {
  std::vector<QPointer<QWidget>> open;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->windowType() == Qt::ToolTip) continue;
    open.emplace_back(window);
    const auto& before = run.windows_seen;
    if (std::find(before.begin(), before.end(), window) != before.end()) continue;
    const QString name = window->objectName().isEmpty() ? window->metaObject()->className() : window->objectName();
    count(run.log, "windows", ui::from_toolkit(name));
    log_line(run.log, "window " + ui::from_toolkit(told(window)));
  }
  run.windows_seen = open;
}

bool is_at_rest(const Run& run) {
  return run.busy_level == 1 && !QApplication::activePopupWidget() && !QApplication::activeModalWidget();
}

// Of all registration files of the project.
long registry_records(const Run& run) {
  long records = 0;
  for (const auto& [path, noted] : run.book.files)
    if (path.extension() == ".csv" && path.parent_path() == run.place.root / "project/chisou_men") {
      const std::string bytes = bytes_of(path);
      records += std::count(bytes.begin(), bytes.end(), '\n');
    }
  return records;
}

void look_at_everything(Run& run) {
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  run.dog.away = true;
  if (run.last_look) run.book.looked_at.clear();  // the last look takes in all
  const int read = book_check(run.book, run.log);
  const int files = project_check(run.place, run.book, run.log);
  count(run.log, "checks", "looks at the project");
  count(run.log, "checks", "files read back", files);
  beat(run.dog);
  run.dog.away = false;
  const double memory = resident_mebibytes();
  run.most_memory = std::max(run.most_memory, memory);
  const int widgets = static_cast<int>(QApplication::allWidgets().size());
  // With other sheets in the list, or none, the memory compares with no other.
  if (run.sheet_at_rest.empty()) run.sheet_at_rest = run.session->current_sheet;
  if (!run.last_look && run.session->current_sheet == run.sheet_at_rest)
    run.memory.push_back({seconds_since_start(run.log) / 60, memory, widgets, run.starts});
  log_line(run.log, "at rest: " + std::to_string(memory) + " MiB, " + std::to_string(widgets) + " widgets, sheet " +
                        run.session->current_sheet + ", " + std::to_string(registry_records(run)) + " records, " +
                        std::to_string(files) + " files, " + std::to_string(read) + " compared");
}

// The same sheet, at the size in which it comes up, in a window of one size.
void open_first_sheet(Run& run) {
  auto* const list = run.window->findChild<QListView*>("List2");
  if (auto* filter = run.window->findChild<QLineEdit*>("list_filter")) filter->clear();
  if (!list || list->model()->rowCount() == 0) return;
  const QModelIndex row = list->model()->index(0, 1);
  list->scrollTo(row);
  press(run, list->viewport(), list->visualRect(row).center());
}

// What is open is closed, and the same sheet is shown in the same way, so that one look compares with another.
void come_to_rest(Run& run) {
  ++run.coming_to_rest;
  if (run.coming_to_rest > most_to_rest) {
    fault(run.log, "a window can't be left: " + ui::from_toolkit(told(front(run))));
    run.ended = true;
    return QApplication::exit();
  }
  if (!is_at_rest(run)) {
    QWidget* window = QApplication::activePopupWidget();
    if (!window) window = QApplication::activeModalWidget();
    if (window) leave(run, window, run.coming_to_rest);
    return;
  }
  for (const char* name : {"Frame2", "registered_observations"})
    if (auto* window = run.window->findChild<QWidget*>(name); window && window->isVisible()) window->close();
  if (!is_at_rest(run)) return;
  if (run.session->flags.gps_running == 1)
    if (QWidget* gps = usable_named(run.window, "gps_tool")) return press(run, gps, gps->rect().center());
  run.window->setWindowState(Qt::WindowNoState);
  run.window->resize(1280, 800);
  if (!std::exchange(run.sheet_asked, true)) return open_first_sheet(run);
  look_at_everything(run);
  run.resting = run.sheet_asked = false;
  run.coming_to_rest = 0;
  run.next_check = run.log.step + run.choices.check_every;
  if (run.last_look || is_over(run)) {
    run.ended = true;
    run.window->close();
  }
}

bool fits(const Run& run, Where where, QWidget* window) {
  const bool popup = QApplication::activePopupWidget() != nullptr;
  const bool modal = QApplication::activeModalWidget() != nullptr;
  if (where == Where::popup) return popup;
  if (popup || is_message(window) || window->inherits("QFileDialog")) return where == Where::anywhere;
  if (where == Where::dialog) return modal || window != run.window;
  return where == Where::anywhere || !modal;
}

// The next step of the day, or what is in its way.
void planned(Run& run) {
  const Task task = run.plan.front();
  QWidget* window = QApplication::activePopupWidget();
  if (!window) window = QApplication::activeModalWidget();
  if (!window && task.where == Where::dialog) window = dialog_up(run);
  if (!window) window = run.window;
  // A message is answered, and the day goes on; a dialog that wasn't meant ends it.
  const bool message = is_message(window) || window->inherits("QFileDialog") || window->inherits("QColorDialog");
  if (message && task.where != Where::popup) return noise_in(run, window);
  run.plan.pop_front();
  if (task.where == Where::popup && !QApplication::activePopupWidget()) return;
  if (task.where == Where::dialog && window == run.window) return;  // it was closed before its time
  if (!fits(run, task.where, window)) {
    run.plan.clear();
    count(run.log, "days", "broken off");
    return noise_in(run, window);
  }
  log_line(run.log, "planned: " + task.name);
  run.next_wait = task.rest;
  task.act(run);
}

void act(Run& run) {
  run.consent.deletions = 0;
  if (!run.resting && (run.log.step >= run.next_check || is_over(run))) {
    run.resting = true;
    run.plan.clear();
  }
  if (run.resting) return come_to_rest(run);
  if (!run.plan.empty() && !run.random.one_in(noise_instead)) return planned(run);
  if (run.plan.empty() && run.random.one_in(6) && is_at_rest(run)) return plan_day(run);
  noise(run);
}

// The next step is ordered before this one begins, since this one may open a dialog that has a loop of its own. Within
// one loop there is one step at a time, though the toolkit takes events within a step.
void take_step(Run& run) {
  beat(run.dog);
  if (!run.window || !run.window->isVisible() || run.ended) return;
  const int level = QThread::currentThread()->loopLevel();
  if (level <= run.busy_level) return schedule(run, busy_wait);
  const int outer = run.busy_level;
  run.busy_level = level;
  ++run.log.step;
  const int wait = std::exchange(run.next_wait, 0) + run.random.below(4);
  schedule(run, wait);
  see_windows(run);
  act(run);
  run.busy_level = outer;
}

// One start of the program as main() makes it.
void run_program(Run& run) {
  Fenced_files disk(run.book, run.log, run.consent);
  platform::Journal journal(disk);
  platform::Journal_files files(disk, journal);
  platform::Qt_pictures pictures;
  Recorded_processes processes(run.log, run.failing);
  Counted_prompts prompts(run.log, run.consent);
  platform::System_clock clock;
  Recorded_sheets sheets(run.log, run.failing);
  Recorded_sounds sounds(run.log, run.failing);
  session::Ports ports{files, pictures, prompts, processes, clock, journal, sheets, sounds};

  const auto session = std::make_unique<session::Session>();
  session->state_folder = run.place.state();
  session::form_load(*session, ports, run.place.program());
  ui::Frm_main window(*session, ports);
  prompts.stand_over(&window);
  run.session = session.get();
  run.window = &window;
  run.plan.clear();
  run.busy_level = 0;
  run.resting = run.last_look;
  run.sheet_asked = false;
  run.coming_to_rest = 0;
  ++run.starts;
  count(run.log, "checks", "starts of the program");
  log_line(run.log, "the program starts");
  schedule(run, 0);
  window.start();
  if (window.isVisible()) QApplication::exec();
  log_line(run.log, "the program ends");
  run.window.clear();
  run.session = nullptr;
}

}  // namespace

void drive(Run& run) {
  run.next_check = 1;  // the first look, at an untouched project
  while (!run.ended && !is_over(run)) run_program(run);
  run.ended = false;
  run.last_look = true;
  run_program(run);
  unplug_all(run.instruments);
}

}  // namespace soak
