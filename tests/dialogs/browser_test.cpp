// The browser's tree, search, list and sorting.
#include <gtest/gtest.h>

#include "dialog_store.h"
#include "dialogs/model/browser_model.h"
#include "dialogs/model/dialog_texts.h"
#include "platform/faulty_files.h"
#include "scripted_user.h"
#include "sections/sketch/sketch.h"

namespace {

using namespace orv3;

class Browser : public testing::Test {
 protected:
  Browser() { m_store.Fill(); }

  CBrowserModel Open(const CDataItem& initial = CDataItem()) {
    return CBrowserModel(m_store.Path(), CDialogStore::AllNames(), initial, m_user);
  }
  static int NodeOf(const CBrowserModel& model, const CString& text) {
    const auto& nodes = model.Tree();
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      if (nodes[i].m_strText == text) return static_cast<int>(i);
    }
    ADD_FAILURE() << "no tree node " << ToUtf8(text);
    return 0;
  }
  static std::string Column(const CBrowserModel& model, int column = 0) {
    std::string text;
    for (int i = 0; i < model.ItemCount(); ++i) {
      text += (i ? " " : "") + ToUtf8(model.ItemText(i, column));
    }
    return text;
  }
  // The expression and the numbers found.
  static std::string Search(CBrowserModel& model, const wchar_t* sign, int op, const wchar_t* value,
                            bool whole) {
    const CStringArray& columns = model.SearchColumns();
    for (int i = 0; i < columns.GetSize(); ++i) {
      if (columns[i] == sign) model.SetSearchColumn(i);
    }
    model.SetOperator(op);
    model.SetSearchValue(value);
    model.SetWholeMatch(whole);
    EXPECT_EQ(model.Search(), CListChange::Rows);
    return ToUtf8(model.FilterExpression()) + " : " + Column(model);
  }

  CDialogStore m_store;
  CScriptedUser m_user;
};

// --- Tree ---------------------------------------------------------------------------------------

TEST_F(Browser, TreeHasEveryFamilyInOrder) {
  struct CNode {
    const wchar_t* text;
    int image;
    int tables;  // -1 for a root
  };
  const CNode expected[] = {{L"标准型钢库", 0, -1}, {L"工字钢、H型钢", 0, 6}, {L"方钢管", 2, 1},
                            {L"T型钢", 3, 1},       {L"槽钢", 4, 4},          {L"Z型钢", 6, 2},
                            {L"圆钢管", 8, 1},      {L"角钢", 9, 4},          {L"角钢组合", 12, 4},
                            {L"槽钢组合", 16, 4},   {L"自定义型钢库", 0, -1}, {L"工字形截面", 0, 2},
                            {L"箱形截面", 2, 2},    {L"十字形截面", 18, 2},   {L"T形截面", 3, 1},
                            {L"槽形截面", 4, 1},    {L"Z形截面", 20, 1},      {L"圆形截面", 8, 2},
                            {L"L形截面", 10, 1},    {L"多边形截面", 22, 3},   {L"格构柱", 25, 3}};
  const std::vector<CTreeNode> nodes = BrowserTree(CDialogStore::AllNames());
  std::size_t at = 0;
  int root = -1;
  for (const CNode& node : expected) {
    ASSERT_LT(at, nodes.size());
    EXPECT_EQ(nodes[at].m_strText, node.text);
    EXPECT_EQ(nodes[at].m_nImage, node.image) << ToUtf8(node.text);
    EXPECT_FALSE(nodes[at].m_bTable);
    const auto parent = static_cast<int>(at++);
    if (node.tables < 0) root = parent;
    EXPECT_EQ(nodes[static_cast<std::size_t>(parent)].m_nParent, node.tables < 0 ? -1 : root);
    for (int i = 0; i < node.tables; ++i, ++at) {
      EXPECT_TRUE(nodes[at].m_bTable && nodes[at].m_nParent == parent) << ToUtf8(node.text);
      EXPECT_EQ(nodes[at].m_nImage, CLoadDataTable::GetItemIcon(nodes[at].m_strText));
    }
  }
  EXPECT_EQ(at, nodes.size());
}

TEST_F(Browser, OnlyTablesThatAreAskedFor) {
  CStringArray names;
  for (const wchar_t* name : {L"双肢格构柱", L"热轧窄翼缘H型钢", L"热轧普通工字钢", L"别的"}) {
    names.Add(name);
  }
  std::string tables;
  for (const CTreeNode& node : BrowserTree(names)) {
    if (node.m_bTable) tables += ToUtf8(node.m_strText) + " ";
  }
  EXPECT_EQ(tables, "热轧普通工字钢 热轧窄翼缘H型钢 双肢格构柱 ");
}

