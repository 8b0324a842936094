// Tests on the catalogue that the build makes.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "framework/utf8.h"
#include "platform/code_page.h"
#include "sections/load_data_table.h"
#include "sections/section_kind.h"
#include "tables/data_table.h"

class CatalogueStore : public testing::Test {
 protected:
  void SetUp() override {
    orv3::SetAnsiCodePage(936);
    CLoadDataTable::SetOrvoPrgPath(Folder());
  }
  void TearDown() override {
    CLoadDataTable::SetOrvoPrgPath(L"");
    orv3::SetAnsiCodePage(0);
  }

  static CString Folder() { return orv3::FromUtf8(ORV3CAL_CATALOGUE "/"); }

  static CStringArray Tables() {
    CStringArray tables;
    CLoadDataTable::GetTableNameArray(orv3::kCatalogueTables, tables);
    EXPECT_EQ(tables.GetSize(), static_cast<int>(orv3::kRolledKinds));
    return tables;
  }

  static std::vector<CDataItem> Rows(const CString& name) {
    CDataTable table;
    table.SetTableName(name);
    EXPECT_EQ(table.GetSystemJmTable(), 1) << orv3::ToUtf8(name);
    EXPECT_GT(table.GetTableRowNum(), 0) << orv3::ToUtf8(name);
    return {table.m_arrItem.begin(), table.m_arrItem.end()};
  }
};
