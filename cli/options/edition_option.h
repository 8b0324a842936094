// The option --code: by which edition of the design code a question is answered.
#pragma once

#include <CLI/App.hpp>
#include <string>

#include "codes/edition.h"

namespace orv3::cli {

// Adds --code, whose text goes into `year`.
void AddEditionOption(CLI::App& command, std::string& year);

// What is wrong with a --code that names nothing, else empty: a check of options.
std::string NamesEdition(const std::string& year);

// The year that was asked for: of --code, else of the variable ORV3CAL_CODE, else empty.
std::string YearAsked(const std::string& year);

// The edition that was asked for, 2017 when none was or the variable asks for both; another year
// is refused by name.
CCodeEdition EditionAsked(const std::string& year);

}  // namespace orv3::cli
