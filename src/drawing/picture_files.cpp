#include "drawing/picture_files.h"

#include <algorithm>
#include <cstdint>

#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace drawing {
namespace {

using platform::Colour;
using platform::Picture;

constexpr std::size_t file_header_bytes = 14;
constexpr std::size_t info_header_bytes = 40;

// Little-endian numbers at fixed places of a block of bytes.
void put_16(std::string& block, std::size_t offset, std::uint32_t value) {
  for (std::size_t i = 0; i < 2; ++i) block[offset + i] = static_cast<char>(value >> (8 * i) & 0xFF);
}
void put_32(std::string& block, std::size_t offset, std::uint32_t value) {
  put_16(block, offset, value);
  put_16(block, offset + 2, value >> 16);
}

// Both headers: BITMAPFILEHEADER and BITMAPINFOHEADER.
std::string headers(const Picture& picture, int depth, std::size_t palette_bytes, std::size_t row_bytes) {
  const std::size_t pixels_at = file_header_bytes + info_header_bytes + palette_bytes;
  const std::size_t pixel_bytes = row_bytes * static_cast<std::size_t>(picture.height);
  std::string block(file_header_bytes + info_header_bytes, '\0');
  block.replace(0, 2, "BM");
  put_32(block, 2, static_cast<std::uint32_t>(pixels_at + pixel_bytes));  // bfSize
  put_32(block, 10, static_cast<std::uint32_t>(pixels_at));               // bfOffBits
  put_32(block, 14, info_header_bytes);                                   // biSize
  put_32(block, 18, static_cast<std::uint32_t>(picture.width));           // biWidth
  put_32(block, 22, static_cast<std::uint32_t>(picture.height));          // biHeight: rows from the bottom
  put_16(block, 26, 1);                                                   // biPlanes
  put_16(block, 28, static_cast<std::uint32_t>(depth));                   // biBitCount
  put_32(block, 34, static_cast<std::uint32_t>(pixel_bytes));             // biSizeImage
  return block;
}

// Blue, green, red and 0 for each of the 2 or 256 entries; those that the picture has not are black.
std::string palette_block(const Picture& picture, int depth) {
  std::string block(std::size_t{4} << depth, '\0');
  for (std::size_t i = 0; i < std::min(picture.palette.size(), block.size() / 4); ++i)
    put_32(block, 4 * i, picture.palette[i] & 0xFFFFFF);
  return block;
}

void put_row_24(const Picture& picture, int y, char* row) {
  for (int x = 0; x < picture.width; ++x) {
    const Colour colour = platform::pixel(picture, x, y);
    *row++ = static_cast<char>(colour & 0xFF);
    *row++ = static_cast<char>(colour >> 8 & 0xFF);
    *row++ = static_cast<char>(colour >> 16 & 0xFF);
  }
}

void put_row_indexed(const Picture& picture, int y, int depth, char* row) {
  const std::uint8_t* from = picture.row(y);
  if (picture.depth == depth) {
    std::copy_n(from, (static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(depth) + 7) / 8, row);
    return;
  }
  for (int x = 0; x < picture.width; ++x) row[x] = static_cast<char>(from[x / 8] >> (7 - x % 8) & 1);
}

int depth_written(const Picture& picture, int depth) {
  if (picture.depth > 8 || depth > 8) return 24;
  return depth > 1 ? 8 : picture.depth == 1 ? 1 : 24;
}

void report(platform::Prompts& prompts, const std::string& path) {
  // The number that the system has always given for a path or file access error.
  const std::string head = "エラー発生！\nエラー番号 75\n";
  prompts.message(head + "「" + path + "」に書き込めません。", head + path + " can't be written.");
}

bool write_file(platform::Files& files, const std::string& path, std::string_view bytes) {
  if (bytes.empty()) return false;
  try {
    files.write_whole(path, bytes);
    return true;
  } catch (const platform::File_failure&) {
    return false;  // the caller tells
  }
}

Picture read_picture(platform::Files& files, platform::Pictures& pictures, const std::string& path) {
  if (files.length(path) == 0) return {};
  try {
    return pictures.decode(files.read_bytes(path)).picture;
  } catch (const platform::File_failure&) {
    return {};  // an unreadable file converts to nothing
  }
}

bool convert(platform::Files& files, platform::Pictures& pictures, const std::string& source, const std::string& target,
             platform::Picture_format format, int quality) {
  const Picture picture = read_picture(files, pictures, source);
  return !picture.empty() && write_file(files, target, pictures.encode(picture, format, quality));
}

constexpr std::size_t longest_name = 200;  // bytes, with room for an ending

// The name without an ending that it will get anyway.
std::string bare_name(const std::string& text, std::string_view ending) {
  std::string name = platform::trim_text(text);
  if (name.size() <= ending.size() || !platform::same_name(name.substr(name.size() - ending.size()), ending))
    return name;
  return name.substr(0, name.size() - ending.size());
}

std::string ending_of(const Image_save_boxes& boxes) {
  return boxes.Option3 ? ".png" : boxes.Option2 ? ".jpg" : ".bmp";
}

// Gives \bmp.bmp the chosen name.
bool rename_bmp(platform::Files& files, const std::string& from, const std::string& to) {
  if (platform::same_name(from, to)) return true;
  try {
    files.copy(from, to);
  } catch (const platform::File_failure&) {
    return false;  // the caller tells
  }
  files.remove(from);
  return true;
}

}  // namespace

