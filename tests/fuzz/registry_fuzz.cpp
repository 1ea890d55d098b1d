// A registration file of any bytes: what was read whole and is written reads back as the same records, and is written
// the same again.
#include "observations/record_line.h"
#include "observations/reference_points.h"
#include "observations/registry.h"
#include "observations/registry_numbers.h"
#include "one_file.h"
#include "platform/failures.h"

namespace {

observations::Registry& table(int which) {
  static observations::Registry tables[2];  // their memory is taken once
  return tables[which];
}

// False where the read ended in a failure.
bool read(observations::Registry& registry, std::string_view bytes) {
  support::One_file files(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  try {
    observations::chisoumen_read(registry, files, 1, {"a.csv"});
  } catch (const platform::Subscript_failure&) {
    support::promise(!registry.complete);
    return false;
  }
  return true;
}

// The write leaves out a record at X = -9999, and the next read every line that holds the text.
bool keeps_all(const std::string& bytes) {
  return bytes.find(observations::no_data_text) == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  observations::Registry& first = table(0);
  observations::Registry& second = table(1);
  const bool whole = read(first, {reinterpret_cast<const char*>(data), size});
  support::promise(first.N >= 0 && first.N <= observations::record_limit);
  for (int i = 1; i <= first.N; ++i) {
    support::promise(first.rows[i].size != 0);
    support::promise(first.rows[i].vertices.size() <= observations::vertex_limit);
  }
  const std::string written = observations::registry_bytes(first);
  if (whole && keeps_all(written)) {
    support::promise(read(second, written));
    support::promise(second.complete && second.N == first.N);
    support::promise(observations::registry_bytes(second) == written);
    for (int i = 1; i <= first.N; ++i) {
      support::promise(second.rows[i].strays == first.rows[i].strays);
      support::promise(second.rows[i].touroku_no == first.rows[i].touroku_no);
      support::promise(second.rows[i].keisoku_no == first.rows[i].keisoku_no);
    }
  }

  support::One_file files(data, size);
  static observations::Reference_points points;
  observations::chisoumen_read4(points, files, 2, {"a.csv", "b.csv"});
  support::promise(points.count >= 0 && points.count <= observations::reference_limit);
  support::promise(observations::touroku_no_get(files, "C:\\p", {2008, 11, 15, 0, 0, 0}).size() == 10);
  return 0;
}
