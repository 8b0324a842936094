#include "output/show_view.h"

#include <cmath>
#include <string>
#include <utility>

#include "catalogue/headings/column_title.h"
#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/rolled/angle_capacity.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "output/figure_cells.h"
#include "sections/section_figures.h"
#include "sections/section_style.h"

namespace orv3::cli {
namespace {

// Which axis a figure is about; the texts' "#" stands for its letter, "@" for the letter as an
// index.
enum class CAxis { None, X, Y };

struct CFigure {
  const char* m_szKey;
  CAxis m_nAxis;
  const char* m_szSymbol;
  const char* m_szTitle;    // Chinese
  const char* m_szMeaning;  // English
  const char* m_szUnit;
  double CRowFigures::*m_pField;
  bool m_bFurther = false;  // no property of a user-defined section tells it
};

using F = CRowFigures;

constexpr CFigure kFigures[] = {
    {"area", CAxis::None, "A", "截面面积", "area", "mm²", &F::m_dArea},
    {"width", CAxis::None, "width", "外接矩形宽", "width of the bounding box", "mm", &F::m_dWidth,
     true},
    {"height", CAxis::None, "height", "外接矩形高", "height of the bounding box", "mm",
     &F::m_dHeight, true},
    {"xc", CAxis::None, "xc", "形心距左边", "centroid from the left", "mm", &F::m_dXc},
    {"yc", CAxis::None, "yc", "形心距底边", "centroid from the bottom", "mm", &F::m_dYc},
    {"Ix", CAxis::X, "I@", "#轴惯性矩", "moment of inertia about #", "mm⁴", &F::m_dIx},
    {"Iy", CAxis::Y, "I@", "#轴惯性矩", "moment of inertia about #", "mm⁴", &F::m_dIy},
    {"Sxo", CAxis::X, "S@", "#轴面积矩", "first moment about #", "mm³", &F::m_dSxo},
    {"Syo", CAxis::Y, "S@", "#轴面积矩", "first moment about #", "mm³", &F::m_dSyo},
    {"ix", CAxis::X, "i@", "#轴回转半径", "radius of gyration about #", "mm", &F::m_dRx},
    {"iy", CAxis::Y, "i@", "#轴回转半径", "radius of gyration about #", "mm", &F::m_dRy},
    {"imin", CAxis::None, "imin", "最小回转半径", "least radius of gyration", "mm", &F::m_dRleast,
     true},
    {"Wxo1", CAxis::X, "W@上", "#轴截面模量(上)", "modulus about #, top", "mm³", &F::m_dWTop},
    {"Wxo2", CAxis::X, "W@下", "#轴截面模量(下)", "modulus about #, bottom", "mm³", &F::m_dWBottom},
    {"WyoL", CAxis::Y, "W@左", "#轴截面模量(左)", "modulus about #, left", "mm³", &F::m_dWLeft},
    {"WyoR", CAxis::Y, "W@右", "#轴截面模量(右)", "modulus about #, right", "mm³", &F::m_dWRight},
    {"tmax", CAxis::None, "tmax", "最大板厚", "thickest plate", "mm", &F::m_dThickest, true},
    {"tmin", CAxis::None, "tmin", "最小板厚", "thinnest plate", "mm", &F::m_dThinnest, true},
    {"e0", CAxis::None, "e0", "剪心距(薄壁)", "shear centre to centroid, thin-wall", "mm",
     &F::m_dE0, true},
    {"Iw", CAxis::None, "Iw", "扇性惯性矩(薄壁)", "warping constant, thin-wall", "mm⁶", &F::m_dIw,
     true},
};

std::string Letter(const CRowFigures& figures, CAxis axis) {
  return ToUtf8(CString(axis == CAxis::Y ? figures.m_szAxisY : figures.m_szAxisX));
}

// "X0" as "xo", as the signs of columns have it.
std::string Index(std::string letter) {
  letter[0] = letter[0] == 'X' ? 'x' : 'y';
  if (letter.ends_with('0')) letter.back() = 'o';
  return letter;
}

std::string Named(std::string text, const std::string& letter) {
  if (const std::size_t at = text.find('#'); at != std::string::npos) text.replace(at, 1, letter);
  if (const std::size_t at = text.find('@'); at != std::string::npos)
    text.replace(at, 1, Index(letter));
  return text;
}

void AddFigure(CTextTable& table, const CFigure& figure, const CRowFigures& figures) {
  const std::string letter = Letter(figures, figure.m_nAxis);
  table.AddRow({Named(figure.m_szTitle, letter), Named(figure.m_szSymbol, letter),
                NumberText(figures.*figure.m_pField), figure.m_szUnit,
                Say({"", Named(figure.m_szMeaning, letter)})});
}

void AddSymmetry(CTextTable& table, const std::string& letter, const std::optional<bool>& value) {
  table.AddRow({"对称于" + letter + "轴", "",
                value ? (*value ? Say("是", "yes") : Say("否", "no")) : "-", "",
                Say({"", "symmetric about " + letter})});
}

CJson SymmetryJson(const std::optional<bool>& value) { return value ? CJson(*value) : nullptr; }

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

CText CellTitle(const CDataItem& row, const CDataCell& cell) {
  return ColumnTitle(row.m_strTableName,
                     {cell.m_strName, cell.m_strSign, cell.m_nType, cell.m_bKey});
}

// What a figure means, beside its Chinese title, and a remark.
std::string Meaning(const CText& title, const std::string& remark) {
  const bool known = title.m_strEnglish != title.m_strChinese;
  const std::string meaning = Say({"", known ? title.m_strEnglish : ""});
  return meaning + (meaning.empty() || remark.empty() ? "" : "; ") + remark;
}

// Of capacity columns, by the cell: the slenderness and what it means for the figure.
std::vector<std::string> CellRemarks(const CDataItem& row) {
  std::vector<std::string> remarks(static_cast<std::size_t>(row.GetItemLength()));
  for (const CAngleCapacity& capacity : AngleCapacities(row)) {
    std::string& remark = remarks[static_cast<std::size_t>(capacity.m_nColumn)];
    remark = "λ = " + NumberText(std::round(capacity.m_dLambda));
    for (const double limit : {kPhiSlenderness, kBracingSlenderness, kStrutSlenderness}) {
      if (capacity.m_dLambda <= limit) continue;
      remark += " > " + NumberText(limit);
      break;
    }
  }
  return remarks;
}

// The row's cells as they are shown: those of a user-defined section from its sizes, with the
// digits of the figures below.
CDataItem ShownRow(const CDataItem& row) {
  CDataItem shown = row;
  if (const auto record = SectionRecord(row)) {
    shown = ExactRow(*record);
    shown.m_arrCell.Own(0).m_strValue = row[0].m_strValue;
  }
  ShowFigures(shown);
  for (int cell = 1; FindSectionStyle(row.m_strTableName.View()) && cell < shown.GetItemLength();
       ++cell) {
    const CString& text = std::as_const(shown)[cell].m_strValue;
    if (IsNumber(text)) shown.m_arrCell.Own(cell).m_strValue = FromUtf8(NumberText(ToDouble(text)));
  }
  return shown;
}

// A lattice row's results beside what its limbs give as they stand.
std::string LatticeNote(const CDataItem& row, const CRowFigures& figures) {
  static constexpr std::pair<const wchar_t*, double CRowFigures::*> kResults[] = {
      {L"A(mm^2)", &F::m_dArea},    {L"Ix(mm^4)", &F::m_dIx},       {L"Iy(mm^4)", &F::m_dIy},
      {L"Wx1(mm^3)", &F::m_dWTop},  {L"Wx2(mm^3)", &F::m_dWBottom}, {L"WyL(mm^3)", &F::m_dWLeft},
      {L"WyR(mm^3)", &F::m_dWRight}};
  if (LatticeLimbCount(row.m_strTableName.View()) == 0) return {};
  if (std::isnan(figures.m_dXc))
    return Say("库中没有各肢；所示为该行中的数值。",
               "The limbs are not to be had; the figures are those that the row holds.");
  for (const auto& [sign, field] : kResults) {
    double told = 0;
    const double value = figures.*field;
    if (!row.GetCellValue(sign, told) || std::fabs(told - value) <= 1e-5 * value) continue;
    return Say(
        "该行的 {1} = {2} 与由各肢按实际位置所得的 {3} 不同；行中 T 型钢的形心取在半高，肢 1 "
        "的顶部低 k。",
        "The row's {1} = {2} differs from what its limbs give as they stand, {3}; rows count "
        "a T's centroid at mid-height and limb 1's top k lower.",
        {ToUtf8(CString(sign)), NumberText(told), NumberText(value)});
  }
  return {};
}

std::string StaleNote(const CDataItem& row) {
  const auto record = SectionRecord(row);
  const int stale = record ? StaleColumn(row, *record) : -1;
  if (stale < 0) return {};
  return Say("库中的 {1} = {2} 与库中尺寸所得的 {3} 不符；所示由尺寸算得。",
             "The stored {1} = {2} is not that of the stored sizes, which give {3}; what is shown "
             "follows from the sizes.",
             {ToUtf8(row.GetCellSign(stale)), ToUtf8(row[stale].m_strValue),
              ToUtf8(FormatG(ToDouble(ExactRow(*record)[stale].m_strValue)))});
}

}  // namespace

CJson FiguresJson(const CRowFigures& figures) {
  CJson geometry = CJson::object();
  for (const CFigure& figure : kFigures)
    geometry[figure.m_szKey] = JsonNumber(figures.*figure.m_pField);
  geometry["symX"] = SymmetryJson(figures.m_symX);
  geometry["symY"] = SymmetryJson(figures.m_symY);
  geometry["axes"] = {{"x", Letter(figures, CAxis::X)}, {"y", Letter(figures, CAxis::Y)}};
  return geometry;
}

void AddFurtherFigures(CTextTable& table, const CRowFigures& figures) {
  for (const CFigure& figure : kFigures) {
    if (figure.m_bFurther) AddFigure(table, figure, figures);
  }
  AddSymmetry(table, Letter(figures, CAxis::X), figures.m_symX);
  AddSymmetry(table, Letter(figures, CAxis::Y), figures.m_symY);
}

CJson RowJson(const CDataItem& row, const CRowFigures& figures) {
  CDataItem shown = row;
  ShowFigures(shown);
  CJson columns = CJson::array();
  CJson cells = CJson::array();
  for (const CDataCell& cell : std::as_const(shown.m_arrCell)) {
    columns.push_back({{"sign", ToUtf8(cell.m_strSign)},
                       {"name", ToUtf8(cell.m_strName)},
                       {"title", CellTitle(row, cell).In(MessageLanguage())},
                       {"type", TypeName(cell.m_nType)},
                       {"key", cell.m_bKey != 0}});
    cells.push_back(CellJson(cell));
  }
  CJson json = {{"table", ToUtf8(row.m_strTableName)},
                {"no", ToUtf8(row[0].m_strValue)},
                {"columns", columns},
                {"cells", cells},
                {"geometry", FiguresJson(figures)}};
  if (const auto capacities = AngleCapacities(row); !capacities.empty()) {
    json["slenderness"] = CJson::object();
    for (const CAngleCapacity& capacity : capacities)
      json["slenderness"][ToUtf8(row.GetCellSign(capacity.m_nColumn))] = capacity.m_dLambda;
  }
  if (const auto notes = RowNotes(row); !notes.empty()) json["notes"] = notes;
  return json;
}

void PrintRow(const CDataItem& row, const CRowFigures& figures) {
  Print(ToUtf8(row.m_strTableName) + "  " + ToUtf8(row[0].m_strValue) + "\n\n");
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  const CDataItem shown = ShownRow(row);
  const std::vector<std::string> remarks = CellRemarks(row);
  for (int i = 0; i < shown.GetItemLength(); ++i) {
    const CDataCell& cell = shown[i];
    if (cell.m_bKey != 0) continue;
    const auto [symbol, unit] = SymbolAndUnit(ToUtf8(cell.m_strSign));
    const auto at = static_cast<std::size_t>(i);
    table.AddRow({ToUtf8(cell.m_strName), symbol, ToUtf8(cell.m_strValue), unit,
                  Meaning(CellTitle(row, cell), at < remarks.size() ? remarks[at] : "")});
  }
  table.AddRule();
  for (const CFigure& figure : kFigures) AddFigure(table, figure, figures);
  AddSymmetry(table, Letter(figures, CAxis::X), figures.m_symX);
  AddSymmetry(table, Letter(figures, CAxis::Y), figures.m_symY);
  Print(table.Text());
  PrintNotes(RowNotes(row));
}

std::vector<std::string> RowDoubtNotes(const CDataItem& row) {
  std::vector<std::string> notes;
  for (std::string note : {StaleNote(row), LatticeNote(row, RowFigures(row))})
    if (!note.empty()) notes.push_back(std::move(note));
  for (const CRowDoubt& doubt : RowDoubts(row)) {
    notes.push_back(
        Say("{1} 可疑：行中为 {2}，由尺寸的轮廓得 {3}（以 mm 及其幂计）。",
            "{1} is doubtful: the row tells {2}, the outline of its sizes has {3} (in mm and its "
            "powers).",
            {doubt.m_szKey, NumberText(doubt.m_dTold), NumberText(doubt.m_dOutline)}));
  }
  if (LatticeLimbCount(row.m_strTableName.View()) > 0) {
    if (const auto what = Contradiction(row))
      notes.push_back(Say("一肢自相矛盾：{1}。", "A limb contradicts itself: {1}.", {Say(*what)}));
  }
  return notes;
}

std::vector<std::string> RowNotes(const CDataItem& row) {
  std::vector<std::string> notes = RowDoubtNotes(row);
  if (HasAngleCapacities(row.m_strTableName))
    notes.emplace_back(AngleCapacityBasis().In(MessageLanguage()));
  if (RowFigures(row).m_bAslant)
    notes.push_back(Say("X1 在两角钢之间，Y1 穿过两角钢，与肢成 45°。",
                        "X1 lies between the angles and Y1 through both, at 45° to their legs."));
  return notes;
}

void PrintNotes(const std::vector<std::string>& notes) {
  for (const std::string& note : notes) Print("\n" + note + "\n");
}

}  // namespace orv3::cli
