// What comes before the first window of a program that is installed for everybody: the user's own program folder is
// made, and a sample is offered once. No file that is there is written over.
#pragma once

#include <functional>
#include <string>

#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/user_folders.h"

namespace session {

enum class Sample_making { made, stopped, failed };

// Takes what it needs from a folder that holds the sample's \program and \project. File_failure.
using Take_sample = std::function<void(const std::string& folder)>;
// Makes a sample somewhere aside, hands its folder to `take`, and removes it afterwards; what it shows meanwhile is in
// Japanese or in English. Where it failed it has told so.
using Sample_maker = std::function<Sample_making(bool japanese, const Take_sample& take)>;

struct First_start {
  platform::Program_place place;
  std::string language;   // "Japanese" or "English": the machine's own
  std::string documents;  // the user's folder for documents; empty or missing: the project lies in the program folder
  Sample_maker make_sample;  // none: nothing is offered
};

// Everything below in its order, in the language of the program folder, or else of the machine. The program folder in
// force, as the machine writes it; empty, with a message, where an installed program has none to use.
std::string first_start(const First_start& start, platform::Files& files, platform::Prompts& prompts);

// Makes an installed program's folder with the folders above it, and adds the files of `place.templates` that aren't
// there. Where the program has never come up, Language.set gets the machine's language. False, with a message, when the
// folder or a file of it can't be made.
bool program_folder_make(const First_start& start, platform::Files& files, platform::Prompts& prompts);

// The folder for the sample's project: "Terranote sample" in the folder for documents or, where that is missing or
// can't be named by the settings, \sample of the program folder; with a number behind where the name is another's.
// Empty where the settings can name neither.
std::string sample_project_folder(const First_start& start, platform::Files& files);

// Asks whether the sample is wanted, while neither settei.ini nor sample.set is in the program folder, and puts it in
// place. sample.set keeps the answer; a making that failed is asked about again at the next start.
void sample_offer(const First_start& start, platform::Files& files, platform::Prompts& prompts);

// Puts the sample of `folder` in place: its tables and maps into the program folder, its project into `project`, each
// file only where there is none, and settei.ini, which names both, last of all. File_failure leaves out what follows.
void sample_place(const std::string& folder, const std::string& program_path, const std::string& project,
                  platform::Files& files);

}  // namespace session
