// make_catalogue CSV-FOLDER FOLDER: makes the catalogue's data files, the system store and the
// exact properties of its rows in FOLDER, which must be there, from the CSV files.
#include <cstdio>
#include <map>

#include "build_files.h"
#include "catalogue/rolled/rolled_file.h"
#include "catalogue/rolled/rolled_style.h"
#include "catalogue_csv.h"
#include "exact_file.h"
#include "framework/utf8.h"
#include "pair_rows.h"
#include "platform/code_page.h"
#include "platform/command_line.h"
#include "platform/store_error.h"
#include "system_store.h"
#include "tables/file/table_store.h"

namespace orv3::catalogue {
namespace {

constexpr int kSimplifiedChinese = 936;
constexpr CLocalTime kStoreDate{2024, 1, 1, 0, 0, 0, 0};

std::map<int, CDataTable> MakeTables(const std::string& csvFolder) {
  std::map<int, CDataTable> tables;
  for (int style = 0; style < kRolledStyles; ++style) tables[style];
  for (const CPairTable& pair : PairTables()) tables.erase(pair.m_nStyle);
  for (auto& [style, table] : tables) table = ReadCsvTable(csvFolder, style);
  for (const CPairTable& pair : PairTables())
    tables[pair.m_nStyle] = MakePairTable(pair, tables.at(pair.m_nComponent));
  return tables;
}

void Write(const CString& path, int style, const CDataTable& table) {
  if (!WriteRolledFile(path, style, table))
    throw CCatalogueError(ToUtf8(LastStoreError().m_strText));
}

void Make(const std::string& csvFolder, const std::string& folder) {
  SetAnsiCodePage(kSimplifiedChinese);
  const CBuildFiles files(kStoreDate);
  for (const auto& [style, table] : MakeTables(csvFolder)) {
    const CString file(RolledStyles()[static_cast<std::size_t>(style)].m_strFile);
    const CString start = FromUtf8(folder + "/");
    Write(start + file, style, table);
    Write(start + L"O" + file, style, CDataTable());
  }
  MakeSystemStore(folder);
  MakeExactFile(folder);
}

}  // namespace
}  // namespace orv3::catalogue

int main(int argc, char** argv) {
  const std::vector<std::string> arguments = orv3::CommandLineUtf8(argc, argv);
  if (arguments.size() != 3) {
    std::fputs("usage: make_catalogue CSV-FOLDER FOLDER\n", stderr);
    return 2;
  }
  try {
    orv3::catalogue::Make(arguments[1], arguments[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_catalogue: %s\n", error.what());
    orv3::Files().Remove(orv3::FromUtf8(arguments[2] + "/") + orv3::kSystemStore);
    return 1;
  }
  return 0;
}
