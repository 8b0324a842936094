#include "dialogs/model/column_model.h"

#include <algorithm>

#include "dialogs/model/dialog_texts.h"
#include "framework/exception.h"
#include "tables/data_table.h"

namespace orv3 {
namespace {

constexpr wchar_t kSignSeparator[] = L"<<>>";

CString CaptionOf(const CDataTypeStruct& column) {
  return column.m_strName.IsEmpty() ? column.m_strSign
                                    : column.m_strName + L"  " + column.m_strSign;
}

}  // namespace

CColumnModel::CColumnModel(const CDataTableTitle& title, const CString& view) {
  CStringArray shown;
  CDataTable::TransStrToArray(view, kSignSeparator, shown);
  for (int i = 0; i < title.GetTableTitleNum(); ++i) {
    const CString& sign = title[i].m_strSign;
    const bool checked =
        view.IsEmpty() || std::find(shown.begin(), shown.end(), sign) != shown.end();
    m_arrItem.push_back({CaptionOf(title[i]), sign, checked});
  }
}

CString CColumnModel::Text(int item) const {
  CheckIndex("columns", item, Count());
  return m_arrItem[static_cast<std::size_t>(item)].m_strText;
}

bool CColumnModel::IsChecked(int item) const {
  CheckIndex("columns", item, Count());
  return m_arrItem[static_cast<std::size_t>(item)].m_bChecked;
}

void CColumnModel::Check(int item, bool checked) {
  CheckIndex("columns", item, Count());
  const CString sign = m_arrItem[static_cast<std::size_t>(item)].m_strSign;
  for (CItem& other : m_arrItem) {
    if (other.m_strSign == sign) other.m_bChecked = checked;
  }
}

void CColumnModel::CheckAll(bool checked) {
  for (CItem& item : m_arrItem) item.m_bChecked = checked;
}

int CColumnModel::CheckedCount() const noexcept {
  return static_cast<int>(std::count_if(m_arrItem.begin(), m_arrItem.end(),
                                        [](const CItem& item) { return item.m_bChecked; }));
}

bool CColumnModel::Ok(CDialogUser& user) const {
  if (CheckedCount() > 0 || Count() == 0) return true;
  user.Tell(texts::kNoColumn);
  return false;
}

CString CColumnModel::View() const {
  if (CheckedCount() == Count()) return {};
  CStringArray signs;
  CString view;
  for (const CItem& item : m_arrItem) {
    const bool known = std::find(signs.begin(), signs.end(), item.m_strSign) != signs.end();
    if (!item.m_bChecked || known) continue;
    signs.Add(item.m_strSign);
    if (!view.IsEmpty()) view += kSignSeparator;
    view += item.m_strSign;
  }
  return view;
}

}  // namespace orv3
