#include "platform/content.h"

#include "platform/failures.h"

namespace platform {

std::string content_or_nothing(Files& files, const std::string& path) {
  if (files.length(path) == 0) return {};
  try {
    return files.read_bytes(path);
  } catch (const File_failure&) {
    return {};  // an unreadable file counts as a missing one
  }
}

}  // namespace platform
