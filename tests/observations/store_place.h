// What the tests of the picture store share: a project with a folder of pictures beside it.
#pragma once

#include <string>

#include "observations/observation_place.h"
#include "observations/picture_store.h"
#include "support/bmp_pictures.h"
#include "support/fake_ports.h"

namespace support {

// Bitmaps that can be turned, pixel by pixel.
class Turning_pictures : public Bmp_pictures {
 public:
  platform::Picture rotate_quarter(const platform::Picture& picture, int quarter_turns_clockwise) override {
    platform::Picture turned = picture;
    for (int i = 0; i < quarter_turns_clockwise; ++i) turned = clockwise(turned);
    return turned;
  }

 private:
  // Pictures of 32 bits only.
  static platform::Picture clockwise(const platform::Picture& from) {
    platform::Picture to = platform::make_picture(from.height, from.width, from.depth);
    for (int y = 0; y < from.height; ++y)
      for (int x = 0; x < from.width; ++x)
        for (int byte = 0; byte < 4; ++byte) to.row(x)[4 * (from.height - 1 - y) + byte] = from.row(y)[4 * x + byte];
    return to;
  }
};

// Bitmap files of 24 bits; the rows stand from the bottom, blue, green, red, each filled up to 4 bytes.
inline std::string bmp_24(unsigned char width, unsigned char height, const std::string& rows) {
  std::string header(54, '\0');
  header.replace(0, 2, "BM");
  header[2] = static_cast<char>(54 + rows.size());
  header[10] = 54;
  header[14] = 40;
  header[18] = static_cast<char>(width);
  header[22] = static_cast<char>(height);
  header[26] = 1;
  header[28] = 24;
  header[34] = static_cast<char>(rows.size());
  return header + rows;
}
inline const std::string red_pixel("\x00\x00\xFF", 3), blue_pixel("\xFF\x00\x00", 3), two_bytes(2, '\0'), byte(1, '\0');
inline const std::string red_blue = bmp_24(2, 1, red_pixel + blue_pixel + two_bytes);
inline const std::string blue_red = bmp_24(2, 1, blue_pixel + red_pixel + two_bytes);
inline const std::string red_over_blue = bmp_24(1, 2, blue_pixel + byte + red_pixel + byte);
inline const std::string blue_over_red = bmp_24(1, 2, red_pixel + byte + blue_pixel + byte);

// A JPEG file's first bytes with an orientation, in the byte order of the tag's `order`: "II" or "MM".
inline std::string exif(const std::string& order, int orientation) {
  const bool little = order == "II";
  const auto word = [&](int value) {
    const std::string low(1, static_cast<char>(value & 0xFF)), high(1, static_cast<char>(value >> 8));
    return little ? low + high : high + low;
  };
  const auto double_word = [&](int value) { return little ? word(value) + word(0) : word(0) + word(value); };
  const std::string tiff = order + word(42) + double_word(8) + word(2) +                           // two entries
                           word(0x0110) + word(2) + double_word(1) + double_word(0) +              // camera
                           word(0x0112) + word(3) + double_word(1) + word(orientation) + word(0);  // orientation
  const std::string content = std::string("Exif\0\0", 6) + tiff;
  return std::string("\xFF\xD8\xFF\xE0\x00\x04xx\xFF\xE1\x00", 11) + static_cast<char>(content.size() + 2) + content +
         "\xFF\xDA\x00\x02 data \xFF\xD9";
}

// A folder "photo" with pictures and a sound, and the boxes of the dialog.
struct Store_place : Observation_place {
  Turning_pictures pictures;
  Recorded_processes processes;
  Recorded_sounds sounds;
  platform::Journal journal{disk};
  observations::Picture_boxes boxes;
  std::string photos = folder.text() + "\\photo";

  Store_place() {
    disk.make_folder(photos);
    boxes.Dir1 = photos;
    boxes.Text1 = "081115-001";
    boxes.Text2 = "13976712.5";
    boxes.Text3 = "3568123.6";
  }
  observations::Picture_context pictures_context() {
    return {settings, files, pictures, prompts, processes, sounds, journal};
  }
  void photo(const std::string& name, const std::string& bytes) { disk.write_whole(photos + "\\" + name, bytes); }
  // A file of the point's folder.
  std::string stored(const std::string& name, const std::string& point = "081115-001") const {
    return project + "\\image\\" + point + "\\" + name;
  }
  std::string stored_bytes(const std::string& name) {
    return disk.length(stored(name)) == 0 ? "" : disk.read_bytes(stored(name));
  }
  std::string program(const std::string& name) const { return folder.text() + "\\" + name; }
};

}  // namespace support
