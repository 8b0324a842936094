#include <gtest/gtest.h>

#include "dialog_store.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/user_table_model.h"
#include "platform/store_file.h"
#include "scripted_user.h"

namespace {

using namespace orv3;

constexpr wchar_t kRect[] = L"矩形截面";

class UserTables : public testing::Test {
 protected:
  using CModel = CUserTableModel;

  std::unique_ptr<CModel> Open(CScriptedUser* user = nullptr,
                               const CDataItem& initial = CDataItem()) {
    auto model = std::make_unique<CModel>(m_store.Path(), CDialogStore::AllNames(), initial,
                                          user ? *user : m_user);
    model->Open();
    return model;
  }
  int TemplateOf(const CModel& model, const CString& name) {
    for (int i = 0; i < model.Templates().GetSize(); ++i) {
      if (model.Templates()[i] == name) return i;
    }
    ADD_FAILURE() << "no template " << ToUtf8(name);
    return 0;
  }
  // Sets values in the property dialog and presses OK.
  void Type(std::vector<std::pair<const wchar_t*, const wchar_t*>> values,
            CScriptedUser* user = nullptr) {
    CScriptedUser& typing = user ? *user : m_user;
    typing.m_fnProperty = [&typing, values](CPropertyModel& model) {
      for (const auto& [sign, value] : values) {
        model.SetValue(model.Row().GetSignIndex(CString(sign)), value);
      }
      return model.Ok(typing);
    };
  }
  // The tables' names and the rows of the selected one.
  static std::string Contents(const CModel& model) {
    std::string text;
    for (int i = 0; i < model.TableCount(); ++i) text += ToUtf8(model.TableText(i)) + "; ";
    for (int i = 0; i < model.RowCount(); ++i) text += ToUtf8(model.RowText(i, 0)) + " ";
    return text;
  }
  int Files() {
    CStringArray files;
    CDataTable table;
    table.SetSaveTablePath(m_store.Path());
    return table.GetUserTableFileName(files);
  }

