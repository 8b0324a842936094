// What commands print and write: JSON for programs, numbers for people, whole files.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace orv3::cli {

// Keys stay in the order in which they are put in.
using CJson = nlohmann::ordered_json;

// A number with all its digits; null when it is not finite or stands for infinity (1e100).
CJson JsonNumber(double value);

// Seven significant digits and trailing zeros dropped; "∞" from 1e100 on, which stands for a fibre
// distance of 0.
std::string NumberText(double value);

void Print(const std::string& text);
void PrintJson(const CJson& json);

// Writes a file whole or not at all; CCommandError with status 3 names the file and the reason.
void WriteFile(const std::string& path, const std::string& bytes);

}  // namespace orv3::cli
