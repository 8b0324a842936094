// orv3cal tables: the tables of the store.

#include <charconv>
#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "csv_output.h"
#include "error.h"
#include "framework/utf8.h"
#include "output.h"
#include "sections/load_data_table.h"
#include "store_place.h"
#include "store_table.h"
#include "text_table.h"

namespace orv3::cli {
namespace {

struct COptions {
  std::string mask;
  bool json = false;
  bool csv = false;
  CStoreOptions store;
};

struct CFamily {
  std::int32_t m_nBit;
  const char* m_szName;
};
constexpr CFamily kFamilies[] = {
    {TABLE_FAMILY_I, "I and H"},
    {TABLE_FAMILY_BOX, "box"},
    {TABLE_FAMILY_T, "T"},
    {TABLE_FAMILY_CHANNEL, "channel"},
    {TABLE_FAMILY_Z, "Z"},
    {TABLE_FAMILY_ROUND, "round"},
    {TABLE_FAMILY_ANGLE, "angle"},
    {TABLE_FAMILY_ANGLE_PAIR, "angle pair"},
    {TABLE_FAMILY_CHANNEL_PAIR, "channel pair"},
    {TABLE_FAMILY_CROSS, "cross"},
    {TABLE_FAMILY_SOLID, "solid"},
    {TABLE_FAMILY_LATTICE, "lattice"},
};
constexpr CFamily kSources[] = {{TABLE_ROLLED, "rolled"}, {TABLE_CUSTOM, "user-defined"}};

// One table as it is listed.
struct CListed {
  std::string m_strName;
  std::string m_strSource;  // empty, like the family, for a table that is of no mask
  std::string m_strFamily;
  std::int32_t m_nMask = 0;
  int m_nRows = 0;
  int m_nColumns = 0;
};

std::int32_t MaskOf(const std::string& text) {
  const bool hex = text.starts_with("0x") || text.starts_with("0X");
  const char* first = text.data() + (hex ? 2 : 0);
  const char* end = text.data() + text.size();
  std::uint32_t mask = 0;
  const auto read = std::from_chars(first, end, mask, hex ? 16 : 10);
  if (read.ec != std::errc() || read.ptr != end) {
    Refuse("--mask: \"" + text +
           "\" is no mask; right would be a number of 32 bits, "
           "such as 0x01000001 for the rolled I and H sections");
  }
  return static_cast<std::int32_t>(mask);
}

CListed Listed(const CString& path, const CString& name) {
  CListed listed;
  listed.m_strName = ToUtf8(name);
  const CDataTable table = StoreTable(path, name);
  listed.m_nRows = table.GetRealTableRowNum();
  listed.m_nColumns = table.GetTableColNum();
  for (const CFamily& source : kSources) {
    for (const CFamily& family : kFamilies) {
      if (!CLoadDataTable::IsTableNameType(name, source.m_nBit | family.m_nBit)) continue;
      listed.m_strSource = source.m_szName;
      listed.m_strFamily = family.m_szName;
      listed.m_nMask = source.m_nBit | family.m_nBit;
    }
  }
  return listed;
}

// The store's tables that are of the mask, in its order; without a mask all of them, those of no
// family last.
CStringArray Selected(const CStringArray& names, const std::string& mask) {
  CStringArray selected;
  CLoadDataTable::SelectTableNameArray(mask.empty() ? -1 : MaskOf(mask), names, selected);
  if (!mask.empty()) return selected;
  for (const CString& name : names) {
    if (!CLoadDataTable::IsTableNameType(name, -1)) selected.Add(name);
  }
  return selected;
}

std::string Hex(std::int32_t mask) {
  if (mask == 0) return "-";
  char text[16];
  std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(mask));
  return text;
}

void PrintListed(const std::vector<CListed>& list) {
  CTextTable table(
      {CAlign::Left, CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Right, CAlign::Left});
  table.AddRow({"table", "source", "family", "rows", "columns", "mask"});
  for (const CListed& each : list) {
    table.AddRow({each.m_strName, each.m_strSource, each.m_strFamily, std::to_string(each.m_nRows),
                  std::to_string(each.m_nColumns), Hex(each.m_nMask)});
  }
  Print(list.empty() ? "no table\n" : table.Text());
}

void PrintListedCsv(const std::vector<CListed>& list) {
  std::string text = kCsvMark;
  text += "table,source,family,rows,columns,mask\n";
  for (const CListed& each : list) {
    text +=
        CsvLine({each.m_strName, each.m_strSource, each.m_strFamily, std::to_string(each.m_nRows),
                 std::to_string(each.m_nColumns), Hex(each.m_nMask)});
  }
  PrintCsv(text);
}

void PrintListedJson(const std::vector<CListed>& list) {
  CJson json = CJson::array();
  for (const CListed& each : list) {
    json.push_back({{"name", each.m_strName},
                    {"source", each.m_strSource},
                    {"family", each.m_strFamily},
                    {"rows", each.m_nRows},
                    {"columns", each.m_nColumns},
                    {"mask", each.m_nMask}});
  }
  PrintJson(json);
}

void RunTables(const COptions& options) {
  if (!options.mask.empty()) MaskOf(options.mask);
  const CString path = StoreToRead(options.store);
  std::vector<CListed> list;
  for (const CString& name : Selected(StoreTableNames(path), options.mask)) {
    list.push_back(Listed(path, name));
  }
  if (options.json) return PrintListedJson(list);
  if (options.csv) return PrintListedCsv(list);
  Print("store: " + WhichStore(options.store) + "\n\n");
  PrintListed(list);
}

}  // namespace

void AddTablesCommand(CLI::App& program) {
  auto options = std::make_shared<COptions>();
  CLI::App* command = program.add_subcommand("tables", "List the tables of the store");
  command
      ->add_option("--mask", options->mask,
                   "Only tables whose source bit and family bit are both set, such as 0x01000001")
      ->type_name("M");
  CLI::Option* json = command->add_flag("--json", options->json, "As JSON");
  command->add_flag("--csv", options->csv, "As CSV that a spreadsheet opens")->excludes(json);
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunTables(*options); });
}

}  // namespace orv3::cli
