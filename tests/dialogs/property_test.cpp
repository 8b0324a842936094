#include <gtest/gtest.h>

#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/rolled/rolled_style.h"
#include "dialog_store.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/property_model.h"
#include "scripted_user.h"

namespace {

using namespace orv3;

CDataItem DefaultRow(const wchar_t* table) {
  CDataItem row;
  row.m_strTableName = table;
  EXPECT_EQ(CLoadDataTable::GetDefaultDataItem(row), 1);
  return row;
}

int LineOf(const CPropertyModel& model, const wchar_t* sign) {
  return model.Row().GetSignIndex(CString(sign));
}

double Number(const CPropertyModel& model, const wchar_t* sign) {
  return ToDouble(model.Row()[sign].m_strValue);
}

TEST(Property, CaptionsAndButtons) {
  const CDataItem row = DefaultRow(L"矩形截面");
  const CPropertyModel edit(row, L"矩形截面", 1);
  EXPECT_EQ(edit.Caption(), L"截面特性参数设置");
  EXPECT_EQ(edit.CancelText(), L"取消");
  EXPECT_TRUE(edit.HasOk());
  EXPECT_EQ(edit.PictureResource(), 8049);
  EXPECT_GT(edit.Picture().GetWidth(), 0);
  const CPropertyModel show(row, L"矩形截面", 0);
  EXPECT_EQ(show.Caption(), L"截面特性参数查询");
  EXPECT_EQ(show.CancelText(), L"退出");
  EXPECT_FALSE(show.HasOk());
  const CEditGridModel& grid = edit.Grid();
  ASSERT_EQ(grid.ColumnCount(), 2);
  const int exact = row.GetItemLength();  // a heading, and the 31 exact properties
  EXPECT_EQ(grid.LineCount(), exact + 32);
  EXPECT_EQ(grid.CellText(exact, 0), L"由轮廓精确计算 (mm)");
  EXPECT_EQ(grid.CellText(exact + 1, 0), L"截面面积  A(mm^2)");
  EXPECT_EQ(grid.CellText(exact + 1, 1), L"120000");
  EXPECT_EQ(grid.ColumnTitle(0), L"参数名称");
  EXPECT_EQ(grid.ColumnWidth(1), 150);
  EXPECT_EQ(grid.CellText(0, 0), L"型号");
  EXPECT_EQ(grid.CellText(1, 1), L"300");
}

// Number, sizes and base point are typed, results computed; nothing is typed where rows are shown.
TEST(Property, WhatCanBeEdited) {
  struct CCase {
    const wchar_t* table;
    int mode;
    int editable;
  };
  for (const CCase& c : {CCase{L"矩形截面", 1, 5},
                         {L"自定义非对称H型钢", 1, 11},
                         {L"六边形截面", 1, 4},
                         {L"矩形截面", 0, 0}}) {
    const CPropertyModel model(DefaultRow(c.table), c.table, c.mode);
    for (int i = 0; i < model.Grid().LineCount(); ++i) {
      EXPECT_EQ(model.Grid().ModifyType(i, 1),
                i < c.editable ? CModifyType::Edit : CModifyType::Fixed)
          << ToUtf8(c.table) << " line " << i;
    }
  }
}

// A rectangle of 300 x 400 becomes one of 300 x 500: A = bh, Ixo = bh^3/12.
TEST(Property, ResultsFollowSizes) {
  CScriptedUser user;
  CPropertyModel model(DefaultRow(L"矩形截面"), L"矩形截面", 1);
  model.SetValue(LineOf(model, L"h(mm)"), L" 500 ");
  EXPECT_EQ(Number(model, L"A(mm^2)"), 150000);
  EXPECT_EQ(Number(model, L"Ixo(mm^4)"), 3.125e9);
  EXPECT_EQ(model.Grid().CellText(LineOf(model, L"A(mm^2)"), 1), L"150000");
  model.SetValue(LineOf(model, L"A(mm^2)"), L"1");
  EXPECT_EQ(Number(model, L"A(mm^2)"), 150000);
  const int exact = model.Row().GetItemLength();
  EXPECT_EQ(model.Grid().CellText(exact + 1, 1), L"150000") << "as the sizes are now";
  EXPECT_TRUE(model.Ok(user));
  EXPECT_EQ(model.Row()[0].m_strValue, L"400X300");
}

TEST(Property, FaultsKeepItOpenAndNameTheLine) {
  struct CCase {
    const wchar_t* sign;
    const wchar_t* text;
  };
  for (const CCase& c : {CCase{L"h(mm)", L""},
                         {L"h(mm)", L"4OO"},
                         {L"h(mm)", L"-5"},
                         {L"b(mm)", L"0"},
                         {L"x(mm)", L"left"},
                         {L"No.", L""},
                         {L"No.", L"a,b"},
                         {L"No.", L"1234567890123456789012345678901"}}) {
    CScriptedUser user;
    CPropertyModel model(DefaultRow(L"矩形截面"), L"矩形截面", 1);
    model.SetValue(LineOf(model, c.sign), c.text);
    EXPECT_EQ(model.Row()[L"A(mm^2)"].m_strValue, L"") << ToUtf8(c.text);
    EXPECT_FALSE(model.Ok(user)) << ToUtf8(c.text);
    EXPECT_EQ(user.TakeMessages().size(), 1U) << ToUtf8(c.text);
    EXPECT_EQ(model.FaultLine(), LineOf(model, c.sign)) << ToUtf8(c.text);
    // Once it is mended the dialog ends.
    model.SetValue(LineOf(model, c.sign), CString(c.sign) == L"No." ? L"A1" : L"100");
    EXPECT_TRUE(model.Ok(user)) << ToUtf8(c.text);
    EXPECT_EQ(model.FaultLine(), -1);
  }
}

// What a catalogue could not print; and sizes that no longer make the section that they made.
TEST(Property, FiguresOfARolledSection) {
  const CDialogStore store;
  PutBytes(store.StorePath(), Bytes(FromUtf8(ORV3CAL_CATALOGUE) + L"/" + kSystemStore));
  constexpr wchar_t kTable[] = L"热轧普通工字钢";
  struct CCase {
    const wchar_t* sign;
    const wchar_t* text;
    bool line;  // the message is about the value, and leads to it
  };
  for (const CCase& c : {CCase{L"h(mm)", L"-5", true},
                         {L"h(mm)", L"1e300", true},
                         {L"h(mm)", L"0", true},
                         {L"A(cm^2)", L"-1", true},
                         {L"Ix(cm^4)", L"1e300", true},
                         {L"h(mm)", L"10", false}}) {
    CScriptedUser user;
    CPropertyModel model(CLoadDataTable::GetSysTemJMItem(kTable, L"I20a"), kTable, 1);
    model.SetValue(LineOf(model, c.sign), c.text);
    EXPECT_FALSE(model.Ok(user)) << ToUtf8(c.text);
    EXPECT_EQ(user.TakeMessages().size(), 1U) << ToUtf8(c.text);
    EXPECT_EQ(model.FaultLine(), c.line ? LineOf(model, c.sign) : -1) << ToUtf8(c.text);
  }
  CScriptedUser user;
  CPropertyModel model(CLoadDataTable::GetSysTemJMItem(kTable, L"I20a"), kTable, 1);
  EXPECT_TRUE(model.Ok(user)) << "as printed";
}

TEST(Property, RefusedByTheCallerItStaysAsItWas) {
  CScriptedUser user;
  CPropertyModel model(DefaultRow(L"矩形截面"), L"矩形截面", 1);
  int asked = 0;
  model.SetAccept([&](CDataItem& row, CDialogUser&) {
    row.m_arrCell.Own(0).m_strValue = L"changed";
    return ++asked == 2;
  });
  EXPECT_FALSE(model.Ok(user));
  EXPECT_EQ(model.Row()[0].m_strValue, L"400X300");
  EXPECT_TRUE(model.Ok(user));
  EXPECT_EQ(model.Row()[0].m_strValue, L"changed");
}

// Two channels [10 with their backs down and up, 600 apart and then 800. A = 2 x 1274 mm^2;
// Ix = 2 x 25.6e4 + 2 x 1274 x (k/2)^2, since at 90 degrees Iy of the channel becomes Ix.
TEST(Property, LatticeColumn) {
  const CDialogStore store;
  store.Add(L"热轧普通槽钢", {L"h(mm)", L"b(mm)", L"A(cm^2)", L"Ix(cm^4)", L"Iy(cm^4)", L"zo(cm)"},
            {L"[10,100,48,12.74,198,25.6,1.52", L"[12,120,53,15.36,346,37.4,1.62"}, 0);
  store.Add(L"热轧等边角钢", {L"b(mm)", L"t(mm)", L"A(cm^2)", L"Ix(cm^4)", L"zo(cm)"},
            {L"L30X3,30,3,1.75,1.46,0.85"}, 0);
  CScriptedUser user;
  CPropertyModel model(DefaultRow(L"双肢格构柱"), L"双肢格构柱", 1);
  EXPECT_EQ(Number(model, L"A(mm^2)"), 2548) << "a new column is computed at once";
  const int type = LineOf(model, L"P1Type"), number = LineOf(model, L"P1No.");
  EXPECT_EQ(model.Grid().ModifyType(LineOf(model, L"k(mm)"), 1), CModifyType::Edit);
  EXPECT_EQ(model.Grid().ModifyType(LineOf(model, L"A(mm^2)"), 1), CModifyType::Fixed);
  ASSERT_EQ(model.Grid().ModifyType(number, 1), CModifyType::List);
  EXPECT_EQ(model.Grid().Choices(number, 1).GetSize(), 2);
  EXPECT_EQ(model.Grid().Choices(type, 1).GetSize(), 2) << "tables that have sections";
  EXPECT_EQ(model.Grid().Choices(LineOf(model, L"P1θ°"), 1).GetSize(), 4);

  model.SetValue(LineOf(model, L"k(mm)"), L"600");
  const double Ix = 2 * 25.6e4 + 2 * 1274 * 300.0 * 300.0;
  EXPECT_NEAR(Number(model, L"Ix(mm^4)"), Ix, Ix * 1e-5);

  model.SetValue(type, L"热轧等边角钢");
  EXPECT_EQ(model.Row()[number].m_strValue, L"L30X3") << "a number of the new type";
  EXPECT_EQ(Number(model, L"A(mm^2)"), 1274 + 175);
  EXPECT_TRUE(model.Ok(user));

  model.SetValue(LineOf(model, L"k(mm)"), L"-1");
  EXPECT_EQ(model.Row()[L"A(mm^2)"].m_strValue, L"");
  EXPECT_FALSE(model.Ok(user));
  EXPECT_EQ(model.FaultLine(), LineOf(model, L"k(mm)"));
  EXPECT_EQ(user.TakeMessages().size(), 1U);
}

// Figures that were all typed in may still not be those of the sizes.
TEST(Property, AsksBeforeARowThatContradictsItself) {
  CDataItem row;
  row.m_strTableName = L"热轧普通工字钢";
  row.SetItemTitle(
      RolledTitle(RolledStyles()[std::size_t(FindRolledStyle(row.m_strTableName.View()))]));
  ASSERT_EQ(row.SetDataItemValue(L"I99,200,100,7,11.4,9,4.5,35.578,27.929,0.742,2368.6,236.9,136.1,"
                                 L"8.16,157.9,31.6,2.11"),
            1);
  CPropertyModel model(row, row.m_strTableName, 1);
  CScriptedUser user;
  EXPECT_TRUE(model.Ok(user));
  model.SetValue(LineOf(model, L"A(cm^2)"), L"355.78");
  user.m_arrAnswer = {CMessageAnswer::No, CMessageAnswer::Yes};
  EXPECT_FALSE(model.Ok(user));
  EXPECT_TRUE(model.Ok(user));
  const auto messages = user.TakeMessages();
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_EQ(messages[0].find(ToUtf8(texts::kContradicts) + "A = 35578 mm²"), 0U) << messages[0];
}

}  // namespace
