// Random scripts: whatever is done to a table, a save that says 1 is read back row by row, and one
// that says 0 has left the file as it was.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "memory_files.h"
#include "platform/store_error.h"
#include "tables/file/store_check.h"
#include "tables/table_file_tools.h"

namespace {

using CValues = std::vector<CString>;
using CLive = std::multiset<CValues>;  // the rows that are not deleted

constexpr int kColumns = 3;
constexpr int kScripts = 600;
constexpr int kSteps = 30;

CValues ValuesOf(const CDataItem& row) {
  CValues values;
  for (const CDataCell& cell : row.m_arrCell) values.push_back(cell.m_strValue);
  return values;
}

CLive LiveOf(const CDataTable& table) {
  CLive live;
  for (const CDataItem& row : table.m_arrItem) {
    if (row.m_nModifyType >= 0) live.insert(ValuesOf(row));
  }
  return live;
}

// Whether a value would part the row at another place than its end.
bool Splits(const CDataItem& row) {
  return std::ranges::any_of(
      row.m_arrCell, [](const CDataCell& cell) { return cell.m_strValue.Find(L",,,") >= 0; });
}

class CScript {
 public:
  CScript(CMemoryFiles& files, unsigned seed)
      : m_files(files), m_random(seed), m_keyed(seed % 3 != 0) {
    for (CStore& store : m_stores) {
      m_files.Remove(store.path);
      CDataTable other = SectionTable(L"other");
      FillUp(other, 2);
      EXPECT_EQ(other.WriteTable(store.path, 0, 0), 1);
    }
    m_table = Empty();
  }

  void Run() {
    for (int step = 0; step < kSteps && !testing::Test::HasFailure(); ++step) {
      SCOPED_TRACE("step " + std::to_string(step));
      Step();
      EXPECT_EQ(LiveOf(m_table), m_live);
    }
  }

 private:
  struct CStore {
    CString path;
    bool hasTable = false;
    bool known = false;  // to the table in hand
    CLive added;         // by others since it was last saved
  };

  int Any(std::size_t count) { return static_cast<int>(m_random() % count); }
  bool OneIn(std::size_t count) { return Any(count) == 0; }

  CDataTable Empty() const {
    CDataTable table;
    table.SetTableName(L"工字钢");
    table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, m_keyed);
    table.AddTableCol(L"注", L"note", CDataTypeStruct::KVBT_STRING, 0);
    table.AddTableCol(L"高", L"h(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
    return table;
  }

  CString AnyKey() { return OneIn(6) ? CString(L'k', 28) + Name(Any(3)) : Name(Any(40)); }
  CString AnyValue() {
    static const CString kPlain[] = {L"", L"1", L"12.5", L"a,b", L",a", L"钢", L"200"};
    return OneIn(15) ? L"a,,,b" : kPlain[Any(std::size(kPlain))];
  }
  CValues AnyRow() { return {AnyKey(), AnyValue(), AnyValue()}; }

  CDataItem Item(const CValues& values) const {
    CDataItem row;
    row.SetItemTitle(m_table.m_Title);
    for (int i = 0; i < kColumns; ++i) row[i].m_strValue = values[static_cast<std::size_t>(i)];
    return row;
  }

  bool HasKey(const CString& key) const {
    return m_keyed && std::any_of(m_live.begin(), m_live.end(),
                                  [&](const CValues& row) { return row[0] == key; });
  }
  void Forget(const CValues& values) {
    const auto found = m_live.find(values);
    ASSERT_NE(found, m_live.end());
    m_live.erase(found);
  }

  void Step() {
    switch (Any(12)) {
      case 0:
      case 1:
      case 2:
        return Add();
      case 3:
        return Modify();
      case 4:
      case 5:
        return Delete();
      case 6:
        EXPECT_EQ(m_table.OrderTable(Any(kColumns), Any(2)), 1);
        return;
      case 7:
        return Import();
      case 8:
        return OneIn(2) ? Compact() : AddFromElsewhere(m_stores[Any(2)]);
      case 9:
        return OneIn(3) ? Reopen(m_stores[Any(2)]) : Copy();
      default:
        return Save(m_stores[OneIn(3)]);
    }
  }

  // Where the first deleted row's index is not its position, AddTableItem would overwrite the row
  // that is there: callers align the indices first, or append.
  bool AddReplacesADeletedRow() const {
    for (int i = 0; i < m_table.GetTableRowNum(); ++i) {
      if (m_table[i].m_nModifyType < 0) return m_table[i].m_nIndex == i;
    }
    return true;
  }

  void Add() {
    const CValues values = AnyRow();
    CDataItem row = Item(values);
    const bool fresh = !HasKey(values[0]);
    if (AddReplacesADeletedRow()) {
      EXPECT_EQ(m_table.AddTableItem(row, Any(2)), fresh);
    } else {
      EXPECT_EQ(m_table.ImportTableItem(row, 0), fresh);
    }
    if (fresh) m_live.insert(values);
  }

  // The stable index of some live row, and the row that a look-up by it finds; -1 without one.
  int AnyIndex(CValues& values) {
    if (m_table.GetTableRowNum() == 0) return -1;
    const CDataTable& table = m_table;
    const int position = Any(static_cast<std::size_t>(table.GetTableRowNum()));
    const int found = table.GetTableIndex(table[position].m_nIndex);
    if (table[found].m_nModifyType < 0) return -1;
    values = ValuesOf(table[found]);
    return table[found].m_nIndex;
  }