// A mask of 0: no tables at all, and nothing to choose.
TEST_F(Browser, WithoutTables) {
  CBrowserModel model(m_store.Path(), CStringArray(), CDataItem(), m_user);
  EXPECT_EQ(model.Open(), CListChange::Columns);
  EXPECT_EQ(model.ItemCount(), 0);
  EXPECT_EQ(model.ColumnCount(), 0);
  EXPECT_EQ(model.SelectedItem(), -1);
  EXPECT_FALSE(model.HasTable());
  EXPECT_EQ(model.PreviewResource(), 0);
  EXPECT_EQ(model.Add(), CListChange::None);
  EXPECT_EQ(model.Edit(), CListChange::None);
  EXPECT_EQ(model.Delete(), CListChange::None);
  EXPECT_EQ(model.SortBy(0), CListChange::None);
  EXPECT_EQ(model.ChooseColumns(), CListChange::None);
  EXPECT_EQ(model.Search(), CListChange::Rows);
  EXPECT_EQ(model.CopyText(), L"");
  EXPECT_FALSE(model.Ok()) << "there is nothing to hand back";
  EXPECT_TRUE(m_user.m_arrMessage.empty());
}

TEST_F(Browser, NodesLeadToTheirFirstTable) {
  CBrowserModel model = Open();
  EXPECT_EQ(model.Open(), CListChange::Columns);
  EXPECT_EQ(model.SelectedNode(), NodeOf(model, L"热轧普通工字钢"));
  EXPECT_EQ(model.SelectNode(NodeOf(model, L"标准型钢库")), CListChange::None);
  EXPECT_EQ(model.SelectNode(NodeOf(model, L"自定义型钢库")), CListChange::Columns);
  EXPECT_EQ(model.SelectedNode(), NodeOf(model, L"自定义对称H型钢"));
  EXPECT_EQ(Column(model), "H400X300");
  EXPECT_EQ(model.PreviewResource(), 8048);
  // A table that the store does not have is shown empty.
  EXPECT_EQ(model.SelectNode(NodeOf(model, L"Z型钢")), CListChange::Columns);
  EXPECT_EQ(model.ColumnCount(), 0);
  EXPECT_EQ(model.ItemCount(), 0);
  EXPECT_TRUE(m_user.m_arrMessage.empty());
}

TEST_F(Browser, StartsWithTheRowHandedIn) {
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(L"热轧普通工字钢", L"I22a");
  CBrowserModel model = Open(row);
  model.Open();
  EXPECT_EQ(model.SelectedItem(), 2);
  CDataItem gone = row;
  gone.m_arrCell.Own(0).m_strValue = L"I99";
  CBrowserModel other = Open(gone);
  other.Open();
  EXPECT_EQ(other.SelectedItem(), 0);
  EXPECT_EQ(other.SelectedNode(), NodeOf(other, L"热轧普通工字钢"));
}

// The lattice family's tables are made when the store lacks them, and are then in the store.
TEST_F(Browser, MakesLatticeTables) {
  struct CCase {
    const wchar_t* table;
    int columns;  // number, spacings, three per limb, 11 results
  };
  for (const CCase& c : {CCase{L"双肢格构柱", 1 + 1 + 6 + 11},
                         {L"三肢格构柱", 1 + 2 + 9 + 11},
                         {L"四肢格构柱", 1 + 2 + 12 + 11}}) {
    CBrowserModel model = Open();
    model.Open();
    model.SelectNode(NodeOf(model, c.table));
    EXPECT_EQ(model.ColumnCount(), c.columns) << ToUtf8(c.table);
    EXPECT_EQ(m_store.Read(c.table).GetTableColNum(), c.columns) << ToUtf8(c.table);
  }
  EXPECT_TRUE(m_user.m_arrMessage.empty());
}

TEST_F(Browser, PutsTheProgramPathBack) {
  SetProgramPath(L"elsewhere/");
  {
    CBrowserModel model = Open();
    model.Open();
    EXPECT_EQ(ProgramPath(), m_store.Path());
  }
  EXPECT_EQ(ProgramPath(), L"elsewhere/");
  SetProgramPath(m_store.Path());
}

// A path without a separator at its end, or none at all, is the same store.
TEST_F(Browser, FindsTheStore) {
  const CString path = m_store.Path();
  for (const CString& given : {path, path.Left(path.GetLength() - 1), CString()}) {
    CBrowserModel model(given, CDialogStore::AllNames(), CDataItem(), m_user);
    model.Open();
    EXPECT_EQ(model.ItemCount(), 4) << ToUtf8(given);
  }
}

