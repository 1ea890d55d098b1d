// The registered observations as the table beside the map shows them: the text of each cell, the order of the rows, and
// which of them a filter keeps. Texts are UTF-8, records are told by their number from 1; it knows no widget.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "observations/chiten_out.h"
#include "observations/registry.h"
#include "observations/understood.h"

namespace ui {

enum List_column {
  column_record,
  column_registration,
  column_measurement,
  column_taishou,
  column_chisou,
  column_X,
  column_Y,
  column_Z,
  column_soukou,
  column_keisha,
  column_true_strike,
  column_sen_keisha,
  column_sen_houkou,
  column_mark,
  column_size,
  column_vertices,
  column_time,
  column_gazou,
  column_boundary,
  column_corrected,
  list_columns
};

// What a person wants to see of the list, beside the words of the filter.
enum class Kept { all, with_strike, lineations, lines_and_areas, uncorrected, with_image };

// A record as it was read, and what is worked out from it once.
struct Listed {
  observations::Record record;
  std::optional<double> declination;  // at its place, degrees; none where it isn't known
  std::string identity;               // identity_of the record
  std::string searched;               // the texts of all its cells in small letters, each ended by a line end
  std::string true_strike;            // empty without a strike
  double true_azimuth = 0;            // degrees, 0 up to 360
  double added = 0;                   // the declination that the true strike has taken, rounded as the displays do
  observations::Correction correction = observations::Correction::unknown;
};

// Record n is row n - 1.
struct Observation_list {
  bool japanese = true;
  std::vector<Listed> rows;
};

// The list of all records, with the true strikes for the declinations of `drawn`. A record of which `drawn` tells no
// declination counts as uncorrected. Rows that are still those of `before` are taken from it.
Observation_list observation_list(const observations::Registry& registry, const observations::Drawn_records& drawn,
                                  bool japanese, const Observation_list& before = {});

// The text of a cell; empty for a record that the list doesn't hold. Positions stand as degrees, minutes and seconds
// where they are geographic, with " m" behind otherwise.
std::string cell_text(const Observation_list& list, int touroku, int column);

// The numbers of the records that hold each word of `words` (parted by half- or full-width blanks) in one of their
// cells, without regard to case, and that `kept` keeps. In the order of the file.
std::vector<int> filtered(const Observation_list& list, std::string_view words, Kept kept);

// Sorts record numbers that stand in the order of the file: numbers by value, texts with numbers in natural order,
// equal ones as in the file, empty cells last in either direction.
void sort_records(const Observation_list& list, int column, bool descending, std::vector<int>& records);

// By what a record is found again after another read: its registration number, or else its position.
std::string identity_of(const observations::Record& record);

// For each record of `before` its number in `after`; 0 where it went. A record that is not found by its
// identity stays at its number where both lists are equally long and no other record stands there now.
std::vector<int> followed(const Observation_list& before, const Observation_list& after);

}  // namespace ui
