#include "cases/case_source.h"

#include "cases/case_readers.h"
#include "output/streams.h"

namespace orv3::cli {

void ReadCases(const std::string& path, const CCaseSchema& schema, CLanguage language,
               const CTakeCase& take) {
  const CMemoryStreams* memory = MemoryStreams();
  if (path == "-" && memory != nullptr && memory->m_pCases != nullptr)
    return ReadColumnCases(*memory->m_pCases, schema, take);
  const bool csv = path.ends_with(".csv") || path.ends_with(".CSV");
  CCaseBytes bytes(path, csv, language);
  if (csv) {
    ReadCsvCases(bytes, schema, take);
  } else {
    ReadJsonCases(bytes, schema, take);
  }
}

}  // namespace orv3::cli
