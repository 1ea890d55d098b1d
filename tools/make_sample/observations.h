// The sample's field observations: what a geologist would have read at the outcrops of this ground. Every strike and
// dip comes from the model at the point's own place.
#pragma once

#include <string>
#include <vector>

#include "make_sample/country.h"

namespace sample {

// One record of a point registration file. Colours as 0xRRGGBB.
struct Observation {
  bool boundary = false;
  Point at;
  std::string height, target, stratum, strike, dip, number;
  std::string mark = "○";
  int size = 2;
  unsigned colour = 0, line_colour = 0;
  bool corrected = false;   // strike and trend are from true north
  std::string measured_at;  // only where an instrument wrote the record
  std::string plunge, trend;
  Course vertices;
};

// Names of the strata, the lowest first, and of the other surfaces of the stack.
inline constexpr const char* stratum_names[ground::strata] = {"霧沢頁岩層", "鳴沢砂岩層", "柏平凝灰岩層", "石楠礫岩層"};
inline constexpr unsigned stratum_colours[ground::strata] = {0x3C8C50, 0xC89600, 0x8246A0, 0xD2641E};
inline constexpr const char* fault_name = "瀬見断層";

// A strike and a dip in field notation: whole degrees, a strike read from the north ("N35W", "NS"), the dip with the
// side to which the plane falls ("24E"; "N" or "S" where the strike runs within ten degrees of east). The plane falls
// to the right of the azimuth.
struct Notation {
  std::string strike, dip;
};
Notation notation(double azimuth, double dip);

std::vector<Observation> observations(const Country& country);

// The registry's file content in code page 932; geographic positions, numbers as the registry prints them.
std::string registry_bytes(const std::vector<Observation>& observations);

// A point where the fault plane cuts the land: `along` metres from the fault's own point towards its strike.
Point fault_trace(const Country& country, double along);

}  // namespace sample