TEST_F(Browser, TellsADamagedStore) {
  PutBytes(m_store.StorePath(), std::string(30000, 'x'));
  const std::string before = Bytes(m_store.StorePath());
  CDataItem lattice;  // whose table is not made in a store that cannot be read
  lattice.m_strTableName = L"双肢格构柱";
  CBrowserModel model = Open(lattice);
  model.Open();
  EXPECT_EQ(model.ItemCount(), 0);
  EXPECT_EQ(Bytes(m_store.StorePath()), before);
  ASSERT_EQ(m_user.m_arrMessage.size(), 1U);
  EXPECT_EQ(m_user.m_arrMessage[0].m_strTitle, L"Orvo提醒您");
  EXPECT_EQ(m_user.TakeMessages()[0].rfind("数据读取失败：", 0), 0U);
}

// --- Search -------------------------------------------------------------------------------------

TEST_F(Browser, SearchControls) {
  CBrowserModel model = Open();
  model.Open();
  const CStringArray& columns = model.SearchColumns();
  ASSERT_EQ(columns.GetSize(), 5);
  EXPECT_EQ(columns[0], L"");
  EXPECT_EQ(columns[1], L"No.");
  std::string operators;
  for (const CString& op : CBrowserModel::Operators()) operators += ToUtf8(op);
  EXPECT_EQ(operators, "＝≠>≥<≤");
  // "完全匹配" is for texts and for being equal or not.
  EXPECT_FALSE(model.IsWholeMatchEnabled());
  for (int op = 0; op < 6; ++op) {
    model.SetOperator(op);
    model.SetSearchColumn(1);
    EXPECT_EQ(model.IsWholeMatchEnabled(), op < 2) << op;
    model.SetSearchColumn(2);
    EXPECT_FALSE(model.IsWholeMatchEnabled()) << op;
  }
}

TEST_F(Browser, SearchExpressions) {
  CBrowserModel model = Open();
  model.Open();
  struct CCase {
    const wchar_t* sign;
    int op;
    const wchar_t* value;
    bool whole;
    const char* result;
  };
  for (const CCase& c : {
           CCase{L"No.", 0, L"I20", false, "No.==*I20* : I20a I20b"},
           {L"No.", 0, L"I2*", false, "No.==I2* : I20a I20b I22a"},
           {L"No.", 0, L"*a", false, "No.==*a : I20a I22a"},
           {L"No.", 0, L"*", false, "No.==* : I20a I20b I22a I10"},
           {L"No.", 0, L"", false, "No.==** : I20a I20b I22a I10"},
           {L"No.", 0, L"I20", true, "No.==I20 : "},
           {L"No.", 0, L"I20a", true, "No.==I20a : I20a"},
           {L"No.", 1, L"20", false, "No.!=*20* : I22a I10"},
           {L"No.", 1, L"I20a", true, "No.!=I20a : I20b I22a I10"},
           {L"No.", 3, L"I20b", false, "No.>=I20b : I20b I22a"},
           {L"h(mm)", 0, L"200", false, "h(mm)==200 : I20a I20b"},
           {L"h(mm)", 1, L"200", true, "h(mm)!=200 : I22a I10"},
           {L"h(mm)", 2, L"200", false, "h(mm)>>200 : I22a"},
           {L"h(mm)", 3, L"200", false, "h(mm)>=200 : I20a I20b I22a"},
           {L"h(mm)", 4, L"200", false, "h(mm)<<200 : I10"},
           {L"h(mm)", 5, L"200", false, "h(mm)<=200 : I20a I20b I10"},
           {L"h(mm)", 6, L"200", false, "h(mm)200 : "},  // no such operator
       }) {
    EXPECT_EQ(Search(model, c.sign, c.op, c.value, c.whole), c.result);
  }
}

TEST_F(Browser, SearchWithoutAColumnKeepsTheFilter) {
  CBrowserModel model = Open();
  model.Open();
  Search(model, L"No.", 0, L"I20", false);
  EXPECT_EQ(model.CountText(), L"检索到 2 条记录，共 4 条记录");
  model.SetSearchColumn(0);
  model.SetSearchValue(L"nothing");
  model.SetWholeMatch(true);
  EXPECT_EQ(model.Search(), CListChange::Rows);
  EXPECT_EQ(model.FilterExpression(), L"No.==*I20*");
  EXPECT_EQ(Column(model), "I20a I20b");
  // Another table starts without a filter.
  model.SelectNode(NodeOf(model, L"角钢"));
  EXPECT_EQ(model.FilterExpression(), L"");
  EXPECT_EQ(model.SearchColumn(), 0);
  EXPECT_EQ(model.CountText(), L"共 1 条记录");
}

