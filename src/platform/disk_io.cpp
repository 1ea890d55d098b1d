#include "platform/disk_io.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <system_error>
#include <utility>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr int most_links = 40;
constexpr int most_temporary_names = 1000;

[[noreturn]] void fail(std::errc error) {
  throw std::system_error(std::make_error_code(error));
}

// Where the bytes really go: the end of a chain of symbolic links, which need not exist.
fs::path end_of_links(fs::path path) {
  for (int i = 0; i < most_links; ++i) {
    std::error_code ignored;
    if (!fs::is_symlink(path, ignored)) return path;
    path = path.parent_path() / fs::read_symlink(path);
  }
  fail(std::errc::too_many_symbolic_link_levels);
}

// An ordinary file or nothing stands there; never a folder or a device, over which a rename would go without a word.
void check_target(const fs::path& path) {
  const fs::file_status status = fs::status(path);
  if (fs::is_directory(status)) fail(std::errc::is_a_directory);
  if (fs::exists(status) && !fs::is_regular_file(status)) fail(std::errc::operation_not_permitted);
}

void check_readable(const fs::path& path) {
  const fs::file_status status = fs::status(path);
  if (!fs::exists(status)) fail(std::errc::no_such_file_or_directory);
  check_target(path);
}

#ifdef _WIN32

[[noreturn]] void fail_last() {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

// Faults that have no name in the standard: a share of the disk that is used up, a file that another program holds.
bool is_used_up(const std::error_code& fault) {
  return fault.value() == ERROR_DISK_QUOTA_EXCEEDED;
}
bool is_held(const std::error_code& fault) {
  return fault.value() == ERROR_SHARING_VIOLATION || fault.value() == ERROR_LOCK_VIOLATION;
}

unsigned long process_number() {
  return GetCurrentProcessId();
}

// An open file, closed with its owner.
struct Open_file {
  HANDLE handle;
  Open_file(const fs::path& path, DWORD access, DWORD disposition)
      : handle(
            CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  ~Open_file() {
    if (is_open()) CloseHandle(handle);
  }
  Open_file(const Open_file&) = delete;
  Open_file& operator=(const Open_file&) = delete;
  bool is_open() const { return handle != INVALID_HANDLE_VALUE; }
};

Open_file open_to_read(const fs::path& path) {
  return {path, GENERIC_READ, OPEN_EXISTING};
}
Open_file open_to_lengthen(const fs::path& path) {
  return {path, GENERIC_WRITE, OPEN_ALWAYS};
}
Open_file open_new(const fs::path& path) {
  return {path, GENERIC_WRITE, CREATE_NEW};
}
bool name_was_taken() {
  return GetLastError() == ERROR_FILE_EXISTS;
}

std::size_t read_some(const Open_file& file, char* into, std::size_t room) {
  DWORD got = 0;
  if (!ReadFile(file.handle, into, static_cast<DWORD>(room), &got, nullptr)) fail_last();
  return got;
}

std::size_t write_some(const Open_file& file, std::string_view bytes) {
  DWORD written = 0;
  const DWORD piece = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 0x1000000));
  if (!WriteFile(file.handle, bytes.data(), piece, &written, nullptr)) fail_last();
  return written;
}

void flush(const Open_file& file) {
  if (!FlushFileBuffers(file.handle)) fail_last();
}

// Goes to the end and gives its place.
std::int64_t end_of(const Open_file& file) {
  LARGE_INTEGER end{};
  if (!SetFilePointerEx(file.handle, {}, &end, FILE_END)) fail_last();
  return end.QuadPart;
}

void cut_at(const Open_file& file, std::int64_t length) {
  LARGE_INTEGER end{};
  end.QuadPart = length;
  SetFilePointerEx(file.handle, end, nullptr, FILE_BEGIN);
  SetEndOfFile(file.handle);
}

// The replacing call of this system does it.
void take_permissions(const Open_file&, const fs::path&) {}

void put_in_place(const fs::path& temporary, const fs::path& target) {
  if (fs::exists(target) && ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, 0, nullptr, nullptr)) return;
  if (!MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) fail_last();
}

void flush_folder(const fs::path&) {}

#else

[[noreturn]] void fail_last() {
  throw std::system_error(errno, std::generic_category());
}

// Faults that have no name in the standard: a share of the disk that is used up, a file that another program holds.
bool is_used_up(const std::error_code& fault) {
  return fault.value() == EDQUOT;
}
bool is_held(const std::error_code&) {
  return false;
}

long process_number() {
  return static_cast<long>(getpid());
}

// An open file, closed with its owner.
struct Open_file {
  int handle;
  Open_file(const fs::path& path, int flags, mode_t mode = 0666)
      : handle(open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode)) {}
  ~Open_file() {
    if (is_open()) close(handle);
  }
  Open_file(const Open_file&) = delete;
  Open_file& operator=(const Open_file&) = delete;
  bool is_open() const { return handle >= 0; }
};

