// Pictures as files: the bitmap writer, the conversions between the formats, and the saving of the canvas.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/prompts.h"

namespace drawing {

// Quality of all JPEG files that are written.
inline constexpr int jpeg_quality = 75;

// The content of a bitmap file of `depth` 1, 8 or 24 bits; a picture of more than 8 bits, or of more than `depth` has,
// comes out with 24. Empty for a picture without a measure.
std::string bmp_bytes(const platform::Picture& picture, int depth);

// Writes that file. A picture without a measure writes nothing and counts as written. False with the message
// "エラー発生！", its number and the file's name when the file can't be written; what stood there before stays whole.
bool save_bmp(platform::Files& files, platform::Prompts& prompts, const platform::Picture& picture,
              const std::string& path, int depth);

// From one picture file to another. False, with no file written, when the source can't be read or the target can't be
// written. `flag` is the last argument of all callers and has no effect.
bool bmp_to_jpg(platform::Files& files, platform::Pictures& pictures, const std::string& source,
                const std::string& target, int quality = jpeg_quality, int flag = -1);
bool jpg_to_bmp(platform::Files& files, platform::Pictures& pictures, const std::string& source,
                const std::string& target);
bool bmp_to_png(platform::Files& files, platform::Pictures& pictures, const std::string& source,
                const std::string& target, int flag = -1);

// True for a text that can stand as a file's name on every system: no path, no sign that one of them forbids, none of
// the device names.
bool is_file_name(std::string_view text);

// The boxes of the frame "Image File Save" (Frame10).
struct Image_save_boxes {
  std::string Text16;    // the file's name without its ending
  std::string Dir2;      // the folder
  bool Option1 = true;   // bmp
  bool Option2 = false;  // jpeg
  bool Option3 = false;  // png
};

// The file that Command29 makes; empty for a name that can't be a file's and without a folder.
std::string image_path(const Image_save_boxes& boxes);

// Saves the canvas. It is always first written as \bmp.bmp of the folder: with "bmp" that file then takes the chosen
// name, with the other formats the chosen file is made from it and it stays. False with one message, the frame staying
// open, without a folder, for a name that can't be a file's and a file that can't be written.
bool Command29(platform::Files& files, platform::Pictures& pictures, platform::Prompts& prompts,
               const platform::Picture& canvas, const Image_save_boxes& boxes);

}  // namespace drawing
