// The port to the office program that fills in a spreadsheet.
#pragma once

#include <string>
#include <vector>

namespace platform {

struct Cell {
  std::string address;  // "B4", or a name that the workbook gives to a cell
  std::string text;     // set as a text, whatever it looks like: "=1+1" is no formula
};

// A workbook to be opened, shown and filled in.
struct Sheet_job {
  std::string workbook;  // path
  std::string sheet;     // name of the sheet, found without regard to case
  std::vector<Cell> cells;
};

enum class Sheet_outcome {
  filled,
  not_shown,   // filled in, but it could not be opened before the user
  no_program,  // no office program is installed
  no_sheet,    // the workbook has no sheet of that name; nothing was set
  bad_cell,    // an address that is none; the other cells are set
  failed       // the workbook could not be opened or written
};

class Sheets {
 public:
  virtual ~Sheets() = default;
  // Sets the cells in the workbook's file and opens it before the user; with no_program, no_sheet and failed the file
  // is as it was and nothing is opened. Returns when the file is filled in, some seconds later.
  virtual Sheet_outcome fill(const Sheet_job& job) = 0;
};

// Where there is no office program.
class No_sheets : public Sheets {
 public:
  Sheet_outcome fill(const Sheet_job&) override { return Sheet_outcome::no_program; }
};

}  // namespace platform
