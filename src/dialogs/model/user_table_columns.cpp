// The user table editor's columns.
#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/user_table_model.h"
#include "framework/number_text.h"
#include "sections/load_data_table.h"
#include "tables/value_fit.h"

namespace orv3 {
namespace {

using CType = CDataTypeStruct::KVBT_Value_Type;

constexpr int kNameCell = 0, kSignCell = 1, kTypeCell = 2, kKeyCell = 3;
constexpr int kMinColumns = 2;  // what rows of sections have at least

struct CTypeName {
  CType m_nType;
  const wchar_t* m_szText;
};

constexpr CTypeName kTypeNames[] = {
    {CDataTypeStruct::KVBT_STRING, texts::kTypeText},
    {CDataTypeStruct::KVBT_INT, texts::kTypeInt},
    {CDataTypeStruct::KVBT_LONG, texts::kTypeLong},
    {CDataTypeStruct::KVBT_FLOAT, texts::kTypeFloat},
    {CDataTypeStruct::KVBT_DOUBLE, texts::kTypeDouble},
    {CDataTypeStruct::KVBT_CHAR, texts::kTypeChar},
    {CDataTypeStruct::KVBT_LONG_ALT, texts::kTypeLong2},
};

CString TypeText(CType type) {
  const auto* found = std::find_if(std::begin(kTypeNames), std::end(kTypeNames),
                                   [&](const CTypeName& name) { return name.m_nType == type; });
  return found == std::end(kTypeNames) ? kTypeNames[0].m_szText : found->m_szText;
}

CType TypeOf(const CString& text) {
  const auto* found = std::find_if(std::begin(kTypeNames), std::end(kTypeNames),
                                   [&](const CTypeName& name) { return text == name.m_szText; });
  return found == std::end(kTypeNames) ? CDataTypeStruct::KVBT_STRING : found->m_nType;
}

CStringArray TypeChoices() {
  CStringArray choices;
  for (const CTypeName& name : kTypeNames) choices.Add(name.m_szText);
  return choices;
}

CStringArray KeyChoices() {
  CStringArray choices;
  choices.Add(texts::kYes);
  choices.Add(texts::kNo);
  return choices;
}

bool HasSeparator(const CString& text) { return text.Find(L',') >= 0 || text.Find(L'\n') >= 0; }

// What is wrong with a column of a heading; null when nothing is.
const wchar_t* ColumnFault(const CDataTableTitle& title, int column) {
  const CDataTypeStruct& checked = title[column];
  const int first = title.GetColIndex(checked.m_strSign);
  const bool taken = first != column || [&] {
    for (int i = column + 1; i < title.GetTableTitleNum(); ++i) {
      if (title[i].m_strSign == checked.m_strSign) return true;
    }
    return false;
  }();
  if (checked.m_strSign.IsEmpty()) return texts::kSignMissing;
  if (checked.m_strSign.GetLength() > CDataTypeStruct::kMaxSign) return texts::kSignTooLong;
  if (checked.m_strName.GetLength() > CDataTypeStruct::kMaxName) return texts::kNameTooLong;
  if (HasSeparator(checked.m_strSign) || HasSeparator(checked.m_strName)) {
    return texts::kColumnComma;
  }
  return taken ? texts::kSignTaken : nullptr;
}

// The first value that its column's type does not take; null when there is none.
const CDataCell* Misfit(const CDataTable& table) {
  for (const CDataItem& row : table.m_arrItem) {
    const auto* found = std::find_if_not(row.m_arrCell.begin(), row.m_arrCell.end(), Fits);
    if (found != row.m_arrCell.end()) return found;
  }
  return nullptr;
}

bool HasDuplicates(const CDataTable& table) {
  return std::any_of(table.m_arrItem.begin(), table.m_arrItem.end(), [&](const CDataItem& row) {
    return table.IsHaveValue(row, row.m_nIndex) >= 0;
  });
}

// `table` with another heading; the values of column i come from column `from[i]`, none from -1.
CDataTable WithHeading(const CDataTable& table, const CDataTableTitle& title,
                       const std::vector<int>& from) {
  CDataTable changed;
  changed.SetSaveTablePath(table.GetSaveTablePath());
  changed.SetTableName(table.GetTableName());
  changed.m_Title = title;
  for (const CDataItem& row : table.m_arrItem) {
    CDataItem copy = row;
    copy.Clear();
    for (int i = 0; i < title.GetTableTitleNum(); ++i) {
      const int source = from[static_cast<std::size_t>(i)];
      copy.m_arrCell.Add(CDataCell(title[i], source < 0 ? CString() : row[source].m_strValue));
    }
    changed.AddTableItem(copy, 1, 1);
  }
  return changed;
}

std::vector<int> SameColumns(int count) {
  std::vector<int> from(static_cast<std::size_t>(count));
  std::iota(from.begin(), from.end(), 0);
  return from;
}

void SetCell(CDataTypeStruct& column, int cell, const CString& text) {
  if (cell == kNameCell) column.m_strName = text;
  if (cell == kSignCell) column.m_strSign = text;
  if (cell == kTypeCell) column.m_nType = TypeOf(text);
  if (cell == kKeyCell) column.m_bKey = text == texts::kYes ? 1 : 0;
}

}  // namespace

bool CUserTableModel::HasOwnColumns() const {
  return Selected() && !CLoadDataTable::IsTableNameType(Selected()->GetTableName(), kAllTables);
}

void CUserTableModel::ShowColumns() {
  m_columns = CEditGridModel();
  const wchar_t* const captions[] = {texts::kColumnName, texts::kColumnSign, texts::kColumnType,
                                     texts::kColumnKey};
  constexpr int widths[] = {120, 100, 80, 60};
  for (int i = 0; i <= kKeyCell; ++i) {
    m_columns.InsertColumn(i, captions[i], widths[i]);
    if (HasOwnColumns()) m_columns.SetColModifyType(i, CModifyType::Edit);
  }
  for (int i = 0; i < ColumnCount(); ++i) {
    const CDataTypeStruct& column = Selected()->m_Title[i];
    CStringArray line;
    line.Add(column.m_strName);
    line.Add(column.m_strSign);
    line.Add(TypeText(column.m_nType));
    line.Add(column.m_bKey ? texts::kYes : texts::kNo);
    m_columns.InsertLine(i, line);
    if (!HasOwnColumns()) continue;
    m_columns.SetCellModifyType(i, kTypeCell, CModifyType::List, TypeChoices());
    m_columns.SetCellModifyType(i, kKeyCell, CModifyType::List, KeyChoices());
  }
}

bool CUserTableModel::ChangeColumns(const wchar_t* step, const CDataTable& changed) {
  if (const CDataCell* cell = Misfit(changed)) {
    m_user.Tell(texts::kValuesDoNotFit + cell->m_strValue);
    return false;
  }
  if (HasDuplicates(changed)) {
    m_user.Tell(texts::kDuplicateKeys);
    return false;
  }
  return Replace(step, changed);
}

bool CUserTableModel::AddColumn() {
  if (!Selected()) return false;
  if (!HasOwnColumns()) {
    m_user.Tell(texts::kFixedColumns);
    return false;
  }
  CDataTableTitle title = Selected()->m_Title;
  int number = 1;
  const auto sign = [&] { return L"C" + FormatInt(number); };
  while (title.GetColIndex(sign()) >= 0) ++number;
  std::vector<int> from = SameColumns(ColumnCount());
  from.push_back(-1);
  title.InsertColumn(ColumnCount(), {texts::kNewColumnName + FormatInt(number), sign(),
                                     CDataTypeStruct::KVBT_DOUBLE, 0});
  return Replace(texts::kAddColumn, WithHeading(*Selected(), title, from));
}

bool CUserTableModel::DeleteColumn(int column) {
  if (!Selected() || column < 0 || column >= ColumnCount()) return false;
  if (!HasOwnColumns() || ColumnCount() <= kMinColumns) {
    m_user.Tell(HasOwnColumns() ? texts::kLastColumn : texts::kFixedColumns);
    return false;
  }
  std::vector<int> from = SameColumns(ColumnCount());
  from.erase(from.begin() + column);
  CDataTableTitle title;
  for (const int kept : from) {
    title.InsertColumn(title.GetTableTitleNum(), Selected()->m_Title[kept]);
  }
  return ChangeColumns(texts::kDeleteColumn, WithHeading(*Selected(), title, from));
}

bool CUserTableModel::SetColumnCell(int line, int column, const CString& text) {
  if (!Selected() || line < 0 || line >= ColumnCount()) return false;
  const CString value = CString(text).Trim();
  if (value == m_columns.CellText(line, column)) return true;
  if (!HasOwnColumns()) {
    m_user.Tell(texts::kFixedColumns);
    return false;
  }
  CDataTableTitle title = Selected()->m_Title;
  SetCell(title[line], column, value);
  if (const wchar_t* fault = ColumnFault(title, line)) {
    m_user.Tell(fault);
    return false;
  }
  return ChangeColumns(texts::kEditColumn,
                       WithHeading(*Selected(), title, SameColumns(ColumnCount())));
}

}  // namespace orv3
