// Message boxes of a test: a list of what was shown, and the answers to give.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/prompts.h"

namespace support {

class Scripted_prompts : public platform::Prompts {
 public:
  std::vector<std::string> shown;
  std::deque<platform::Answer> answers;  // taken from the front; a question without one is declined

 protected:
  platform::Answer show(Kind kind, const std::string& text) override {
    shown.push_back(text);
    if (kind == Kind::message) return platform::Answer::ok;
    if (answers.empty()) return kind == Kind::yes_no ? platform::Answer::no : platform::Answer::cancel;
    const platform::Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace support
