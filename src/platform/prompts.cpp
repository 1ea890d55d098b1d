#include "platform/prompts.h"

namespace platform {

Answer Prompts::ask(Kind kind, const std::string& japanese, const std::string& english) {
  if (language_ == "Japanese") return show(kind, japanese);
  if (language_ == "English") return show(kind, english);
  return kind == Kind::yes_no ? Answer::no : Answer::cancel;
}

void Prompts::message(const Message& text) {
  ask(Kind::message, text.japanese, text.english);
}

void Prompts::message(const std::string& japanese, const std::string& english) {
  ask(Kind::message, japanese, english);
}

bool Prompts::yes_no(const Message& question) {
  return ask(Kind::yes_no, question.japanese, question.english) == Answer::yes;
}

bool Prompts::ok_cancel(const Message& question) {
  return ask(Kind::ok_cancel, question.japanese, question.english) == Answer::ok;
}

Answer Prompts::yes_no_cancel(const Message& question) {
  return ask(Kind::yes_no_cancel, question.japanese, question.english);
}

}  // namespace platform
