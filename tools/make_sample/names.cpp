#include <algorithm>

#include "make_sample/country.h"
#include "make_sample/course.h"

namespace sample {

namespace {

constexpr const char* river_name = "瀬見川";
constexpr const char* tributary_names[] = {"鳴沢川", "霧沢川",   "大栃川", "白滝川", "黒萱沢", "樽ノ沢", "瀬戸倉沢",
                                           "檜沢",   "大薙沢",   "樺沢",   "水無沢", "鍋割沢", "雨降沢", "奥鳴沢",
                                           "金掘沢", "栃久保沢", "小霧沢", "猪鼻沢", "岩魚沢", "雪代沢"};
constexpr const char* summit_names[] = {"霧ヶ岳",   "大栃山", "石楠山", "瀬見富士", "鷹見山", "笹ノ峰",    "三ツ俵山",
                                        "烏帽子森", "樺ノ頭", "天狗棚", "兎峰",     "白倉山", "雨乞山",    "栗毛山",
                                        "長者峰",   "鍋割山", "黒萱山", "遠見峰",   "檜岳",   "松尾根ノ頭"};

bool on_sheets(Point at) {
  return std::abs(at.x) < 11100 && std::abs(at.y) < 9050;
}

}  // namespace

void add_names(Country& country) {
  country.river_names.push_back({river_name, 0});
  std::vector<int> by_flow;
  for (std::size_t i = 1; i < country.rivers.size(); ++i)
    if (country.rivers[i].course.size() > 40 && on_sheets(country.rivers[i].course[20]))
      by_flow.push_back(static_cast<int>(i));
  std::stable_sort(by_flow.begin(), by_flow.end(), [&](int a, int b) {
    return country.rivers[static_cast<std::size_t>(a)].flow > country.rivers[static_cast<std::size_t>(b)].flow;
  });
  for (std::size_t i = 0; i < std::min(by_flow.size(), std::size(tributary_names)); ++i)
    country.river_names.push_back({tributary_names[i], by_flow[i]});

  std::size_t named = 0;
  for (const Summit& summit : summits(country.relief, 650)) {
    if (!on_sheets(summit.at) || summit.rises < 45) continue;
    const bool high = summit.height > 480 && named < std::size(summit_names);
    country.summits.push_back(
        {high ? summit_names[named] : "", summit.at, summit.height, high || country.summits.size() % 3 == 0});
    if (high) ++named;
  }
}

Country make_country(double relief_spacing) {
  Country country;
  country.ground = ground::make_ground();
  country.relief = make_relief(country.ground, relief_spacing);
  add_waters(country);
  add_roads(country);
  add_settlements(country);
  add_border(country);
  add_names(country);
  return country;
}

}  // namespace sample
