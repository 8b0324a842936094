// orv3cal lattice: the properties and the picture of a lattice column.

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "cases/case_schema.h"
#include "cases/case_source.h"
#include "cases/schemas.h"
#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/lattice/lattice_picture.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/outline/row_figures.h"
#include "commands.h"
#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "options/nearest.h"
#include "options/output_options.h"
#include "output/output.h"
#include "output/text_table.h"
#include "sections/geometry/row_values.h"
#include "sections/load_data_table.h"
#include "store/store_place.h"
#include "store/store_table.h"

namespace orv3::cli {
namespace {

struct CLatticeOptions {
  std::string file;
  bool json = false;
  std::string svg;
  CStoreOptions store;
};

std::string Cell(const CDataItem& row, const wchar_t* sign) { return ToUtf8(row[sign].m_strValue); }

CString CellText(const CKeyValue& value) {
  const auto* number = std::get_if<double>(&value);
  return number ? FormatShortest(*number) : FromUtf8(std::get<std::string_view>(value));
}

// Each value in the cell of its key.
CSteelItemGeGou LatticeColumnOf(const CCaseSchema& schema, const CCaseValues& values) {
  const auto table = static_cast<std::size_t>(schema.Find("table"));
  CSteelItemGeGou column(LatticeLimbCount(CellText(*values[table])));
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i == table || !values[i]) continue;
    const CString sign = FromUtf8(schema.Rules()[i].m_strKey);
    column[sign.GetString()].m_strValue = CellText(*values[i]);
  }
  return column;
}

// The column of the file.
CSteelItemGeGou ReadColumn(const std::string& path) {
  const CCaseSchema schema(SchemaOf("lattice"));
  std::optional<CSteelItemGeGou> column;
  ReadCases(path, schema, MessageLanguage(), [&](const CReadCase& read) {
    if (!read.m_bSingle)
      Refuse(Say("{1}: 不是单个格构柱；请给一个 JSON 对象",
                 "{1}: holds no single column; give one JSON object", {path}));
    const auto fault = read.m_fault ? read.m_fault : schema.Check(read.m_arrValue);
    if (fault) Refuse(path + ": " + fault->Line(MessageLanguage()));
    column = LatticeColumnOf(schema, read.m_arrValue);
  });
  if (!column)
    Refuse(Say("{1}: 没有格构柱；请给一个 JSON 对象", "{1}: holds no column; give one JSON object",
               {path}));
  return *column;
}

// Names the limb that is not in the store, and what would be there.
[[noreturn]] void RefuseLimb(const CSteelItemGeGou& column, const CLimbColumns& signs) {
  const std::string type = Excerpt(Cell(column, signs.m_szType));
  const std::string no = Excerpt(Cell(column, signs.m_szNo));
  if (CLoadDataTable::IsTableNameType(FromUtf8(type), kCatalogueTables)) {
    FailUnread();
    const CStringArray numbers = ComponentNumbers(FromUtf8(type));
    if (numbers.IsEmpty())
      Refuse(Say("{1}: 库中没有“{2}”的行；请用有此表的库",
                 "{1}: the store has no rows of \"{2}\"; right would be a store that has them",
                 {ToUtf8(signs.m_szType), type}));
    Refuse(Say("{1}: {2} 中没有“{3}”；相近的有：{4}",
               "{1}: {2} has no \"{3}\"; the nearest are: {4}",
               {ToUtf8(signs.m_szNo), type, no, Nearest(no, numbers)}));
  }
  CStringArray names;
  CLoadDataTable::GetTableNameArray(kCatalogueTables, names);
  Refuse(Say("{1}: 库中没有型钢表“{2}”；相近的有：{3}",
             "{1}: the store has no table of rolled sections \"{2}\"; the nearest are: {3}",
             {ToUtf8(signs.m_szType), type, Nearest(type, names)}));
}