  CDialogStore m_store;
  CScriptedUser m_user;
};

TEST_F(UserTables, MakesFillsAndHandsBack) {
  auto model = Open();
  EXPECT_EQ(model->TableCount(), 0);
  EXPECT_EQ(model->SelectedTable(), -1);
  EXPECT_FALSE(model->AddRow());
  EXPECT_TRUE(model->NewTable(TemplateOf(*model, kRect)));
  EXPECT_EQ(model->PictureResource(), 8049);
  EXPECT_EQ(model->ColumnCount(), 30);
  EXPECT_EQ(model->ColumnSign(2), L"h(mm)");
  Type({{L"No.", L"R1"}, {L"h(mm)", L"500"}});
  EXPECT_TRUE(model->AddRow());
  Type({});
  EXPECT_TRUE(model->AddRow());
  EXPECT_FALSE(model->AddRow());
  EXPECT_EQ(m_user.TakeMessages(), std::vector<std::string>{"型号=400X300，该条数据记录已经存在!"});
  EXPECT_EQ(Contents(*model), "矩形截面 *; R1 400X300 ");
  EXPECT_EQ(model->CountText(), L"共 2 条记录");
  EXPECT_EQ(Files(), 0) << "nothing is on file before OK";
  model->SelectRow(0);
  ASSERT_TRUE(model->Ok());
  EXPECT_EQ(Files(), 1);
  const CDataItem& row = model->ChosenRow();
  EXPECT_EQ(row[L"A(mm^2)"].m_strValue, L"150000");
  EXPECT_EQ(row.m_strTableName, kRect);
  // The row tells the file in which the facade finds it again.
  EXPECT_EQ(CLoadDataTable::GetUserJMItem(kRect, L"R1", row.m_strFileInfo)[2].m_strValue, L"500");
  auto again = Open(nullptr, row);
  EXPECT_EQ(Contents(*again), "矩形截面; R1 400X300 ");
  EXPECT_EQ(again->SelectedRow(), 0);
  EXPECT_FALSE(again->IsChanged());
}

TEST_F(UserTables, UndoAndRedoOfEveryStep) {
  auto model = Open();
  std::vector<std::string> contents = {Contents(*model)};
  std::vector<CString> steps;
  const auto done = [&](bool result, const wchar_t* step) {
    EXPECT_TRUE(result) << ToUtf8(step);
    EXPECT_EQ(model->UndoText(), step);
    contents.push_back(Contents(*model) + std::to_string(model->ColumnCount()));
    steps.push_back(step);
  };
  m_user.m_arrText = {L"我的截面"};
  contents[0] += "0";
  done(model->NewTable(0), L"新建截面表");
  Type({{L"No.", L"A1"}, {L"A(mm^2)", L"100"}});
  done(model->AddRow(), L"增加记录");
  m_user.m_fnSign = [](CSignModel& sign) {
    sign.Ok(L"A2");
    return true;
  };
  Type({});
  done(model->CopyRow(), L"复制记录");
  Type({{L"No.", L"A3"}});
  done(model->EditRow(), L"修改记录");
  done(model->AddColumn(), L"增加列");
  done(model->SetColumnCell(2, 1, L"W(mm^3)"), L"修改列");
  done(model->DeleteColumn(1), L"删除列");
  done(model->DeleteRow(), L"删除记录");
  m_user.m_arrText = {L"另一个"};
  done(model->RenameTable(), L"截面表改名");
  m_user.m_arrAnswer = {CMessageAnswer::Yes};
  done(model->DeleteTable(), L"删除截面表");
  for (std::size_t i = steps.size(); i-- > 0;) {
    model->Undo();
    EXPECT_EQ(Contents(*model) + std::to_string(model->ColumnCount()), contents[i]);
    EXPECT_EQ(model->RedoText(), steps[i]);
  }
  EXPECT_FALSE(model->CanUndo());
  EXPECT_FALSE(model->IsChanged());
  for (std::size_t i = 0; i < steps.size(); ++i) {
    model->Redo();
    EXPECT_EQ(Contents(*model) + std::to_string(model->ColumnCount()), contents[i + 1]);
  }
  EXPECT_FALSE(model->CanRedo());
  // A new step after undoing takes the redo away.
  model->Undo();
  model->AddColumn();
  EXPECT_FALSE(model->CanRedo());
}

TEST_F(UserTables, SavedChangesCanBeUndoneAndSavedAgain) {
  auto model = Open();
  m_user.m_arrText = {L"我的"};
  model->NewTable(0);
  for (const wchar_t* number : {L"A", L"B", L"C"}) {
    Type({{L"No.", number}});
    model->AddRow();
  }
  ASSERT_TRUE(model->Save());
  model->SelectRow(2);
  model->DeleteRow();
  EXPECT_EQ(model->SelectedRow(), 1) << "the neighbour";
  model->Undo();
  model->SelectRow(1);
  model->DeleteRow();
  EXPECT_EQ(model->SelectedRow(), 1);
  Type({{L"No.", L"D"}});
  model->AddRow();
  ASSERT_TRUE(model->Save());
  EXPECT_EQ(Contents(*Open()), "我的; A C D ");
  model->Undo();
  model->Undo();
  ASSERT_TRUE(model->Save());
  EXPECT_EQ(Contents(*Open()), "我的; A C B ") << "B comes back, D goes";
  model->Redo();
  model->Redo();
  ASSERT_TRUE(model->Save());
  EXPECT_EQ(Contents(*Open()), "我的; A C D ");
  m_user.m_arrText = {L"新名"};
  model->RenameTable();
  model->AddColumn();
  ASSERT_TRUE(model->Save());
  EXPECT_EQ(Contents(*Open()), "新名; A C D ");
  EXPECT_EQ(Open()->ColumnCount(), 3);
  EXPECT_EQ(Files(), 1) << "the old file is gone";
  m_user.m_arrAnswer = {CMessageAnswer::Yes};
  model->DeleteTable();
  ASSERT_TRUE(model->Save());
  EXPECT_EQ(Files(), 0);
  model->Undo();
  ASSERT_TRUE(model->Save());
  EXPECT_EQ(Contents(*Open()), "新名; A C D ");
}

TEST_F(UserTables, CancelAsksOnlyAfterChanges) {
  auto model = Open();
  EXPECT_TRUE(model->Cancel());
  m_user.m_arrText = {L"我的"};
  model->NewTable(0);
  m_user.m_arrAnswer = {CMessageAnswer::Cancel, CMessageAnswer::No};
  EXPECT_FALSE(model->Cancel());
  EXPECT_TRUE(model->Cancel());
  EXPECT_EQ(Files(), 0);
  m_user.m_arrAnswer = {CMessageAnswer::Yes};
  EXPECT_TRUE(model->Cancel());
  EXPECT_EQ(Files(), 1);
}

TEST_F(UserTables, NamesThatAreRefused) {
  auto model = Open();
  m_user.m_arrText = {L"我的"};
  ASSERT_TRUE(model->NewTable(0));
  m_user.m_arrText = {L" 我的 ", L"a,b", CString(L'x', 65), L"  ", CString()};
  EXPECT_FALSE(model->NewTable(0));
  EXPECT_EQ(m_user.TakeMessages(),
            (std::vector{ToUtf8(texts::kTableNameTaken), ToUtf8(texts::kTableNameComma),
                         ToUtf8(texts::kTableNameTooLong), ToUtf8(texts::kTableNameMissing)}));
  EXPECT_TRUE(model->NewTable(TemplateOf(*model, L"三角形截面")));
  EXPECT_FALSE(model->NewTable(TemplateOf(*model, L"三角形截面"))) << "one is there";
  EXPECT_EQ(m_user.TakeMessages(), std::vector{ToUtf8(texts::kTableNameTaken)});
  model->Undo();
  m_user.m_arrText = {kRect};
  EXPECT_FALSE(model->RenameTable());
  EXPECT_EQ(m_user.TakeMessages(), std::vector{ToUtf8(texts::kNameOfOtherColumns)});
  EXPECT_EQ(Contents(*model), "我的 *; ");
}

TEST_F(UserTables, ColumnsThatAreRefused) {
  auto model = Open();
  model->NewTable(TemplateOf(*model, kRect));
  EXPECT_FALSE(model->AddColumn());
  EXPECT_FALSE(model->DeleteColumn(3));
  EXPECT_FALSE(model->SetColumnCell(1, 0, L"x"));
  EXPECT_EQ(m_user.TakeMessages(), std::vector(3, ToUtf8(texts::kFixedColumns)));
  EXPECT_EQ(model->Columns().ModifyType(1, 0), CModifyType::Fixed);

  m_user.m_arrText = {L"我的"};
  model->NewTable(0);
  EXPECT_EQ(model->Columns().ModifyType(1, 2), CModifyType::List);
  Type({{L"No.", L"A"}, {L"A(mm^2)", L"1.5"}});
  model->AddRow();
  Type({{L"No.", L"B"}, {L"A(mm^2)", L"1.5"}});
  model->AddRow();
  struct CCase {
    int cell;
    CString text;
    const wchar_t* message;
  };
  for (const CCase& c : {CCase{1, L"", texts::kSignMissing},
                         {1, L"No.", texts::kSignTaken},
                         {1, CString(L's', 21), texts::kSignTooLong},
                         {0, L"a,b", texts::kColumnComma},
                         {0, CString(L'n', 65), texts::kNameTooLong},
                         {2, L"整数", texts::kValuesDoNotFit},
                         {2, L"字符", texts::kValuesDoNotFit}}) {
    EXPECT_FALSE(model->SetColumnCell(1, c.cell, c.text));
    const auto messages = m_user.TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].rfind(ToUtf8(c.message), 0), 0U) << messages[0];
  }
  EXPECT_TRUE(model->SetColumnCell(1, 3, L"是"));
  EXPECT_FALSE(model->SetColumnCell(0, 3, L"否")) << "A and B have one area";
  EXPECT_EQ(m_user.TakeMessages(), std::vector{ToUtf8(texts::kDuplicateKeys)});
  EXPECT_FALSE(model->DeleteColumn(0));
  EXPECT_EQ(m_user.TakeMessages(), std::vector{ToUtf8(texts::kLastColumn)});
  EXPECT_TRUE(model->SetColumnCell(1, 2, L"文本"));
  EXPECT_FALSE(model->IsRightAligned(1));
  EXPECT_STREQ(model->RowText(1, 1), L"1.5");
}

