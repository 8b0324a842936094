// The browser's changes to the store, and what it hands back.
#include <gtest/gtest.h>

#include "catalogue/rolled/rolled_style.h"
#include "dialog_store.h"
#include "dialogs/model/browser_model.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/store_transfer.h"
#include "platform/faulty_files.h"
#include "platform/store_file.h"
#include "scripted_user.h"
#include "tables/file/check.h"

namespace {

using namespace orv3;

constexpr wchar_t kI[] = L"热轧普通工字钢";
constexpr wchar_t kH[] = L"自定义对称H型钢";

CDataItem Named(const wchar_t* table, const wchar_t* number) {
  CDataItem row;
  row.m_strTableName = table;
  row.m_arrCell.Add(CDataCell({L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1}, number));
  return row;
}

// What a user does in the property dialog: sets values by sign, then presses OK until it ends or
// gives up after the first refusal.
std::function<bool(CPropertyModel&)> Typing(
    CDialogUser& user, std::vector<std::pair<const wchar_t*, const wchar_t*>> values) {
  return [&user, values](CPropertyModel& model) {
    EXPECT_TRUE(model.HasOk());
    for (const auto& [sign, value] : values) {
      model.SetValue(model.Row().GetSignIndex(CString(sign)), value);
    }
    return model.Ok(user);
  };
}

class BrowserRows : public testing::Test {
 protected:
  BrowserRows() { m_store.Fill(); }

  // A browser that starts on a row.
  std::unique_ptr<CBrowserModel> Open(const wchar_t* table, const wchar_t* number,
                                      CScriptedUser* user = nullptr) {
    auto model = std::make_unique<CBrowserModel>(m_store.Path(), CDialogStore::AllNames(),
                                                 Named(table, number), user ? *user : m_user);
    model->Open();
    EXPECT_STREQ(model->SelectedItem() < 0 ? L"" : model->ItemText(model->SelectedItem(), 0),
                 number);
    return model;
  }
  std::string Selected(const CBrowserModel& model) {
    return ToUtf8(model.ItemText(model.SelectedItem(), 0));
  }

