// The registry of field observations: the point registration file and the table that is made of it.
//
// A record is one line of \chisou_men\<name>.csv: columns parted by bare commas, no header, no quoting, so that a comma
// inside a text moves all that follows. The columns, counted from 1:
//    1 boundary   2 X   3 Y   4 Z   5 taishou   6 chisou   7 soukou   8 keisha   9 touroku_no   10 gazou   11 mark
//   12 size   13-15 R G B   16-18 R2 G2 B2   19 henkaku_done   20 decl_flag2   21 keisoku_jikoku   22 sen_keisha
//   23 sen_houkou   24 count   25... the vertices, x and y by turns
//
// X, Y and the vertices have one of two units, told apart by magnitude alone: geographic units (degrees x 100000) when
// both lie beyond 1,000,000, plane metres otherwise. Nothing in the file says which.
//
// A record's number is its place among the lines of the file that don't hold the text "-9999". It changes when an
// earlier record goes. The file is the truth: each redraw reads it again, and each save writes it whole.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/project_settings.h"
#include "geodesy/plane.h"
#include "platform/files.h"
#include "platform/rows.h"
#include "platform/text_files.h"

namespace observations {

inline constexpr int record_limit = 15'000;
// A line keeps 300 columns, so it can't hold the 150 vertices that the table has room for.
inline constexpr int line_fields = 300;
inline constexpr int vertex_limit = (line_fields - 24) / 2;
inline constexpr double no_data = -9999;              // an X that takes its record out of the file
inline constexpr const char* no_data_text = "-9999";  // a line that holds it anywhere counts as deleted
inline constexpr double geographic_from = 1'000'000;  // beyond it both coordinates are geographic

// A byte of a text column that the code page has no character for: which column, and where its U+FFFD stands in the
// column's text.
struct Stray_byte {
  int column = 0;
  std::size_t offset = 0;
  std::uint8_t byte = 0;
  bool operator==(const Stray_byte&) const = default;
};

struct Record {
  double boundary = 0;     // 1: "境界に使用する"
  double X = 0, Y = 0;     // geographic units or metres
  std::string Z;           // elevation as typed
  std::string taishou;     // measured object
  std::string chisou;      // stratum
  std::string soukou;      // strike, "N15W"
  std::string keisha;      // dip, "30E"
  std::string touroku_no;  // registration number, and behind a "*" the measurement number
  std::string gazou;       // picture or sheet file
  std::string mark;        // name of the mark, in the language in which it was chosen
  double size = 0;         // of the mark, 1 to 10
  double R = 0, G = 0, B = 0;
  double R2 = 0, G2 = 0, B2 = 0;  // of lines and enclosures
  std::string henkaku_done;       // "1": already turned to true north
  std::string decl_flag2;         // "1": the instrument reported a declination
  std::string keisoku_jikoku;     // time of an instrument's measurement
  std::string sen_keisha;         // plunge of a lineation
  std::string sen_houkou;         // trend of a lineation
  std::vector<geodesy::Point> vertices;
  std::string keisoku_no;  // the part of touroku_no behind the first "*"
  std::vector<Stray_byte> strays;
  bool operator==(const Record&) const;
};

struct Registry {
  platform::Rows<Record, record_limit> rows;
  int N = 0;
  // Whether the rows are all that the file holds. A table that is not is never saved.
  bool complete = true;
  std::string file;  // path of the file that was read; empty before the first read
  int reads = 0;     // how often the table was read; record numbers hold from one read to the next
  std::int64_t length = 0, time_stamp = 0;  // of the file, just before it was read
};

// Reads registry files into the table: `count` passes, each over the first entry of `files` (paths), so a count above 1
// appends the same records once more. A missing or empty file has no records. Record 15,001 and a record with more
// vertices than vertex_limit raise Subscript_failure; the records before it are loaded then, and the table is
// incomplete. So it is, without a failure, when a file can't be read, and with any other `count` than 1.
void chisoumen_read(Registry& registry, platform::Files& files, int count, const std::vector<std::string>& paths);

// Whether the file is another one than was read: written again, gone or new.
bool is_changed(const Registry& registry, platform::Files& files);

// The content of the file: records 1 to N in order, those whose X is -9999 left out.
std::string registry_bytes(const Registry& registry);

// The registration file in use; empty when none is chosen or its name is no bare file name.
std::string registry_file(const core::Settings& settings);

// Copies every *.csv of \chisou_men into \chisou_men\csv, made when it is missing. A copy that fails is left out.
void registry_backup(platform::Files& files, const std::string& project_path);

// The lines of a file that is to be written again. File_failure when it has a length and can't be read, or when text
// stands behind an end-of-text mark (1A), where reading stops: written again, the file would lose it. A missing file
// has no lines.
std::vector<platform::Text_line> lines_to_keep(platform::Files& files, const std::string& path);

// Whether a line of a registry counts as deleted.
bool is_deleted(std::string_view line);

// Whether X and Y are geographic units.
bool is_geographic(const Record& record);

}  // namespace observations