CLatticeLimbs LimbsOf(const CSteelItemGeGou& column) {
  const int count = LatticeLimbCount(column.m_strTableName);
  for (int i = 0; i < count; ++i) {
    const CString type = column[kLimbColumns[i].m_szType].m_strValue;
    if (!CLoadDataTable::IsTableNameType(type, kCatalogueTables) ||
        column.GetPartItem(i + 1).IsEmpty())
      RefuseLimb(column, kLimbColumns[i]);
  }
  CLatticeLimbs limbs;
  if (!limbs.Fetch(column)) Refuse(Say("格构柱不能计算", "the column cannot be computed"));
  for (int i = 0; i < count; ++i) {
    const auto what = Contradiction(limbs.m_arrLimb[static_cast<std::size_t>(i)].m_row);
    if (!what) continue;
    Refuse(
        Say("{1}: 库中 {2} 的行自相矛盾：{3}；请改正其尺寸或特性",
            "{1}: the row of {2} in the store contradicts itself: {3}; right would be to correct "
            "its sizes or figures",
            {ToUtf8(kLimbColumns[i].m_szNo), Cell(column, kLimbColumns[i].m_szNo), Say(*what)}));
  }
  if (limbs.PlaceTruly(column)) return limbs;
  for (int i = 0; i < count; ++i) {
    const CRowFigures f = RowFigures(limbs.m_arrLimb[static_cast<std::size_t>(i)].m_row);
    if (f.m_dArea > 0 && std::isfinite(f.m_dXc + f.m_dYc + f.m_dIx + f.m_dIy)) continue;
    Refuse(Say("{1}: 库中 {2} 的行缺少面积、形心或惯性矩；请用目录中的型钢",
               "{1}: the row of {2} in the store lacks its area, centroid or moments of inertia; "
               "right would be a section of the catalogue",
               {ToUtf8(kLimbColumns[i].m_szNo), Cell(column, kLimbColumns[i].m_szNo)}));
  }
  Refuse(Say("格构柱不能计算", "the column cannot be computed"));
}

std::string Number(const CLatticeLimb& limb) { return ToUtf8(limb.m_row[0].m_strValue); }

CJson LatticeJson(const CSteelItemGeGou& column, const CLatticeLimbs& limbs) {
  const CLatticeProperties values = limbs.Properties();
  CJson properties = CJson::object();
  for (const CLatticeProperty& property : LatticePropertyColumns())
    properties[property.m_szKey] = JsonNumber(values.*property.m_pField);
  CJson list = CJson::array();
  for (const CLatticeLimb& limb : limbs.m_arrLimb) {
    list.push_back({{"type", ToUtf8(limb.m_row.m_strTableName)},
                    {"no", Number(limb)},
                    {"angle", JsonNumber(limb.m_dAngle)},
                    {"area", JsonNumber(limb.m_dArea)},
                    {"x", JsonNumber(limb.m_at.m_x)},
                    {"y", JsonNumber(limb.m_at.m_y)}});
  }
  return {{"table", ToUtf8(column.m_strTableName)},
          {"no", Cell(column, L"No.")},
          {"properties", properties},
          {"limbs", list}};
}

void PrintLattice(const CSteelItemGeGou& column, const CLatticeLimbs& limbs) {
  CTextTable parts({CAlign::Right, CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Right,
                    CAlign::Right, CAlign::Right});
  parts.AddRow({Say("肢", "limb"), Say("表", "table"), Say("型号", "no"),
                Say("转角 (°)", "turned (°)"), "A (mm²)", "x (mm)", "y (mm)"});
  for (std::size_t i = 0; i < limbs.m_arrLimb.size(); ++i) {
    const CLatticeLimb& limb = limbs.m_arrLimb[i];
    parts.AddRow({std::to_string(i + 1), ToUtf8(limb.m_row.m_strTableName), Number(limb),
                  NumberText(limb.m_dAngle), NumberText(limb.m_dArea), NumberText(limb.m_at.m_x),
                  NumberText(limb.m_at.m_y)});
  }
  static constexpr const char* kUnits[] = {"", "mm", "mm²", "mm³", "mm⁴"};
  const CLatticeProperties values = limbs.Properties();
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  for (const CLatticeProperty& property : LatticePropertyColumns()) {
    table.AddRow({ToUtf8(property.m_szTitle), property.m_szKey,
                  NumberText(values.*property.m_pField), kUnits[property.m_nPower],
                  Say({"", property.m_szMeaning})});
  }
  Print(ToUtf8(column.m_strTableName) + "  " + Cell(column, L"No.") + "\n\n" + parts.Text() + "\n" +
        table.Text());
}

void RunLattice(const CLatticeOptions& options) {
  const CSteelItemGeGou column = ReadColumn(options.file);
  StoreToRead(options.store);
  const CLatticeLimbs limbs = LimbsOf(column);
  if (!options.svg.empty()) {
    WriteFile(options.svg, LatticePictureSvg({column.m_strTableName, column[L"No."].m_strValue,
                                              limbs, MessageLanguage()}));
  }
  if (options.json) {
    PrintJson(LatticeJson(column, limbs));
  } else {
    PrintLattice(column, limbs);
  }
}

}  // namespace

void AddLatticeCommand(CLI::App& program) {
  auto options = std::make_shared<CLatticeOptions>();
  CLI::App* command = program.add_subcommand(
      "lattice", Say("计算双肢、三肢或四肢格构柱",
                     "Compute a lattice column of two, three or four rolled limbs"));
  command
      ->add_option(
          "FILE", options->file,
          Say("格构柱，见 docs/lattice.md（JSON）", "The column, as docs/lattice.md tells (JSON)"))
      ->required();
  AddJsonOption(*command, options->json);
  AddSvgOption(*command, options->svg);
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunLattice(*options); });
}

}  // namespace orv3::cli
