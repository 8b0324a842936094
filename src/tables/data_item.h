// Rows.
#pragma once

#include "drawing/bitmap.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_cell.h"
#include "tables/data_type.h"

// One row of a table.
class ORV3CAL_API CDataItem {
 public:
  CDataItem() = default;
  CDataItem(const CDataItem& other) = default;
  // Assigning a row to itself raises CInvalidArgException.
  CDataItem& operator=(const CDataItem& other);
  virtual ~CDataItem() = default;

  // CInvalidArgException for a position out of range or a sign that is not there.
  CDataCell& operator[](int index) { return m_arrCell[index]; }
  const CDataCell& operator[](int index) const { return m_arrCell[index]; }
  CDataCell& operator[](const wchar_t* sign);
  const CDataCell& operator[](const wchar_t* sign) const;

  // The first cell with the sign (whole, case-sensitive); -1 when there is none.
  int GetSignIndex(std::wstring_view sign) const noexcept;
  int GetSignIndex(const wchar_t* sign) const noexcept {
    return GetSignIndex(CString::ViewOf(sign));
  }

  // The cell's GetItemValue; 0 as well when there is no such cell.
  template <class VALUE>
  int GetCellValue(int index, VALUE& value) const {
    return Has(index) ? m_arrCell[index].GetItemValue(value) : 0;
  }
  template <class VALUE>
  int GetCellValue(const wchar_t* sign, VALUE& value) const {
    return GetCellValue(GetSignIndex(CString(sign)), value);
  }
  CString GetCellName(int index) const;  // empty out of range
  CString GetCellSign(int index) const;  // empty out of range

  int GetItemLength() const noexcept { return m_arrCell.GetSize(); }
  int IsEmpty() const noexcept { return m_arrCell.IsEmpty() ? 1 : 0; }
  int GetItemIndex() const noexcept { return m_nIndex; }
  int GetItemModifyType() const noexcept { return m_nModifyType; }
  void SetItemModifyType(int type) noexcept { m_nModifyType = type; }
  CString GetTableName() const { return m_strTableName; }

  // Removes the cells; everything else stays.
  void Clear() noexcept { m_arrCell.RemoveAll(); }
  // Appends an empty cell for each column of the heading.
  void SetItemTitle(const CDataTableTitle& title);
  // Puts value i into cell i: 1, or 0 and nothing changed unless the counts agree and are not 0.
  int SetDataItemValue(const CStringArray& values);
  // The same with a text split at each ",".
  int SetDataItemValue(const CString& text);
  int SetDataItemValue(const wchar_t* text) { return SetDataItemValue(CString(text)); }

  // The sketch of the row's section style, chosen by the table name; the caller deletes it.
  void GetItemBitmap(CBitmap*& out) const;

  CString m_strFileInfo;   // information line of the table file that the row came from
  CString m_strTableName;  // name of the table that holds the row
  int m_nIndex = 0;        // stable index inside the table, not the position
  // Edit state: 0 unchanged, 1 and 3 added, 2 changed, 4 added and saved, -1 deleted, -2 deleted
  // and saved.
  int m_nModifyType = 0;
  CDataCellArray m_arrCell;

 private:
  bool Has(int index) const noexcept { return index >= 0 && index < GetItemLength(); }
};
