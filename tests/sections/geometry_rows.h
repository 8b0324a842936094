// Rows as a test needs them, and what the facade answers for one.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

#include "framework/number_text.h"
#include "sections/load_data_table.h"
#include "sections/section_style.h"

inline void AddCell(CDataItem& row, const wchar_t* sign, CDataTypeStruct::KVBT_Value_Type type,
                    const CString& value) {
  CDataTypeStruct column;
  column.m_strSign = sign;
  column.m_nType = type;
  row.m_arrCell.Add(CDataCell(column, value));
}

// "No." and cells of KVBT_DOUBLE.
inline CDataItem RowOf(const wchar_t* table, const wchar_t* no,
                       std::initializer_list<std::pair<const wchar_t*, double>> cells) {
  CDataItem row;
  row.m_strTableName = table;
  AddCell(row, L"No.", CDataTypeStruct::KVBT_STRING, no);
  for (const auto& [sign, value] : cells) {
    AddCell(row, sign, CDataTypeStruct::KVBT_DOUBLE, orv3::FormatShortest(value));
  }
  return row;
}

// A row of a user-defined table, its sizes in the order of the columns.
inline CDataItem RowOfPlates(const wchar_t* table, std::initializer_list<double> sizes) {
  CDataItem row = RowOf(table, L"1", {});
  const orv3::CSizeColumn* column = orv3::FindSectionStyle(std::wstring_view(table))->m_arrSize;
  for (const double size : sizes) {
    AddCell(row, (column++)->m_szSign, CDataTypeStruct::KVBT_DOUBLE, orv3::FormatShortest(size));
  }
  return row;
}

// The first row of a user-defined or lattice table.
inline CDataItem DefaultRow(const wchar_t* table) {
  CDataItem row;
  row.m_strTableName = table;
  EXPECT_EQ(CLoadDataTable::GetDefaultDataItem(row), 1);
  return row;
}

// The row with its spacing right after "No.", as a user chooses it.
inline CDataItem WithSpacing(CDataItem row, const wchar_t* sign, int spacing) {
  CDataTypeStruct column;
  column.m_strSign = sign;
  column.m_nType = CDataTypeStruct::KVBT_INT;
  row.m_arrCell.InsertAt(1, CDataCell(column, orv3::FormatInt(spacing)));
  return row;
}

struct CTwo {
  double first = 0, second = 0;
};

inline CTwo RectOf(const CDataItem& row, double angle = 0) {
  CTwo size{-1, -1};
  CLoadDataTable::GetDataItemRect(row, size.first, size.second, angle);
  return size;
}

inline CTwo CenterOf(const CDataItem& row, double angle = 0) {
  CTwo at{-1, -1};
  CLoadDataTable::GetDataItemCenter(row, at.first, at.second, angle);
  return at;
}

inline CTwo InertiaOf(const CDataItem& row, double angle = 0) {
  CTwo io{-1, -1};
  CLoadDataTable::GetDataItemIo(row, io.first, io.second, angle);
  return io;
}
