// The cases of a file as JSON, as a check reads them.
#pragma once

#include <string>

#include "cases/case_source.h"
#include "error.h"

namespace orv3::cli {

// A case as an object of the keys that are given, objects within it where the schema has them.
CJson GivenJson(const CCaseSchema& schema, const CReadCase& read);

// Prints an array of the cases of a file, in the file's order: a file of the same cases. Null
// stands for one that cannot be read, and CCommandError says why of the first, when all are
// printed.
CExit PrintGivenCases(const std::string& kind, const std::string& file, CLanguage language);

}  // namespace orv3::cli
