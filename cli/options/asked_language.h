// The language that a command is asked to answer in: --lang, else the variable ORV3CAL_LANG, else
// that of the user.
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "framework/language.h"

namespace orv3::cli {

// Takes the language from the arguments as typed, from the variable or from the user's settings,
// and makes it that of messages. CCommandError for a variable that names none; of --lang the parser
// tells.
void TakeLanguage(const std::vector<std::string>& arguments);

// The language that a command with these arguments answers in.
CLanguage LanguageFor(const std::vector<std::string>& arguments);

// Adds --lang to a command and to those below it.
void AddLanguageOption(CLI::App& command);

}  // namespace orv3::cli
