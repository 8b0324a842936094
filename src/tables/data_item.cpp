#include "tables/data_item.h"

#include <utility>

#include "framework/utf8.h"
#include "tables/data_table.h"

CDataItem& CDataItem::operator=(const CDataItem& other) {
  if (this == &other) throw CInvalidArgException("CDataItem: a row was assigned to itself");
  m_strFileInfo = other.m_strFileInfo;
  m_strTableName = other.m_strTableName;
  m_nIndex = other.m_nIndex;
  m_nModifyType = other.m_nModifyType;
  m_arrCell = other.m_arrCell;
  return *this;
}

const CDataCell& CDataItem::operator[](const wchar_t* sign) const {
  const int index = GetSignIndex(CString(sign));
  if (index < 0) {
    throw CInvalidArgException("row: no cell has the sign \"" + orv3::ToUtf8(CString(sign)) + "\"");
  }
  return m_arrCell[index];
}

CDataCell& CDataItem::operator[](const wchar_t* sign) {
  // Found first and then asked for to be written: the cells may be shared with other rows.
  const CDataCell& found = std::as_const(*this)[sign];
  return m_arrCell[static_cast<int>(&found - std::as_const(m_arrCell).begin())];
}

int CDataItem::GetSignIndex(std::wstring_view sign) const noexcept {
  for (int i = 0; i < GetItemLength(); ++i) {
    if (m_arrCell.begin()[i].m_strSign == sign) return i;
  }
  return -1;
}

CString CDataItem::GetCellName(int index) const {
  return Has(index) ? m_arrCell[index].m_strName : CString();
}

CString CDataItem::GetCellSign(int index) const {
  return Has(index) ? m_arrCell[index].m_strSign : CString();
}

void CDataItem::SetItemTitle(const CDataTableTitle& title) {
  m_arrCell.Reserve(GetItemLength() + title.GetTableTitleNum());
  for (int i = 0; i < title.GetTableTitleNum(); ++i) m_arrCell.Add(CDataCell(title[i], CString()));
}

int CDataItem::SetDataItemValue(const CStringArray& values) {
  if (IsEmpty() || values.GetSize() != GetItemLength()) return 0;
  for (int i = 0; i < GetItemLength(); ++i) m_arrCell.Own(i).m_strValue = values[i];
  return 1;
}

int CDataItem::SetDataItemValue(const CString& text) {
  CStringArray values;
  CDataTable::TransStrToArray(text, L",", values);
  return SetDataItemValue(values);
}