  void Change(int index, const CValues& before, CValues after) {
    Forget(before);
    if (HasKey(after[0])) after[0] = L"F" + Name(m_nFresh++);
    CDataItem row = Item(after);
    row.m_nModifyType = std::as_const(m_table)[m_table.GetTableIndex(index)].m_nModifyType;
    EXPECT_EQ(m_table.ModifyTableItem(index, row), 1);
    m_live.insert(after);
  }
  void Modify() {
    CValues before;
    const int index = AnyIndex(before);
    if (index >= 0) Change(index, before, AnyRow());
  }

  void Delete() {
    CValues values;
    const int index = AnyIndex(values);
    if (index < 0) return;
    EXPECT_EQ(m_table.DeleteTableItem(index), 1);
    Forget(values);
  }

  void Import() {
    CDataTable other = Empty();
    for (int i = 0; i < 3; ++i) {
      const CValues values = AnyRow();
      CDataItem row = Item(values);
      if (HasKey(values[0]) || !other.AddTableItem(row, 1)) continue;
      m_live.insert(values);
    }
    EXPECT_EQ(m_table.ImporDatatTable(other, 1), 1);
  }

  // Takes the deleted rows out, as a writer does that rewrites the table.
  void Compact() {
    for (int i = m_table.GetTableRowNum() - 1; i >= 0; --i) {
      if (std::as_const(m_table)[i].m_nModifyType < 0) m_table.m_arrItem.RemoveAt(i);
    }
  }

  void Copy() {
    const CDataTable copy(m_table);
    m_table = copy;
  }

  void AddFromElsewhere(CStore& store) {
    if (!store.hasTable) return;
    CDataTable table = Loaded(store.path);
    const CValues values = {L"E" + Name(m_nFresh++), L"", L"1"};
    CDataItem row = Item(values);
    EXPECT_EQ(table.ImportTableItem(row, 0), 1);
    EXPECT_EQ(table.WriteTable(store.path, 0, 0), 1);
    store.added.insert(values);
  }

  void Reopen(CStore& store) {
    if (!store.hasTable) return;
    m_table = Loaded(store.path);
    m_live = LiveOf(m_table);
    for (CStore& other : m_stores) other.known = false;
    store.known = true;
    store.added.clear();
  }

  void Save(CStore& store) {
    // Without a key rows of a file that the table does not know are no others than its own.
    const bool unknown = store.hasTable && !store.known;
    const bool all = OneIn(5) || (unknown && (!m_keyed || OneIn(2)));
    const std::string before = m_files[store.path];
    const bool saved = m_table.WriteTable(store.path, 0, all) != 0;
    // What others have added comes in, of a file that the table does not know every row whose key
    // it lacks.
    if (store.known) m_live.insert(store.added.begin(), store.added.end());
    store.added.clear();
    if (unknown && !all) {
      const CLive now = LiveOf(m_table);
      EXPECT_TRUE(std::includes(now.begin(), now.end(), m_live.begin(), m_live.end()));
      m_live = now;
      store.known = true;
    }
    if (saved) {
      store.hasTable = store.known = true;
      return Compare(store);
    }
    EXPECT_TRUE(m_files[store.path] == before);
    EXPECT_EQ(orv3::LastStoreError().m_nTrouble, orv3::CStoreTrouble::Refused);
    Repair();
  }

  void Compare(const CStore& store) {
    const CDataTable read = Loaded(store.path);
    ASSERT_EQ(read.GetTableRowNum(), m_table.GetTableRowNum());
    for (int i = 0; i < read.GetTableRowNum(); ++i) {
      const CDataItem& row = std::as_const(m_table)[i];
      EXPECT_EQ(ValuesOf(row), ValuesOf(read[i])) << i;
      EXPECT_EQ(row.m_nIndex, read[i].m_nIndex) << i;
      EXPECT_EQ(row.m_nModifyType < 0, read[i].m_nModifyType < 0) << i;
    }
    EXPECT_EQ(Rows(Loaded(store.path, L"other")), (std::vector<std::string>{"I0=200", "I1=200"}));
    std::vector<orv3::CStoreFault> faults;
    EXPECT_TRUE(orv3::VerifyStore(store.path, faults));
    for (const orv3::CStoreFault& fault : faults) EXPECT_TRUE(fault.m_bValue) << fault.m_strWhat;
  }

  // A refused save has a reason, and goes through without it.
  void Repair() {
    bool found = false;
    for (int i = 0; i < m_table.GetTableRowNum(); ++i) {
      if (!Splits(std::as_const(m_table)[i])) continue;
      found = true;
      const CValues before = ValuesOf(std::as_const(m_table)[i]);
      CDataItem& row = m_table[i];
      const bool live = row.m_nModifyType >= 0;
      row[1].m_strValue = row[2].m_strValue = L"0";
      row.m_nModifyType = !live ? -1 : row.m_nModifyType <= 2 ? 2 : 3;
      if (!live) continue;
      Forget(before);
      m_live.insert(ValuesOf(row));
    }
    EXPECT_TRUE(found) << orv3::LastStoreError().m_strText;
  }

  CMemoryFiles& m_files;
  std::mt19937 m_random;
  const int m_keyed;
  CStore m_stores[2] = {{L"a.KDB", false, false, {}}, {L"b.KDB", false, false, {}}};
  CDataTable m_table;
  CLive m_live;
  int m_nFresh = 0;  // for keys that nothing has
};

TEST(TableScripts, EverySaveReadsBack) {
  orv3::CFileSystem& system = orv3::Files();
  CMessageCatcher messages;
  CMemoryFiles files;
  for (unsigned seed = 0; seed < kScripts && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    CScript(files, seed).Run();
  }
  orv3::SetFiles(&system);
}

}  // namespace
