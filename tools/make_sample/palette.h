// A picture's way to 8 bits: a palette of at most 256 colours fitted to what is in the pictures, and the nearest of
// them for each pixel.
#pragma once

#include <QImage>
#include <QList>

namespace sample {

// Fitted to the colours of a picture by halving the colour box whose colours are spread most (Heckbert's median cut,
// with the sum of squares in place of the count).
QList<QRgb> fit_palette(const QImage& picture);

// The same picture with one byte a pixel.
QImage to_palette(const QImage& picture, const QList<QRgb>& palette);

}  // namespace sample
