// A clinometer that answers any bytes, in pieces of any size: the download ends by itself, the log has every byte
// before "END" was seen, and the table has at most 1,200 rows of at least 21 columns and their closing text.
#include <algorithm>

#include "instruments/fake_serial.h"
#include "instruments/tiltvane_line.h"
#include "instruments/tiltvane_link.h"
#include "one_file.h"
#include "platform/text_files.h"
#include "support/fixed_clock.h"
#include "support/memory_files.h"
#include "support/scripted_prompts.h"

namespace {

const std::string program = "C:\\p";

std::string bytes_of(platform::Files& files, const std::string& name) {
  const std::string path = program + "\\" + name;
  return files.length(path) == 0 ? std::string{} : files.read_bytes(path);
}

void look_at_table(platform::Files& files, const std::string& declination) {
  const std::vector<std::string> table = platform::read_lines(files, program + "\\TMP2.TMP");
  support::promise(!table.empty() && table.size() <= instruments::most_records + 1);
  for (std::size_t row = 1; row < table.size(); ++row) {
    const std::string& line = table[row];
    support::promise(std::count(line.begin(), line.end(), ',') >= instruments::file_columns);
    support::promise(line.ends_with("," + declination));
    const std::string again = instruments::reconverted_line(line, declination);
    support::promise(instruments::reconverted_line(again, declination) == again);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::Memory_files files;
  support::Scripted_prompts prompts;
  support::Fixed_clock clock{{2008, 11, 15, 10, 20, 30}};
  support::Fake_serial serial;
  const instruments::Link_ports ports{serial, files, prompts, clock, program};
  instruments::Tiltvane_boxes boxes = instruments::Tiltvane_boxes_r(files, program);
  boxes.Text1 = "-7.1";
  const std::string answer(reinterpret_cast<const char*>(data), size);
  const std::size_t piece = size == 0 ? 1 : 1 + data[0] % 64u;
  std::deque<std::string>& said = serial.devices[5];
  for (std::size_t at = 0; at < size; at += piece) said.push_back(answer.substr(at, piece));

  instruments::Tiltvane_link link;
  instruments::link_start(link, boxes, ports);
  const std::size_t most_ticks = said.size() + instruments::download_quiet_ticks + 1;
  bool done = false;
  for (std::size_t tick = 0; tick < most_ticks && !done; ++tick) done = instruments::timer3_tick(link, boxes, ports);
  support::promise(link.timer == instruments::Link_timer::none && !serial.is_open());
  support::promise(answer.starts_with(bytes_of(files, "Tiltvane.tmp")));
  support::promise(done == (answer.find("END") != std::string::npos));
  if (done) {
    support::promise(bytes_of(files, "TMP.TMP") == bytes_of(files, "Tiltvane.tmp"));
    look_at_table(files, boxes.Text1);
  } else if (instruments::read_again(link, boxes, ports)) {
    look_at_table(files, boxes.Text1);
    support::promise(instruments::broken_download(files, program).path.empty());
  }
  return 0;
}
