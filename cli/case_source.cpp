#include "case_source.h"

#include "case_readers.h"

namespace orv3::cli {

void ReadCases(const std::string& path, const CCaseSchema& schema, CLanguage language,
               const CTakeCase& take) {
  CCaseBytes bytes(path, language);
  if (path.ends_with(".csv") || path.ends_with(".CSV")) {
    ReadCsvCases(bytes, schema, take);
  } else {
    ReadJsonCases(bytes, schema, take);
  }
}

}  // namespace orv3::cli