// Tables of section styles that the command does not take stay away, names of the user's own do
// not.
TEST_F(UserTables, ShowsWhatTheCommandTakes) {
  auto all = Open();
  all->NewTable(TemplateOf(*all, kRect));
  all->NewTable(TemplateOf(*all, L"双肢格构柱"));
  m_user.m_arrText = {L"我的"};
  all->NewTable(0);
  ASSERT_TRUE(all->Save());
  CStringArray names;
  names.Add(L"双肢格构柱");
  names.Add(L"热轧等边角钢");
  CUserTableModel model(m_store.Path(), names, CDataItem(), m_user);
  model.Open();
  ASSERT_EQ(model.TableCount(), 2);
  EXPECT_FALSE(model.NewTable(2)) << "the system store has no such table to take columns from";
  EXPECT_EQ(m_user.TakeMessages(), std::vector{ToUtf8(texts::kNoHeading)});
  EXPECT_FALSE(model.IsChanged());
}

TEST_F(UserTables, TwoEditorsLoseNoRow) {
  auto first = Open();
  m_user.m_arrText = {L"我的"};
  first->NewTable(0);
  Type({{L"No.", L"A"}});
  first->AddRow();
  ASSERT_TRUE(first->Save());
  CScriptedUser other;
  auto second = Open(&other);
  Type({{L"No.", L"B"}});
  first->AddRow();
  Type({{L"No.", L"C"}}, &other);
  second->AddRow();
  ASSERT_TRUE(first->Save());
  ASSERT_TRUE(second->Save());
  EXPECT_EQ(Contents(*second), "我的; A B C ");
  EXPECT_FALSE(second->CanUndo()) << "no step back to where B was not";
  // The first renames what the second has changed: both stay.
  m_user.m_arrText = {L"改名"};
  first->RenameTable();
  ASSERT_TRUE(first->Save());
  const auto messages = m_user.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].rfind(ToUtf8(texts::kChangedByOthers), 0), 0U);
  auto third = Open();
  EXPECT_EQ(third->TableCount(), 2);
  EXPECT_EQ(Files(), 2);
  std::string rows;
  for (int i = 0; i < 2; ++i) {
    third->SelectTable(i);
    rows += ToUtf8(third->TableText(i)) + std::to_string(third->RowCount()) + " ";
  }
  EXPECT_TRUE(rows == "我的3 改名2 " || rows == "改名2 我的3 ") << rows;
}

