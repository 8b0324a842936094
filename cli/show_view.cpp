#include "show_view.h"

#include <cmath>
#include <string>

#include "framework/utf8.h"
#include "text_table.h"

namespace orv3::cli {
namespace {

struct CFigure {
  const char* m_szKey;
  const char* m_szTitle;    // Chinese
  const char* m_szMeaning;  // English
  const char* m_szUnit;
  double CRowFigures::*m_pField;
};

constexpr CFigure kFigures[] = {
    {"area", "截面面积", "area", "mm²", &CRowFigures::m_dArea},
    {"width", "外接矩形宽", "width of the bounding box", "mm", &CRowFigures::m_dWidth},
    {"height", "外接矩形高", "height of the bounding box", "mm", &CRowFigures::m_dHeight},
    {"xc", "重心距左边", "centroid from the left", "mm", &CRowFigures::m_dXc},
    {"yc", "重心距底边", "centroid from the bottom", "mm", &CRowFigures::m_dYc},
    {"Ix", "X轴惯性矩", "moment of inertia about X", "mm⁴", &CRowFigures::m_dIx},
    {"Iy", "Y轴惯性矩", "moment of inertia about Y", "mm⁴", &CRowFigures::m_dIy},
    {"Sxo", "X轴面积矩", "first moment about X", "mm³", &CRowFigures::m_dSxo},
    {"ix", "X轴回转半径", "radius of gyration about X", "mm", &CRowFigures::m_dRx},
    {"iy", "Y轴回转半径", "radius of gyration about Y", "mm", &CRowFigures::m_dRy},
    {"Wxo1", "X轴抵抗矩(上)", "modulus about X, top", "mm³", &CRowFigures::m_dWTop},
    {"Wxo2", "X轴抵抗矩(下)", "modulus about X, bottom", "mm³", &CRowFigures::m_dWBottom},
    {"WyoL", "Y轴抵抗矩(左)", "modulus about Y, left", "mm³", &CRowFigures::m_dWLeft},
    {"WyoR", "Y轴抵抗矩(右)", "modulus about Y, right", "mm³", &CRowFigures::m_dWRight},
    {"tmax", "最大板厚", "thickest plate", "mm", &CRowFigures::m_dThickest},
    {"tmin", "最小板厚", "thinnest plate", "mm", &CRowFigures::m_dThinnest},
    {"e0", "剪心距离", "shear centre distance", "mm", &CRowFigures::m_dE0},
    {"Iw", "扇性惯性矩", "warping constant", "mm⁶", &CRowFigures::m_dIw},
};

const char* TypeName(CDataTypeStruct::KVBT_Value_Type type) {
  switch (type) {
    case CDataTypeStruct::KVBT_INT:
      return "int";
    case CDataTypeStruct::KVBT_LONG:
    case CDataTypeStruct::KVBT_LONG_ALT:
      return "long";
    case CDataTypeStruct::KVBT_FLOAT:
      return "float";
    case CDataTypeStruct::KVBT_DOUBLE:
      return "double";
    case CDataTypeStruct::KVBT_CHAR:
      return "char";
    case CDataTypeStruct::KVBT_STRING:
      break;
  }
  return "text";
}

// "Ix(cm^4)" as the symbol and the unit, its power written small. The last pair of brackets is the
// unit: "P(0.6m)(kN)".
std::pair<std::string, std::string> SymbolAndUnit(const std::string& sign) {
  const std::size_t open = sign.rfind('(');
  if (open == std::string::npos || sign.back() != ')') return {sign, ""};
  std::string unit = sign.substr(open + 1, sign.size() - open - 2);
  static constexpr std::pair<const char*, const char*> kPowers[] = {
      {"^-1", "⁻¹"}, {"^2", "²"}, {"^3", "³"}, {"^4", "⁴"}, {"^5", "⁵"}, {"^6", "⁶"}};
  for (const auto& [plain, small] : kPowers) {
    if (const std::size_t at = unit.find(plain); at != std::string::npos)
      unit.replace(at, std::string(plain).size(), small);
  }
  return {sign.substr(0, open), unit};
}

std::string YesNo(bool value) { return value ? "是 yes" : "否 no"; }

}  // namespace

CJson RowJson(const CDataItem& row, const CRowFigures& figures) {
  CJson columns = CJson::array();
  CJson cells = CJson::array();
  for (const CDataCell& cell : row.m_arrCell) {
    columns.push_back({{"sign", ToUtf8(cell.m_strSign)},
                       {"name", ToUtf8(cell.m_strName)},
                       {"type", TypeName(cell.m_nType)},
                       {"key", cell.m_bKey != 0}});
    cells.push_back(ToUtf8(cell.m_strValue));
  }
  CJson geometry = CJson::object();
  for (const CFigure& figure : kFigures)
    geometry[figure.m_szKey] = JsonNumber(figures.*figure.m_pField);
  geometry["symX"] = figures.m_bSymX;
  geometry["symY"] = figures.m_bSymY;
  return {{"table", ToUtf8(row.m_strTableName)},
          {"no", ToUtf8(row[0].m_strValue)},
          {"columns", columns},
          {"cells", cells},
          {"geometry", geometry}};
}

void PrintRow(const CDataItem& row, const CRowFigures& figures) {
  Print(ToUtf8(row.m_strTableName) + "  " + ToUtf8(row[0].m_strValue) + "\n\n");
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  for (const CDataCell& cell : row.m_arrCell) {
    if (cell.m_bKey != 0) continue;
    const auto [symbol, unit] = SymbolAndUnit(ToUtf8(cell.m_strSign));
    table.AddRow({ToUtf8(cell.m_strName), symbol, ToUtf8(cell.m_strValue), unit});
  }
  table.AddRule();
  for (const CFigure& figure : kFigures) {
    const double value = figures.*figure.m_pField;
    if (std::isfinite(value))
      table.AddRow({figure.m_szTitle, figure.m_szKey, NumberText(value), figure.m_szUnit,
                    figure.m_szMeaning});
  }
  table.AddRow({"对称于X轴", "symX", YesNo(figures.m_bSymX), "", "symmetric about X"});
  table.AddRow({"对称于Y轴", "symY", YesNo(figures.m_bSymY), "", "symmetric about Y"});
  Print(table.Text());
}

}  // namespace orv3::cli
