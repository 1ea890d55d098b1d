// The port to the office program that fills in a spreadsheet.
#pragma once

#include <string>
#include <vector>

namespace platform {

struct Cell {
  std::string address;  // "B4"
  std::string text;
};

// A workbook to be opened, shown and filled in.
struct Sheet_job {
  std::string workbook;  // path
  std::string sheet;     // name of the sheet
  std::vector<Cell> cells;
};

enum class Sheet_outcome {
  filled,
  no_program,  // no office program is installed
  no_sheet,    // the workbook has no sheet of that name; nothing was set
  bad_cell,    // an address that is none; the other cells are set
  failed       // the workbook could not be opened or written
};

class Sheets {
 public:
  virtual ~Sheets() = default;
  // Sets the cells and leaves the workbook open before the user. The workbook's file holds the cells too.
  virtual Sheet_outcome fill(const Sheet_job& job) = 0;
};

// Where there is no office program.
class No_sheets : public Sheets {
 public:
  Sheet_outcome fill(const Sheet_job&) override { return Sheet_outcome::no_program; }
};

}  // namespace platform
