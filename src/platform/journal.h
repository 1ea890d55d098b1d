// Undo and redo of whole operations on a project's files, across restarts. Before a file is changed, the journal keeps
// what is needed to give it back; the journal lies in the user's own folder, one for each project.
//
// An operation is what one begin() and its end() enclose. Its changes to the files below the watched folders are taken
// back together or not at all, the newest operation first. A file that holds anything but what the operation left in it
// stops an undo before a byte is changed; so does a file that was written outside of every operation.
//
// What a kill leaves: in the middle of an operation, its changes so far, which an undo takes back as a whole; in the
// middle of an undo or redo, an intent that the next open() carries out. Folders that were made stay.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/journal_moves.h"
#include "platform/journal_store.h"

namespace platform {

enum class Undo_outcome {
  done,
  nothing,          // there is no such operation, or one is open
  changed,          // `files` were changed by another program; nothing was done
  failed,           // `files` could not be read or written; all is as it was
  broken_off,       // the same, and some files are changed already: the next undo, redo or opening goes on
  unreadable,       // the journal's own files are damaged; nothing was done
  without_journal,  // see state()
};

struct Undo_result {
  Undo_outcome outcome = Undo_outcome::nothing;
  Operation_title title;
  std::vector<std::string> files;  // paths: of done, what was moved; else what stood in the way
};

class Journal {
 public:
  // `files` are the files themselves, below Journal_files.
  explicit Journal(Files& files, Journal_limits limits = {});
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  // Keeps the journal of this project from now on, in a folder of its own below `state_folder`, and watches the project
  // and the program folder. An undo or redo that a kill broke off is brought to its end. An operation that is open ends
  // in the journal before and goes on in this one. The same project again changes nothing.
  Journal_state open(const std::string& state_folder, const std::string& project_path, const std::string& program_path);
  void close();
  Journal_state state() const { return state_; }

  // An operation within an operation belongs to the outer one, and so does its title.
  void begin(const std::string& japanese, const std::string& english);
  void end();

  // The newest operation that changed a file can't be taken back: it found no room or could not be written.
  bool lost() const { return lost_; }
  // What undo() or redo() would do now; none when there is nothing. Good until the journal changes.
  const Operation_title* undo_title() const;
  const Operation_title* redo_title() const;
  Undo_result undo();
  Undo_result redo();

  // For Journal_files: a file is about to hold `after`, or `added` more; and the last such write failed. File_failure
  // when what is kept of this operation can neither be completed nor removed.
  void before_write(const std::string& path, std::string_view after);
  void before_append(const std::string& path, std::string_view added);
  void before_remove(const std::string& path);
  void write_failed();

 private:
  bool watches(const std::string& path) const;
  void keep(const Change& change);
  bool make_or_add(std::string_view record);
  void lose();
  void end_operation();
  Operation* newest_applied();
  Operation* pending();
  Undo_result undo(Operation& operation);
  Undo_result redo(Operation& operation);
  Undo_result go_on(Operation& operation, Direction direction);
  Undo_result carry_out(Operation& operation, const std::vector<File_move>& moves, Direction direction);

  Journal_store store_;
  Journal_state state_ = Journal_state::closed;
  std::vector<std::string> watched_;
  int depth_ = 0;
  Operation_title title_;
  bool writing_ = false;  // the open operation is the last of the store
  bool torn_ = false;     // its file could not be lengthened
  bool losing_ = false;   // the open operation goes on without the journal
  bool lost_ = false;
  bool last_kept_ = false;  // the last write is the last change of the open operation
};

// From begin() to end(), whatever happens in between.
struct Journal_operation {
  Journal_operation(Journal& to, const std::string& japanese, const std::string& english) : journal(to) {
    journal.begin(japanese, english);
  }
  ~Journal_operation() { journal.end(); }
  Journal_operation(const Journal_operation&) = delete;
  Journal_operation& operator=(const Journal_operation&) = delete;
  Journal& journal;
};

// Files whose changes go into a journal. A copy writes what was read, so that the file holds what the journal tells.
class Journal_files : public Files {
 public:
  Journal_files(Files& behind, Journal& journal) : behind_(behind), journal_(journal) {}

  std::int64_t length(const std::string& path) override { return behind_.length(path); }
  std::string read_bytes(const std::string& path) override { return behind_.read_bytes(path); }
  void read_pieces(const std::string& path, const std::function<bool(std::string_view)>& take) override {
    behind_.read_pieces(path, take);
  }
  void write_whole(const std::string& path, std::string_view bytes) override;
  void append(const std::string& path, std::string_view bytes) override;
  void copy(const std::string& from, const std::string& to) override;
  bool remove(const std::string& path) override;
  bool make_folder(const std::string& path) override { return behind_.make_folder(path); }
  bool folder_exists(const std::string& path) override { return behind_.folder_exists(path); }
  std::vector<std::string> list(const std::string& folder, std::string_view pattern) override {
    return behind_.list(folder, pattern);
  }
  std::int64_t time_stamp(const std::string& path) override { return behind_.time_stamp(path); }
  std::string native_path(const std::string& path) override { return behind_.native_path(path); }
  void remove_left_over(const std::string& folder) override { behind_.remove_left_over(folder); }

 private:
  Files& behind_;
  Journal& journal_;
};

}  // namespace platform