  CDialogStore m_store;
  CScriptedUser m_user;
};

// --- OK -----------------------------------------------------------------------------------------

TEST_F(BrowserRows, AsksForTheSpacing) {
  struct CCase {
    const wchar_t* table;
    const wchar_t* number;
    const wchar_t* sign;  // null: not asked
    int kind;
  };
  for (const CCase& c : {CCase{L"热轧等边角钢组合", L"2L30X3", L"a(mm)", 10},
                         {L"热轧等边角钢十字组合", L"+L30X3", L"δ(mm)", 5},
                         {L"热轧普通槽钢][组合", L"2][10", L"a(mm)", 10},
                         {L"热轧普通槽钢[]组合", L"2[]10", nullptr, 0},
                         {L"热轧等边角钢", L"L30X3", nullptr, 0}}) {
    const std::string name = ToUtf8(c.table);
    auto model = Open(c.table, c.number);
    m_user.m_fnSpacing = nullptr;
    if (c.sign) m_user.m_fnSpacing = [](CSpacingModel&) { return false; };
    EXPECT_EQ(model->Ok(), c.sign == nullptr) << name << ": cancelled, the dialog stays";
    if (!c.sign) {
      EXPECT_EQ(model->ChosenRow().GetItemLength(), 3) << name;
      continue;
    }
    EXPECT_TRUE(model->ChosenRow().IsEmpty());
    m_user.m_fnSpacing = [&](CSpacingModel& spacing) {
      EXPECT_EQ(spacing.Choices().GetSize(), c.kind);
      return spacing.Ok(L"8");
    };
    EXPECT_TRUE(model->Ok()) << name;
    const CDataItem& row = model->ChosenRow();
    ASSERT_EQ(row.GetItemLength(), 4) << name;
    EXPECT_EQ(row.GetCellSign(1), c.sign);
    int spacing = 0;
    EXPECT_EQ(row.GetCellValue(1, spacing), 1);
    EXPECT_EQ(spacing, 8);
  }
}

TEST_F(BrowserRows, OffersTheSpacingThatWasGivenBefore) {
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(L"热轧等边角钢组合", L"2L30X3");
  CBrowserModel model(m_store.Path(), CDialogStore::AllNames(), WithSpacing(row, L"12"), m_user);
  model.Open();
  m_user.m_fnProperty = [](CPropertyModel& property) {
    EXPECT_FALSE(property.HasOk());
    EXPECT_EQ(property.Grid().CellText(1, 1), L"12");
    property.SetValue(1, L"16");
    return false;
  };
  model.ShowProperties();
  m_user.m_fnSpacing = [](CSpacingModel& spacing) {
    EXPECT_EQ(spacing.Choices()[spacing.Selected()], L"16");
    return spacing.Ok(spacing.Choices()[spacing.Selected()]);
  };
  EXPECT_TRUE(model.Ok());
  EXPECT_EQ(SpacingOf(model.ChosenRow()), L"16");
}

// --- Refusals -----------------------------------------------------------------------------------

TEST_F(BrowserRows, CatalogueRowsAreProtected) {
  auto model = Open(kI, L"I20a");
  EXPECT_EQ(model->Delete(), CListChange::None);
  EXPECT_EQ(model->Edit(), CListChange::None);
  ASSERT_EQ(m_user.m_arrMessage.size(), 2U);
  for (const CMessage& message : m_user.m_arrMessage) {
    EXPECT_EQ(message.m_strText, L"本数据记录不能删除和编辑!");
    EXPECT_EQ(message.m_strTitle, L"orvo提醒您");
    EXPECT_EQ(message.m_nButtons, CMessageButtons::Ok);
  }
  EXPECT_EQ(m_store.Numbers(kI), "I20a I20b I22a I10");
}

TEST_F(BrowserRows, CombinedSectionsAreNotCopied) {
  auto model = Open(L"热轧普通槽钢[]组合", L"2[]10");
  EXPECT_EQ(model->Add(), CListChange::None);
  EXPECT_EQ(model->Copy(), CListChange::None);
  EXPECT_EQ(m_user.TakeMessages(), std::vector<std::string>(2, "型钢组合不能进行复制"));
}

TEST_F(BrowserRows, DuplicateIsRefusedAndTheDialogStays) {
  auto model = Open(kH, L"H400X300");
  m_user.m_fnProperty = Typing(m_user, {});
  EXPECT_EQ(model->Add(), CListChange::None);
  EXPECT_EQ(m_user.TakeMessages(),
            std::vector<std::string>{"型号=H400X300，该条数据记录已经存在!"});
  EXPECT_EQ(m_store.Numbers(kH), "H400X300");
}

// --- Adding, changing, deleting -----------------------------------------------------------------

TEST_F(BrowserRows, AddsEditsAndDeletes) {
  auto model = Open(kH, L"H400X300");
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"H500X300"}, {L"h(mm)", L"500"}});
  EXPECT_EQ(model->Add(), CListChange::Rows);
  EXPECT_EQ(m_store.Numbers(kH), "H400X300 H500X300");
  EXPECT_EQ(Selected(*model), "H500X300");
  // 2 x 300 x 10 + 480 x 10
  EXPECT_EQ(CLoadDataTable::GetSysTemJMItem(kH, L"H500X300")[L"A(mm^2)"].m_strValue, L"10800");

  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"H600"}, {L"h(mm)", L"600"}});
  EXPECT_EQ(model->Edit(), CListChange::Rows);
  EXPECT_EQ(m_store.Numbers(kH), "H400X300 H600");
  EXPECT_EQ(Selected(*model), "H600");
  EXPECT_EQ(CLoadDataTable::GetSysTemJMItem(kH, L"H600")[L"A(mm^2)"].m_strValue, L"11800");

  EXPECT_EQ(model->Delete(), CListChange::Rows);
  EXPECT_EQ(m_store.Numbers(kH), "H400X300");
  EXPECT_EQ(model->ItemCount(), 1);
  EXPECT_EQ(model->CountText(), L"共 1 条记录");
  // The place of the deleted row is used again.
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"H700"}});
  model->Add();
  EXPECT_EQ(m_store.Read(kH).GetTableRowNum(), 2);
  EXPECT_EQ(m_store.Numbers(kH), "H400X300 H700");
  EXPECT_TRUE(m_user.TakeMessages().empty());
}

