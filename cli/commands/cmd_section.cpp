// orv3cal section: the properties and the picture of a section from its sizes.

#include <cmath>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/exact/row_exact.h"
#include "commands.h"
#include "error.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "options/output_options.h"
#include "output/exact_view.h"
#include "output/output.h"
#include "output/section_view.h"
#include "output/show_view.h"
#include "output/text_table.h"
#include "sections/outline.h"
#include "sections/section_check.h"
#include "sections/section_figures.h"
#include "sections/section_property.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3::cli {
namespace {

struct CSectionOptions {
  std::string style;
  std::vector<std::string> sizes;
  std::pair<std::string, std::string> base{"0", "0"};
  std::string name;
  bool json = false;
  std::string svg;
  std::string dxf;
};

const CSectionStyle& StyleOf(const std::string& text) {
  const CString wide = FromUtf8(text);
  const CSectionStyle* style = FindSectionAlias(text);
  if (style == nullptr) style = FindSectionStyle(wide.View());
  if (style == nullptr && FormatInt(ToInt(wide)) == wide) style = FindSectionStyle(ToInt(wide));
  if (style == nullptr) {
    Refuse(
        Say("STYLE: “{1}”不是截面类型；应为 0 至 14 的编号，或 orv3cal styles 列出的表名或别名",
            "STYLE: \"{1}\" is no section style; right would be a number 0 to 14, a table name or "
            "an alias that orv3cal styles lists",
            {text}));
  }
  return *style;
}

// No section is a kilometre wide; beyond that the fourth powers would overflow some day.
constexpr double kMaxLength = 1e6;
// Nor is a plate thinner than a micrometre; below that they would vanish.
constexpr double kMinLength = 1e-3;

double LengthOf(const std::string& what, const std::string& text) {
  const CString wide = FromUtf8(text);
  if (!IsNumber(wide)) {
    Refuse(Say("{1}: “{2}”不是数值；应为毫米数",
               "{1}: \"{2}\" is no number; right would be millimetres", {what, text}));
  }
  const double value = ToDouble(wide);
  if (std::fabs(value) > kMaxLength) {
    Refuse(Say("{1} = {2}：不应大于 1000000 mm", "{1} = {2}: must be at most 1000000 mm",
               {what, text}));
  }
  return value;
}

// The signs of a style's sizes as a command line holds them.
std::string SizeList(const CSectionStyle& style) {
  std::string list;
  for (const CSizeColumn& size : style.Sizes())
    list += (list.empty() ? "" : " ") + ToUtf8(size.m_szSign);
  return list;
}

CSteelJMData RecordOf(const CSectionStyle& style, const CSectionOptions& options) {
  std::vector<double> sizes;
  for (std::size_t i = 0; i < options.sizes.size(); ++i) {
    const std::string sign = i < style.Sizes().size()
                                 ? ToUtf8(style.Sizes()[i].m_szSign)
                                 : Say("第 {1} 个尺寸", "size {1}", {std::to_string(i + 1)});
    sizes.push_back(LengthOf(sign, options.sizes[i]));
    if (sizes.back() > 0 && sizes.back() < kMinLength) {
      Refuse(Say("{1} = {2}：不应小于 0.001 mm", "{1} = {2}: must be at least 0.001 mm",
                 {sign, options.sizes[i]}));
    }
  }
  if (sizes.size() != style.Sizes().size()) {
    Refuse(Say("{1} 有 {2} 个尺寸，给出的是 {3} 个；应为：{4}",
               sizes.size() == 1 ? "{1} takes {2} sizes, {3} was given; right would be: {4}"
                                 : "{1} takes {2} sizes, {3} were given; right would be: {4}",
               {ToUtf8(style.TableName()), std::to_string(style.m_nSizes),
                std::to_string(sizes.size()), SizeList(style)}));
  }
  if (const auto fault = CheckSectionSizes(style, sizes)) Refuse(fault->m_strText);
  if (const std::string fault = CheckSectionName(FromUtf8(options.name)); !fault.empty()) {
    Refuse("--name: " + fault);
  }
  CSteelJMData record;
  CArray<double, double> values;
  for (const double size : sizes) values.Add(size);
  record.SetSectSize(style.m_nStyle, values);
  record.m_dX = LengthOf("--base X", options.base.first);
  record.m_dY = LengthOf("--base Y", options.base.second);
  CSteelJMData::CalSectCharacterStyle(record);
  return record;
}

CJson SectionJson(const CSectionStyle& style, const CSteelJMData& record,
                  const CExactProperties& exact, const std::string& name) {
  CJson sizes = CJson::array();
  for (int i = 0; i < style.m_nSizes; ++i) sizes.push_back(JsonNumber(record.m_dSize[i]));
  CJson properties = CJson::object();
  for (const CSectionProperty& property : SectionProperties().subspan(2)) {
    properties[property.m_szKey] = JsonNumber(PropertyFigure(record, property));
  }
  CJson json = {{"style", style.m_nStyle},
                {"table", ToUtf8(style.TableName())},
                {"name", name},
                {"sizes", sizes},
                {"base", {JsonNumber(record.m_dX), JsonNumber(record.m_dY)}},
                {"properties", properties},
                {"geometry", FiguresJson(RowFigures(ExactRow(record)))}};
  AddExactJson(json, exact);
  return json;
}

std::string Unit(int power) {
  static constexpr const char* kUnits[] = {"", "mm", "mm²", "mm³", "mm⁴"};
  return kUnits[power];
}

void PrintSection(const CSectionStyle& style, const CSteelJMData& record,
                  const CExactProperties& exact, const std::string& name) {
  Print(ToUtf8(style.TableName()) + Say({"", " (" + std::string(style.m_szShape) + ")"}) +
        (name.empty() ? "" : "  " + name) + "\n\n");
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  for (int i = 0; i < style.m_nSizes; ++i) {
    const CSizeColumn& size = style.Sizes()[static_cast<std::size_t>(i)];
    const std::string sign = ToUtf8(size.m_szSign);
    table.AddRow({ToUtf8(size.m_szTitle), sign.substr(0, sign.find('(')),
                  NumberText(record.m_dSize[i]), "mm", Say({"", size.m_szMeaning})});
  }
  table.AddRule();
  bool infinite = false, missing = false;
  for (const CSectionProperty& property : SectionProperties()) {
    const double value = PropertyFigure(record, property);
    infinite = infinite || std::isinf(value);
    missing = missing || std::isnan(value);
    table.AddRow({ToUtf8(property.m_szTitle), property.m_szKey, NumberText(value),
                  Unit(property.m_nPower), Say({"", property.m_szMeaning})});
  }
  table.AddRule();
  AddFurtherFigures(table, RowFigures(ExactRow(record)));
  Print(table.Text());
  if (infinite)
    Print(
        Say("\n∞：基点在截面的该边上\n", "\n∞: the base point lies on that edge of the section\n"));
  if (missing)
    Print(Say("\n-：该种截面不计算此项，或基点在截面之外\n",
              "\n-: not computed for this style, or the base point lies outside\n"));
  constexpr int kHexagon = 4;
  if (style.m_nStyle == kHexagon)
    Print(Say("\nIxo = Iyo = 0.541 a⁴，与用表一致；精确值为 0.54127 a⁴\n",
              "\nIxo = Iyo = 0.541 a⁴ as in tables; exact: 0.54127 a⁴\n"));
  PrintExact(exact);
}

void RunSection(const CSectionOptions& options) {
  const CSectionStyle& style = StyleOf(options.style);
  const CSteelJMData record = RecordOf(style, options);
  const CExactProperties exact = ExactOf(record);
  if (!options.svg.empty()) WriteFile(options.svg, SectionSvg(style, record, exact, options.name));
  if (!options.dxf.empty()) WriteFile(options.dxf, SectionDxf(record));
  if (options.json) {
    PrintJson(SectionJson(style, record, exact, options.name));
  } else {
    PrintSection(style, record, exact, options.name);
  }
}

}  // namespace

void AddSectionCommand(CLI::App& program) {
  auto options = std::make_shared<CSectionOptions>();
  CLI::App* command = program.add_subcommand(
      "section",
      Say("由尺寸（mm）计算截面特性", "Compute a section's properties from its sizes in mm"));
  command
      ->add_option("STYLE", options->style,
                   Say("编号 0 至 14、表名或别名", "Style number 0 to 14, table name or alias"))
      ->required();
  command
      ->add_option("SIZE", options->sizes,
                   Say("各尺寸（mm），按 styles 列出的次序",
                       "The style's sizes in mm, in the order of styles"))
      ->type_name("NUMBER...");
  command
      ->add_option("--base", options->base,
                   Say("基点距左下角（mm），不给时为 0 0",
                       "Base point in mm from the lower-left corner, 0 0 if not given"))
      ->type_name("X Y");
  command->add_option("--name", options->name,
                      Say("截面名称，至多 30 个字符", "The section's name, at most 30 characters"));
  AddJsonOption(*command, options->json);
  AddSvgOption(*command, options->svg);
  AddDxfOption(*command, options->dxf);
  command->callback([options] { RunSection(*options); });
}

}  // namespace orv3::cli
