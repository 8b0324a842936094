// Column descriptors and the heading that they form.
#pragma once

#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"

// One column of a table. Every value is held as text; the type decides how it is read back and
// compared.
struct ORV3CAL_API CDataTypeStruct {
  // Stored in table files, so the numbers are fixed.
  enum KVBT_Value_Type : int {
    KVBT_STRING = 0,    // free text
    KVBT_INT = 1,       // 32-bit integer
    KVBT_LONG = 2,      // 32-bit integer
    KVBT_FLOAT = 3,     // single-precision number
    KVBT_DOUBLE = 4,    // double-precision number
    KVBT_LONG_ALT = 5,  // treated exactly like KVBT_LONG
    KVBT_CHAR = 6,      // one character
  };
  static constexpr int kMaxName = 64;
  static constexpr int kMaxSign = 20;

  CDataTypeStruct() = default;
  CDataTypeStruct(CString name, CString sign, KVBT_Value_Type type, int bKey)
      : m_strName(std::move(name)), m_strSign(std::move(sign)), m_nType(type), m_bKey(bKey) {}

  // The text form as it goes to a table file, and what stored bytes say; missing fields get their
  // defaults.
  CString TranToFake() const;
  void TransToNormal(const char* stored);

  CString m_strName;  // title shown to users, at most 64 characters
  CString m_strSign;  // short identifier by which code finds the column, at most 20 characters
  KVBT_Value_Type m_nType = KVBT_STRING;
  int m_bKey = 0;  // nonzero: part of the table's unique key
};

// How values of a type are compared.
enum class CValueClass { Text, Floating, Integer };
ORV3CAL_API CValueClass ValueClassOf(CDataTypeStruct::KVBT_Value_Type type) noexcept;

// The columns of a table, in order. Signs are compared whole and case-sensitively; the first column
// with a sign hides later ones.
class ORV3CAL_API CDataTableTitle {
 public:
  using KVBT_Value_Type = CDataTypeStruct::KVBT_Value_Type;

  CDataTableTitle() = default;
  CDataTableTitle(const CDataTableTitle&) = default;
  CDataTableTitle& operator=(const CDataTableTitle&) = default;
  virtual ~CDataTableTitle() = default;

  int GetTableTitleNum() const noexcept { return m_arrColumn.GetSize(); }
  // CInvalidArgException for a position out of range or a sign that is not there.
  CDataTypeStruct& operator[](int index) { return m_arrColumn[index]; }
  const CDataTypeStruct& operator[](int index) const { return m_arrColumn[index]; }
  CDataTypeStruct& operator[](const wchar_t* sign);
  const CDataTypeStruct& operator[](const wchar_t* sign) const;

  int GetColIndex(std::wstring_view sign) const noexcept;  // -1 when there is none
  int GetColIndex(const wchar_t* sign) const noexcept { return GetColIndex(CString::ViewOf(sign)); }
  CString GetColName(int index) const;  // empty out of range
  CString GetColSign(int index) const;  // empty out of range
  // Always KVBT_STRING for a column that is there, whatever its stored type: callers rely on it.
  // The stored type is operator[](index).m_nType. CInvalidArgException out of range.
  KVBT_Value_Type GetColType(int index) const;

  // 0 when `index` is out of range, else 1; texts too long are cut.
  int SetDataTableTitle(int index, const CString& name);
  int SetDataTableSign(int index, const CString& sign);
  int SetDataTableType(int index, KVBT_Value_Type type);
  int SetDataTableKeyIndex(int index, int bKey);

  // The positions of the key columns, in order.
  void GetDataTableKeyIndex(CArray<int, int>& keys) const;
  void Clear() noexcept { m_arrColumn.RemoveAll(); }
  // 1 when names, signs, types and key flags agree column by column.
  int IsEqualOf(const CDataTableTitle& other) const;

  // The same of all columns.
  CString TranToFake() const;
  void TransToNormal(const char* stored);

  // Column changes; `index` may be the count for an insertion. 0 when out of range, else 1.
  int InsertColumn(int index, const CDataTypeStruct& column);
  int SetColumn(int index, const CDataTypeStruct& column);

 private:
  bool Has(int index) const noexcept { return index >= 0 && index < GetTableTitleNum(); }

  CArray<CDataTypeStruct> m_arrColumn;
};