TEST_F(BrowserRows, DeletionsSelectTheNeighbourAndAreTakenBack) {
  auto model = Open(kH, L"H400X300");
  for (const wchar_t* number : {L"A", L"B", L"C"}) {
    m_user.m_fnProperty = Typing(m_user, {{L"No.", number}});
    model->Add();
  }
  model->SelectItem(1);
  model->Delete();
  EXPECT_EQ(Selected(*model), "B");
  model->Delete();
  EXPECT_EQ(Selected(*model), "C");
  model->Delete();
  EXPECT_EQ(Selected(*model), "H400X300") << "nothing follows: the one before";
  EXPECT_EQ(m_store.Numbers(kH), "H400X300");
  // From another table, under a filter that hides the row, and its place taken by another one.
  model->TakeBack();
  EXPECT_EQ(Selected(*model), "C");
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"D"}});
  model->Add();
  model->SelectNode(0);
  ASSERT_STREQ(model->ItemText(0, 0), L"I20a");
  EXPECT_EQ(model->TakeBack(), CListChange::Columns);
  EXPECT_EQ(Selected(*model), "B");
  model->SetSearchColumn(1);
  model->SetSearchValue(L"H4");
  model->Search();
  ASSERT_EQ(model->ItemCount(), 1);
  EXPECT_TRUE(model->CanTakeBack());
  model->TakeBack();
  EXPECT_EQ(Selected(*model), "A");
  EXPECT_EQ(m_store.Numbers(kH), "H400X300 D B C A");
  EXPECT_FALSE(model->CanTakeBack());
  EXPECT_EQ(model->TakeBack(), CListChange::None);
  // A number that has been given to another section is refused, and free again it is not lost.
  model->Delete();
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"A"}});
  model->Add();
  model->TakeBack();
  EXPECT_EQ(m_user.TakeMessages(), std::vector<std::string>{"型号=A，该条数据记录已经存在!"});
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"E"}});
  model->Edit();
  model->TakeBack();
  EXPECT_EQ(Selected(*model), "A");
  EXPECT_TRUE(m_user.TakeMessages().empty());
}

TEST_F(BrowserRows, CancelledDialogsChangeNothing) {
  auto model = Open(kH, L"H400X300");
  const std::string before = Bytes(m_store.StorePath());
  m_user.m_fnProperty = [](CPropertyModel& property) {
    property.SetValue(1, L"1000");
    return false;
  };
  EXPECT_EQ(model->Add(), CListChange::None);
  model->Edit();
  EXPECT_EQ(Bytes(m_store.StorePath()), before);
  EXPECT_STREQ(model->ItemText(0, 1), L"300");
}

// The first row of a table that the store did not have brings its columns with it.
TEST_F(BrowserRows, AddsTheFirstRowOfATable) {
  CBrowserModel model(m_store.Path(), CDialogStore::AllNames(), Named(L"矩形截面", L"x"), m_user);
  model.Open();
  ASSERT_EQ(model.ColumnCount(), 0);
  m_user.m_fnProperty = Typing(m_user, {});
  EXPECT_EQ(model.Add(), CListChange::Columns);
  EXPECT_EQ(model.ColumnCount(), 30);
  EXPECT_EQ(model.SearchColumns().GetSize(), 31);
  EXPECT_EQ(m_store.Numbers(L"矩形截面"), "400X300");
}

