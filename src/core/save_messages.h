// What a user is told when a file can't be read or saved: the same words wherever it happens, with the cause in
// brackets behind the file where the machine told one.
#pragma once

#include <string>

#include "platform/failures.h"
#include "platform/prompts.h"

namespace core {

// A sentence about a file in both languages, such as "断面線を保存できません: ", with the file and the cause behind it.
void file_failed(platform::Prompts& prompts, const platform::Message& sentence, const std::string& path,
                 const platform::File_failure& failure);

// The write to the file failed.
void write_failed(platform::Prompts& prompts, const std::string& path, const platform::File_failure& failure);

// The one sentence for a failure that ended an operation.
void operation_failed(platform::Prompts& prompts, const platform::Failure& failure);

// A table that stands for a part of its file only isn't saved over it.
void read_in_part(platform::Prompts& prompts, const std::string& path);

// Names the characters that the files' code page doesn't have; says nothing, and gives false, where there are none.
bool unknown_characters(platform::Prompts& prompts, const std::string& unknown);

}  // namespace core
