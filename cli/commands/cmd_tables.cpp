// orv3cal tables: the tables of the store.

#include <charconv>
#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "output/csv_output.h"
#include "output/output.h"
#include "output/text_table.h"
#include "sections/load_data_table.h"
#include "store/store_place.h"
#include "store/store_table.h"

namespace orv3::cli {
namespace {

struct CTablesOptions {
  std::string mask;
  bool json = false;
  bool csv = false;
  CStoreOptions store;
};

struct CFamily {
  std::int32_t m_nBit;
  CTextLiteral m_name;
};
constexpr CFamily kFamilies[] = {
    {TABLE_FAMILY_I, {"工字钢和H型钢", "I and H"}},
    {TABLE_FAMILY_BOX, {"箱形", "box"}},
    {TABLE_FAMILY_T, {"T形", "T"}},
    {TABLE_FAMILY_CHANNEL, {"槽形", "channel"}},
    {TABLE_FAMILY_Z, {"Z形", "Z"}},
    {TABLE_FAMILY_ROUND, {"圆形", "round"}},
    {TABLE_FAMILY_ANGLE, {"角钢", "angle"}},
    {TABLE_FAMILY_ANGLE_PAIR, {"角钢组合", "angle pair"}},
    {TABLE_FAMILY_CHANNEL_PAIR, {"槽钢组合", "channel pair"}},
    {TABLE_FAMILY_CROSS, {"十字形", "cross"}},
    {TABLE_FAMILY_SOLID, {"实心", "solid"}},
    {TABLE_FAMILY_LATTICE, {"格构柱", "lattice"}},
};
constexpr CFamily kSources[] = {{TABLE_ROLLED, {"热轧", "rolled"}},
                                {TABLE_CUSTOM, {"自定义", "user-defined"}}};

// One table as it is listed.
struct CListed {
  std::string m_strName;
  CTextLiteral m_source{"", ""};  // empty, like the family, for a table that is of no mask
  CTextLiteral m_family{"", ""};
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
    Refuse(Say("--mask: “{1}”不是掩码；应为 32 位的数，例如热轧工字钢和 H 型钢为 0x01000001",
               "--mask: \"{1}\" is no mask; right would be a number of 32 bits, such as 0x01000001 "
               "for the rolled I and H sections",
               {text}));
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
      listed.m_source = source.m_name;
      listed.m_family = family.m_name;
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
  table.AddRow({Say("表", "table"), Say("来源", "source"), Say("类别", "family"), Say("行", "rows"),
                Say("列", "columns"), Say("掩码", "mask")});
  for (const CListed& each : list) {
    table.AddRow({each.m_strName, each.m_source.In(MessageLanguage()),
                  each.m_family.In(MessageLanguage()), std::to_string(each.m_nRows),
                  std::to_string(each.m_nColumns), Hex(each.m_nMask)});
  }
  Print(list.empty() ? Say("没有表\n", "no table\n") : table.Text());
}

void PrintListedCsv(const std::vector<CListed>& list) {
  std::string text = kCsvMark;
  text += "table,source,family,rows,columns,mask\n";
  for (const CListed& each : list) {
    text +=
        CsvLine({each.m_strName, each.m_source.m_szEnglish, each.m_family.m_szEnglish,
                 std::to_string(each.m_nRows), std::to_string(each.m_nColumns), Hex(each.m_nMask)});
  }
  PrintCsv(text);
}

void PrintListedJson(const std::vector<CListed>& list) {
  CJson json = CJson::array();
  for (const CListed& each : list) {
    json.push_back({{"name", each.m_strName},
                    {"source", each.m_source.m_szEnglish},
                    {"family", each.m_family.m_szEnglish},
                    {"rows", each.m_nRows},
                    {"columns", each.m_nColumns},
                    {"mask", each.m_nMask}});
  }
  PrintJson(json);
}

void RunTables(const CTablesOptions& options) {
  if (!options.mask.empty()) MaskOf(options.mask);
  const CString path = StoreToRead(options.store);
  std::vector<CListed> list;
  for (const CString& name : Selected(StoreTableNames(path), options.mask)) {
    list.push_back(Listed(path, name));
  }
  if (options.json) return PrintListedJson(list);
  if (options.csv) return PrintListedCsv(list);
  Print(Say("库：{1}\n\n", "store: {1}\n\n", {WhichStore(options.store)}));
  PrintListed(list);
}

}  // namespace

void AddTablesCommand(CLI::App& program) {
  auto options = std::make_shared<CTablesOptions>();
  CLI::App* command =
      program.add_subcommand("tables", Say("列出库中各表", "List the tables of the store"));
  command
      ->add_option("--mask", options->mask,
                   Say("只列来源位和类别位都符合的表，例如 0x01000001",
                       "Only tables whose source bit and family bit are both set, such as "
                       "0x01000001"))
      ->check([](const std::string& mask) {
        return mask.empty() ? Say("为空；请给出掩码，或不写此选项",
                                  "is empty; give a mask, or leave the option out")
                            : std::string();
      })
      ->type_name("M");
  CLI::Option* json = command->add_flag("--json", options->json, Say("以 JSON 输出", "As JSON"));
  command
      ->add_flag("--csv", options->csv,
                 Say("以 CSV 输出，可用电子表格打开", "As CSV that a spreadsheet opens"))
      ->excludes(json);
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunTables(*options); });
}

}  // namespace orv3::cli