// A rolled table has no default section: the selected row is copied, under a number of its own.
TEST_F(BrowserRows, CopiesARolledRow) {
  auto model = Open(kI, L"I20a");
  m_user.m_fnProperty = Typing(m_user, {{L"h(mm)", L"205"}});
  std::vector<const wchar_t*> answers = {L" I20b ", L"", L"I20c "};
  m_user.m_fnSign = [&](CSignModel& sign) {
    sign.Ok(answers.front());
    answers.erase(answers.begin());
    return true;
  };
  m_user.m_arrAnswer = {CMessageAnswer::No};
  EXPECT_EQ(model->Add(), CListChange::None) << "A is no longer that of the height";
  EXPECT_EQ(m_user.TakeMessages(), std::vector{"h(mm)" + ToUtf8(texts::kSizesChanged) + "A(cm^2)" +
                                               ToUtf8(texts::kOldFigures)});
  m_user.m_arrAnswer = {CMessageAnswer::Yes, CMessageAnswer::Yes};
  EXPECT_EQ(model->Add(), CListChange::Rows);
  EXPECT_TRUE(answers.empty());
  EXPECT_EQ(m_store.Numbers(kI), "I20a I20b I22a I10 I20c");
  EXPECT_EQ(Selected(*model), "I20c");
  // The copy is the user's own: it can be edited.
  m_user.m_fnProperty = Typing(m_user, {{L"h(mm)", L"210"}});
  EXPECT_EQ(model->Edit(), CListChange::Rows);
  EXPECT_EQ(CLoadDataTable::GetSysTemJMItem(kI, L"I20c")[L"h(mm)"].m_strValue, L"210");

  m_user.m_fnSign = [](CSignModel&) { return false; };
  m_user.m_fnProperty = Typing(m_user, {});
  EXPECT_EQ(model->Copy(), CListChange::None) << "no number given";
  EXPECT_EQ(m_user.TakeMessages().size(), 2U) << "the questions for old figures";
}

// A row that is the only one to match stays found while it is edited.
TEST_F(BrowserRows, ChangesKeepSearchAndOrder) {
  auto model = Open(kI, L"I10");
  model->SetSearchColumn(2);
  model->SetOperator(4);
  model->SetSearchValue(L"150");
  model->Search();
  ASSERT_EQ(model->ItemCount(), 1);
  m_user.m_fnProperty = Typing(m_user, {{L"h(mm)", L"120"}, {L"A(cm^2)", L"16"}});
  model->Edit();
  EXPECT_EQ(model->ItemCount(), 1);
  EXPECT_STREQ(model->ItemText(0, 1), L"120");
  m_user.m_fnProperty = Typing(m_user, {{L"h(mm)", L"160"}, {L"A(cm^2)", L"20"}});
  model->Edit();
  EXPECT_EQ(model->ItemCount(), 0);
  EXPECT_EQ(model->SelectedItem(), -1);
}

// --- Other programs and failing stores ----------------------------------------------------------

