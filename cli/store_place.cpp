#include "store_place.h"

#include <algorithm>
#include <string>

#include "error.h"
#include "framework/utf8.h"
#include "platform/file_system.h"
#include "platform/places.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "sections/system_tables.h"
#include "tables/table_store.h"

namespace orv3::cli {
namespace {

[[noreturn]] void Fail(const CString& text) {
  throw CCommandError(CExit::FileTrouble, ToUtf8(text));
}

bool IsThere(const CString& file) {
  CFileStamp stamp;
  return Files().Stamp(file, stamp) != CFileError::NotFound;
}

CString FolderOf(const CString& file) {
  return file.Left(std::max(file.ReverseFind(L'/'), file.ReverseFind(L'\\')));
}

CString In(const CString& folder) {
  return folder.IsEmpty() ? CString() : folder + L"/" + kSystemStore;
}

CString UserStore() { return In(UserDataFolder()); }

CString ShippedStore() {
  const CString program = FolderOf(FolderOf(ProgramFile()));
  return program.IsEmpty() ? CString() : In(program + L"/share/orv3cal");
}

// The catalogue of those who name no store; empty when there is none.
CString OwnCatalogue() {
  for (const CString& store : {UserStore(), ShippedStore()}) {
    if (!store.IsEmpty() && IsThere(store)) return store;
  }
  return {};
}

CString DataStore(const CStoreOptions& options) {
  const CString folder = FromUtf8(options.data);
  if (!Files().IsFolder(folder)) {
    Fail(folder + L": --data must name a folder that is there; it holds " + kSystemStore);
  }
  return In(folder);
}

// Where look-ups go: `store` first when it was named, then the catalogue.
void UseFor(const CString& store, const CString& catalogue) {
  const CString folder = FolderOf(catalogue);
  SetProgramPath(folder.IsEmpty() ? folder : folder + L"/");
  SetStoreInFront(store == catalogue ? CString() : store);
}

CString Catalogue(const CStoreOptions& options) {
  return options.data.empty() ? OwnCatalogue() : DataStore(options);
}

// Puts the shipped store's bytes into the user's, unless somebody was faster.
void CopyShipped(const CString& shipped, const CString& user) {
  if (!MakeFolders(FolderOf(user))) Fail(FolderOf(user) + L": this folder cannot be made");
  const CStoreLock lock(user);
  const auto to = lock.IsHeld() ? CStoreFile::OpenToWrite(user) : nullptr;
  if (!to) Fail(LastStoreError().m_strText);
  if (to->Size() > 0) return;
  const auto from = CStoreFile::OpenToRead(shipped);
  if (!from) Fail(LastStoreError().m_strText);
  std::string bytes(static_cast<std::size_t>(from->Size()), '\0');
  if (!from->Read(0, bytes.data(), bytes.size())) Fail(shipped + L": cannot be read");
  if (!to->Write(0, bytes.data(), bytes.size()) || !to->Commit()) Fail(LastStoreError().m_strText);
}

CString OwnStoreToWrite() {
  const CString user = UserStore();
  if (user.IsEmpty()) Fail(L"no folder for your own store is known; name one with --store FILE");
  if (IsThere(user)) return user;
  const CString shipped = ShippedStore();
  if (!shipped.IsEmpty() && IsThere(shipped)) {
    CopyShipped(shipped, user);
  } else if (!MakeFolders(FolderOf(user))) {
    Fail(FolderOf(user) + L": this folder cannot be made");
  }
  return user;
}

}  // namespace

void AddStoreOptions(CLI::App& command, CStoreOptions& options) {
  command
      .add_option("--store", options.store,
                  "The table file to work on, instead of your own or the shipped catalogue")
      ->type_name("FILE");
  command
      .add_option("--data", options.data,
                  "The program directory, which holds KvbSystemJmDataBase.KDB")
      ->type_name("DIR")
      ->envname("ORV3CAL_DATA");
}

CString StoreToRead(const CStoreOptions& options) {
  const CString catalogue = Catalogue(options);
  const CString store = options.store.empty() ? catalogue : FromUtf8(options.store);
  if (store.IsEmpty()) {
    Fail(
        L"there is no catalogue beside the program or in your own folder; right would be "
        L"--store FILE or --data DIR");
  }
  if (!IsThere(store)) Fail(store + L": not found; right would be a table file (.KDB)");
  UseFor(store, catalogue);
  return store;
}

CString StoreToWrite(const CStoreOptions& options) {
  SetBusyWait(std::chrono::seconds{5});
  if (!options.store.empty()) {
    const CString store = FromUtf8(options.store);
    UseFor(store, Catalogue(options));
    return store;
  }
  const CString store = options.data.empty() ? OwnStoreToWrite() : DataStore(options);
  UseFor(store, store);
  return store;
}

}  // namespace orv3::cli
