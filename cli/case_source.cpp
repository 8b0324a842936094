#include "case_source.h"

#include "case_readers.h"

namespace orv3::cli {

void ReadCases(const std::string& path, const CCaseSchema& schema, CLanguage language,
               const CTakeCase& take) {
  const bool csv = path.ends_with(".csv") || path.ends_with(".CSV");
  CCaseBytes bytes(path, csv, language);
  if (csv) {
    ReadCsvCases(bytes, schema, take);
  } else {
    ReadJsonCases(bytes, schema, take);
  }
}

}  // namespace orv3::cli