TEST_F(BrowserRows, TwoBrowsersLoseNoRow) {
  CScriptedUser other;
  auto first = Open(kH, L"H400X300");
  auto second = Open(kH, L"H400X300", &other);
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"A"}});
  other.m_fnProperty = Typing(other, {{L"No.", L"B"}});
  first->Add();
  second->Add();
  EXPECT_EQ(second->ItemCount(), 3) << "the other's row is taken in";
  EXPECT_EQ(m_store.Numbers(kH), "H400X300 A B");
  // Both hold the default row; the second to change it finds it changed.
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"C"}});
  other.m_fnProperty = Typing(other, {{L"No.", L"D"}});
  first->SelectItem(0);
  second->SelectItem(0);
  first->Edit();
  second->Edit();
  EXPECT_EQ(other.TakeMessages(), std::vector{ToUtf8(texts::kRowGone)});
  EXPECT_EQ(m_store.Numbers(kH), "C A B");
  EXPECT_STREQ(second->ItemText(0, 0), L"C") << "and is shown as it is now";
  // A row deleted elsewhere, its place taken by another row.
  first->SelectItem(1);
  first->Delete();
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"E"}});
  first->Add();
  second->SelectItem(1);
  second->Delete();
  EXPECT_EQ(other.TakeMessages(), std::vector{ToUtf8(texts::kRowGone)});
  EXPECT_EQ(m_store.Numbers(kH), "C E B");
  // A number that another program has taken in the meantime.
  other.m_fnProperty = Typing(other, {{L"No.", L"F"}});
  second->Add();
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"F"}});
  first->Add();
  EXPECT_EQ(m_user.TakeMessages(), std::vector<std::string>{"型号=F，该条数据记录已经存在!"});
  EXPECT_EQ(m_store.Numbers(kH), "C E B F");
}

// Rows whose stable indices are not their positions: a new row must take a deleted row's place
// only.
TEST_F(BrowserRows, AddsBesideRowsOfOddIndices) {
  CDataTable table = m_store.Read(L"热轧等边角钢");
  CDataItem row = table[0];
  for (const auto& [number, index, state] : {std::tuple{L"B", 5, 1}, {L"C", 1, -1}, {L"D", 2, 1}}) {
    row.m_arrCell.Own(0).m_strValue = number;
    row.m_nIndex = index;
    row.m_nModifyType = state;
    table.AddTableItem(row, 1, 1);
  }
  ASSERT_EQ(table.WriteSystemJmTable(), 1);
  ASSERT_EQ(m_store.Numbers(L"热轧等边角钢"), "L30X3 B D");
  auto model = Open(L"热轧等边角钢", L"D");
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"E"}});
  EXPECT_EQ(model->Add(), CListChange::Rows);
  EXPECT_EQ(m_store.Numbers(L"热轧等边角钢"), "L30X3 B E D");
  EXPECT_EQ(Selected(*model), "E");
}

TEST_F(BrowserRows, FailedSavesAreToldAndChangeNothing) {
  auto model = Open(kH, L"H400X300");
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"new"}});
  const auto wait = BusyWait();
  SetBusyWait(std::chrono::milliseconds(0));
  {
    CFileError error{};
    const auto busy = SystemFiles().Open(m_store.StorePath(), CFileMode::ReadWrite, error);
    ASSERT_TRUE(busy);
    EXPECT_EQ(model->Add(), CListChange::None);
    EXPECT_EQ(model->Delete(), CListChange::Rows);
  }
  SetBusyWait(wait);
  ASSERT_EQ(m_user.m_arrMessage.size(), 2U);
  for (const std::string& text : m_user.TakeMessages()) {
    EXPECT_EQ(text,
              "数据保存失败：文件正被其他程序使用，请稍后再试。\n" + ToUtf8(m_store.StorePath()));
  }
  EXPECT_EQ(model->ItemCount(), 1);
  EXPECT_EQ(m_store.Numbers(kH), "H400X300");
  EXPECT_EQ(model->Add(), CListChange::Rows) << "and works once the store is free";
}

