// Rows of the comma-separated tables of tests/golden/observations, by the names of their first line.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "support/places.h"

namespace observations_test {

using Row = std::map<std::string, std::string>;

inline std::vector<std::string> pieces(const std::string& line) {
  std::vector<std::string> found(1);
  for (const char c : line)
    if (c == ',')
      found.emplace_back();
    else
      found.back() += c;
  return found;
}

// Empty when the file is not there.
inline std::vector<Row> rows_of(const std::string& path) {
  std::ifstream in(path);
  std::string line;
  std::getline(in, line);
  const std::vector<std::string> names = pieces(line);
  std::vector<Row> rows;
  while (std::getline(in, line)) {
    const std::vector<std::string> values = pieces(line);
    Row row;
    for (std::size_t i = 0; i < names.size() && i < values.size(); ++i) row[names[i]] = values[i];
    rows.push_back(row);
  }
  return rows;
}

inline std::vector<Row> golden_rows(const std::string& name) {
  return rows_of(support::golden_file("observations/" + name));
}

inline double number(const Row& row, const std::string& name) {
  return std::strtod(row.at(name).c_str(), nullptr);
}

}  // namespace observations_test
