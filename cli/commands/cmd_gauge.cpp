// orv3cal gauge: bolt lines, largest holes, stiffeners and copes of a rolled section.

#include <memory>
#include <string>
#include <vector>

#include "catalogue/spacing/section_spacing.h"
#include "commands.h"
#include "error.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "options/nearest.h"
#include "output/output.h"
#include "output/text_table.h"
#include "sections/load_data_table.h"
#include "store/store_place.h"
#include "store/store_table.h"

namespace orv3::cli {
namespace {

struct CGaugeOptions {
  std::string table;
  std::string no;
  bool json = false;
  CStoreOptions store;
};

void CheckTable(const std::string& table) {
  std::string right;
  for (const CSectionKind kind : SpacedSections()) {
    const std::string name = ToUtf8(TableName(kind));
    if (name == table) return;
    right += (right.empty() ? "" : Say("、", ", ")) + name;
  }
  Refuse(Say("TABLE: “{1}”没有线距资料；应为下列之一：{2}",
             "TABLE: no spacings are known for \"{1}\"; right would be one of {2}",
             {table, right}));
}

// Angles go by the widths of their legs, so that a number alone would answer for any.
void CheckNumber(const CGaugeOptions& options) {
  const CString store = StoreToRead(options.store);
  const CString table = FromUtf8(options.table);
  if (!CLoadDataTable::GetSysTemJMItem(table, FromUtf8(options.no)).IsEmpty()) return;
  FailUnread();
  CStringArray numbers;
  if (CLoadDataTable::GetSysTemItemNo(table, numbers) == 0) StoreTable(store, table);
  Refuse(Say("NO: {1} 中没有“{2}”；相近的有：{3}", "NO: {1} has no \"{2}\"; the nearest are: {3}",
             {options.table, options.no, Nearest(options.no, numbers)}));
}

std::vector<CSectionSpacing> SpacingsOf(const CGaugeOptions& options) {
  CheckTable(options.table);
  CheckNumber(options);
  const CString table = FromUtf8(options.table);
  const CString no = FromUtf8(options.no);
  const std::vector<CString> numbers = SpacedNumbers(table);
  std::vector<CSectionSpacing> spacings = SectionSpacings(table, no);
  if (numbers.empty() && LegsOf(no).m_nLong == 0) {
    Refuse(Say("NO: “{1}”不能说明肢宽；应为例如 L50X5",
               "NO: \"{1}\" does not tell its legs; right would be such as L50X5", {options.no}));
  }
  if (!numbers.empty() && spacings.empty()) {
    Refuse(Say("NO: {1}“{2}”没有线距资料；相近的有：{3}",
               "NO: no spacings are known for {1} \"{2}\"; the nearest are: {3}",
               {options.table, options.no, Nearest(options.no, numbers)}));
  }
  return spacings;
}

// A cell such as "1O.1": what it was printed with is kept, but it is no number.
bool IsMisprint(const CString& cell) { return !IsNumber(cell) && !(cell == L"-"); }

// The angles' figures are the handbook's; the others follow from the sections' dimensions.
bool IsDerived(const CSectionSpacing& spacing) { return spacing.m_nTable > 3; }

std::string Title(const CSectionSpacing& spacing) {
  std::string title = spacing.m_title.In(MessageLanguage());
  if (spacing.m_nLeg > 0)
    title += Say("，肢宽 {1} mm", ", leg of {1} mm", {std::to_string(spacing.m_nLeg)});
  return title;
}

CJson SpacingJson(const CSectionSpacing& spacing) {
  CJson values = CJson::array();
  for (std::size_t i = 0; i < spacing.m_arrColumn.size(); ++i) {
    const CString cell = spacing.m_arrCell[i];
    values.push_back({{"key", spacing.m_arrColumn[i].m_szKey},
                      {"value", IsNumber(cell) ? JsonNumber(ToDouble(cell)) : CJson(nullptr)},
                      {"text", ToUtf8(cell)},
                      {"meaning", spacing.m_arrColumn[i].m_meaning.In(MessageLanguage())}});
  }
  CJson json = {{"source", "strSub" + std::to_string(spacing.m_nTable)},
                {"derived", IsDerived(spacing)},
                {"title", spacing.m_title.In(MessageLanguage())}};
  if (spacing.m_nLeg > 0) json["leg"] = spacing.m_nLeg;
  json["values"] = std::move(values);
  return json;
}

void PrintSpacings(const CGaugeOptions& options, const std::vector<CSectionSpacing>& spacings) {
  Print(options.table + "  " + options.no + "\n");
  if (spacings.empty())
    Print(Say("\n这样宽的肢上没有规定线距\n", "\nno bolt line is set out on legs of this width\n"));
  bool misprint = false;
  for (const CSectionSpacing& spacing : spacings) {
    CTextTable table({CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
    for (std::size_t i = 0; i < spacing.m_arrColumn.size(); ++i) {
      const CString cell = spacing.m_arrCell[i];
      misprint = misprint || IsMisprint(cell);
      table.AddRow({"  " + std::string(spacing.m_arrColumn[i].m_szKey),
                    ToUtf8(cell) + (IsMisprint(cell) ? "(!)" : ""), cell == L"-" ? "" : "mm",
                    spacing.m_arrColumn[i].m_meaning.In(MessageLanguage())});
    }
    Print("\n" + Title(spacing) + " (strSub" + std::to_string(spacing.m_nTable) + ")\n" +
          table.Text());
  }
  if (misprint)
    Print(Say("\n(!) 原表中以字母代替了数字：请查原表\n",
              "\n(!) printed with a letter in the place of a digit: look it up\n"));
  if (!spacings.empty() && IsDerived(spacings.front())) {
    Print(Say("\n由截面尺寸推算；各手册相差数毫米\n",
              "\nderived from the section's dimensions; handbooks differ by some millimetres\n"));
  }
}

void RunGauge(const CGaugeOptions& options) {
  const auto spacings = SpacingsOf(options);
  if (!options.json) return PrintSpacings(options, spacings);
  CJson list = CJson::array();
  for (const CSectionSpacing& spacing : spacings) list.push_back(SpacingJson(spacing));
  PrintJson({{"table", options.table}, {"no", options.no}, {"unit", "mm"}, {"spacings", list}});
}

}  // namespace

void AddGaugeCommand(CLI::App& program) {
  auto options = std::make_shared<CGaugeOptions>();
  CLI::App* command = program.add_subcommand(
      "gauge", Say("热轧工字钢、槽钢、角钢的线距、最大孔径、加劲肋和切口",
                   "Bolt lines, largest holes, stiffeners and copes of a rolled I, channel or "
                   "angle"));
  command->add_option("TABLE", options->table, Say("截面表", "The section's table"))->required();
  command->add_option("NO", options->no, Say("型号", "The section's number"))->required();
  command->add_flag("--json", options->json,
                    Say("以 JSON 输出，附各数的含义", "As JSON, each figure with its meaning"));
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunGauge(*options); });
}

}  // namespace orv3::cli