// A store's directory names a table's blocks in 200 bytes. A row for which it has no room is
// refused: the names would be cut, and the whole table with them.
TEST_F(BrowserRows, RefusesWhatTheFileCannotHold) {
  m_store.AddMany(L"剖分T型钢", 100);
  auto model = Open(L"剖分T型钢", L"T0");
  CDataTable full = m_store.Read(L"剖分T型钢");
  for (const int step : {100, 1}) {
    while (SaveFaults(full, m_store.StorePath()).empty()) {
      for (int i = 0; i < step; ++i) {
        full.AddTableItem(L"T" + FormatInt(full.GetTableRowNum()) + L",1", 1);
      }
    }
    full.m_arrItem.RemoveAt(full.GetTableRowNum() - step, step);
  }
  ASSERT_EQ(full.WriteSystemJmTable(), 1);
  const int rows = m_store.Read(L"剖分T型钢").GetTableRowNum();
  ASSERT_GT(rows, 1000);
  m_user.m_fnProperty = Typing(m_user, {{L"No.", L"more"}});
  EXPECT_EQ(model->Add(), CListChange::None);
  const auto messages = m_user.TakeMessages();
  EXPECT_EQ(messages, std::vector{"数据保存失败：数据过长、过多，或含有不能保存的字符，没有保存。\n"
                                  "剖分T型钢\n" +
                                  ToUtf8(m_store.StorePath())});
  EXPECT_EQ(m_store.Read(L"剖分T型钢").GetTableRowNum(), rows);
}

// Nobody waits for a box to be closed: while one is shown the store is open to others.
TEST_F(BrowserRows, BoxesAreShownWithTheStoreFree) {
  class CProbe : public CScriptedUser {
   public:
    explicit CProbe(const CString& path) : m_strPath(path) {}
    CMessageAnswer Message(const CMessage& message) override {
      CFileError error{};
      m_bFree = SystemFiles().Open(m_strPath, CFileMode::ReadWrite, error) != nullptr;
      return CScriptedUser::Message(message);
    }
    CString m_strPath;
    bool m_bFree = false;
  };
  CProbe user(m_store.StorePath());
  auto model = Open(kH, L"H400X300", &user);
  user.m_fnProperty = Typing(user, {});
  model->Add();  // a duplicate
  EXPECT_EQ(user.TakeMessages().size(), 1U);
  EXPECT_TRUE(user.m_bFree);
}

// --- Import and export --------------------------------------------------------------------------

TEST_F(BrowserRows, ExportsChosenTables) {
  auto model = Open(kI, L"I20a");
  m_user.m_fnTableName = [](CTableNameModel& names) {
    EXPECT_EQ(names.Count(), 7);
    EXPECT_EQ(names.CheckedCount(), 1) << "the table shown";
    for (int i = 0; i < names.Count(); ++i) {
      if (names.Name(i) == kH) names.Check(i, true);
    }
    return true;
  };
  m_user.m_strSave = m_store.Path(L"out.KDB");
  PutBytes(m_user.m_strSave, "what was there before");
  CDataTable table = m_store.Read(kI);
  table.DeleteTableItem(1);
  ASSERT_EQ(table.WriteSystemJmTable(), 1);
  model->Export();
  EXPECT_TRUE(m_user.TakeMessages().empty());
  ASSERT_EQ(m_user.m_arrAsked.size(), 1U);
  EXPECT_EQ(m_user.m_arrAsked[0].first, L"导出截面数据");
  EXPECT_EQ(m_user.m_arrAsked[0].second[0].m_strPattern, L"*.KDB");
  EXPECT_EQ(m_user.m_arrProgress.back(), (std::pair{2, 2}));
  CStringArray names;
  ASSERT_EQ(CDataTable::GetTableNameFromFile(m_user.m_strSave, names), 2);
  CDataTable read;
  CString line;
  read.SetTableName(kI);
  ASSERT_EQ(read.GetTable(m_user.m_strSave, line), 1);
  ASSERT_EQ(read.GetTableRowNum(), 3) << "without the deleted row";
  EXPECT_EQ(read[1][0].m_strValue, L"I22a");
  EXPECT_EQ(read[1].m_nModifyType, 4) << "a protected row stays one";
  EXPECT_EQ(read[2].m_nModifyType, 0);
  CStringArray left;
  EXPECT_EQ(CDataTable::GetDirectoryFileName(m_store.Path().GetString(), left, L"KDB"), 2)
      << "nothing temporary is left";
}

