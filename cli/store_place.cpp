#include "store_place.h"

#include <algorithm>
#include <string>

#include "error.h"
#include "framework/utf8.h"
#include "inputs_read.h"
#include "platform/file_system.h"
#include "platform/places.h"
#include "platform/store_error.h"
#include "sections/system_tables.h"
#include "tables/file/table_store.h"

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

// An empty file is one that a command about to save keeps to itself.
bool HoldsTables(const CString& store) {
  CFileStamp stamp;
  const CFileError error = store.IsEmpty() ? CFileError::NotFound : Files().Stamp(store, stamp);
  return error == CFileError::None ? stamp.m_nSize > 0 : error != CFileError::NotFound;
}

// The catalogue of those who name no store; empty when there is none.
CString OwnCatalogue() {
  for (const CString& store : {UserStore(), ShippedStore()}) {
    if (HoldsTables(store)) return store;
  }
  return {};
}

constexpr const char* kVariable = "ORV3CAL_DATA";

bool NamesFolder(const CStoreOptions& options) {
  return !options.data.empty() || !Environment(kVariable).IsEmpty();
}

CString DataStore(const CStoreOptions& options) {
  const bool given = !options.data.empty();
  const CString folder = given ? FromUtf8(options.data) : Environment(kVariable);
  if (!Files().IsFolder(folder)) {
    Fail(folder + L": " + (given ? L"--data" : L"the variable ORV3CAL_DATA") +
         L" must name a folder that is there; it holds " + kSystemStore);
  }
  return In(folder);
}

// Where look-ups go: `store` first when it was named, then the catalogue.
void UseFor(const CString& store, const CString& catalogue) {
  const CString folder = FolderOf(catalogue);
  SetProgramPath(folder.IsEmpty() ? folder : folder + L"/");
  SetStoreInFront(store == catalogue ? CString() : store);
}

// A variable that names no folder is no reason to refuse a store that is named: look-ups then have
// that store alone.
CString Catalogue(const CStoreOptions& options) {
  const bool spare = !options.store.empty() && options.data.empty();
  if (spare && NamesFolder(options) && !Files().IsFolder(Environment(kVariable))) return {};
  return NamesFolder(options) ? DataStore(options) : OwnCatalogue();
}

CString OwnStore() {
  const CString user = UserStore();
  if (user.IsEmpty()) Fail(L"no folder for your own store is known; name one with --store FILE");
  if (!MakeFolders(FolderOf(user))) Fail(FolderOf(user) + L": this folder cannot be made");
  return user;
}

CString PathToWrite(const CStoreOptions& options) {
  SetBusyWait(std::chrono::seconds{5});
  if (!options.store.empty()) return FromUtf8(options.store);
  return NamesFolder(options) ? DataStore(options) : OwnStore();
}

// The user's own store starts with the bytes of the shipped one, if there is one.
void StartFromShipped(const CString& user) {
  const CString shipped = ShippedStore();
  const auto to = CStoreFile::OpenToWrite(user);
  if (to->Size() > 0 || !HoldsTables(shipped)) return;
  const auto from = CStoreFile::OpenToRead(shipped);
  if (!from) Fail(LastStoreError().m_strText);
  std::string bytes(static_cast<std::size_t>(from->Size()), '\0');
  if (!from->Read(0, bytes.data(), bytes.size())) Fail(shipped + L": cannot be read");
  if (!to->Write(0, bytes.data(), bytes.size()) || !to->Commit()) Fail(LastStoreError().m_strText);
}

}  // namespace

void AddStoreOptions(CLI::App& command, CStoreOptions& options) {
  command
      .add_option("--store", options.store,
                  "The table file to work on, instead of your own or the shipped catalogue")
      ->type_name("FILE");
  command
      .add_option("--data", options.data,
                  "The program directory, which holds KvbSystemJmDataBase.KDB; the variable "
                  "ORV3CAL_DATA if it is not given")
      ->type_name("DIR");
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
  NoteInput(ToUtf8(store));
  return store;
}

CJson WhichStoreJson(const CStoreOptions& options) {
  const CString store = StoreToRead(options);
  const char* origin = !options.store.empty()  ? "--store"
                       : !options.data.empty() ? "--data"
                       : NamesFolder(options)  ? kVariable
                       : store == UserStore()  ? "own"
                                               : "shipped";
  return {{"store", ToUtf8(store)}, {"origin", origin}};
}

std::string WhichStore(const CStoreOptions& options) {
  const CJson which = WhichStoreJson(options);
  std::string origin = which["origin"];
  if (origin == "own") {
    origin = HoldsTables(ShippedStore()) ? "your own copy, read instead of the shipped catalogue"
                                         : "your own store";
  } else if (origin == "shipped") {
    origin = "the shipped catalogue";
  } else {
    origin = "named by " + origin;
  }
  return std::string(which["store"]) + " (" + origin + ")";
}

CStoreToWrite::CStoreToWrite(const CStoreOptions& options)
    : m_strPath(PathToWrite(options)), m_batch(m_strPath) {
  if (!m_batch.IsHeld()) Fail(LastStoreError().m_strText);
  if (options.store.empty() && !NamesFolder(options)) StartFromShipped(m_strPath);
  UseFor(m_strPath, options.store.empty() ? m_strPath : Catalogue(options));
}

void CStoreToWrite::Commit() {
  if (!m_batch.Commit()) Fail(LastStoreError().m_strText);
}

}  // namespace orv3::cli
