// A C++ program of the same compiler links to the library's classes. What the library throws is
// caught here, with its text.
#include <gtest/gtest.h>

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

TEST(CModuleClasses, OpenTheUserTables) {
  const CTempFolder folder;
  CDataItem row;
  int result = -1;
  Drive([&] { result = CLoadDataTable::VisitSelJMDlg(folder.Path(), row, 0x02000FFF); },
        [] { CDialogProbe::WaitFor(L"用户截面库").Close(); });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(row.IsEmpty(), 1);
}

}  // namespace