TEST_F(BrowserRows, ExportThatCannotBe) {
  auto model = Open(kI, L"I20a");
  m_user.m_fnTableName = [](CTableNameModel&) { return false; };
  model->Export();
  EXPECT_TRUE(m_user.m_arrAsked.empty());
  m_user.m_fnTableName = [](CTableNameModel&) { return true; };
  m_user.m_strSave = m_store.StorePath();
  const std::string before = Bytes(m_store.StorePath());
  model->Export();
  EXPECT_EQ(m_user.TakeMessages(), std::vector{ToUtf8(texts::kExportIntoItself)});
  EXPECT_EQ(Bytes(m_store.StorePath()), before);
  m_user.m_strSave = m_store.Path(L"no such folder/out.KDB");
  model->Export();
  const auto messages = m_user.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].rfind("数据保存失败：", 0), 0U) << messages[0];
}

// An export of another store: one row that is here with other values, one that is not.
class BrowserImport : public BrowserRows {
 protected:
  BrowserImport() {
    CDataTable table = m_store.Read(kI);
    table.m_arrItem.RemoveAt(0, 4);
    EXPECT_EQ(table.AddTableItem(L"I20a,201,100,35.5", 0), 1);
    EXPECT_EQ(table.AddTableItem(L"I63a,630,176,154.6", 0), 1);
    EXPECT_EQ(table.WriteTable(m_store.Path(L"in.KDB"), kSystemKind, 1), 1);
    m_user.m_arrOpen = {m_store.Path(L"in.KDB")};
  }
  // What is told after the question whether to overwrite.
  std::string ToldBy(CBrowserModel& model, CMessageAnswer overwrite) {
    m_user.m_arrAnswer = {overwrite};
    model.Import();
    const auto messages = m_user.TakeMessages();
    EXPECT_EQ(messages.size(), 2U);
    return messages.empty() ? "" : messages.back();
  }
};

TEST_F(BrowserImport, OverwritesOnlyWhenAsked) {
  for (const bool overwrite : {false, true}) {
    auto model = Open(kI, L"I20a");
    m_user.m_arrAnswer = {overwrite ? CMessageAnswer::Yes : CMessageAnswer::No};
    EXPECT_EQ(model->Import(), CListChange::Columns);
    ASSERT_EQ(m_user.m_arrMessage.size(), 1U);
    EXPECT_EQ(m_user.m_arrMessage[0].m_strTitle, L"Orvo提醒您");
    EXPECT_EQ(m_user.m_arrMessage[0].m_strText,
              L"选择确定将覆盖所有相同型号数据!\n是否覆盖已有型号数据？");
    EXPECT_EQ(m_user.m_arrMessage[0].m_nButtons, CMessageButtons::YesNo);
    m_user.m_arrMessage.clear();
    EXPECT_EQ(m_user.m_arrAsked.back().first, L"导入截面数据");
    EXPECT_EQ(m_user.m_arrAsked.back().second[0].m_strPattern, L"*.Kvb");
    EXPECT_EQ(m_store.Numbers(kI), "I20a I20b I22a I10 I63a");
    EXPECT_STREQ(model->ItemText(0, 1), overwrite ? L"201" : L"200");
    EXPECT_EQ(model->ItemCount(), 5);
  }
}

TEST_F(BrowserImport, TellsFilesThatAreNone) {
  auto model = Open(kI, L"I20a");
  CDataTable other = m_store.Read(kH);
  other.SetTableName(kI);
  ASSERT_EQ(other.WriteTable(m_store.Path(L"other.KDB"), kSystemKind, 1), 1);
  for (const wchar_t* name : {L"bad.Kvb", L"DbData.kvb", L"bad.KDB"}) {
    PutBytes(m_store.Path(name), "x");
    m_user.m_arrOpen.push_back(m_store.Path(name));
  }
  m_user.m_arrOpen.push_back(m_store.Path(L"none.KDB"));
  m_user.m_arrOpen.push_back(m_store.Path(L"other.KDB"));
  EXPECT_EQ(ToldBy(*model, CMessageAnswer::No),
            "以下内容未能导入："
            "\nbad.Kvb：没有以此为名的型钢数据文件，应为例如DbData.kvb。"
            "\nDbData.kvb：文件已损坏或不能读取。"
            "\nbad.KDB：文件已损坏或不能读取。"
            "\nnone.KDB：文件或文件夹不存在。"
            "\nother.KDB，热轧普通工字钢：" +
                ToUtf8(texts::kImportOtherColumns));
  EXPECT_EQ(model->ItemCount(), 5) << "the other file was brought in";
}

