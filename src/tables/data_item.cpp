#include "tables/data_item.h"

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "tables/data_table.h"
#include "tables/sketch.h"

using orv3::ToDouble;
using orv3::ToInt;

void CDataCell::SetValue(const CString& value, const CString& name, const CString& sign) {
  m_strValue = value;
  m_strName = name;
  m_strSign = sign;
}

int CDataCell::GetItemValue(CString& value) const {
  if (m_nType != CDataTypeStruct::KVBT_STRING) return 0;
  value = m_strValue;
  return 1;
}

int CDataCell::GetItemValue(int& value) const {
  if (m_nType != CDataTypeStruct::KVBT_INT) return 0;
  value = ToInt(m_strValue);
  return 1;
}

int CDataCell::GetItemValue(long& value) const {
  if (m_nType != CDataTypeStruct::KVBT_LONG && m_nType != CDataTypeStruct::KVBT_LONG_ALT) return 0;
  value = ToInt(m_strValue);
  return 1;
}

int CDataCell::GetItemValue(float& value) const {
  if (m_nType != CDataTypeStruct::KVBT_FLOAT) return 0;
  value = static_cast<float>(ToDouble(m_strValue));
  return 1;
}

int CDataCell::GetItemValue(double& value) const {
  if (m_nType != CDataTypeStruct::KVBT_DOUBLE) return 0;
  value = ToDouble(m_strValue);
  return 1;
}

int CDataCell::GetItemValue(wchar_t& value) const {
  if (m_nType != CDataTypeStruct::KVBT_CHAR) return 0;
  value = m_strValue.GetString()[0];
  return 1;
}

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
  return const_cast<CDataCell&>(static_cast<const CDataItem&>(*this)[sign]);
}

int CDataItem::GetSignIndex(std::wstring_view sign) const noexcept {
  for (int i = 0; i < GetItemLength(); ++i) {
    if (m_arrCell.GetData()[i].m_strSign == sign) return i;
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
  for (int i = 0; i < title.GetTableTitleNum(); ++i) {
    const CDataTypeStruct& column = title[i];
    CDataCell cell;
    cell.m_strName = column.m_strName;
    cell.m_strSign = column.m_strSign;
    cell.m_nType = column.m_nType;
    cell.m_bKey = column.m_bKey;
    m_arrCell.Add(cell);
  }
}

int CDataItem::SetDataItemValue(const CStringArray& values) {
  if (IsEmpty() || values.GetSize() != GetItemLength()) return 0;
  for (int i = 0; i < GetItemLength(); ++i) m_arrCell[i].m_strValue = values[i];
  return 1;
}

int CDataItem::SetDataItemValue(const CString& text) {
  CStringArray values;
  CDataTable::TransStrToArray(text, L",", values);
  return SetDataItemValue(values);
}

void CDataItem::GetItemBitmap(CBitmap*& out) const {
  out = new CBitmap(orv3::SketchBitmap(orv3::SketchResource(m_strTableName)));
}
