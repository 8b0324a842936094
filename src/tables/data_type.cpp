#include "tables/data_type.h"

#include <string>

#include "framework/utf8.h"

CValueClass ValueClassOf(CDataTypeStruct::KVBT_Value_Type type) noexcept {
  switch (type) {
    case CDataTypeStruct::KVBT_FLOAT:
    case CDataTypeStruct::KVBT_DOUBLE:
      return CValueClass::Floating;
    case CDataTypeStruct::KVBT_INT:
    case CDataTypeStruct::KVBT_LONG:
    case CDataTypeStruct::KVBT_LONG_ALT:
      return CValueClass::Integer;
    case CDataTypeStruct::KVBT_STRING:
    case CDataTypeStruct::KVBT_CHAR:
      break;
  }
  return CValueClass::Text;
}

const CDataTypeStruct& CDataTableTitle::operator[](const wchar_t* sign) const {
  const int index = GetColIndex(CString(sign));
  if (index < 0) {
    throw CInvalidArgException("heading: no column has the sign \"" + orv3::ToUtf8(CString(sign)) +
                               "\"");
  }
  return m_arrColumn[index];
}

CDataTypeStruct& CDataTableTitle::operator[](const wchar_t* sign) {
  return const_cast<CDataTypeStruct&>(static_cast<const CDataTableTitle&>(*this)[sign]);
}

int CDataTableTitle::GetColIndex(std::wstring_view sign) const noexcept {
  for (int i = 0; i < GetTableTitleNum(); ++i) {
    if (m_arrColumn.GetData()[i].m_strSign == sign) return i;
  }
  return -1;
}

CString CDataTableTitle::GetColName(int index) const {
  return Has(index) ? m_arrColumn[index].m_strName : CString();
}

CString CDataTableTitle::GetColSign(int index) const {
  return Has(index) ? m_arrColumn[index].m_strSign : CString();
}

CDataTableTitle::KVBT_Value_Type CDataTableTitle::GetColType(int index) const {
  orv3::CheckIndex("heading", index, GetTableTitleNum());
  return CDataTypeStruct::KVBT_STRING;
}

int CDataTableTitle::SetDataTableTitle(int index, const CString& name) {
  if (!Has(index)) return 0;
  m_arrColumn[index].m_strName = name.Left(CDataTypeStruct::kMaxName);
  return 1;
}

int CDataTableTitle::SetDataTableSign(int index, const CString& sign) {
  if (!Has(index)) return 0;
  m_arrColumn[index].m_strSign = sign.Left(CDataTypeStruct::kMaxSign);
  return 1;
}

int CDataTableTitle::SetDataTableType(int index, KVBT_Value_Type type) {
  if (!Has(index)) return 0;
  m_arrColumn[index].m_nType = type;
  return 1;
}

int CDataTableTitle::SetDataTableKeyIndex(int index, int bKey) {
  if (!Has(index)) return 0;
  m_arrColumn[index].m_bKey = bKey;
  return 1;
}

void CDataTableTitle::GetDataTableKeyIndex(CArray<int, int>& keys) const {
  keys.RemoveAll();
  for (int i = 0; i < GetTableTitleNum(); ++i) {
    if (m_arrColumn[i].m_bKey != 0) keys.Add(i);
  }
}

int CDataTableTitle::IsEqualOf(const CDataTableTitle& other) const {
  if (GetTableTitleNum() != other.GetTableTitleNum()) return 0;
  for (int i = 0; i < GetTableTitleNum(); ++i) {
    const CDataTypeStruct& a = m_arrColumn[i];
    const CDataTypeStruct& b = other.m_arrColumn[i];
    if (a.m_strName != b.m_strName || a.m_nType != b.m_nType || a.m_strSign != b.m_strSign ||
        a.m_bKey != b.m_bKey) {
      return 0;
    }
  }
  return 1;
}

int CDataTableTitle::InsertColumn(int index, const CDataTypeStruct& column) {
  if (index < 0 || index > GetTableTitleNum()) return 0;
  m_arrColumn.InsertAt(index, column);
  return 1;
}

int CDataTableTitle::SetColumn(int index, const CDataTypeStruct& column) {
  if (!Has(index)) return 0;
  m_arrColumn[index] = column;
  return 1;
}
