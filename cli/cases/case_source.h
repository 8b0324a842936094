// The cases of a check file, one after another: a JSON object, a JSON array of them, or a CSV whose
// first line holds the keys.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "cases/case_schema.h"

namespace orv3::cli {

struct CReadCase {
  CCaseValues m_arrValue;                   // by the keys of the schema
  std::vector<CCaseValues> m_arrPart = {};  // of a key that takes parts, each by the same keys
  std::optional<CCaseFault> m_fault;        // why it could not be read
  bool m_bSingle = false;                   // the file is this one JSON object
  double m_dDone = 0;                       // share of the file that has been read
};
// Takes a case, whose values point into the reader until the call returns.
using CTakeCase = std::function<void(const CReadCase&)>;

// Hands over every case of a file, of which no more than one is held; a file whose name ends in
// ".csv" is a CSV. CCommandError, in `language`, when the file cannot be read or is neither; what
// lies before the fault has been handed over by then.
void ReadCases(const std::string& path, const CCaseSchema& schema, CLanguage language,
               const CTakeCase& take);

// Whether a path stands for columns that have no rows: a program's filter may leave none, where a
// file without a case is a mistake.
bool HasColumnsAlone(const std::string& path) noexcept;

}  // namespace orv3::cli
