// Faults inside the files port: a gate of Disk_files that counts the steps of an operation, and at one of them fails,
// goes on failing, or ends the process; or lets the disk run full after so many bytes. See platform/disk_gate.h.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <system_error>
#include <vector>

#include "platform/disk_gate.h"

namespace support {

using platform::Disk_step;
using platform::Step_kind;

enum class Strike {
  none,
  once,      // the step fails, the later ones don't
  from_now,  // it fails and every later one: the device is gone
  full,      // the disk is full after `room` bytes
  kill,      // the process ends before the step
  kill_half  // it ends in the middle of the step, which is a write
};

struct Fault {
  Strike strike = Strike::none;
  std::size_t step = 0;    // which one, counted from 0 since the gate was armed
  std::uint64_t room = 0;  // of `full`
};

struct Counted_step {
  Step_kind kind;
  std::string path;
  std::size_t bytes;
};

// What a step of this kind fails with on a machine.
inline std::errc fault_of(Step_kind kind) {
  switch (kind) {
    case Step_kind::read:
    case Step_kind::write:
    case Step_kind::flush:
    case Step_kind::cut:
      return std::errc::io_error;
    case Step_kind::rename:
      return std::errc::device_or_resource_busy;
    default:
      return std::errc::permission_denied;
  }
}

constexpr int killed_status = 42;  // of a process that a kill ended

struct Fault_gate {
  bool armed = false;
  Fault fault;
  std::vector<Counted_step> steps;  // that were asked for since arm()
  bool struck = false;
  std::function<void()> at_each_step;

  void arm(Fault to_come) {
    fault = to_come;
    steps.clear();
    written_ = 0;
    struck = half_done_ = false;
    armed = true;
  }

  std::size_t take(const Disk_step& step) {
    if (!armed) return step.bytes;
    const std::size_t number = steps.size();
    steps.push_back({step.kind, step.path.string(), step.bytes});
    if (at_each_step) at_each_step();
    if (half_done_) std::_Exit(killed_status);
    if (fault.strike == Strike::full) return room_left(step);
    if (fault.strike == Strike::none || number < fault.step) return step.bytes;
    if (number > fault.step && fault.strike != Strike::from_now) return step.bytes;
    return strike(step);
  }

 private:
  std::size_t strike(const Disk_step& step) {
    if (fault.strike == Strike::kill) std::_Exit(killed_status);
    struck = true;
    if (fault.strike == Strike::kill_half) {
      half_done_ = true;
      return std::max<std::size_t>(step.bytes / 2, 1);
    }
    const bool device_gone = fault.strike == Strike::from_now;
    throw std::system_error(std::make_error_code(device_gone ? std::errc::io_error : fault_of(step.kind)));
  }

  // As a disk does: what finds room is written, and the next byte is refused.
  std::size_t room_left(const Disk_step& step) {
    if (step.kind != Step_kind::write) return step.bytes;
    const std::uint64_t room = fault.room - std::min(fault.room, written_);
    if (room == 0) {
      struck = true;
      throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
    }
    const std::size_t taken = static_cast<std::size_t>(std::min<std::uint64_t>(room, step.bytes));
    written_ += taken;
    return taken;
  }

  std::uint64_t written_ = 0;
  bool half_done_ = false;
};

}  // namespace support
