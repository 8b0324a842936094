#include "dialogs/model/property_model.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/exact/row_exact.h"
#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/outline/row_outline.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/spacing_model.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/exact_keys.h"
#include "sections/load_data_table.h"
#include "sections/row_check.h"
#include "sections/section_style.h"
#include "sections/sketch/sketch.h"

namespace orv3 {
namespace {

constexpr int kColumnWidth = 150;
constexpr int kName = 0, kValue = 1;  // the grid's columns
constexpr int kSpacingLine = 1;
// Limbs are single sections: a combined one would need a spacing of its own.
constexpr long kLimbTables = TABLE_ROLLED | TABLE_FAMILY_I | TABLE_FAMILY_BOX | TABLE_FAMILY_T |
                             TABLE_FAMILY_CHANNEL | TABLE_FAMILY_Z | TABLE_FAMILY_ROUND |
                             TABLE_FAMILY_ANGLE;

CString LimbSign(int limb, const wchar_t* what) { return L"P" + FormatInt(limb) + what; }

int CellOf(const CDataItem& row, const CString& sign) { return row.GetSignIndex(sign); }

// Title and sign: the sign carries the unit and tells apart columns of one title.
CString CaptionOf(const CDataCell& cell) {
  if (cell.m_strName.IsEmpty()) return cell.m_strSign;
  return cell.m_strSign == L"No." ? cell.m_strName : cell.m_strName + L"  " + cell.m_strSign;
}

CStringArray LimbTypes() {
  CStringArray all;
  CStringArray types;
  CLoadDataTable::GetTableNameArray(kLimbTables, all);
  for (const CString& name : all) {
    CStringArray numbers;
    if (CLoadDataTable::GetSysTemItemNo(name, numbers) && !numbers.IsEmpty()) types.Add(name);
  }
  return types;
}

CStringArray TurnChoices() {
  CStringArray turns;
  for (const int angle : {0, 90, 180, 270}) turns.Add(FormatInt(angle));
  return turns;
}

}  // namespace

CPropertyModel::CPropertyModel(const CDataItem& row, const CString& tableName, int editMode)
    : m_row(row), m_before(row), m_strTable(tableName), m_nEditMode(editMode) {
  if (m_row.m_strTableName.IsEmpty()) m_row.m_strTableName = tableName;
  m_nSource = LatticeLimbCount(tableName) > 0      ? CSource::Lattice
              : FindSectionStyle(tableName.View()) ? CSource::Custom
                                                   : CSource::Plain;
  // A new lattice column comes without its results.
  const int area = CellOf(m_row, L"A(mm^2)");
  if (m_nEditMode != 0 && area >= 0 && std::as_const(m_row)[area].m_strValue.IsEmpty()) Recompute();
  FillGrid();
}

CString CPropertyModel::Caption() const {
  return HasOk() ? texts::kPropertyEdit : texts::kPropertyShow;
}
CString CPropertyModel::CancelText() const { return HasOk() ? texts::kCancel : texts::kLeave; }
CBitmap CPropertyModel::Picture() const { return SketchBitmap(PictureResource()); }
int CPropertyModel::PictureResource() const { return SketchResource(m_strTable); }

// --- Grid ---------------------------------------------------------------------------------------

void CPropertyModel::FillGrid() {
  m_grid.InsertColumn(kName, texts::kParameterName, kColumnWidth);
  m_grid.InsertColumn(kValue, texts::kParameterValue, kColumnWidth);
  for (int i = 0; i < LineCount(); ++i) {
    const CDataCell& cell = std::as_const(m_row)[i];
    CStringArray line;
    line.Add(CaptionOf(cell));
    line.Add(cell.m_strValue);
    m_grid.InsertLine(i, line);
  }
  if (!RowOutline(m_row).m_arrLoop.empty()) AddExact();
  SetModifyTypes();
}

void CPropertyModel::AddExact() {
  CStringArray heading;
  heading.Add(texts::kExactHeading);
  m_grid.InsertLine(m_grid.LineCount(), heading);
  for (const CExactKey& key : ExactKeys()) {
    CStringArray line;
    line.Add(FromUtf8(key.m_szTitle) + L"  " + FromUtf8(key.m_szKey) + L"(" +
             FromUtf8(key.m_szSignUnit) + L")");
    m_grid.InsertLine(m_grid.LineCount(), line);
  }
  ShowExact();
}

void CPropertyModel::ShowExact() {
  int line = LineCount() + 1;
  if (line >= m_grid.LineCount()) return;
  const CExactProperties exact = ExactProperties(std::as_const(m_row));
  for (const CExactKey& key : ExactKeys()) {
    const double value = exact.*key.m_pField;
    m_grid.SetCellText(line++, kValue, std::isfinite(value) ? FormatG(value) : L"-");
  }
}

void CPropertyModel::ShowValues() {
  for (int i = 0; i < LineCount(); ++i) {
    m_grid.SetCellText(i, kValue, std::as_const(m_row)[i].m_strValue);
  }
  ShowExact();
}

void CPropertyModel::SetModifyTypes() {
  if (m_nSource != CSource::Lattice) m_grid.SetColModifyType(kValue, CModifyType::Edit);
  for (int i = 0; i < LineCount(); ++i) {
    const bool fixed = m_nEditMode == 0 || IsComputed(i);
    m_grid.SetCellModifyType(i, kValue, fixed ? CModifyType::Fixed : CModifyType::Edit);
  }
  for (int i = LineCount(); i < m_grid.LineCount(); ++i)
    m_grid.SetCellModifyType(i, kValue, CModifyType::Fixed);
  OfferSpacings();
  if (m_nSource == CSource::Lattice && m_nEditMode != 0) OfferLimbs();
}

void CPropertyModel::OfferSpacings() {
  if (SpacingOf(m_row).IsEmpty()) return;
  m_grid.SetCellModifyType(kSpacingLine, kValue, CModifyType::List,
                           SpacingChoices(SpacingKindOf(m_row.m_strTableName)));
}

void CPropertyModel::OfferLimbs() {
  const CStringArray types = LimbTypes();
  const CStringArray turns = TurnChoices();
  for (int limb = 1; limb <= kMaxLimbs; ++limb) {
    const int type = CellOf(m_row, LimbSign(limb, L"Type"));
    const int angle = CellOf(m_row, LimbSign(limb, L"θ°"));
    if (type >= 0) m_grid.SetCellModifyType(type, kValue, CModifyType::List, types);
    if (angle >= 0) m_grid.SetCellModifyType(angle, kValue, CModifyType::List, turns);
    OfferNumbers(limb);
  }
}

void CPropertyModel::OfferNumbers(int limb) {
  const int type = CellOf(m_row, LimbSign(limb, L"Type"));
  const int number = CellOf(m_row, LimbSign(limb, L"No."));
  if (type < 0 || number < 0) return;
  CStringArray numbers;
  CLoadDataTable::GetSysTemItemNo(std::as_const(m_row)[type].m_strValue, numbers);
  m_grid.SetCellModifyType(number, kValue, CModifyType::List, numbers);
}

// Behind a change of the limb's type: a number of the other type would mean nothing.
void CPropertyModel::ChooseNumber(int limb) {
  OfferNumbers(limb);
  const int number = CellOf(m_row, LimbSign(limb, L"No."));
  if (number < 0) return;
  const CStringArray& numbers = m_grid.Choices(number, kValue);
  const CString& current = std::as_const(m_row)[number].m_strValue;
  if (std::find(numbers.begin(), numbers.end(), current) != numbers.end()) return;
  SetCell(number, numbers.IsEmpty() ? CString() : numbers[0]);
}

// --- Values -------------------------------------------------------------------------------------

bool CPropertyModel::IsComputed(int line) const {
  if (m_nSource == CSource::Plain) return false;
  if (m_nSource == CSource::Custom) {  // number, sizes and base point come first
    return line > FindSectionStyle(m_strTable.View())->m_nSizes + 2;
  }
  const int results = CellOf(m_row, L"A(mm^2)");
  return results >= 0 && line >= results;
}

void CPropertyModel::SetCell(int line, const CString& text) {
  m_row.m_arrCell.Own(line).m_strValue = text;
}

void CPropertyModel::SetValue(int line, const CString& text) {
  if (m_grid.ModifyType(line, kValue) == CModifyType::Fixed) return;
  const CString value = CString(text).Trim();
  if (std::as_const(m_row)[line].m_strValue == value) return ShowValues();
  SetCell(line, value);
  for (int limb = 1; limb <= kMaxLimbs; ++limb) {
    if (line == CellOf(m_row, LimbSign(limb, L"Type"))) ChooseNumber(limb);
  }
  Recompute();
  ShowValues();
}

// Results that do not belong to what stands above them are taken away.
void CPropertyModel::Recompute() {
  if (m_nSource == CSource::Plain) return;
  if (!CheckRow(m_row) && Compute()) return;
  for (int i = 0; i < LineCount(); ++i) {
    if (IsComputed(i)) SetCell(i, CString());
  }
}

bool CPropertyModel::Compute() {
  if (m_nSource == CSource::Plain) return true;
  if (m_nSource == CSource::Custom) return CLoadDataTable::CalSectCharacterStyle(m_row) != 0;
  CSteelItemGeGou column(m_row);
  if (!column.CalSteelJMGeGou()) return false;
  m_row.m_arrCell = column.m_arrCell;
  return true;
}

// --- OK -----------------------------------------------------------------------------------------

bool CPropertyModel::Refuse(CDialogUser& user) {
  if (const auto fault = CheckRow(m_row)) {
    m_nFaultLine = fault->m_nCell;
    user.Tell(fault->m_text.m_strChinese);
    return true;
  }
  const bool lost = m_nSource == CSource::Plain && !RowOutline(m_before).m_arrLoop.empty() &&
                    RowOutline(m_row).m_arrLoop.empty();
  if (!lost && Compute()) return false;
  user.Tell(texts::kNoResult);
  return true;
}

bool CPropertyModel::IsChanged(int line) const {
  return std::as_const(m_row)[line].m_strValue != m_before[line].m_strValue.View();
}

// Printed figures belong to printed sizes: those of a rolled section are nowhere computed anew.
bool CPropertyModel::AcceptOldFigures(CDialogUser& user) {
  if (m_nSource != CSource::Plain) return AcceptContradiction(user);
  CString sizes, figures;
  const auto name = [](CString& list, const CString& sign) {
    list += (list.IsEmpty() ? L"" : texts::kAnd) + sign;
  };
  for (int i = 0; i < LineCount(); ++i) {
    const CDataCell& cell = m_before[i];
    const bool size = cell.m_strSign.Right(4) == L"(mm)";
    const bool figure = !size && ValueClassOf(cell.m_nType) != CValueClass::Text;
    if (size && IsChanged(i) && SpacingOf(m_before).IsEmpty()) name(sizes, cell.m_strSign);
    if (!figure || IsChanged(i) || cell.m_strValue.IsEmpty()) continue;
    if (figures.IsEmpty()) m_nFaultLine = i;
    name(figures, cell.m_strSign);
  }
  const bool asked = !sizes.IsEmpty() && !figures.IsEmpty();
  const CString question = sizes + texts::kSizesChanged + figures + texts::kOldFigures;
  if (!asked) {
    m_nFaultLine = -1;
    return AcceptContradiction(user);
  }
  if (!user.AskYesNo(texts::kReminder, question)) return false;
  m_nFaultLine = -1;
  return true;
}

// Figures that were typed in, or limbs, may still not be those of the sizes.
bool CPropertyModel::AcceptContradiction(CDialogUser& user) {
  const auto what = Contradiction(m_row);
  if (!what) return true;
  const CString question = texts::kContradicts + FromUtf8(what->m_strChinese) + texts::kOldFigures;
  return user.AskYesNo(texts::kReminder, question);
}

bool CPropertyModel::Ok(CDialogUser& user) {
  m_nFaultLine = -1;
  if (m_nEditMode == 0) return true;
  const CMessageRoute route(user);
  const bool refused = Refuse(user);
  ShowValues();
  if (refused || !AcceptOldFigures(user)) return false;
  CDataItem row = m_row;
  if (m_fnAccept && !m_fnAccept(row, user)) return false;
  m_row = row;
  ShowValues();
  return true;
}

}  // namespace orv3
