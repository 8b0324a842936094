// Pictures of rows: every one legible and complete.
#include "catalogue/outline/row_picture.h"

#include <gtest/gtest.h>

#include "catalogue/outline/row_spacing.h"
#include "picture_check.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"
#include "svg_check.h"

namespace {

using namespace orv3;

class RowPicture : public CatalogueStore {};

TEST_F(RowPicture, OfEveryRowIsLegible) {
  for (const CString& name : Tables()) {
    int gap = 0;
    for (const CDataItem& row : Rows(name)) {
      gap = gap == 0 ? 8 : 0;
      for (const double angle : {0.0, 90.0, 180.0, 270.0})
        CheckLegible(RowPictureDrawing(WithPairSpacing(row, gap), angle),
                     ToUtf8(name + L" " + row[0].m_strValue) + " at " + std::to_string(angle));
    }
  }
}

TEST_F(RowPicture, NamesTheSizesOfTheTable) {
  const struct {
    const wchar_t* table;
    const wchar_t* no;
    std::vector<const char*> texts;
  } cases[] = {
      {L"热轧普通工字钢",
       L"I20a",
       {"h = 200", "b = 100", "tw = 7", "t = 11.4", "r = 9", "r1 = 4.5"}},
      {L"热轧宽翼缘H型钢", L"HW200X200", {"H = 200", "B = 200", "tw = 8", "tf = 12", "r = 16"}},
      {L"剖分T型钢", L"TW100X200", {"h = 100", "B = 200", "t1 = 8", "t2 = 12", "yo = 82.7"}},
      {L"热轧不等边角钢", L"L100X63X8", {"B = 100", "b = 63", "t = 8", "r = 10", "xo = 15"}},
      {L"冷弯薄壁卷边槽钢", L"C160X60X20X2.0", {"h = 160", "b = 60", "a = 20", "t = 2"}},
      {L"冷弯薄壁斜卷边Z型钢", L"Z160X60X20X2.5", {"h = 160", "b = 60", "a = 20", "t = 2.5"}},
      {L"冷弯焊接薄壁圆钢管", L"108X2.5", {"d = 108", "t = 2.5"}},
      {L"热轧不等边角钢短边组合", L"2L100X63X8", {"B = 100", "b = 63", "a = 8"}},
      {L"热轧等边角钢十字组合", L"2L100X10", {"b = 100", "δ = 8", "xo = 104"}},
  };
  for (const auto& c : cases) {
    const CDataItem row = CLoadDataTable::GetSysTemJMItem(c.table, c.no);
    ASSERT_FALSE(row.IsEmpty()) << ToUtf8(c.no);
    const std::string svg = RowPictureSvg(WithPairSpacing(row, 8));
    CheckSvg(svg);
    for (const char* text : c.texts)
      EXPECT_NE(svg.find(text), std::string::npos) << text << " of " << ToUtf8(c.no);
  }
}

TEST_F(RowPicture, SaysWhenThereIsNothingToDraw) {
  CDataItem row;
  row.m_strTableName = L"热轧普通工字钢";
  const std::string svg = RowPictureSvg(row);
  CheckSvg(svg);
  EXPECT_NE(svg.find("没有可画的截面"), std::string::npos);
}

}  // namespace
