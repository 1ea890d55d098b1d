// What the tests of the clinometer's data share: a project and a program folder, and three measurements.
#pragma once

#include <string>
#include <vector>

#include "instruments/measurement_files.h"
#include "instruments/tiltvane_line.h"
#include "observations/observation_place.h"
#include "platform/text_files.h"

namespace support {

// A plane with a lineation and a position; a plane without either; a lineation without a plane. Turned by -7 degrees.
inline const std::string with_lineation =
    "1,L,N50E,49S,3.5,N30E,12,2008/11/15 10:20:30,＋,0,0,N43E,49E,3.5,N23E,12,-7,3541.1234,N,13945.6789,E,-7";
inline const std::string plane_alone =
    "2,P,N20W,30E,0.1,  ,  ,2008/11/15 08:05:09,●,0,0,N27W,30E,0.1,  ,  ,-7,-,-,-,-,-7";
inline const std::string without_plane =
    "3,L,-0-,,0.2,-0-,,2009/01/01 03:04:05,★,0,0,,,0.2,,,-7,3542.5,N,13946.25,E,-7";

struct Data_place : Observation_place {
  instruments::Measurement_list list;

  instruments::Data_context context() { return {settings, files, clock, prompts}; }
  void speak(const std::string& language) {
    settings.language = language;
    prompts.use_language(language);
  }
  void put_program(const std::string& name, const std::vector<std::string>& lines) {
    disk.make_folder(folder.text() + "\\Tiltvane");
    disk.write_whole(folder.text() + "\\" + name, lines_932(lines));
  }
  std::string program_bytes(const std::string& name) { return disk.read_bytes(folder.text() + "\\" + name); }
  // All rows ticked.
  void show(const std::vector<std::string>& lines) {
    list = {};
    for (const std::string& line : lines) list.rows.push_back({line, true});
  }
  void show_three() { show({with_lineation, plane_alone, without_plane}); }
};

}  // namespace support
