// Saves of tables that fail, stop half-way or are killed at any of their file operations.
#include <gtest/gtest.h>

#include <iostream>

#include "platform/store_file.h"
#include "platform/store_journal.h"
#include "tables/spawn.h"
#include "tables/table_file_scenarios.h"

namespace {

using scenarios::kCount;
using scenarios::kNewFile;
using scenarios::Seen;

class TableFault : public TableFileTest, public testing::WithParamInterface<int> {
 protected:
  TableFault() {
    if (GetParam() != kNewFile) scenarios::Prepare(m_path);
    m_before = Read();
    CDataTable table = scenarios::Start(m_path, GetParam());
    m_seenBefore = Seen(m_path);
    EXPECT_EQ(Save(table), 1);
    m_seenAfter = Seen(m_path);
    m_after = Bytes(m_path);
    EXPECT_NE(m_seenBefore, m_seenAfter);
  }

  std::string Read() const { return Exists(m_path) ? Bytes(m_path) : std::string(); }
  void PutBack() const {
    orv3::SystemFiles().Remove(m_path);
    if (!m_before.empty()) PutBytes(m_path, m_before);
  }

  std::string m_before;
  std::string m_after;
  std::string m_seenBefore;
  std::string m_seenAfter;
};

TEST_P(TableFault, AFailedOperationLeavesTheOldStoreAndTheTableToBeSavedAgain) {
  int points = 0;
  for (const CFault fault : {CFault::Fail, CFault::Short}) {
    for (const bool forGood : {false, true}) {
      bool met = true;
      for (int at = 1; met; ++at) {
        SCOPED_TRACE(testing::Message() << "operation " << at << (forGood ? " and all after" : ""));
        PutBack();
        CDataTable table = scenarios::Start(m_path, GetParam());
        int saved = 0;
        {
          CFaultyFiles faulty(fault, at, forGood);
          saved = Save(table);
          met = faulty.Met();
        }
        points += met;
        const std::string seen = Seen(m_path);
        // When nothing at all gets through any more, all of the save may have before.
        ASSERT_TRUE(seen == (saved ? m_seenAfter : m_seenBefore) ||
                    (forGood && seen == m_seenAfter))
            << seen;
        ASSERT_EQ(Save(table), 1);
        ASSERT_EQ(Seen(m_path), m_seenAfter);
      }
    }
  }
  std::cout << scenarios::kNames[GetParam()] << ": " << points << " fault points\n";
}

TEST_P(TableFault, AKilledSaveLeavesTheOldStoreOrTheNew) {
  int points = 0;
  int status = CFaultyFiles::kKilled;
  for (int at = 1; status == CFaultyFiles::kKilled; ++at) {
    SCOPED_TRACE(testing::Message() << "killed at operation " << at);
    PutBack();
    status = RunBeside("store_worker", "save \"" + orv3::ToUtf8(m_path) + "\" " +
                                           std::to_string(GetParam()) + " " + std::to_string(at));
    ASSERT_TRUE(status == CFaultyFiles::kKilled || status == 0) << status;
    points += status != 0;
    // First for a reader that may change nothing, then for one that may.
    for (const bool readOnly : {true, false}) {
      m_files.SetReadOnly(readOnly);
      const std::string seen = Seen(m_path);
      ASSERT_TRUE(seen == m_seenAfter || (status != 0 && seen == m_seenBefore)) << seen;
    }
    ASSERT_FALSE(Exists(orv3::JournalPath(m_path)));
  }
  std::cout << scenarios::kNames[GetParam()] << ": killed at " << points << " points\n";
  EXPECT_GT(points, 10);
}

INSTANTIATE_TEST_SUITE_P(Saves, TableFault, testing::Range(0, static_cast<int>(kCount)));

}  // namespace
