// A session with a registry of a few records of every kind, written out as lines of a registration file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/session/session.h"
#include "observations/record_line.h"

namespace support {

// One line of a registration file: a point in metres with what the tests of the table look at.
struct Point_line {
  std::string number, strike, dip, height, done;
  std::string text() const {
    return " 0 ,10.0,20.5," + height + ",断層,砂岩," + strike + "," + dip + "," + number +
           ",,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ," + done + ",,,,, 0 ,";
  }
};

// Puts the lines into the session as a read of a registration file does. `declination` is known at each record, or not.
inline void fill_registry(session::Session& session, const std::vector<std::string>& lines,
                          std::optional<double> declination) {
  observations::Registry& registry = session.registry;
  registry.N = 0;
  for (const std::string& line : lines) registry.rows[++registry.N] = observations::record_of({line, {}});
  ++registry.reads;
  session.drawn_records.declinations.assign(lines.size(), declination);
  session.drawn_records.symbols.resize(lines.size());
}

// clang-format off
inline const std::vector<std::string> five_records{
    " 1 ,13886245.41,3578126.9,120,地層境界面,砂岩,N15W,30E,081115-002*12,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,",
    " 0 ,-1234.5,6789.25,95.5,断層,Mudstone,N20E,5W,081115-010*3,photo.jpg,●, 3 , 0 , 0 , 255 , 0 , 0 , 0 ,1,1,2008/11/15 09:30:00,,, 0 ,",
    " 0 ,1.0,2.0,,線構造,砂岩,,,081115-001,,□, 10 , 0 , 128 , 0 , 0 , 0 , 0 ,0,,,12,N40E, 0 ,",
    " 0 ,10.5,20.0,-3,その他,,,,,,線, 1 , 0 , 0 , 0 , 0 , 200 , 0 ,0,,,,, 2 , 10.5 , 20 ,-30 , 0.25 ,",
    " 0 ,7.0,8.0,,,,崖の上,,memo,,文字, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,",
};
// clang-format on

}  // namespace support