// A row of the user's own does not take the place of one of the catalogue.
TEST_F(BrowserImport, TellsRowsThatStayOut) {
  CDataTable table = m_store.Read(kI);
  table.m_arrItem.RemoveAt(0, 4);
  EXPECT_EQ(table.AddTableItem(L"I22a,221,110,42", 1), 1);
  EXPECT_EQ(table.WriteTable(m_store.Path(L"own.KDB"), kSystemKind, 1), 1);
  m_user.m_arrOpen = {m_store.Path(L"own.KDB")};
  auto model = Open(kI, L"I22a");
  EXPECT_EQ(ToldBy(*model, CMessageAnswer::Yes),
            "以下内容未能导入：\nown.KDB，热轧普通工字钢：1 条记录（I22a）");
  EXPECT_STREQ(model->ItemText(2, 1), L"220");
}

// A row that contradicts its sizes comes in and is named.
TEST_F(BrowserImport, TellsRowsThatContradictThemselves) {
  constexpr wchar_t kLight[] = L"热轧轻型工字钢";
  CDataTable table;
  table.SetTableName(kLight);
  table.m_Title = RolledTitle(RolledStyles()[static_cast<std::size_t>(FindRolledStyle(kLight))]);
  EXPECT_EQ(
      table.AddTableItem(L"Q99,100,55,4.5,7.2,7,2.5,120.5,9.46,0.387,198.3,39.7,23,4.06,17.9,6.5,"
                         L"1.22",
                         1),
      1);
  EXPECT_EQ(table.WriteTable(m_store.Path(L"light.KDB"), kSystemKind, 1), 1);
  m_user.m_arrOpen = {m_store.Path(L"light.KDB")};
  auto model = Open(kI, L"I20a");
  EXPECT_EQ(ToldBy(*model, CMessageAnswer::No),
            ToUtf8(texts::kImportDoubtful) + "\nlight.KDB，热轧轻型工字钢：1 条记录（Q99）");
  EXPECT_EQ(m_store.Numbers(kLight), "Q99");
}

// Sections named by their sizes stand behind those of the HK series, each group in its order.
TEST_F(BrowserRows, GroupsWideFlangeSections) {
  constexpr wchar_t kWide[] = L"热轧宽翼缘H型钢";
  m_store.Add(kWide, {L"H(mm)"}, {L"400X300,390", L"HK100a,96", L"HK300b,300"}, 0);
  m_store.Add(kWide, {L"H(mm)"}, {L"200X200,200", L"HK120b,120"}, 1);
  GroupByNumber(m_store.Path(), kWide, m_user);
  EXPECT_EQ(m_store.Numbers(kWide), "HK100a HK300b HK120b 400X300 200X200");
  const CDataTable table = m_store.Read(kWide);
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    EXPECT_EQ(table[i].m_nIndex, i);
    EXPECT_EQ(table[i].m_nModifyType, i == 2 || i == 4 ? 0 : 4);
  }
  const std::string grouped = Bytes(m_store.StorePath());
  GroupByNumber(m_store.Path(), kWide, m_user);
  EXPECT_EQ(Bytes(m_store.StorePath()), grouped) << "nothing to do a second time";
  EXPECT_TRUE(m_user.TakeMessages().empty());
}

}  // namespace
