// Store files: exclusive opening, saves that are whole or have not happened, and their leftovers.
#include "platform/store_file.h"

#include <gtest/gtest.h>

#include "platform/faulty_files.h"
#include "platform/store_error.h"
#include "platform/store_journal.h"
#include "platform/temp_folder.h"

using orv3::CFileError;
using orv3::CFileMode;
using orv3::CStoreFile;
using orv3::CStoreLock;
using orv3::CStoreTrouble;
using orv3::Files;
using orv3::JournalPath;
using orv3::LastStoreError;

namespace {

class StoreFile : public testing::Test {
 protected:
  StoreFile() { orv3::SetBusyWait(std::chrono::milliseconds{20}); }
  ~StoreFile() override { orv3::SetBusyWait(std::chrono::milliseconds{1000}); }

  static bool Save(const CString& path, std::uint64_t offset, const std::string& bytes) {
    const auto file = CStoreFile::OpenToWrite(path);
    return file && file->Write(offset, bytes.data(), bytes.size()) && file->Commit();
  }
  // What a reader sees; "?" when it cannot open the file.
  static std::string Seen(const CString& path) {
    const auto file = CStoreFile::OpenToRead(path);
    if (!file) return "?";
    std::string bytes(static_cast<std::size_t>(file->Size()), '\0');
    return file->Read(0, bytes.data(), bytes.size()) ? bytes : "?";
  }

