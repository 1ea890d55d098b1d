// The folder of a run: a copy of the sample project, and what a person has lying about: pictures, tracks, an empty
// second project. It is removed when the run ends well.
#pragma once

#include <filesystem>
#include <string>

namespace soak {

struct Place {
  std::filesystem::path root;  // canonical
  std::string program() const { return (root / "program").string(); }
  std::string project() const { return (root / "project").string(); }
  std::string state() const { return (root / "state").string(); }
};

// Makes the folder below `parent`, with a copy of the sample that make_sample made. False with a sentence on standard
// error when it can't be made. The working directory becomes a folder in it.
bool place_make(Place& place, const std::string& parent, const std::string& sample);
void place_remove(const Place& place);

}  // namespace soak
