// Paints one map picture: the land, then rivers, roads, the railway, houses, borders, signs and names, in the manner of
// a printed topographic map.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "make_sample/country.h"
#include "make_sample/labels.h"
#include "make_sample/view.h"

namespace sample {

// `font` names an installed family with Japanese letters; empty leaves the names out.
QImage paint_sheet(const Country& country, const std::vector<Label>& labels, const View& view, const QString& font);

}  // namespace sample
