// Case files of the checks, as JSON and as CSV: every case is read or refused with a reason.
#include <string>

#include "cases/case_source.h"
#include "cases/schemas.h"
#include "error.h"
#include "memory_files.h"

namespace {

using namespace orv3::cli;

void ReadAll(const char* path, const CCaseSchema& schema) {
  try {
    orv3::cli::ReadCases(path, schema, orv3::CLanguage::Chinese, [&](const CReadCase& read) {
      const auto fault = read.m_fault ? read.m_fault : schema.Check(read.m_arrValue);
      if (fault) Require(!fault->Line(orv3::CLanguage::English).empty());
    });
  } catch (const CCommandError& error) {
    Require(*error.what() != '\0');
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles files;
  static const CCaseSchema bolt(SchemaOf("bolt"));
  static const CCaseSchema lattice(SchemaOf("lattice"));
  static const CCaseSchema welds(SchemaOf("weld-group"));
  for (const auto& [path, wide] : {std::pair{"a.json", L"a.json"}, {"a.csv", L"a.csv"}}) {
    files[wide] = std::string(reinterpret_cast<const char*>(data), size);
    ReadAll(path, bolt);
    ReadAll(path, lattice);
    ReadAll(path, welds);
  }
  return 0;
}
