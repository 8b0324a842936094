// The cases of a check file, one after another: a JSON object, a JSON array of them, or a CSV whose
// first line holds the keys.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "case_schema.h"

namespace orv3::cli {

class CCaseSource {
 public:
  virtual ~CCaseSource() = default;
  // Reads the next case into `values`, which point into the source until the next call; false at
  // the end. A case that cannot be read gives its fault.
  virtual bool Next(CCaseValues& values, std::optional<CCaseFault>& fault) = 0;
  virtual bool IsSingle() const noexcept { return false; }
  virtual double Done() const noexcept = 0;  // share of the file that has been read
};

// A file whose name ends in ".csv" is a CSV. CCommandError when it cannot be read or is neither.
std::unique_ptr<CCaseSource> OpenCases(const std::string& path, const CCaseSchema& schema);

}  // namespace orv3::cli
