// A small system store in a folder of its own.
#pragma once

#include <string>
#include <vector>

#include "framework/number_text.h"
#include "platform/temp_folder.h"
#include "sections/load_data_table.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "tables/data_table.h"
#include "tables/file/table_store.h"

class CDialogStore {
 public:
  using CRows = std::vector<const wchar_t*>;  // values joined by commas

  CDialogStore() { orv3::SetProgramPath(m_folder.Path()); }
  CDialogStore(const CDialogStore&) = delete;
  CDialogStore& operator=(const CDialogStore&) = delete;
  ~CDialogStore() { orv3::SetProgramPath(CString()); }

  CString Path() const { return m_folder.Path(); }
  CString Path(const wchar_t* name) const { return m_folder.Path(name); }
  CString StorePath() const { return Path(orv3::kSystemStore); }

  // A table of "No." and number columns. `bNew` 0 makes protected rows, as catalogue files do.
  void Add(const CString& name, const std::vector<const wchar_t*>& signs, const CRows& rows,
           int bNew) const {
    CDataTable table = Read(name);
    if (table.GetTableColNum() == 0) {
      table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
      for (const wchar_t* sign : signs)
        table.AddTableCol(sign, sign, CDataTypeStruct::KVBT_DOUBLE, 0);
    }
    for (const wchar_t* row : rows) ASSERT_EQ(table.AddTableItem(row, bNew), 1);
    ASSERT_EQ(table.WriteSystemJmTable(), 1);
  }
  // Rows T0, T1, ... with heights that fall by 1 every ten rows.
  void AddMany(const CString& name, int rows) const {
    CDataTable table = Read(name);
    table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
    table.AddTableCol(L"高度", L"h(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
    for (int i = 0; i < rows; ++i) {
      const CString height = orv3::FormatInt((rows - 1 - i) / 10);
      ASSERT_EQ(table.AddTableItem(L"T" + orv3::FormatInt(i) + L"," + height, 1), 1);
    }
    ASSERT_EQ(table.WriteSystemJmTable(), 1);
  }
  // Section tables with their default rows.
  void AddDefault(const CString& name) const {
    CDataTable table = Read(name);
    CDataItem row;
    row.m_strTableName = name;
    ASSERT_EQ(CLoadDataTable::GetDefaultDataItem(row), 1);
    table.setTableTitle(row);
    ASSERT_EQ(table.AddTableItem(row, 1), 1);
    ASSERT_EQ(table.WriteSystemJmTable(), 1);
  }
  // I sections protected but for the last one; angles, channels, pairs, and an H section of plates.
  void Fill() const {
    const std::vector<const wchar_t*> i = {L"h(mm)", L"b(mm)", L"A(cm^2)"};
    Add(L"热轧普通工字钢", i, {L"I20a,200,100,35.5", L"I20b,200,102,39.5", L"I22a,220,110,42"}, 0);
    Add(L"热轧普通工字钢", i, {L"I10,100,68,14.3"}, 1);
    Add(L"热轧等边角钢", {L"b(mm)", L"t(mm)"}, {L"L30X3,30,3"}, 0);
    Add(L"热轧等边角钢组合", {L"A(cm^2)", L"G(kg/m)"}, {L"2L30X3,3.5,2.75"}, 0);
    Add(L"热轧等边角钢十字组合", {L"A(cm^2)", L"G(kg/m)"}, {L"+L30X3,3.5,2.75"}, 0);
    Add(L"热轧普通槽钢][组合", {L"A(cm^2)", L"G(kg/m)"}, {L"2][10,25.5,20"}, 0);
    Add(L"热轧普通槽钢[]组合", {L"A(cm^2)", L"G(kg/m)"}, {L"2[]10,25.5,20"}, 0);
    AddDefault(L"自定义对称H型钢");
  }

  CDataTable Read(const CString& name) const {
    CDataTable table;
    table.SetTableName(name);
    table.SetSaveTablePath(Path());
    table.GetSystemJmTable();
    return table;
  }
  // The numbers of the live rows on file, joined by blanks.
  std::string Numbers(const CString& name) const {
    std::string text;
    const CDataTable table = Read(name);
    for (const CDataItem& row : table.m_arrItem) {
      if (row.m_nModifyType >= 0) text += orv3::ToUtf8(row[0].m_strValue) + " ";
    }
    return text.empty() ? text : text.substr(0, text.size() - 1);
  }

  static CStringArray AllNames() {
    CStringArray names;
    CLoadDataTable::GetTableNameArray(-1, names);
    return names;
  }

 private:
  CTempFolder m_folder;
};
