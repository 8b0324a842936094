// Store files: exclusive opening, saves that are whole or have not happened, and their leftovers.
#include "platform/store_file.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

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

// The system may spell the folder in another way than was asked for.
const wchar_t* const kJournalName = L"库._KDB";

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

std::uint64_t ChangeOf(const CString& path) {
  orv3::CStoreState state;
  EXPECT_TRUE(orv3::StateOfStore(path, state));
  return state.m_nChange;
}

TEST_F(StoreFile, ABatchIsOneSave) {
  ASSERT_TRUE(Save(m_path, 0, "old"));
  std::uint64_t first = 0;
  {
    orv3::CStoreBatch batch(m_path);
    ASSERT_TRUE(batch.IsHeld());
    EXPECT_EQ(ChangeOf(m_path), 0U);
    EXPECT_TRUE(Save(m_path, 0, "new"));
    first = ChangeOf(m_path);
    EXPECT_NE(first, 0U);
    EXPECT_EQ(Seen(m_path), "new");  // within the batch
  }
  EXPECT_EQ(Seen(m_path), "old");  // which was never committed
  {
    orv3::CStoreBatch batch(m_path);
    EXPECT_TRUE(Save(m_path, 0, "new"));
    const std::uint64_t second = ChangeOf(m_path);
    EXPECT_NE(second, first);  // which was another change
    EXPECT_TRUE(Save(m_path, 3, "er"));
    EXPECT_NE(ChangeOf(m_path), second);
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
  EXPECT_EQ(ChangeOf(m_path), 0U);
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
            // When nothing at all gets through any more, all of the save may have before.
            const bool old = c.old.empty() ? seen.empty() || seen == "?" : seen == c.old;
            ASSERT_TRUE(old || (forGood && seen == c.fresh));
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

// What `at` operations of a save leave when the process ends at the next one: the file, and its
// journal if there is one. False when the save got through.
bool Interrupt(const CString& path, const CCase& c, int at) {
  Files().Remove(path);
  Files().Remove(JournalPath(path));
  if (!c.old.empty()) PutBytes(path, c.old);
  const CFaultyFiles faulty(CFault::Short, at, true);
  const auto file = CStoreFile::OpenToWrite(path);
  if (file && file->Write(c.offset, c.added.data(), c.added.size())) file->Commit();
  return faulty.Met();
}

// A file that has been put in the place of a store whose save was interrupted is read as it is,
// whatever it has in common with that store.
TEST_F(StoreFile, AnInterruptedSaveIsNeverUndoneInAnotherFile) {
  const CString backup = m_folder.Path(L"backup.KDB");
  int journals = 0;
  for (const CCase& c : Cases()) {
    const auto changed = [](std::string bytes, std::uint64_t at) {
      if (at < bytes.size()) bytes[static_cast<std::size_t>(at)] = '?';
      return bytes;
    };
    const std::size_t last = c.fresh.size() - 1;
    const std::string others[] = {
        c.old,
        c.fresh,
        std::string(c.fresh.size(), 'x'),
        std::string(c.old.size() + 1, 'o'),
        c.fresh + "more",
        c.old.substr(0, c.old.size() / 2),
        std::string(),
        changed(c.old, c.offset),  // of the same size, with another byte where both differ
        changed(c.fresh, c.offset),
        changed(c.fresh, c.offset - 1),  // and beside it
        changed(c.old, c.offset + c.added.size()),
        changed(c.fresh, last),
    };
    for (int at = 1; Interrupt(m_path, c, at); ++at) {
      SCOPED_TRACE(std::string(c.name) + " operation " + std::to_string(at));
      if (!Exists(JournalPath(m_path))) continue;
      ++journals;
      const std::string journal = Bytes(JournalPath(m_path));
      const std::string half = Bytes(m_path);
      for (const std::string& other : others) {
        if (other == half && other != c.old && other != c.fresh) continue;
        SCOPED_TRACE(testing::Message() << "file " << &other - others);
        Files().Remove(JournalPath(m_path));
        PutBytes(m_path, other);
        PutBytes(JournalPath(m_path), journal);
        ASSERT_TRUE(Seen(m_path) == other);
        ASSERT_FALSE(Exists(JournalPath(m_path)));
      }
      // Moved together with their names, the store and its journal still belong together.
      PutBytes(backup, half);
      PutBytes(JournalPath(backup), journal);
      const std::string seen = Seen(backup);
      ASSERT_TRUE(seen == c.old || seen == c.fresh || (seen == "?" && c.old.empty()));
    }
  }
  EXPECT_GT(journals, 10);
}

// A save whose pages got onto the medium in any order, as after a power failure.
TEST_F(StoreFile, AnyMixtureOfOldAndNewBytesIsUndone) {
  for (const CCase& c : Cases()) {
    std::string journal;
    for (int at = 1; Interrupt(m_path, c, at); ++at) {
      if (Exists(JournalPath(m_path))) journal = Bytes(JournalPath(m_path));
    }
    std::string old = c.old;
    old.resize(c.fresh.size(), '\0');
    std::mt19937 random(1);
    for (int i = 0; i < 50; ++i) {
      std::string mixed = old;
      for (std::size_t at = 0; at < mixed.size();) {
        const std::size_t step = random() % 700 + 1;
        if (random() % 2) mixed.replace(at, step, c.fresh, at, step);
        at += step;
      }
      if (mixed == c.fresh) continue;
      PutBytes(m_path, mixed);
      PutBytes(JournalPath(m_path), journal);
      const std::string seen = Seen(m_path);
      ASSERT_TRUE(seen == c.old || (seen == "?" && c.old.empty())) << c.name << i;
    }
  }
}

TEST_F(StoreFile, AJournalThatIsNotWholeIsDropped) {
  const std::string store(100, 's');
  orv3::CStoreJournal journal;
  journal.m_nOldSize = 100;
  journal.m_nNewSize = 100;
  std::string before = store;
  before.resize(orv3::kJournalPage, '\0');
  std::string after = before;
  before.replace(10, 3, "old");
  ASSERT_TRUE(journal.AddPage(0, before, after.replace(30, 2, "to")));
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
}

// The first format does not tell which file it belongs to: neither the file nor the journal is
// touched, unless there is nothing to undo.
TEST_F(StoreFile, AJournalOfTheFirstFormatIsLeftToTheUser) {
  const auto number = [](std::uint64_t value) {
    std::string bytes(8, '\0');
    for (char& byte : bytes) byte = static_cast<char>(std::exchange(value, value >> 8) & 0xFF);
    return bytes;
  };
  std::string journal = "Orv3CalJournal 1" + number(100) + number(200) + number(1) + number(0) +
                        number(100) + std::string(100, 'o');
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : journal) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  journal += number(sum);
  const struct {
    std::string store;
    bool opens;
  } cases[] = {{std::string(100, 'o'), true},  // the save had not begun
               {std::string(201, 'x'), true},  // another file
               {std::string(99, 'o'), true},
               {std::string(100, 'n'), false},
               {std::string(200, 'o'), false}};
  for (const auto& c : cases) {
    Files().Remove(JournalPath(m_path));
    PutBytes(m_path, c.store);
    PutBytes(JournalPath(m_path), journal);
    orv3::ClearStoreError();
    EXPECT_EQ(Seen(m_path), c.opens ? c.store : "?");
    EXPECT_EQ(Exists(JournalPath(m_path)), !c.opens);
    EXPECT_EQ(LastStoreError().m_strText.Find(kJournalName) >= 0, !c.opens);
    EXPECT_EQ(Bytes(m_path), c.store);
  }
}

// The reason is told, and the journal by its name.
TEST_F(StoreFile, ItsErrorsNameWhatFailed) {
  PutBytes(m_path, "old");
  Files().MakeFolder(JournalPath(m_path));
  orv3::ClearStoreError();
  EXPECT_EQ(Seen(m_path), "?");
  EXPECT_GE(LastStoreError().m_strText.Find(kJournalName), 0);
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
