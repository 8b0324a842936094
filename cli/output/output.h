// What commands print and write: JSON for programs, numbers for people, whole files.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "platform/file_system.h"

namespace orv3::cli {

// Keys stay in the order in which they are put in.
using CJson = nlohmann::ordered_json;

// A number with all its digits; null when it is not finite or stands for infinity (1e100).
CJson JsonNumber(double value);

// Seven significant digits and trailing zeros dropped; "∞" from 1e100 on, which stands for a fibre
// distance of 0.
std::string NumberText(double value);

// For people: control characters that stand in it are shown and not obeyed.
void Print(const std::string& text);
// For programs: control characters are escaped in JSON, and stay in CSV unless it goes to a
// terminal.
void PrintJson(const CJson& json);
void PrintCsv(const std::string& text);

// Writes a file whole or not at all, and into the standard output or a device as into a pipe. A
// link stays one: the file that it names is replaced. CCommandError with status 3 names the file
// and the reason.
void WriteFile(const std::string& path, const std::string& bytes);
// The reason why a file could not be written, as half a sentence.
std::string WriteTrouble(CFileError error);

// What a command has saved, for the error of one that cannot tell it on standard output any more.
void NoteSaved(const std::string& what);
const std::string& SavedNote();

}  // namespace orv3::cli