Open_file open_to_read(const fs::path& path) {
  return {path, O_RDONLY};
}
Open_file open_to_lengthen(const fs::path& path) {
  return {path, O_WRONLY | O_CREAT | O_APPEND};
}
Open_file open_new(const fs::path& path) {
  return {path, O_WRONLY | O_CREAT | O_EXCL};
}
bool name_was_taken() {
  return errno == EEXIST;
}

std::size_t read_some(const Open_file& file, char* into, std::size_t room) {
  ssize_t got = -1;
  do got = read(file.handle, into, room);
  while (got < 0 && errno == EINTR);
  if (got < 0) fail_last();
  return static_cast<std::size_t>(got);
}

// 0 where a signal came first.
std::size_t write_some(const Open_file& file, std::string_view bytes) {
  const ssize_t written = write(file.handle, bytes.data(), bytes.size());
  if (written < 0 && errno != EINTR) fail_last();
  return written < 0 ? 0 : static_cast<std::size_t>(written);
}

void flush(const Open_file& file) {
  if (fsync(file.handle) != 0) fail_last();
}

std::int64_t end_of(const Open_file& file) {
  struct stat now {};
  if (fstat(file.handle, &now) != 0) fail_last();
  return now.st_size;
}

void cut_at(const Open_file& file, std::int64_t length) {
  [[maybe_unused]] const int cut = ftruncate(file.handle, length);
}

// Gives a new file the permission bits (and, where that is allowed, the owner) of the one it will replace.
void take_permissions(const Open_file& file, const fs::path& from) {
  struct stat old {};
  if (stat(from.c_str(), &old) != 0) return;
  // A file of another owner is replaced all the same: the owner then is who saved it.
  [[maybe_unused]] const int owner_kept = fchown(file.handle, old.st_uid, old.st_gid);
  if (fchmod(file.handle, old.st_mode & 07777) != 0) fail_last();
}

void put_in_place(const fs::path& temporary, const fs::path& target) {
  if (access(target.c_str(), F_OK) == 0 && access(target.c_str(), W_OK) != 0) fail_last();
  if (rename(temporary.c_str(), target.c_str()) != 0) fail_last();
}

// Some file systems can't flush a folder.
void flush_folder(const fs::path& path) {
  const Open_file folder(path, O_RDONLY | O_DIRECTORY);
  if (folder.is_open()) fsync(folder.handle);
}

#endif

void write_all(const Open_file& file, const fs::path& path, std::string_view bytes, const Disk_gate& gate) {
  while (!bytes.empty()) {
    const std::size_t taken = pass(gate, {Step_kind::write, path, bytes.size()});
    bytes.remove_prefix(write_some(file, bytes.substr(0, taken)));
  }
  pass(gate, {Step_kind::flush, path});
  flush(file);
}

// Removed unless it was put in its place. One that can't be removed is left to the next start.
struct Temporary_file {
  fs::path path;
  const Disk_gate& gate;
  bool made = false, in_place = false;
  ~Temporary_file() {
    if (!made || in_place) return;
    try {
      remove_file(path, gate);
    } catch (const std::system_error&) {  // the fault that led here is the one to be told
    }
  }
};

// False when the name is taken.
bool write_new(Temporary_file& temporary, std::string_view bytes, const fs::path& target) {
  const Disk_gate& gate = temporary.gate;
  pass(gate, {Step_kind::create, temporary.path});
  const Open_file file = open_new(temporary.path);
  if (!file.is_open() && name_was_taken()) return false;
  if (!file.is_open()) fail_last();
  temporary.made = true;
  pass(gate, {Step_kind::permit, temporary.path});
  take_permissions(file, target);
  write_all(file, temporary.path, bytes, gate);
  return true;
}

// The rename is done: that the folder can't be flushed changes nothing.
void flush_folder_of(const fs::path& target, const Disk_gate& gate) {
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  try {
    pass(gate, {Step_kind::flush, folder});
    flush_folder(folder);
  } catch (const std::system_error&) {
  }
}

fs::path temporary_name(const fs::path& target) {
  static std::atomic<unsigned> count{0};
  return target.parent_path() /
         (".terranote-" + std::to_string(process_number()) + "-" + std::to_string(++count) + ".tmp");
}

}  // namespace

void replace_file(const fs::path& path, std::string_view bytes, const Disk_gate& gate) {
  const fs::path target = end_of_links(path);
  check_target(target);
  for (int i = 0; i < most_temporary_names; ++i) {
    const fs::path name = temporary_name(target);
    std::error_code ignored;
    if (fs::exists(name, ignored)) continue;
    Temporary_file temporary{name, gate};
    if (!write_new(temporary, bytes, target)) continue;
    pass(gate, {Step_kind::rename, target});
    put_in_place(temporary.path, target);
    temporary.in_place = true;
    flush_folder_of(target, gate);
    return;
  }
  fail(std::errc::file_exists);
}

void append_file(const fs::path& path, std::string_view bytes, const Disk_gate& gate) {
  check_target(path);
  const bool is_new = !fs::exists(path);
  pass(gate, {Step_kind::open, path});
  const Open_file file = open_to_lengthen(path);
  if (!file.is_open()) fail_last();
  const std::int64_t length = end_of(file);
  try {
    write_all(file, path, bytes, gate);
  } catch (const std::system_error&) {
    pass(gate, {Step_kind::cut, path});
    cut_at(file, length);
    if (is_new) remove_file(path, gate);
    throw;
  }
}

