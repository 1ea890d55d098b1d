#include "emulator/conversation.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <fstream>
#include <iterator>
#include <optional>
#include <thread>

namespace emulator {
namespace {

constexpr int look_again = 20;  // milliseconds between two looks at `stop`
constexpr int largest_repeat = 100'000;
constexpr int bits_of_a_byte = 10;  // start bit, eight data bits, stop bit

std::optional<int> number_of(std::string_view text, int base = 10) {
  int number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (fault != std::errc{} || end != text.data() + text.size() || number < 0) return std::nullopt;
  return number;
}

// The first word of a line; what stands behind the blank that ends it stays.
std::string_view take_word(std::string_view& line) {
  const std::size_t end = std::min(line.find(' '), line.size());
  const std::string_view word = line.substr(0, end);
  line.remove_prefix(std::min(end + 1, line.size()));
  return word;
}

std::string unescaped(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      bytes += text[i];
      continue;
    }
    const char letter = text[++i];
    const std::optional<int> code = letter == 'x' ? number_of(text.substr(i + 1, 2), 16) : std::nullopt;
    if (code) {
      bytes += static_cast<char>(*code);
      i += 2;
    } else {
      bytes += letter == 'r' ? '\r' : letter == 'n' ? '\n' : letter == 't' ? '\t' : letter;
    }
  }
  return bytes;
}

std::string repeated(std::string_view line, int count) {
  std::string bytes;
  for (int i = 1; i <= count; ++i) {
    for (const char c : line)
      if (c == '#')
        bytes += std::to_string(i);
      else
        bytes += c;
    bytes += "\r\n";
  }
  return bytes;
}

std::optional<Step> repeat_of(std::string_view rest) {
  const std::optional<int> count = number_of(take_word(rest));
  if (!count || *count > largest_repeat || !rest.starts_with('<')) return std::nullopt;
  rest.remove_prefix(rest.starts_with("< ") ? 2 : 1);
  return Step{Step_kind::send, repeated(rest, *count), 0};
}

std::optional<Step> step_of(std::string_view line) {
  std::string_view rest = line;
  const std::string_view word = take_word(rest);
  if (word == ">") return Step{Step_kind::expect, std::string(rest), 0};
  if (word == "<") return Step{Step_kind::send, std::string(rest) + "\r\n", 0};
  if (word == "raw") return Step{Step_kind::send, unescaped(rest), 0};
  if (word == "repeat") return repeat_of(rest);
  if (word == "unplug" || word == "close") return Step{Step_kind::unplug, {}, 0};
  if (word == "plug" || word == "open") return Step{Step_kind::plug, {}, 0};
  if (word == "again") return Step{Step_kind::again, {}, 0};
  const std::optional<int> number = number_of(rest);
  if (word == "wait" && number) return Step{Step_kind::wait, {}, *number};
  if (word == "baud" && number) return Step{Step_kind::baud, {}, *number};
  return std::nullopt;
}

void sleep_unless(const std::atomic<bool>& stop, int milliseconds) {
  for (; milliseconds > 0 && !stop; milliseconds -= look_again)
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(milliseconds, look_again)));
}

// Waits for the text; what came before it is passed over, what came behind it is kept for the next step.
void expect(Pseudo_terminal& line, const std::string& text, std::string& heard, const std::atomic<bool>& stop) {
  std::size_t at = heard.find(text);
  while (at == std::string::npos && !stop) {
    heard += line.read(look_again);
    at = heard.find(text);
  }
  if (at != std::string::npos) heard.erase(0, at + text.size());
}

}  // namespace

Conversation conversation_of(std::string_view text) {
  Conversation conversation;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.starts_with('#')) continue;
    if (const std::optional<Step> step = step_of(line))
      conversation.steps.push_back(*step);
    else if (conversation.fault.empty())
      conversation.fault = std::string(line);
  }
  return conversation;
}

Conversation conversation_of_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return {{}, "can't read " + path};
  return conversation_of(std::string(std::istreambuf_iterator<char>(file), {}));
}

bool send_at(Pseudo_terminal& line, std::string_view bytes, int baud, const std::atomic<bool>& stop) {
  if (baud == 0) return line.write(bytes);
  // A piece for each look at the clock, the first one at once.
  using Clock = std::chrono::steady_clock;
  const Clock::time_point start = Clock::now();
  std::size_t sent = 0;
  while (sent < bytes.size() && !stop) {
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count() + look_again;
    const auto due = std::min(bytes.size(), static_cast<std::size_t>(milliseconds * baud / bits_of_a_byte / 1000));
    if (due > sent && !line.write(bytes.substr(sent, due - sent))) return false;
    sent = std::max(sent, due);
    sleep_unless(stop, look_again);
  }
  return sent == bytes.size();
}

bool converse(Pseudo_terminal& line, const Conversation& conversation, const std::atomic<bool>& stop) {
  if (!line.is_plugged_in() && !line.plug_in()) return false;
  std::string heard;
  int baud = 0;
  for (std::size_t i = 0; i < conversation.steps.size() && !stop; ++i) {
    const Step& step = conversation.steps[i];
    bool done = true;
    if (step.kind == Step_kind::expect) expect(line, step.text, heard, stop);
    if (step.kind == Step_kind::send) done = send_at(line, step.text, baud, stop);
    if (step.kind == Step_kind::wait) sleep_unless(stop, step.number);
    if (step.kind == Step_kind::baud) baud = step.number;
    if (step.kind == Step_kind::unplug) line.unplug();
    if (step.kind == Step_kind::plug) done = line.plug_in();
    if (step.kind == Step_kind::again) {
      sleep_unless(stop, 1);  // a conversation of nothing but "again" leaves the machine its breath
      i = static_cast<std::size_t>(-1);
    }
    if (!done && !stop) return false;
  }
  while (!stop) sleep_unless(stop, look_again);
  return true;
}

}  // namespace emulator
