// The picture store of a project: \image\<point>\ holds a point's pictures, <point>.dat that lists them, and
// <point>.txt, its text. A point goes by a name, which must be one that every system takes as a file's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/code_page_932.h"
#include "platform/files.h"

namespace observations {

// A picture or sound of a point as its .dat file lists it.
struct Listed_picture {
  std::string name;                               // its file in the point's folder
  std::vector<platform::Unmapped_byte> strays{};  // bytes of the name that the code page has no character for
};

struct Point_file {
  std::string name;
  double X = 0, Y = 0;  // geographic units or metres, as in the registry
  std::vector<Listed_picture> pictures;
};

// What keeps a text from being a point's name.
enum class Name_fault {
  none,
  empty,
  no_file_name,  // a path, a device, or a sign that one of the systems forbids
  comma,         // it would end the column
  no_code        // a character that code page 932 doesn't have
};
Name_fault name_fault(std::string_view name);

// \image of a project, and a point's folder in it.
std::string image_folder(const std::string& project_path);
std::string point_folder(const std::string& project_path, const std::string& name);
// A file of the point with this ending, ".dat" or ".txt". Empty for a name with a fault and without a project.
std::string point_path(const std::string& project_path, const std::string& name, std::string_view ending);
// A picture of the point; empty where its name leads out of the folder.
std::string picture_path(const std::string& project_path, const std::string& point, const std::string& picture);

// Reads a .dat file. The lines count, not the number that line 1 tells; lines without a file name are left out. False,
// and the point as it was, when the file is missing or empty. File_failure when it can't be read.
bool point_r(platform::Files& files, const std::string& path, Point_file& point);
// The content of the file; the pictures are numbered anew from 1.
std::string point_bytes(const Point_file& point);
// The content of a new .txt file: the name is its only line.
std::string point_text_bytes(const std::string& name);

// By the ending of a file's name, in any case: bmp, jpg, jpeg, jpe and png are pictures, wav is a sound.
bool is_picture_name(std::string_view name);
bool is_sound_name(std::string_view name);
bool is_bmp_name(std::string_view name);

// The name under which a file goes into a point's folder: a picture's ending becomes "bmp", a sound keeps its own.
std::string stored_name(std::string_view name);

// The last name of a path.
std::string leaf_of(std::string_view path);

}  // namespace observations