TEST_F(UserTables, FailedSaveKeepsTheDialogOpen) {
  auto model = Open();
  m_user.m_arrText = {L"我的"};
  model->NewTable(0);
  ASSERT_TRUE(model->Save());
  Type({{L"No.", L"A"}});
  model->AddRow();
  CStringArray files;
  CDataTable table;
  table.SetSaveTablePath(m_store.Path());
  ASSERT_EQ(table.GetUserTableFileName(files), 1);
  const auto wait = BusyWait();
  SetBusyWait(std::chrono::milliseconds(0));
  {
    CFileError error{};
    const auto busy = SystemFiles().Open(m_store.Path() + kUserStoreFolder + files[0],
                                         CFileMode::ReadWrite, error);
    ASSERT_TRUE(busy);
    EXPECT_FALSE(model->Ok());
  }
  SetBusyWait(wait);
  ASSERT_EQ(m_user.m_arrMessage.size(), 1U);
  EXPECT_EQ(m_user.TakeMessages()[0].rfind("数据保存失败：文件正被其他程序使用", 0), 0U);
  EXPECT_TRUE(model->IsChanged());
  EXPECT_TRUE(model->Ok());
  EXPECT_EQ(model->ChosenRow()[0].m_strValue, L"A");
}

}  // namespace
