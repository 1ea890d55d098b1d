// A coefficient file of any bytes: it is read without a fault, and a declination is a value within 90 degrees or one of
// the two failures that are told.
#include <cmath>

#include "observations/declination.h"
#include "one_file.h"
#include "platform/failures.h"

namespace {

class Stamped_file : public support::One_file {
 public:
  using One_file::One_file;
  std::int64_t time_stamp(const std::string&) override { return 1; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Stamped_file files(data, size);
  observations::Coefficients kept;
  const auto fault = observations::take_coefficients(files, "C:\\program", kept);
  support::promise((fault == observations::Coefficient_fault::none) == (kept.field.order > 0));
  support::promise(kept.field.order >= 0 && kept.field.order <= observations::largest_degree);
  support::promise(observations::sentence_of(fault).has_value() == (kept.field.order == 0));
  for (const double latitude : {-90.0, 0.0, 35.5, 90.0}) {
    try {
      const double degrees = observations::declination(files, "C:\\program", kept, latitude, 139.7);
      support::promise(std::abs(degrees) <= 90.0001);
    } catch (const platform::Division_failure&) {
      support::promise(kept.field.order > 0);
    } catch (const platform::File_failure&) {
      support::promise(kept.field.order == 0);
    }
  }
  return 0;
}
