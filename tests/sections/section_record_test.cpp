// The record as a value, its sizes, and its way into rows and back.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/section_property.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "tables/data_table.h"

namespace {

using Numbers = std::vector<double>;
using Array = CArray<double, double>;

Numbers ToVector(const Array& array) { return {array.begin(), array.end()}; }

Array ToArray(const Numbers& numbers) {
  Array array;
  for (const double n : numbers) array.Add(n);
  return array;
}

const Numbers kEight = {60, 80, 6, 7, 8, 9, 10, 11};

CSteelJMData Record(int style, const wchar_t* name = L"S1") {
  CSteelJMData jm;
  jm.SetSectSize(style, ToArray(kEight));
  std::wcscpy(jm.m_szName, name);
  jm.m_dX = 5;
  jm.m_dY = 6;
  return jm;
}

// A row of the style's table with the record's sizes, base point and name.
CDataItem RowOf(const CSteelJMData& jm) {
  CDataItem row;
  CSteelJMData computed = jm;
  CSteelJMData::CalSectCharacterStyle(computed);
  EXPECT_EQ(1, computed.TransJMDataToItem(row));
  const auto* style = orv3::FindSectionStyle(jm.m_nStyle);
  if (style) row.m_strTableName = style->TableName();
  return row;
}

CDataTable Heading(int style, int* result = nullptr) {
  CDataTable table;
  table.SetTableName(L"T");
  table.AddTableCol(L"old", L"old", CDataTypeStruct::KVBT_INT, 0);
  const int got = CSteelJMData::GetJMTableTitle(table, style);
  if (result) *result = got;
  return table;
}

std::string Signs(const CDataTable& table) {
  CString text;
  for (int i = 0; i < table.GetTableColNum(); ++i) {
    if (i) text += L' ';
    text += table.GetTableColSign(i);
  }
  return orv3::ToUtf8(text);
}

TEST(SectionRecord, StartsEmptyAndCopiesByValue) {
  const CSteelJMData fresh;
  EXPECT_EQ(L'\0', fresh.m_szName[0]);
  EXPECT_EQ(0, fresh.m_nStyle);

  CSteelJMData from = Record(9, L"H1");
  CSteelJMData::CalSectCharacterStyle(from);
  from.m_nState = -1;
  CSteelJMData to = Record(3, L"longer name");
  to = from;
  EXPECT_STREQ(L"H1", to.m_szName);
  EXPECT_EQ(L'g', to.m_szName[3]);  // behind the ending zero nothing is copied
  EXPECT_EQ(-1, to.m_nState);
  EXPECT_EQ(9, to.m_nStyle);
  for (const auto& p : orv3::SectionProperties()) EXPECT_EQ(from.*p.m_pField, to.*p.m_pField);
  EXPECT_EQ(kEight, Numbers(std::begin(to.m_dSize), std::end(to.m_dSize)));

  // A name that lacks its ending zero is cut, not run over.
  std::fill(std::begin(from.m_szName), std::end(from.m_szName), L'x');
  const CSteelJMData cut(from);
  EXPECT_EQ(49u, std::wcslen(cut.m_szName));
}

// The outer extents first, which round sections and the hexagon have one of.
TEST(SectionRecord, BaseExternAndAllSizes) {
  for (const auto& style : orv3::SectionStyles()) {
    const CSteelJMData jm = Record(style.m_nStyle);
    const bool one = style.m_nStyle == 4 || style.m_nStyle == 6 || style.m_nStyle == 7;
    const auto split = kEight.begin() + (one ? 1 : 2), end = kEight.begin() + style.m_nSizes;
    Array base = ToArray({1}), further = ToArray({1}), all = ToArray({1});
    jm.GetSectBaseSize(base);
    jm.GetSectExternSize(further);
    jm.GetSectSizeArr(all);
    EXPECT_EQ(Numbers(kEight.begin(), split), ToVector(base)) << style.m_szAlias;
    EXPECT_EQ(Numbers(split, end), ToVector(further)) << style.m_szAlias;
    EXPECT_EQ(Numbers(kEight.begin(), end), ToVector(all)) << style.m_szAlias;
  }
}

TEST(SectionRecord, SizesOfStylesWithoutATable) {
  for (const int style : {-1, 15, 16}) {
    CSteelJMData jm = Record(style);
    jm.m_dSize[3] = 1e-6;
    jm.m_dSize[5] = -2e-6;
    Array base, further, all;
    jm.GetSectBaseSize(base);
    jm.GetSectExternSize(further);
    jm.GetSectSizeArr(all);
    EXPECT_EQ((Numbers{60, 80}), ToVector(base));
    EXPECT_EQ(style == 15 ? (Numbers{6, 8, -2e-6, 10}) : Numbers{}, ToVector(further)) << style;
    EXPECT_EQ(Numbers{60}, ToVector(all));
  }
}

TEST(SectionRecord, SetSizesTakesAtMostEightAndKeepsTheRest) {
  CSteelJMData jm = Record(9);
  jm.SetSectSize(3, ToArray({1, 2}));
  EXPECT_EQ(3, jm.m_nStyle);
  EXPECT_EQ((Numbers{1, 2, 6, 7, 8, 9, 10, 11}), Numbers(jm.m_dSize, jm.m_dSize + 8));
  jm.SetSectSize(9, ToArray({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_EQ((Numbers{1, 2, 3, 4, 5, 6, 7, 8}), Numbers(jm.m_dSize, jm.m_dSize + 8));
}

TEST(SectionHeading, ColumnsByStyle) {
  const struct {
    int style;
    const char* sizes;
    bool firstMoments;
  } cases[] = {
      {0, "b(mm) h(mm) tf(mm) tw(mm)", true},
      {1, "b(mm) h(mm) t(mm)", true},
      {2, "b(mm) h(mm) bf1(mm) bf2(mm) tw(mm) tf(mm)", false},
      {3, "b(mm) h(mm)", true},
      {4, "a(mm)", false},
      {5, "b(mm) h(mm)", false},
      {6, "R(mm)", true},
      {7, "R(mm) r(mm)", true},
      {8, "b(mm) h(mm) bh(mm) bf1(mm) bf2(mm)", true},
      {9, "b(mm) h(mm) bh1(mm) bh2(mm) bf1(mm) bf2(mm) bf3(mm) bf4(mm)", true},
      {10, "b(mm) h(mm) bh(mm) bf(mm)", true},
      {11, "b(mm) h(mm) bh1(mm) bh2(mm) bf1(mm) bf2(mm)", true},
      {12, "b(mm) h(mm) bh1(mm) bh2(mm) bf1(mm) bf2(mm)", true},
      {13, "b(mm) h(mm) bh1(mm) bh2(mm) bf1(mm) bf2(mm)", true},
      {14, "b(mm) h(mm) t1(mm) t2(mm) t3(mm) t4(mm)", true},
  };
  const std::string front =
      " x(mm) y(mm) xo(mm) yo(mm) A(mm^2) Ixo(mm^4) Iyo(mm^4) Wxo1(mm^3) Wxo2(mm^3) WyoL(mm^3) "
      "WyoR(mm^3)";
  const std::string middle =
      " ixo(mm) iyo(mm) Ix(mm^4) Iy(mm^4) Wx1(mm^3) Wx2(mm^3) WyL(mm^3) WyR(mm^3)";
  for (const auto& c : cases) {
    int result = 0;
    const std::string signs = Signs(Heading(c.style, &result));
    EXPECT_EQ(1, result);
    std::string expected = "No. ";
    expected.append(c.sizes).append(front);
    if (c.firstMoments) expected += " Sxo(mm^3) Syo(mm^3)";
    expected += middle;
    if (c.firstMoments) expected += " Sx1(mm^3) Sx2(mm^3) SyL(mm^3) SyR(mm^3)";
    expected += " ixo(mm) iyo(mm)";
    EXPECT_EQ(expected, signs) << c.style;
  }
  EXPECT_EQ(23, Heading(4).GetTableColNum());
  EXPECT_EQ(36, Heading(9).GetTableColNum());
}

TEST(SectionHeading, TypesKeysAndRepeatedTitles) {
  const CDataTable table = Heading(9);
  EXPECT_EQ(L"型号", table.GetTableColName(0).View());
  EXPECT_EQ(CDataTypeStruct::KVBT_STRING, table.GetDataTableColType(0));
  EXPECT_NE(0, table.GetTableColKey(0));
  for (int i = 1; i < table.GetTableColNum(); ++i) {
    EXPECT_EQ(CDataTypeStruct::KVBT_DOUBLE, table.m_Title[i].m_nType);
    EXPECT_EQ(0, table.GetTableColKey(i));
  }
  for (const int i : {5, 6}) EXPECT_EQ(L"上翼缘宽度", table.GetTableColName(i).View());
  for (const int i : {7, 8}) EXPECT_EQ(L"下翼缘宽度", table.GetTableColName(i).View());
  // The first column with the sign is the centroidal radius.
  EXPECT_EQ(L"X0轴回转半径", table.GetTableColName(table.GetTableColIndex(L"ixo(mm)")).View());
  EXPECT_EQ(L"X轴回转半径", table.GetTableColName(34).View());
  EXPECT_EQ(L"ixo(mm)", table.GetTableColSign(34).View());
}

TEST(SectionHeading, RefusedTables) {
  CDataTable nameless;
  nameless.AddTableCol(L"old", L"old", CDataTypeStruct::KVBT_INT, 0);
  EXPECT_EQ(0, CSteelJMData::GetJMTableTitle(nameless, 3));
  EXPECT_EQ("old", Signs(nameless));
  for (const int style : {-1, 15}) {
    int result = 1;
    EXPECT_EQ("No.", Signs(Heading(style, &result)));
    EXPECT_EQ(0, result);
  }
}

TEST(SectionRow, ThereAndBackForEveryStyle) {
  for (const auto& style : orv3::SectionStyles()) {
    const CSteelJMData from = Record(style.m_nStyle);
    CDataItem row = RowOf(from);
    row.m_nModifyType = 2;
    CSteelJMData to;
    ASSERT_EQ(1, to.TransItemToJMData(row)) << style.m_szAlias;
    EXPECT_STREQ(from.m_szName, to.m_szName);
    EXPECT_EQ(2, to.m_nState);
    EXPECT_EQ(style.m_nStyle, to.m_nStyle);
    EXPECT_EQ(5, to.m_dX);
    EXPECT_EQ(6, to.m_dY);
    CDataItem again = row;
    for (int i = 0; i < again.GetItemLength(); ++i) again[i].m_strValue = L"";
    ASSERT_EQ(1, to.TransJMDataToItem(again));
    for (int i = 0; i < row.GetItemLength(); ++i) {
      EXPECT_EQ(row[i].m_strValue.View(), again[i].m_strValue.View())
          << style.m_szAlias << ", cell " << i;
    }
  }
}

// Each value is under its own sign: the plate 200 x 400 with its hand-calculated properties.
TEST(SectionRow, ValuesStandUnderTheirColumns) {
  CSteelJMData plate = Record(3, L" PL 200 ");
  plate.SetSectSize(3, ToArray({200, 400}));
  plate.m_dX = plate.m_dY = 0;
  const CDataItem row = RowOf(plate);
  std::string cells;
  for (const CDataCell& cell : row.m_arrCell) {
    const std::string sign = orv3::ToUtf8(cell.m_strSign);
    cells += sign.substr(0, sign.find('(')) + "=" + orv3::ToUtf8(cell.m_strValue) + " ";
  }
  EXPECT_EQ(cells,
            "No.=PL 200 b=200 h=400 x=0 y=0 xo=100 yo=200 A=80000 Ixo=1.06667E+09 Iyo=2.66667E+08 "
            "Wxo1=5.33333E+06 Wxo2=5.33333E+06 WyoL=2.66667E+06 WyoR=2.66667E+06 Sxo=4E+06 "
            "Syo=2E+06 ixo=115.47 iyo=57.735 Ix=4.26667E+09 Iy=1.06667E+09 Wx1=1.06667E+07 "
            "Wx2=1E+100 WyL=1E+100 WyR=5.33333E+06 Sx1=1.6E+07 Sx2=0 SyL=8E+06 SyR=0 ixo=230.94 "
            "iyo=115.47 ");
}

TEST(SectionRow, RefusedRowsAndWhatTheyLeave) {
  CDataItem shortRow = RowOf(Record(3));
  shortRow.m_nModifyType = 4;
  while (shortRow.GetItemLength() > 10) shortRow.m_arrCell.RemoveAt(10);
  CSteelJMData jm = Record(9, L"before");
  EXPECT_EQ(0, jm.TransItemToJMData(shortRow));
  EXPECT_STREQ(L"before", jm.m_szName);
  EXPECT_EQ(0, jm.m_nState);

  CDataItem stranger = RowOf(Record(3, L"after"));
  stranger.m_nModifyType = 4;
  stranger.m_strTableName = L"矩形";
  EXPECT_EQ(0, jm.TransItemToJMData(stranger));
  EXPECT_STREQ(L"after", jm.m_szName);
  EXPECT_EQ(4, jm.m_nState);
  EXPECT_EQ(9, jm.m_nStyle);
  EXPECT_EQ(60, jm.m_dSize[0]);
}

TEST(SectionRow, CellsThatAreNoDoublesLeaveTheirFields) {
  for (const int style : {5, 8}) {
    const int sizes = orv3::FindSectionStyle(style)->m_nSizes;
    CDataItem row = RowOf(Record(style));
    row[1].m_strValue = L" 12.5abc";
    row[2].m_nType = CDataTypeStruct::KVBT_INT;
    row[2].m_strValue = L"999";
    for (const int i : {sizes + 1, sizes + 2}) {
      row[i].m_strValue = L"77";
      row[i].m_nType = CDataTypeStruct::KVBT_STRING;
    }
    CSteelJMData jm = Record(style);
    jm.m_dX = 1.5;
    jm.m_dY = 2.5;
    EXPECT_EQ(1, jm.TransItemToJMData(row));
    EXPECT_EQ(12.5, jm.m_dSize[0]);
    EXPECT_EQ(80, jm.m_dSize[1]);
    EXPECT_EQ(1.5, jm.m_dX);
    EXPECT_EQ(2.5, jm.m_dY);
  }
  // Property cells are never read.
  CDataItem row = RowOf(Record(3));
  row[L"A(mm^2)"].m_strValue = L"1";
  CSteelJMData jm;
  EXPECT_EQ(1, jm.TransItemToJMData(row));
  EXPECT_EQ(4800, jm.m_dA);
}

TEST(SectionRow, NamesAreCut) {
  const std::wstring letters = L"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  CDataItem row = RowOf(Record(3));
  row[0].m_strValue = letters.c_str();
  CSteelJMData jm;
  EXPECT_EQ(1, jm.TransItemToJMData(row));
  EXPECT_EQ(letters.substr(0, 49), jm.m_szName);
  EXPECT_EQ(1, jm.TransJMDataToItem(row));
  EXPECT_EQ(letters.substr(0, 30), row[0].m_strValue.GetString());
  // Cut first, trimmed then.
  std::wcscpy(jm.m_szName,
              (L"  " + std::wstring(20, L'n') + std::wstring(12, L' ') + L"z").c_str());
  EXPECT_EQ(1, jm.TransJMDataToItem(row));
  EXPECT_EQ(std::wstring(20, L'n'), row[0].m_strValue.GetString());
}

TEST(SectionRow, CountsThatDoNotMatchAreRefused) {
  CSteelJMData jm = Record(3);
  CSteelJMData::CalSectCharacterStyle(jm);
  CDataItem other = RowOf(Record(9));
  EXPECT_EQ(0, jm.TransJMDataToItem(other));
  EXPECT_EQ(L"S1", other[0].m_strValue.View());

  CDataItem row;
  std::wcscpy(jm.m_szName, L"a,b");
  EXPECT_EQ(0, jm.TransJMDataToItem(row));

  CDataItem none;
  EXPECT_EQ(0, Record(15).TransJMDataToItem(none));
}

}  // namespace
