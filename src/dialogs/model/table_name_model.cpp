#include "dialogs/model/table_name_model.h"

#include <algorithm>

#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/text_match.h"
#include "framework/exception.h"
#include "framework/number_text.h"

namespace orv3 {

CTableNameModel::CTableNameModel(const CStringArray& names, const CStringArray& checked) {
  for (const CString& name : names) {
    const bool marked = std::find(checked.begin(), checked.end(), name) != checked.end();
    m_arrItem.push_back({name, marked});
  }
  SetFilter(CString());
}

void CTableNameModel::SetFilter(const CString& text) {
  m_strFilter = text;
  const CString part = CString(text).Trim();
  m_arrShown.clear();
  for (std::size_t i = 0; i < m_arrItem.size(); ++i) {
    if (ContainsText(m_arrItem[i].m_strName, part)) m_arrShown.push_back(static_cast<int>(i));
  }
}

CTableNameModel::CItem& CTableNameModel::Shown(int item) {
  CheckIndex("table names", item, Count());
  return m_arrItem[static_cast<std::size_t>(m_arrShown[static_cast<std::size_t>(item)])];
}

const CTableNameModel::CItem& CTableNameModel::Shown(int item) const {
  CheckIndex("table names", item, Count());
  return m_arrItem[static_cast<std::size_t>(m_arrShown[static_cast<std::size_t>(item)])];
}

CString CTableNameModel::Name(int item) const { return Shown(item).m_strName; }
bool CTableNameModel::IsChecked(int item) const { return Shown(item).m_bChecked; }
void CTableNameModel::Check(int item, bool checked) { Shown(item).m_bChecked = checked; }

void CTableNameModel::CheckAll(bool checked) {
  for (int i = 0; i < Count(); ++i) Check(i, checked);
}

int CTableNameModel::CheckedCount() const noexcept {
  return static_cast<int>(std::count_if(m_arrItem.begin(), m_arrItem.end(),
                                        [](const CItem& item) { return item.m_bChecked; }));
}

CString CTableNameModel::CountText() const {
  return texts::kChecked + FormatInt(CheckedCount()) + texts::kTables + texts::kComma +
         texts::kAll + FormatInt(std::ssize(m_arrItem)) + texts::kTables;
}

bool CTableNameModel::Ok(CDialogUser& user) const {
  if (CheckedCount() > 0) return true;
  user.Tell(texts::kNoTableChosen);
  return false;
}

CStringArray CTableNameModel::Chosen() const {
  CStringArray chosen;
  for (const CItem& item : m_arrItem) {
    if (item.m_bChecked) chosen.Add(item.m_strName);
  }
  return chosen;
}

}  // namespace orv3
