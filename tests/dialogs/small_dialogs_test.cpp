// The dialogs that hold a list, a text or a set of marks.
#include <gtest/gtest.h>

#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/edit_grid_model.h"
#include "framework/exception.h"
#include "scripted_user.h"

namespace {

using namespace orv3;

std::string Joined(const CStringArray& texts) {
  std::string joined;
  for (const CString& text : texts) joined += ToUtf8(text) + " ";
  return joined;
}

TEST(Spacing, ListsAndLabels) {
  struct CCase {
    const char* name;
    int kind;
    const wchar_t* current;
    int selected;
    int count;
    const wchar_t* label;
  };
  for (const CCase& c : {CCase{"pair", 0, L"6", 2, 10, L"肢距a(mm)"},
                         {"pair, largest", 0, L"20", 9, 10, L"肢距a(mm)"},
                         {"pair, not in the list", 0, L"7", 0, 10, L"肢距a(mm)"},
                         {"pair, none yet", 0, L"", 0, 10, L"肢距a(mm)"},
                         {"cross", 1, L"10", 4, 5, L"肢距δ(mm)"},
                         {"cross, beyond its list", 1, L"12", 0, 5, L"肢距δ(mm)"},
                         {"any other kind is a cross", 7, L"4", 1, 5, L"肢距δ(mm)"}}) {
    const CSpacingModel model(c.kind, c.current);
    EXPECT_EQ(model.Selected(), c.selected) << c.name;
    EXPECT_EQ(model.Choices().GetSize(), c.count) << c.name;
    EXPECT_EQ(model.Label(), c.label) << c.name;
  }
  EXPECT_EQ(Joined(CSpacingModel(0, L"").Choices()), "0 4 6 8 10 12 14 16 18 20 ");
}

TEST(Spacing, EmptyTextKeepsTheDialogOpen) {
  CSpacingModel model(0, L"4");
  EXPECT_FALSE(model.Ok(L""));
  EXPECT_EQ(model.Spacing(), L"4");
  EXPECT_TRUE(model.Ok(L"8"));
  EXPECT_EQ(model.Spacing(), L"8");
}

TEST(Sign, BlanksAtTheEndsGo) {
  CSignModel model(L"I20a");
  model.Ok(L"  I 20c \t");
  EXPECT_EQ(model.Number(), L"I 20c");
}

CDataTableTitle Heading(const std::vector<const wchar_t*>& signs) {
  CDataTableTitle title;
  for (const wchar_t* sign : signs) {
    title.InsertColumn(title.GetTableTitleNum(), {L"", sign, CDataTypeStruct::KVBT_DOUBLE, 0});
  }
  return title;
}

TEST(Columns, ViewFollowsTheTablesOrder) {
  CScriptedUser user;
  CColumnModel model(Heading({L"No.", L"h", L"b", L"ixo", L"A", L"ixo"}), L"A<<>>No.");
  EXPECT_EQ(model.CheckedCount(), 2);
  EXPECT_EQ(model.View(), L"No.<<>>A");
  model.Check(5, true);  // one sign, two columns
  EXPECT_TRUE(model.IsChecked(3));
  EXPECT_EQ(model.View(), L"No.<<>>ixo<<>>A");
  model.CheckAll(true);
  EXPECT_EQ(model.View(), L"");
  EXPECT_TRUE(model.Ok(user));
  model.CheckAll(false);
  EXPECT_FALSE(model.Ok(user));
  EXPECT_EQ(user.TakeMessages().size(), 1U);
  EXPECT_THROW(model.Check(6, true), CInvalidArgException);
}

TEST(TableNames, FilterKeepsMarks) {
  CScriptedUser user;
  CStringArray names, marked;
  for (const wchar_t* name : {L"热轧普通工字钢", L"剖分T型钢", L"热轧等边角钢"}) names.Add(name);
  marked.Add(L"剖分T型钢");
  CTableNameModel model(names, marked);
  model.SetFilter(L" 热轧 ");
  ASSERT_EQ(model.Count(), 2);
  EXPECT_EQ(model.Name(1), L"热轧等边角钢");
  model.Check(1, true);
  model.SetFilter(L"t型");
  ASSERT_EQ(model.Count(), 1);
  EXPECT_TRUE(model.IsChecked(0));
  model.SetFilter(L"无");
  model.CheckAll(false);
  EXPECT_EQ(Joined(model.Chosen()), "剖分T型钢 热轧等边角钢 ");
  EXPECT_EQ(model.CountText(), L"已选 2 个，共 3 个");
  EXPECT_TRUE(model.Ok(user));
  model.SetFilter(L"");
  model.CheckAll(false);
  EXPECT_FALSE(model.Ok(user));
  EXPECT_EQ(user.TakeMessages(), std::vector{ToUtf8(texts::kNoTableChosen)});
}

TEST(Grid, CellsOverrideTheirColumn) {
  CEditGridModel grid;
  grid.InsertColumn(0, L"参数名称", 150);
  CStringArray line;
  line.Add(L"h");
  grid.InsertLine(0, line);
  grid.InsertColumn(1, L"参数值", 150);
  EXPECT_EQ(grid.ModifyType(0, 1), CModifyType::Fixed);
  grid.SetColModifyType(1, CModifyType::Edit);
  EXPECT_EQ(grid.ModifyType(0, 1), CModifyType::Edit);
  line.Add(L"200");
  grid.InsertLine(0, line);
  grid.SetCellModifyType(0, 1, CModifyType::List, line);
  EXPECT_EQ(grid.ModifyType(0, 1), CModifyType::List);
  EXPECT_EQ(grid.ModifyType(1, 1), CModifyType::Edit);
  EXPECT_EQ(grid.Choices(0, 1).GetSize(), 2);
  EXPECT_EQ(grid.CellText(0, 1), L"200");
  grid.RemoveLine(0);
  EXPECT_EQ(grid.LineCount(), 1);
  EXPECT_EQ(grid.CellText(0, 1), L"");
  EXPECT_THROW(grid.CellText(1, 0), CInvalidArgException);
  EXPECT_THROW(grid.SetCellText(0, 2, L""), CInvalidArgException);
}

}  // namespace
