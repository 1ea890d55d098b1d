// The port to message boxes. Each message has its two texts, and the language in force picks one.
#pragma once

#include <string>

namespace platform {

struct Message {
  const char* japanese;
  const char* english;
};

enum class Answer { ok, cancel, yes, no };

class Prompts {
 public:
  virtual ~Prompts() = default;

  // "Japanese" or "English"; with any other word nothing is shown, and a question counts as declined.
  void use_language(const std::string& language) { language_ = language; }

  void message(const Message& message);
  bool yes_no(const Message& question);
  bool ok_cancel(const Message& question);
  Answer yes_no_cancel(const Message& question);
  // A message whose text is put together at the site from the picked text and names of files or values.
  void message(const std::string& japanese, const std::string& english);

 protected:
  enum class Kind { message, yes_no, ok_cancel, yes_no_cancel };
  virtual Answer show(Kind kind, const std::string& text) = 0;

 private:
  Answer ask(Kind kind, const std::string& japanese, const std::string& english);
  std::string language_ = "English";
};

}  // namespace platform
