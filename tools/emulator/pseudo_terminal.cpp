#include "emulator/pseudo_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <utility>

namespace emulator {
namespace {

constexpr int longest_wait = 3000;  // milliseconds

bool wait_for(int end, short event, int milliseconds) {
  pollfd waiting{end, event, 0};
  return poll(&waiting, 1, milliseconds) > 0 && (waiting.revents & event) != 0;
}

// No echo, no line editing, no change of line ends: the bytes go through as they are.
bool make_raw(int end) {
  termios mode{};
  if (tcgetattr(end, &mode) != 0) return false;
  cfmakeraw(&mode);
  return tcsetattr(end, TCSANOW, &mode) == 0;
}

bool set_link(const std::string& link, const std::string& target) {
  if (link.empty()) return true;
  std::error_code fault;
  std::filesystem::create_directories(std::filesystem::path(link).parent_path(), fault);
  std::filesystem::remove(link, fault);
  std::filesystem::create_symlink(target, link, fault);
  return !fault;
}

}  // namespace

Pseudo_terminal::Pseudo_terminal(std::string link) : link_(std::move(link)) {}

Pseudo_terminal::~Pseudo_terminal() {
  unplug();
}

bool Pseudo_terminal::plug_in() {
  unplug();
  far_end_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
  std::array<char, 64> name{};
  if (far_end_ < 0 || grantpt(far_end_) != 0 || unlockpt(far_end_) != 0 ||
      ptsname_r(far_end_, name.data(), name.size()) != 0) {
    unplug();
    return false;
  }
  path_ = name.data();
  near_end_ = open(path_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (near_end_ >= 0 && make_raw(near_end_) && set_link(link_, path_)) return true;
  unplug();
  return false;
}

void Pseudo_terminal::unplug() {
  if (far_end_ >= 0 && !link_.empty()) {
    std::error_code gone_already;
    std::filesystem::remove(link_, gone_already);
  }
  for (int* end : {&near_end_, &far_end_})
    if (*end >= 0) close(std::exchange(*end, -1));
  path_.clear();
}

bool Pseudo_terminal::write(std::string_view bytes) {
  while (!bytes.empty() && is_plugged_in()) {
    if (!wait_for(far_end_, POLLOUT, longest_wait)) tcflush(near_end_, TCIFLUSH);
    const ssize_t sent = ::write(far_end_, bytes.data(), bytes.size());
    if (sent < 0 && errno != EAGAIN && errno != EINTR) return false;
    if (sent > 0) bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return bytes.empty();
}

std::string Pseudo_terminal::read(int milliseconds) {
  std::array<char, 4096> bytes{};
  if (!is_plugged_in()) {
    poll(nullptr, 0, milliseconds);
    return {};
  }
  if (!wait_for(far_end_, POLLIN, milliseconds)) return {};
  const ssize_t got = ::read(far_end_, bytes.data(), bytes.size());
  return got > 0 ? std::string(bytes.data(), static_cast<std::size_t>(got)) : std::string{};
}

}  // namespace emulator
