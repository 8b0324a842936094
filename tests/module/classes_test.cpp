// A C++ program of the same compiler links to the library's classes. What the library throws is
// caught here, with its text.
#include <gtest/gtest.h>

#include "dialogs/model/column_model.h"
#include "dialogs/model/property_model.h"
#include "dialogs/model/table_name_model.h"
#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/sect_sign_set.h"
#include "dialogs/win32/sel_table_name_dlg.h"
#include "dialogs/win32/steel_data_base_dlg.h"
#include "dialogs/win32/steel_zhzj_dlg.h"
#include "dialogs/win32/user_table_dlg.h"
#include "dialogs/win32/view_col_dlg.h"
#include "orv3cal.h"
#include "platform/temp_folder.h"
#include "win32/dialog_driver.h"

namespace {

TEST(CModuleClasses, ThrowAcrossTheBorder) {
  CDataTable table;
  table.SetTableName(L"表");
  table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
  ASSERT_EQ(table.AddTableItem(L"a", 1), 1);
  EXPECT_THROW(table[1], CInvalidArgException);
  EXPECT_THROW(table[0][L"b(mm)"], CInvalidArgException);
  EXPECT_THROW(table = *&table, CInvalidArgException);  // NOLINT: assigning itself is refused
  try {
    CArray<int, int>().GetAt(3);
    FAIL() << "not thrown";
  } catch (const std::invalid_argument& error) {
    EXPECT_NE(std::string(error.what()).find('3'), std::string::npos) << error.what();
  }
}

TEST(CModuleClasses, Compute) {
  CSteelJMData record;
  CArray<double, double> sizes;
  sizes.Add(100);
  sizes.Add(200);
  record.SetSectSize(3, sizes);
  record.m_dX = record.m_dY = 0;
  CSteelJMData::CalSectCharacterStyle(record);
  EXPECT_EQ(record.m_dA, 20000);

  int strength = 0;
  EXPECT_TRUE(CTableSearch::SearchSub1(SUB1_Q235, 20.0, SUB1_F, strength));
  EXPECT_EQ(strength, 205);
  EXPECT_EQ(CTableSearch::g_sub1[0][0], 215);  // a table is data of the library
  EXPECT_TRUE(CKvbMath::EqualTo(1.0, 1.0 + 1e-7));
  AngleHanFData fillet(0, 0, 0, 5.6, 240, 100, 0, 0, 1.22);
  fillet.CalHFLw(8, 90);
  EXPECT_NEAR(fillet.m_dHe, 0.7 * 8, 1e-12);
  NormalBoltData bolts;
  EXPECT_THROW(bolts.BoltYanSuan(), std::invalid_argument);  // nothing is given yet
  EXPECT_EQ(WQWeldingData(WQWeldingData()).m_dLw, WQWeldingData().m_dLw);
}

// --- Dialogs ------------------------------------------------------------------------------------

template <class DIALOG>
void OpenAndClose(DIALOG& dialog, const wchar_t* caption) {
  INT_PTR result = -1;
  Drive([&] { result = dialog.DoModal(); },
        [=] {
          const auto probe = CDialogProbe::WaitFor(caption);
          probe.Paint();
          probe.Close();
          probe.WaitUntilClosed();
        });
  EXPECT_EQ(result, IDCANCEL) << orv3::ToUtf8(CString(caption));
}

void OpenEachDialog(const CString& folder) {
  CSectSignSet number;
  number.m_strSign = L"H400X300";
  OpenAndClose(number, L"型钢型号输入");
  EXPECT_EQ(number.m_strSign, L"H400X300");

  CSteelZHZJDlg spacing;
  OpenAndClose(spacing, L"型钢组合肢距输入");

  CPropertyDlg properties;
  properties.m_strTableName = properties.m_item.m_strTableName = L"自定义圆管";
  CLoadDataTable::GetDefaultDataItem(properties.m_item);
  OpenAndClose(properties, L"截面特性参数查询");

  orv3::CPropertyModel edited(properties.m_item, properties.m_strTableName, 1);
  CPropertyDlg edit(edited);
  OpenAndClose(edit, L"截面特性参数设置");

  CDataTable table;
  table.setTableTitle(properties.m_item);
  orv3::CColumnModel columns(table.m_Title, L"R(mm)");
  CViewColDlg view(columns);
  OpenAndClose(view, L"选择显示项");
  EXPECT_EQ(columns.CheckedCount(), 1);

  CSteelDataBaseDlg browser;
  browser.m_strPath = folder;
  CLoadDataTable::GetTableNameArray(0x03000FFF, browser.m_arrTableName);
  OpenAndClose(browser, L"钢结构截面特性数据库");

  orv3::CTableNameModel names(browser.m_arrTableName, CStringArray());
  CSelTableNameDlg choice(names);
  OpenAndClose(choice, L"选择截面表");
  EXPECT_EQ(names.Count(), browser.m_arrTableName.GetSize());

  CUserTableDlg tables;
  tables.m_strPath = folder;
  tables.m_arrTableName.Append(browser.m_arrTableName);
  OpenAndClose(tables, L"用户截面库");
  EXPECT_EQ(tables.m_item.IsEmpty(), 1);
}

TEST(CModuleClasses, OpenEachDialog) {
  const CTempFolder folder;
  OpenEachDialog(folder.Path());
}

}  // namespace