std::string bmp_bytes(const Picture& picture, int depth) {
  if (picture.empty()) return {};
  const int bits = depth_written(picture, depth);
  const std::size_t row_bytes =
      (static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
  const std::string palette = bits <= 8 ? palette_block(picture, bits) : std::string{};
  std::string bytes = headers(picture, bits, palette.size(), row_bytes) + palette;
  std::size_t at = bytes.size();
  bytes.resize(at + row_bytes * static_cast<std::size_t>(picture.height));
  for (int y = picture.height - 1; y >= 0; --y, at += row_bytes) {
    if (bits > 8)
      put_row_24(picture, y, &bytes[at]);
    else
      put_row_indexed(picture, y, bits, &bytes[at]);
  }
  return bytes;
}

bool save_bmp(platform::Files& files, platform::Prompts& prompts, const Picture& picture, const std::string& path,
              int depth) {
  if (picture.empty() || write_file(files, path, bmp_bytes(picture, depth))) return true;
  report(prompts, path);
  return false;
}

bool bmp_to_jpg(platform::Files& files, platform::Pictures& pictures, const std::string& source,
                const std::string& target, int quality, int /*flag*/) {
  return convert(files, pictures, source, target, platform::Picture_format::jpeg, quality);
}

bool jpg_to_bmp(platform::Files& files, platform::Pictures& pictures, const std::string& source,
                const std::string& target) {
  const Picture picture = read_picture(files, pictures, source);
  return write_file(files, target, bmp_bytes(picture, picture.depth));
}

bool bmp_to_png(platform::Files& files, platform::Pictures& pictures, const std::string& source,
                const std::string& target, int /*flag*/) {
  return convert(files, pictures, source, target, platform::Picture_format::png, jpeg_quality);
}

bool is_file_name(std::string_view text) {
  const auto is_forbidden = [](char byte) {
    return static_cast<unsigned char>(byte) < ' ' || std::string_view("*?\"<>|").find(byte) != std::string_view::npos;
  };
  return platform::stays_inside(text) && text.size() <= longest_name && text.back() != '.' && text.back() != ' ' &&
         std::none_of(text.begin(), text.end(), is_forbidden);
}

std::string image_path(const Image_save_boxes& boxes) {
  const std::string ending = ending_of(boxes);
  const std::string name = bare_name(boxes.Text16, ending);
  const bool complete = is_file_name(name) && !platform::trim_text(boxes.Dir2).empty();
  return complete ? platform::join_path(boxes.Dir2, name + ending) : std::string{};
}

bool Command29(platform::Files& files, platform::Pictures& pictures, platform::Prompts& prompts, const Picture& canvas,
               const Image_save_boxes& boxes) {
  if (platform::trim_text(boxes.Dir2).empty()) {
    prompts.message({"保存先のフォルダを選んでください。", "Choose the folder to save to."});
    return false;
  }
  const std::string chosen = image_path(boxes);
  if (chosen.empty()) {
    prompts.message({"ファイル名に使えない名前です。", "This name can't be used as a file name."});
    return false;
  }
  const std::string first = platform::join_path(boxes.Dir2, "bmp.bmp");
  if (!save_bmp(files, prompts, canvas, first, 24)) return false;
  const bool done = boxes.Option3   ? bmp_to_png(files, pictures, first, chosen)
                    : boxes.Option2 ? bmp_to_jpg(files, pictures, first, chosen)
                                    : rename_bmp(files, first, chosen);
  if (!done) report(prompts, chosen);
  return done;
}

}  // namespace drawing