  CTempFolder m_folder;
  CFaultyFiles m_quick;
  const CString m_path = m_folder.Path(L"库.KDB");
};

TEST_F(StoreFile, ASecondOpenerFailsAlsoInTheSameProcess) {
  PutBytes(m_path, "store");
  for (const bool writes : {false, true}) {
    orv3::ClearStoreError();
    const auto first = writes ? CStoreFile::OpenToWrite(m_path) : CStoreFile::OpenToRead(m_path);
    ASSERT_TRUE(first);
    EXPECT_FALSE(CStoreFile::OpenToRead(m_path));
    EXPECT_FALSE(CStoreFile::OpenToWrite(m_path));
    EXPECT_EQ(LastStoreError().m_nTrouble, CStoreTrouble::Busy);
  }
  EXPECT_TRUE(CStoreFile::OpenToRead(m_path));
}

TEST_F(StoreFile, ALockLetsItsOwnThreadThrough) {
  {
    const CStoreLock lock(m_path);
    ASSERT_TRUE(lock.IsHeld());
    EXPECT_TRUE(Save(m_path, 0, "one"));
    EXPECT_EQ(Seen(m_path), "one");
    CFileError error{};
    EXPECT_FALSE(Files().Open(m_path, CFileMode::Read, error));
    EXPECT_EQ(error, CFileError::Busy);
    const auto changed = CStoreFile::OpenToWrite(m_path);
    changed->Write(0, "two", 3);  // never committed
  }
  EXPECT_EQ(Seen(m_path), "one");
}

TEST_F(StoreFile, AFileThatNothingWasSavedToIsRemoved) {
  { const CStoreLock lock(m_path); }
  EXPECT_FALSE(Exists(m_path));
  orv3::ClearStoreError();
  EXPECT_FALSE(CStoreFile::OpenToRead(m_path));
  EXPECT_EQ(LastStoreError().m_nTrouble, CStoreTrouble::NotFound);
}

TEST_F(StoreFile, ABatchIsOneSave) {
  ASSERT_TRUE(Save(m_path, 0, "old"));
  {
    orv3::CStoreBatch batch(m_path);
    ASSERT_TRUE(batch.IsHeld());
    EXPECT_FALSE(orv3::IsAheadOfFile(m_path));
    EXPECT_TRUE(Save(m_path, 0, "new"));
    EXPECT_TRUE(orv3::IsAheadOfFile(m_path));
    EXPECT_EQ(Seen(m_path), "new");  // within the batch
  }
  EXPECT_EQ(Seen(m_path), "old");  // which was never committed
  {
    orv3::CStoreBatch batch(m_path);
    EXPECT_TRUE(Save(m_path, 0, "new"));
    EXPECT_TRUE(Save(m_path, 3, "er"));
    EXPECT_TRUE(batch.Commit());
  }
  EXPECT_EQ(Seen(m_path), "newer");
  {
    orv3::CStoreBatch batch(m_path);
    EXPECT_TRUE(Save(m_path, 0, "bad"));
    CStoreFile::OpenToWrite(m_path)->Write(0, "half", 4);  // a save that fails in between
    EXPECT_FALSE(batch.Commit());
    EXPECT_EQ(LastStoreError().m_nTrouble, CStoreTrouble::Failed);
  }
  EXPECT_EQ(Seen(m_path), "newer");
  EXPECT_FALSE(orv3::IsAheadOfFile(m_path));
  EXPECT_TRUE(Save(m_path, 0, "fresh"));
}

// A clock that stands still between two saves, or goes back, must not hide the second one.
TEST_F(StoreFile, ASaveStampsTheFileLaterThanTheOneBefore) {
  ASSERT_TRUE(Save(m_path, 0, "old"));
  orv3::CFileStamp before;
  Files().Stamp(m_path, before);
  constexpr std::int64_t kHour = 36'000'000'000;  // at least, in any system's unit
  {
    CFileError error{};
    const auto file = Files().Open(m_path, CFileMode::ReadWrite, error);
    ASSERT_TRUE(file && file->AdvanceStamp(before.m_nChanged + 100 * kHour));
  }
  Files().Stamp(m_path, before);
  for (const char* content : {"new", "end"}) {
    ASSERT_TRUE(Save(m_path, 0, content));
    orv3::CFileStamp after;
    Files().Stamp(m_path, after);
    EXPECT_LT(before.m_nChanged, after.m_nChanged);
    before = after;
  }
}

// Old and new content that differ in the first and last page and in length, and a page between
// that stays.
struct CCase {
  const char* name;
  std::string old;
  std::uint64_t offset;
  std::string added;
  std::string fresh;
};

std::vector<CCase> Cases() {
  const std::string page(4096, 'o');
  return {
      {"within", page + page, 4000, std::string(200, 'n'),
       page.substr(0, 4000) + std::string(200, 'n') + std::string(3992, 'o')},
      {"longer", page + "oo", 4097, std::string(9000, 'n'), page + "o" + std::string(9000, 'n')},
      {"new file", "", 0, "new", "new"},
      {"with a gap", "old", 9000, "new", "old" + std::string(8997, '\0') + "new"},
  };
}

TEST_F(StoreFile, AFaultAtAnyOperationLeavesTheOldOrTheNewStore) {
  int points = 0;
  for (const CCase& c : Cases()) {
    for (const CFault fault : {CFault::Fail, CFault::Short}) {
      for (const bool forGood : {false, true}) {
        for (int at = 1;; ++at) {
          SCOPED_TRACE(std::string(c.name) + " operation " + std::to_string(at));
          Files().Remove(m_path);
          if (!c.old.empty()) PutBytes(m_path, c.old);
          bool met = false;
          bool saved = false;
          {
            CFaultyFiles faulty(fault, at, forGood);
            saved = Save(m_path, c.offset, c.added);
            met = faulty.Met();
          }
          if (!met) break;
          ++points;
          const std::string seen = Seen(m_path);
          if (saved) {
            ASSERT_EQ(seen, c.fresh);
          } else {
            ASSERT_TRUE(c.old.empty() ? seen.empty() || seen == "?" : seen == c.old);
          }
          ASSERT_FALSE(Exists(JournalPath(m_path)));
          ASSERT_TRUE(Save(m_path, c.offset, c.added));
          ASSERT_EQ(Seen(m_path), c.fresh);
        }
      }
    }
  }
  RecordProperty("fault points", points);
  EXPECT_GT(points, 100);
}

TEST_F(StoreFile, AReaderInAReadOnlyFolderSeesTheOldStore) {
  for (const CCase& c : Cases()) {
    for (int at = 1;; ++at) {
      SCOPED_TRACE(std::string(c.name) + " operation " + std::to_string(at));
      Files().Remove(m_path);
      if (!c.old.empty()) PutBytes(m_path, c.old);
      bool met = false;
      {
        CFaultyFiles faulty(CFault::Short, at, true);
        Save(m_path, c.offset, c.added);
        met = faulty.Met();
      }
      if (!met) break;
      if (!Exists(m_path)) continue;
      CFaultyFiles readOnly;
      readOnly.SetReadOnly(true);
      const std::string seen = Seen(m_path);
      ASSERT_TRUE(seen == c.old || seen == c.fresh) << seen.size();
    }
    Seen(m_path);
  }
}

TEST_F(StoreFile, AJournalThatIsNotWholeOrOfAnotherStateIsDropped) {
  const std::string store(100, 's');
  orv3::CStoreJournal journal;
  journal.m_nOldSize = 100;
  journal.m_nNewSize = 100;
  journal.m_arrPiece.push_back({10, "old"});
  const std::string whole = EncodeJournal(journal);
  const auto seen = [&](const std::string& bytes) {
    PutBytes(m_path, store);
    PutBytes(JournalPath(m_path), bytes);
    const std::string content = Seen(m_path);
    EXPECT_FALSE(Exists(JournalPath(m_path)));
    return content;
  };
  EXPECT_EQ(seen(whole), std::string(10, 's') + "old" + std::string(87, 's'));
  for (std::size_t size = 0; size < whole.size(); ++size)
    ASSERT_EQ(seen(whole.substr(0, size)), store);
  for (std::size_t i = 0; i < whole.size(); ++i) {
    std::string damaged = whole;
    damaged[i] = static_cast<char>(damaged[i] ^ 4);
    ASSERT_EQ(seen(damaged), store) << i;
  }
  journal.m_nOldSize = 101;  // the store would have to be longer than it is
  journal.m_nNewSize = 101;
  EXPECT_EQ(seen(EncodeJournal(journal)), store);
  journal.m_nOldSize = 12;  // the piece ends beyond the old store
  EXPECT_EQ(seen(EncodeJournal(journal)), store);
}

TEST_F(StoreFile, AReadOnlyMarkIsClearedOnce) {
  // The mark itself would not stop a super-user.
  PutBytes(m_path, "old");
  CFaultyFiles files;
  files.SetMarkedReadOnly(true);
  EXPECT_EQ(Seen(m_path), "old");
  EXPECT_TRUE(Save(m_path, 0, "new"));
}

}  // namespace
