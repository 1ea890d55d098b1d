// The program's ports as they stand in a run: files within a fence, each write of which is noted and judged; messages
// that are counted; programs, sounds and workbooks that are recorded and never started.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/processes.h"
#include "platform/sheets.h"
#include "platform/sounds.h"
#include "soak/file_book.h"
#include "soak/random.h"
#include "soak/run_log.h"
#include "ui/qt_prompts.h"

namespace soak {

// What a person has agreed to lately; a loss of lines or files needs it.
struct Consent {
  int deletions = 0;  // questions about a deletion that were answered with OK or Yes, and not used up
};

class Fenced_files : public platform::Disk_files {
 public:
  Fenced_files(File_book& book, Run_log& log, Consent& consent) : book_(book), log_(log), consent_(consent) {}
  void write_whole(const std::string& path, std::string_view bytes) override;
  void append(const std::string& path, std::string_view bytes) override;
  void copy(const std::string& from, const std::string& to) override;
  bool remove(const std::string& path) override;
  bool make_folder(const std::string& path) override;

 private:
  void check_fence(const std::string& path);
  bool is_inside(const std::string& path);
  bool is_journal(const std::string& path);
  void note(const std::string& path, std::string_view before, std::string_view bytes);
  void judge_registry(const std::string& path, std::string_view before, std::string_view after);

  File_book& book_;
  Run_log& log_;
  Consent& consent_;
};

class Counted_prompts : public ui::Qt_prompts {
 public:
  Counted_prompts(Run_log& log, Consent& consent) : log_(log), consent_(consent) {}

 protected:
  platform::Answer show(Kind kind, const std::string& text) override;

 private:
  Run_log& log_;
  Consent& consent_;
};

// Each fails now and then, as the machine's own would.
class Recorded_processes : public platform::Processes {
 public:
  Recorded_processes(Run_log& log, Random& random) : log_(log), random_(random) {}
  bool start(const std::string& executable, const std::vector<std::string>& arguments,
             const std::string& folder) override;
  bool open_with_program(const std::string& file_or_address) override;

 private:
  Run_log& log_;
  Random& random_;
};

class Recorded_sheets : public platform::Sheets {
 public:
  Recorded_sheets(Run_log& log, Random& random) : log_(log), random_(random) {}
  platform::Sheet_outcome fill(const platform::Sheet_job& job) override;

 private:
  Run_log& log_;
  Random& random_;
};

class Recorded_sounds : public platform::Sounds {
 public:
  Recorded_sounds(Run_log& log, Random& random) : log_(log), random_(random) {}
  bool play(const std::string& path) override;

 private:
  Run_log& log_;
  Random& random_;
};

}  // namespace soak
