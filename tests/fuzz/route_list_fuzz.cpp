// Lists of routes of any bytes: no name of keiro_out.dat leads out of the folder of the tracks, what is read twice is
// read once, and a dialog that opens on the list ticks nothing that the folder doesn't have.
#include "instruments/route_lists.h"
#include "instruments/routes.h"
#include "one_file.h"

namespace {

// The list's own bytes under the two lists' names; every other file is empty.
class List_files : public support::One_file {
 public:
  using One_file::One_file;
  std::int64_t length(const std::string& path) override { return is_list(path) ? One_file::length(path) : 0; }
  std::vector<std::string> list(const std::string&, std::string_view) override { return {"a.txt", "沢.NME"}; }
  std::int64_t time_stamp(const std::string&) override { return 0; }
  bool folder_exists(const std::string&) override { return true; }

 private:
  static bool is_list(const std::string& path) { return path.ends_with(".dat"); }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  List_files files(data, size);
  instruments::Routes routes;
  instruments::routes_r(files, "C:\\p", routes);
  const std::string inside = instruments::gps_folder("C:\\p") + "\\";
  for (const instruments::Route_file& file : routes.files) {
    if (file.is_log) continue;
    support::promise(file.path.starts_with(inside));
    support::promise(file.path.find_first_of("\\/:", inside.size()) == std::string::npos);
  }
  support::promise(!instruments::routes_r(files, "C:\\p", routes));

  core::Settings settings;
  settings.project_path = "C:\\p";
  instruments::Route_boxes boxes;
  instruments::frm_keiro_load(files, settings, boxes);
  support::promise(boxes.List1.size() == 2);
  instruments::frm_keiroNMEA_load(files, settings, boxes);
  support::promise(boxes.List1.size() == 2);
  return 0;
}
