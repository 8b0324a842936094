// Several that save into one store: none's rows are lost.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <thread>

#include "platform/store_file.h"
#include "tables/spawn.h"
#include "tables/table_file_tools.h"

namespace {

using Lines = std::vector<std::string>;

class SharedStore : public TableFileTest {
 protected:
  SharedStore() { Start(); }

  // The store with one table of four rows.
  void Start() {
    orv3::SystemFiles().Remove(m_path);
    CDataTable table = SectionTable();
    FillUp(table, 4);
    EXPECT_EQ(Save(table), 1);
  }
  static void Modify(CDataTable& table, int index, const wchar_t* text) {
    ASSERT_EQ(table.ModifyTableItem(index, text), 1);
  }
};

TEST_F(SharedStore, DifferentRowsOfBothSurvive) {
  CDataTable mine = Loaded(m_path);
  CDataTable other = Loaded(m_path);
  Modify(other, 1, L"I1,other");
  ASSERT_EQ(other.DeleteTableItem(2), 1);
  AddRow(other, L"their new");  // in the place of the deleted one
  AddRow(other, L"their last");
  ASSERT_EQ(Save(other), 1);

  Modify(mine, 3, L"I3,mine");
  AddRow(mine, L"my new");
  const CDataItem* const kept = &std::as_const(mine.m_arrItem)[3];
  ASSERT_EQ(Save(mine), 1);
  const Lines expected = {"I0=200",  "I1=other",       "their new=200",
                          "I3=mine", "their last=200", "my new=200"};
  EXPECT_EQ(Rows(mine), expected);
  EXPECT_EQ(Rows(Loaded(m_path)), expected);
  EXPECT_EQ(&std::as_const(mine.m_arrItem)[3], kept);
  // What came in: the changed row, the one in a reused slot, the appended one.
  ASSERT_EQ(mine.GetTakenInIndex().GetSize(), 3);
  EXPECT_EQ(mine.GetTakenInIndex()[0], 1);
  EXPECT_EQ(mine.GetTableIndex(mine.GetTakenInIndex()[2]), 4);
  std::map<int, int> indices;
  for (const CDataItem& row : std::as_const(mine.m_arrItem)) EXPECT_EQ(++indices[row.m_nIndex], 1);
  EXPECT_EQ(mine.IsHaveValue(0, L"their last", -1), 4);  // the index of keys knows them too

  ASSERT_EQ(Save(other), 1);  // nothing of its own to save
  EXPECT_EQ(Rows(other), expected);
  ASSERT_EQ(Save(mine), 1);
  EXPECT_EQ(mine.GetTakenInIndex().GetSize(), 0);
}

TEST_F(SharedStore, ARowThatBothChangedIsTheLaterSaves) {
  const auto modify1 = [](const wchar_t* text) {
    return [text](CDataTable& t) { Modify(t, 1, text); };
  };
  const auto modify3 = [](CDataTable& t) { Modify(t, 3, L"I3,mine"); };
  const auto delete1 = [](CDataTable& t) { t.DeleteTableItem(1); };
  const auto compact = [](CDataTable& t) { t.m_arrItem.RemoveAt(1); };
  const auto add = [](const wchar_t* height) {
    return [height](CDataTable& t) { AddRow(t, L"X", height); };
  };
  const auto replace = [](CDataTable& t) {
    t.DeleteTableItem(1);
    AddRow(t, L"X", L"theirs");
  };
  const auto nothing = [](CDataTable&) {};
  const auto theirs = modify1(L"I1,theirs");
  const auto mine = modify1(L"I1,mine");
  const struct {
    const char* name;
    std::function<void(CDataTable&)> theirs, mine;
    Lines expected;
  } kCases[] = {
      {"both modify", theirs, mine, {"I0=200", "I1=mine", "I2=200", "I3=200"}},
      {"they delete, I modify", delete1, mine, {"I0=200", "I1=mine", "I2=200", "I3=200"}},
      {"they modify, I delete", theirs, delete1, {"I0=200", "-I1=200", "I2=200", "I3=200"}},
      {"they delete", delete1, nothing, {"I0=200", "-I1=200", "I2=200", "I3=200"}},
      {"both add the same key",
       add(L"theirs"),
       add(L"mine"),
       {"I0=200", "I1=200", "I2=200", "I3=200", "X=mine"}},
      {"they replace what I modify",
       replace,
       mine,
       {"I0=200", "X=theirs", "I2=200", "I3=200", "I1=mine"}},
      {"they compact", compact, modify3, {"I0=200", "I2=200", "I3=mine"}},
      {"I compact", add(L"theirs"), compact, {"I0=200", "I2=200", "I3=200", "X=theirs"}},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    Start();
    CDataTable table = Loaded(m_path);
    CDataTable other = Loaded(m_path);
    c.theirs(other);
    ASSERT_EQ(Save(other), 1);
    c.mine(table);
    ASSERT_EQ(Save(table), 1);
    EXPECT_EQ(Rows(table), c.expected);
    EXPECT_EQ(Rows(Loaded(m_path)), c.expected);
  }
}

TEST_F(SharedStore, ATableThatWasNeverReadTakesInWhatIsThere) {
  CDataTable table = SectionTable();
  AddRow(table, L"I2", L"mine");
  AddRow(table, L"new");
  AddRow(table, L"gone");
  table[2].m_nModifyType = -1;  // of which the file knows nothing
  ASSERT_EQ(Save(table), 1);
  EXPECT_EQ(Rows(Loaded(m_path)), (Lines{"I0=200", "I1=200", "I2=mine", "I3=200", "new=200"}));

  CDataTable whole = SectionTable();
  AddRow(whole, L"all");
  ASSERT_EQ(whole.WriteTable(m_path, 0, 1), 1);  // forced: this is the whole table
  EXPECT_EQ(Rows(Loaded(m_path)), (Lines{"all=200"}));
}

TEST_F(SharedStore, ATableWithoutAKeyLosesNothingEither) {
  const auto make = [this](int rows) {
    CDataTable table = SectionTable(L"K");
    table.SetTableColKey(0, 0);
    for (int i = 0; i < rows; ++i) AddRow(table, L"same");
    EXPECT_EQ(Save(table), 1);
  };
  make(2);
  make(3);
  EXPECT_EQ(Loaded(m_path, L"K").GetTableRowNum(), 5);

  // Rows that have been saved are known again by their stable indices.
  const CString other = m_folder.Path(L"b.KDB");
  CDataTable table = Loaded(m_path, L"K");
  for (int turn = 0; turn < 3; ++turn) {
    ASSERT_EQ(table.WriteTable(other, 0, 0), 1);
    ASSERT_EQ(Save(table), 1);
    CDataTable fresh = Loaded(m_path, L"K");
    ASSERT_EQ(fresh.WriteTable(other, 0, 0), 1);
    EXPECT_EQ(Loaded(m_path, L"K").GetTableRowNum(), 5);
    EXPECT_EQ(Loaded(other, L"K").GetTableRowNum(), 5);
  }
}

// The file has the first 30 characters of a key.
TEST_F(SharedStore, KeysAreComparedAsTheyStandOnFile) {
  const CString thirty(L'k', 30);
  for (int i = 0; i < 2; ++i) {
    CDataTable table = SectionTable();  // which knows nothing of the file
    AddRow(table, thirty, L"1");
    AddRow(table, thirty + L"b", L"2");
    ASSERT_EQ(Save(table), 1);
    EXPECT_EQ(Loaded(m_path).GetTableRowNum(), 6);
  }
}

// A row that was deleted while the table was saved elsewhere is deleted here too.
TEST_F(SharedStore, AnEarlierFileIsBroughtUpToDate) {
  CDataTable table = Loaded(m_path);
  ASSERT_EQ(table.DeleteTableItem(1), 1);
  Modify(table, 2, L"I2,new");
  ASSERT_EQ(table.WriteTable(m_folder.Path(L"b.KDB"), 0, 0), 1);
  CDataTable other = Loaded(m_path);
  AddRow(other, L"theirs");
  ASSERT_EQ(Save(other), 1);
  ASSERT_EQ(Save(table), 1);
  const Lines expected = {"I0=200", "-I1=200", "I2=new", "I3=200", "theirs=200"};
  EXPECT_EQ(Rows(table), expected);
  EXPECT_EQ(Rows(Loaded(m_path)), expected);
}

TEST_F(SharedStore, ABusyStoreIsWaitedForAndThenRefused) {
  CDataTable table = Loaded(m_path);
  AddRow(table, L"new");
  auto file = orv3::CStoreFile::OpenToRead(m_path);
  orv3::SetBusyWait(std::chrono::milliseconds{30});
  EXPECT_EQ(Save(table), 0);
  EXPECT_EQ(orv3::LastStoreError().m_nTrouble, orv3::CStoreTrouble::Busy);
  orv3::SetBusyWait(std::chrono::minutes{1});
  std::thread release([&file] {
    std::this_thread::sleep_for(std::chrono::milliseconds{30});
    file.reset();
  });
  EXPECT_EQ(Save(table), 1);
  release.join();
  orv3::SetBusyWait(std::chrono::seconds{1});
}

// 4 processes with 200 saves each, three of them into one table.
TEST_F(SharedStore, NoProcessLosesARow) {
  constexpr int kSaves = 200;
  const struct {
    const char* table;
    const char* how;
  } kWorkers[] = {{"T", "stale"}, {"T", "fresh"}, {"T", "locked"}, {"U", "stale"}};
  std::vector<std::thread> threads;
  std::vector<int> status(std::size(kWorkers), -1);
  for (std::size_t w = 0; w < status.size(); ++w) {
    threads.emplace_back([&, w] {
      status[w] = RunBeside("store_worker", "add \"" + orv3::ToUtf8(m_path) + "\" " +
                                                kWorkers[w].table + " P" + std::to_string(w) + " " +
                                                std::to_string(kSaves) + " " + kWorkers[w].how);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t w = 0; w < status.size(); ++w) {
    ASSERT_EQ(status[w], 0);
    const CDataTable table = Loaded(m_path, orv3::FromUtf8(kWorkers[w].table).GetString());
    EXPECT_EQ(table.GetTableRowNum(), w < 3 ? 3 * kSaves : kSaves);
    const CString name = L"P" + CString(std::to_wstring(w));
    for (int i = 0; i < kSaves; ++i) {
      const int at = table.IsHaveValue(0, name + Name(i), -1);
      ASSERT_GE(at, 0) << w << " " << i;
      EXPECT_EQ(table[at][1].m_strValue, i + 1 < kSaves ? L"2" : L"1");
    }
  }
}

}  // namespace
