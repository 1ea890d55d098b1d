#include "make_sample/folders.h"

#include <QBuffer>
#include <cmath>
#include <exception>
#include <mutex>

#include "core/settei.h"
#include "exchange/dbf.h"
#include "make_sample/in_parallel.h"
#include "make_sample/observations.h"
#include "make_sample/palette.h"
#include "make_sample/place.h"
#include "make_sample/sheet_painter.h"
#include "make_sample/tables.h"
#include "platform/failures.h"
#include "platform/text_files.h"

namespace sample {

namespace {

using platform::Files;
using platform::join_path;

constexpr const char* marker = "sample.txt";
constexpr const char* registry = "観測点.csv";
constexpr double relief_spacing = 15;  // metres
// The day on which the table of attributes was made; the sample has the same bytes whenever it is made.
constexpr platform::Date_time table_made{2008, 6, 5};

// A picture to paint, and where it goes.
struct Picture_job {
  std::string path;  // without ".bmp"
  View view;
};

View view_of(const Frame& frame, int scale, int width, Theme theme) {
  const Point south_west = point_of({frame.south / 3600, frame.west / 3600});
  const Point north_east = point_of({frame.north / 3600, frame.east / 3600});
  View view{south_west.x, south_west.y, north_east.x, north_east.y, width, 0, scale, theme};
  view.height = static_cast<int>(std::lround(width * (view.north - view.south) / (view.east - view.west)));
  return view;
}

struct Free_picture {
  const char* stem;
  Theme theme;
  Frame frame;
  bool lettered;  // the layout of its frame file
};

// South, west, north and east in seconds.
constexpr Free_picture free_pictures[] = {
    {"瀬見川地質図", Theme::geological, {128460, 499560, 129000, 500340}, false},
    {"keisharyou", Theme::slope, {128640, 499860, 128880, 500220}, true},
};

void save(Files& files, const std::string& path, const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, "BMP")) throw platform::File_failure(path + " could not be made");
  files.write_whole(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::vector<Picture_job> sheet_jobs(const std::string& program, int width) {
  std::vector<Picture_job> jobs;
  for (const Sheet& sheet : sheets()) {
    const bool small_scale = sheet.kind == Sheet_kind::fifty_thousand;
    const std::string folder = join_path(program, small_scale ? "map50000" : "map");
    jobs.push_back(
        {join_path(folder, sheet.stem), view_of(sheet.frame, small_scale ? 50000 : 25000, width, Theme::topographic)});
  }
  return jobs;
}

std::vector<Picture_job> free_jobs(const std::string& program, int width) {
  std::vector<Picture_job> jobs;
  for (const Free_picture& one : free_pictures)
    jobs.push_back({join_path(join_path(program, "map"), one.stem),
                    view_of(one.frame, one.theme == Theme::geological ? 50000 : 25000, width * 3 / 4, one.theme)});
  return jobs;
}

// The sheets share one palette, fitted to a small picture of the whole country, so that a colour is the same on both
// sides of an edge. A free picture has its own.
void write_pictures(Files& files, const Country& country, const Making& making, const std::string& program) {
  const std::vector<Label> labels = make_labels(country, 25000), labels_50000 = make_labels(country, 50000);
  std::vector<Picture_job> jobs = sheet_jobs(program, making.sheet_width);
  const QList<QRgb> shared = fit_palette(
      paint_sheet(country, labels, view_of(sheets().front().frame, 25000, 800, Theme::topographic), making.font));
  for (const Picture_job& job : free_jobs(program, making.sheet_width)) jobs.push_back(job);

  std::mutex guard;
  std::exception_ptr failure;
  int saved = 0;
  in_parallel(static_cast<int>(jobs.size()), [&](int i) {
    const Picture_job& job = jobs[static_cast<std::size_t>(i)];
    try {
      const QImage picture =
          paint_sheet(country, job.view.scale >= 50000 ? labels_50000 : labels, job.view, making.font);
      const QImage indexed = to_palette(picture, job.view.theme == Theme::topographic ? shared : fit_palette(picture));
      const std::lock_guard lock(guard);
      save(files, job.path + ".bmp", indexed);
      if (making.progress) making.progress(++saved, static_cast<int>(jobs.size()));
    } catch (...) {
      const std::lock_guard lock(guard);
      failure = std::current_exception();
    }
  });
  if (failure) std::rethrow_exception(failure);
}

void write_general(Files& files, const std::string& program) {
  files.write_whole(join_path(program, "igrf10.coef"), field_bytes());
  files.write_whole(join_path(program, "def.dbf"), exchange::dbf_bytes("NAME", "", table_made));
}

void write_tables(Files& files, const Country& country, const std::string& program) {
  const auto write = [&](const std::string& name, const std::string& bytes) {
    files.write_whole(join_path(program, name), bytes);
  };
  write("ZUMEI.CSV", zumei_bytes(sheets()));
  write("map50000\\50000.CSV", fifty_thousand_bytes(sheets()));
  for (const Sheet& sheet : sheets())
    if (sheet.kind == Sheet_kind::fifty_thousand) write("map50000\\" + sheet.stem + ".set", frame_bytes(sheet.frame));
  for (const Free_picture& one : free_pictures)
    write("map\\" + std::string(one.stem) + ".set",
          one.lettered ? lettered_frame_bytes(one.frame) : frame_bytes(one.frame));
  write("mps\\kirisawa.mps", boundary_bytes(country, northern_municipality));
  write("mps\\semigawa.mps", boundary_bytes(country, southern_municipality));
  write("TKY2JGD.par", shift_bytes());
  write_general(files, program);
  platform::Line_writer language;
  language.line("Japanese");
  write("Language.set", language.bytes());
}

void write_project(Files& files, const Country& country, const std::string& project) {
  const std::string data = join_path(project, "chisou_men");
  files.write_whole(join_path(data, registry), registry_bytes(observations(country)));
  files.write_whole(join_path(data, "souzyo.dat"), stack_bytes());
  for (const Surface_record& record : surface_records()) {
    platform::Line_writer line;
    line.line(record.line);
    files.write_whole(join_path(data, record.name + ".par"), line.bytes());
  }
}

void write_settings(Files& files, const std::string& program, const std::string& project) {
  core::Settings settings;
  settings.program_path = program;
  core::Settings_boxes boxes = core::settei_defaults(settings);
  boxes.Dir3 = program;
  boxes.Dir4 = project;
  boxes.File11 = {{registry, true}};
  boxes.Dir10 = join_path(program, "map");
  core::settei_w(settings, boxes, files);
}

void make_folder(Files& files, const std::string& path) {
  if (!files.make_folder(path)) throw platform::File_failure(path + " could not be made");
}

}  // namespace

bool may_write(Files& files, const std::string& target) {
  return !files.folder_exists(target) || files.length(join_path(target, marker)) > 0;
}

void make_general(Files& files, const std::string& folder) {
  make_folder(files, folder);
  write_general(files, folder);
}

void make_folders(Files& files, const Making& making) {
  const std::string program = making.target + "/program", project = making.target + "/project";
  make_folder(files, making.target);
  platform::Line_writer words;
  words.line("This folder was made by make_sample, which may write it anew.");
  files.write_whole(join_path(making.target, marker), words.bytes());
  make_folder(files, program);
  make_folder(files, project);
  files.remove(join_path(program, "settei.ini"));
  for (const char* name : {"map", "map50000", "mps", "data", "pda_chizu", "dummy"})
    make_folder(files, join_path(program, name));
  for (const char* name : {"chisou_men", "data"}) make_folder(files, join_path(project, name));

  const Country country = make_country(relief_spacing);
  write_tables(files, country, program);
  write_project(files, country, project);
  write_pictures(files, country, making, program);
  write_settings(files, program, project);
}

}  // namespace sample
