// Rows of the comma-separated tables of known positions that lie beside the repository.
#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/places.h"

namespace geodesy_test {

using Sample_row = std::map<std::string, std::string>;  // by the names of the first line

// Empty when the file is not there.
inline std::vector<Sample_row> sample_rows(const std::string& name) {
  std::ifstream in(support::shared_data(name));
  const auto pieces = [](const std::string& line) {
    std::vector<std::string> found;
    std::istringstream rest(line);
    for (std::string piece; std::getline(rest, piece, ',');) found.push_back(piece);
    return found;
  };
  std::string line;
  std::getline(in, line);
  const std::vector<std::string> names = pieces(line);
  std::vector<Sample_row> rows;
  while (std::getline(in, line)) {
    const std::vector<std::string> values = pieces(line);
    Sample_row row;
    for (std::size_t i = 0; i < names.size() && i < values.size(); ++i) row[names[i]] = values[i];
    rows.push_back(row);
  }
  return rows;
}

}  // namespace geodesy_test

// Takes the rows into `rows`, or skips the test with a printed reason.
#define TAKE_SAMPLE_ROWS(rows, name)                 \
  const auto rows = geodesy_test::sample_rows(name); \
  if (rows.empty()) GTEST_SKIP() << "no ../shared/data/" << (name) << " beside the repository"