void read_file_pieces(const fs::path& path, const std::function<bool(std::string_view)>& take, const Disk_gate& gate) {
  check_readable(path);
  pass(gate, {Step_kind::open, path});
  const Open_file file = open_to_read(path);
  if (!file.is_open()) fail_last();
  std::array<char, 65536> piece;
  while (true) {
    pass(gate, {Step_kind::read, path});
    const std::size_t got = read_some(file, piece.data(), piece.size());
    if (got == 0 || !take({piece.data(), got})) return;
  }
}

bool remove_file(const fs::path& path, const Disk_gate& gate) {
  if (fs::is_directory(fs::symlink_status(path))) fail(std::errc::is_a_directory);
  pass(gate, {Step_kind::remove, path});
  return fs::remove(path);
}

void make_one_folder(const fs::path& path, const Disk_gate& gate) {
  pass(gate, {Step_kind::make_folder, path});
  fs::create_directory(path);
}

#ifdef _WIN32

// What can't be converted becomes U+FFFD, in both directions.
fs::path machine_path(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return {};
  const int size = static_cast<int>(path.size());
  std::wstring wide(path.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, path.data(), size, wide.data(), static_cast<int>(wide.size()))));
  std::replace(wide.begin(), wide.end(), L'/', L'\\');
  return wide;
}

std::string path_text(const fs::path& path) {
  const std::wstring& wide = path.native();
  std::string text(wide.size() * 3, '\0');
  text.resize(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                                                   static_cast<int>(text.size()), nullptr, nullptr)));
  return text;
}

File_facts facts_of(const fs::path& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return {};
  constexpr std::int64_t from_1601_to_1970 = 116444736000000000;  // in steps of 100 ns
  const auto whole = [](DWORD high, DWORD low) { return static_cast<std::int64_t>(high) << 32 | low; };
  File_facts facts;
  facts.is_folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  facts.is_file = !facts.is_folder;
  facts.size = whole(data.nFileSizeHigh, data.nFileSizeLow);
  facts.changed_ns =
      (whole(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime) - from_1601_to_1970) * 100;
  return facts;
}

#else

fs::path machine_path(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return {};
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  const std::size_t last = text.find_last_not_of('/');
  if (last != std::string::npos) text.resize(last + 1);
  return text;
}

std::string path_text(const fs::path& path) {
  return path.string();
}

File_facts facts_of(const fs::path& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return {};
  File_facts facts;
  facts.is_file = S_ISREG(status.st_mode);
  facts.is_folder = S_ISDIR(status.st_mode);
  facts.size = status.st_size;
#ifdef __APPLE__
  const timespec& changed = status.st_mtimespec;
#else
  const timespec& changed = status.st_mtim;
#endif
  facts.changed_ns = static_cast<std::int64_t>(changed.tv_sec) * 1'000'000'000 + changed.tv_nsec;
  return facts;
}

#endif

// The size told is a hint: a file may grow, and some tell none.
std::string read_file(const fs::path& path, const Disk_gate& gate) {
  const std::int64_t size = facts_of(path).size;
  if (size > largest_file_bytes) fail(std::errc::file_too_large);
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(size));
  const auto take = [&](std::string_view piece) {
    if (static_cast<std::int64_t>(bytes.size() + piece.size()) > largest_file_bytes) fail(std::errc::file_too_large);
    bytes.append(piece);
    return true;
  };
  read_file_pieces(path, take, gate);
  return bytes;
}

File_cause cause_of(const std::error_code& fault) {
  static const std::pair<std::errc, File_cause> causes[] = {
      {std::errc::no_space_on_device, File_cause::disk_full},
      {std::errc::permission_denied, File_cause::not_allowed},
      {std::errc::operation_not_permitted, File_cause::not_allowed},
      {std::errc::read_only_file_system, File_cause::not_allowed},
      {std::errc::no_such_file_or_directory, File_cause::missing},
      {std::errc::not_a_directory, File_cause::missing},
      {std::errc::device_or_resource_busy, File_cause::in_use},
      {std::errc::text_file_busy, File_cause::in_use},
      {std::errc::file_too_large, File_cause::too_large},
      {std::errc::io_error, File_cause::broken},
      {std::errc::no_such_device, File_cause::broken},
      {std::errc::no_such_device_or_address, File_cause::broken},
  };
  if (is_used_up(fault)) return File_cause::disk_full;
  for (const auto& [error, cause] : causes)
    if (fault == error) return cause;
  return is_held(fault) ? File_cause::in_use : File_cause::unknown;
}

std::vector<std::string> names_in(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code fault;
  fs::directory_iterator entry(folder, fault);
  for (; !fault && entry != fs::directory_iterator(); entry.increment(fault))
    names.push_back(path_text(entry->path().filename()));
  return names;
}

}  // namespace platform
