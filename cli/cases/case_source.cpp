#include "cases/case_source.h"

#include "cases/case_readers.h"
#include "output/streams.h"

namespace orv3::cli {
namespace {

// What a program has given in place of a file.
const CCaseColumns* ColumnsGiven(const std::string& path) noexcept {
  const CMemoryStreams* memory = MemoryStreams();
  return path == "-" && memory != nullptr ? memory->m_pCases : nullptr;
}

}  // namespace

void ReadCases(const std::string& path, const CCaseSchema& schema, CLanguage language,
               const CTakeCase& take) {
  if (const CCaseColumns* columns = ColumnsGiven(path))
    return ReadColumnCases(*columns, schema, take);
  const bool csv = path.ends_with(".csv") || path.ends_with(".CSV");
  CCaseBytes bytes(path, csv, language);
  if (csv) {
    ReadCsvCases(bytes, schema, take);
  } else {
    ReadJsonCases(bytes, schema, take);
  }
}

bool HasColumnsAlone(const std::string& path) noexcept {
  const CCaseColumns* columns = ColumnsGiven(path);
  return columns != nullptr && columns->m_nCases == 0 && !columns->m_arrColumn.empty();
}

}  // namespace orv3::cli