TEST_F(Browser, NumbersAreFilteredByNumbers) {
  CBrowserModel model = Open();
  model.Open();
  Search(model, L"h(mm)", 2, L" 200 ", false);
  ASSERT_EQ(Column(model), "I22a");
  model.SetSearchValue(L"abc");
  EXPECT_EQ(model.Search(), CListChange::None);
  EXPECT_EQ(m_user.TakeMessages(), std::vector{"“abc”" + ToUtf8(texts::kNoNumber)});
  EXPECT_EQ(Column(model), "I22a") << "the filter before stays";
  EXPECT_EQ(Search(model, L"h(mm)", 2, L" ", false), " : I20a I20b I22a I10");
  EXPECT_EQ(model.CountText(), L"共 4 条记录");
  EXPECT_EQ(Search(model, L"h(mm)", 0, L"500", false), "h(mm)==500 : ");
  EXPECT_FALSE(model.Ok()) << "no row is found";
}

// --- List ---------------------------------------------------------------------------------------

TEST_F(Browser, ListColumns) {
  CBrowserModel model = Open();
  model.Open();
  ASSERT_EQ(model.ColumnCount(), 4);
  EXPECT_EQ(model.Column(0).m_strSign, L"No.");
  EXPECT_EQ(model.Column(0).m_nWidth, 80);
  EXPECT_FALSE(model.Column(0).m_bRight);
  EXPECT_TRUE(model.Column(3).m_bRight);
  EXPECT_EQ(Column(model, 3), "35.5 39.5 42 14.3");
  EXPECT_EQ(model.SelectedItem(), 0);
  EXPECT_STREQ(model.ItemText(4, 0), L"");
  EXPECT_STREQ(model.ItemText(0, 4), L"");
  EXPECT_EQ(model.CopyText(), L"I20a\t200\t100\t35.5");
  EXPECT_EQ(model.FindItem(L"i2", 1), 1);
  EXPECT_EQ(model.FindItem(L"I20A", 1), 0);
  EXPECT_EQ(model.FindItem(L"[", 0), -1);
}

TEST_F(Browser, SortsAndKeepsTheSelectedRow) {
  CBrowserModel model = Open();
  model.Open();
  model.SelectItem(3);  // I10
  EXPECT_EQ(model.SortBy(3), CListChange::Order);
  EXPECT_EQ(Column(model), "I10 I20a I20b I22a");
  EXPECT_EQ(model.SelectedItem(), 0);
  EXPECT_EQ(model.Column(3).m_nSorted, 1);
  model.SortBy(3);
  EXPECT_EQ(Column(model), "I22a I20b I20a I10");
  EXPECT_EQ(model.Column(3).m_nSorted, -1);
  EXPECT_EQ(model.SelectedItem(), 3);
  model.SortBy(1);  // another column begins ascending; equal rows stay in their order
  EXPECT_EQ(Column(model), "I10 I20b I20a I22a");
  EXPECT_EQ(model.Column(3).m_nSorted, 0);
  // The order holds for what a search finds, not for another table.
  EXPECT_EQ(Search(model, L"b(mm)", 3, L"100", false), "b(mm)>=100 : I20a I20b I22a");
  model.SelectNode(NodeOf(model, L"角钢"));
  EXPECT_EQ(model.Column(1).m_nSorted, 0);
}

TEST_F(Browser, ShowsChosenColumns) {
  CBrowserModel model = Open();
  model.Open();
  m_user.m_fnColumn = [](CColumnModel& columns) {
    EXPECT_EQ(columns.Count(), 4);
    columns.Check(1, false);
    columns.Check(2, false);
    return true;
  };
  EXPECT_EQ(model.ChooseColumns(), CListChange::Columns);
  EXPECT_EQ(model.ViewExpression(), L"No.<<>>A(cm^2)");
  ASSERT_EQ(model.ColumnCount(), 2);
  EXPECT_EQ(Column(model, 1), "35.5 39.5 42 14.3");
  // A search may use a column that is not shown.
  EXPECT_EQ(Search(model, L"h(mm)", 0, L"220", false), "h(mm)==220 : I22a");
  EXPECT_TRUE(model.Ok());
  EXPECT_EQ(model.ChosenRow().GetItemLength(), 4) << "all columns are handed back";
  m_user.m_fnColumn = [](CColumnModel& columns) {
    EXPECT_FALSE(columns.IsChecked(1));
    columns.CheckAll(true);
    return false;
  };
  EXPECT_EQ(model.ChooseColumns(), CListChange::None);
  EXPECT_EQ(model.ColumnCount(), 2);
}

TEST_F(Browser, LeavesDeletedRowsOut) {
  CDataTable table = m_store.Read(L"热轧普通工字钢");
  table.DeleteTableItem(1);
  ASSERT_EQ(table.WriteSystemJmTable(), 1);
  CBrowserModel model = Open();
  model.Open();
  EXPECT_EQ(Column(model), "I20a I22a I10");
  EXPECT_EQ(model.CountText(), L"共 3 条记录");
  model.SelectItem(1);
  EXPECT_TRUE(model.Ok());
  EXPECT_EQ(model.ChosenRow()[0].m_strValue, L"I22a");
}

}  // namespace
