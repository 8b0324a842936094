#include "store/store_place.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

#include "catalogue/exact/exact_figures.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "input/inputs_read.h"
#include "platform/file_system.h"
#include "platform/places.h"
#include "platform/store_error.h"
#include "sections/system_tables.h"
#include "store/store_table.h"
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

CString& ShippedFolder() {
  static CString folder;
  return folder;
}

CString ShippedStore() {
  if (!ShippedFolder().IsEmpty()) return In(ShippedFolder());
  const CString program = FolderOf(FolderOf(ProgramFile()));
  return In(program.IsEmpty() ? FromUtf8(ORV3CAL_DATA_FOLDER) : program + L"/share/orv3cal");
}

// Whether a link on the way to the file leads to nothing, as one to a share that is not mounted.
bool IsBrokenLink(const CString& file) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  const std::string utf8 = ToUtf8(file);
  for (fs::path path = std::u8string(utf8.begin(), utf8.end()); path.has_relative_path();
       path = path.parent_path()) {
    if (fs::is_symlink(fs::symlink_status(path, ignored)) && !fs::exists(path, ignored))
      return true;
  }
  return false;
}

CString NotFound(const CString& store) {
  if (IsBrokenLink(store)) {
    return Say(L"{1}: 链接所指的文件或文件夹不存在；应先使其可用，或删去该链接",
               L"{1}: what its link leads to is not there; right would be to bring it back, or to "
               L"remove the link",
               {store});
  }
  return Say(L"{1}: 文件不存在；应为截面库文件（.KDB）",
             L"{1}: not found; right would be a table file (.KDB)", {store});
}

// An empty file is one that a command about to save keeps to itself. A link that leads nowhere, or
// a file that cannot be asked, may hold them.
bool HoldsTables(const CString& store) {
  CFileStamp stamp;
  const CFileError error = store.IsEmpty() ? CFileError::NotFound : Files().Stamp(store, stamp);
  if (error == CFileError::None) return stamp.m_nSize > 0;
  return error != CFileError::NotFound || IsBrokenLink(store);
}

// The catalogue of those who name no store; empty when there is none.
CString OwnCatalogue() {
  for (const CString& store : {UserStore(), ShippedStore()}) {
    if (HoldsTables(store)) return store;
  }
  return {};
}

constexpr const char* kDataVariable = "ORV3CAL_DATA";

bool NamesFolder(const CStoreOptions& options) {
  return !options.data.empty() || !Environment(kDataVariable).IsEmpty();
}

CString DataStore(const CStoreOptions& options) {
  const bool given = !options.data.empty();
  const CString folder = given ? FromUtf8(options.data) : Environment(kDataVariable);
  if (!Files().IsFolder(folder)) {
    Fail(Say(L"{1}: {2}应为已有的文件夹，其中有 {3}",
             L"{1}: {2} must name a folder that is there; it holds {3}",
             {folder,
              given ? CString(L"--data") : Say(L"变量 ORV3CAL_DATA ", L"the variable ORV3CAL_DATA"),
              kSystemStore}));
  }
  return In(folder);
}

// Where look-ups go: to `store`, when it was named, else to the catalogue.
void UseFor(const CString& store, const CString& catalogue) {
  const CString folder = FolderOf(catalogue);
  SetProgramPath(folder.IsEmpty() ? folder : folder + L"/");
  SetStoreInFront(store == catalogue ? CString() : store);
  const CString shipped = FolderOf(ShippedStore());
  SetExactFile(shipped.IsEmpty() ? shipped : shipped + L"/" + kExactFile);
}

// A variable that names no folder is no reason to refuse a store that is named: look-ups then have
// that store alone.
CString Catalogue(const CStoreOptions& options) {
  const bool spare = !options.store.empty() && options.data.empty();
  if (spare && NamesFolder(options) && !Files().IsFolder(Environment(kDataVariable))) return {};
  return NamesFolder(options) ? DataStore(options) : OwnCatalogue();
}

CString OwnStore() {
  const CString user = UserStore();
  if (IsBrokenLink(user)) Fail(NotFound(user));
  if (user.IsEmpty())
    Fail(Say(L"不知道您自己的库应放在哪个文件夹（没有变量 HOME）；请用 --store FILE 给出",
             L"no folder for your own store is known, the variable HOME is not set; name a store "
             L"with --store FILE"));
  if (!MakeFolders(FolderOf(user)))
    Fail(Say(L"{1}: 不能建立此文件夹", L"{1}: this folder cannot be made", {FolderOf(user)}));
  return user;
}

CString PathToWrite(const CStoreOptions& options, bool bThere) {
  SetBusyWait(std::chrono::seconds{5});
  const bool named = !options.store.empty() || NamesFolder(options);
  const CString path = !options.store.empty() ? FromUtf8(options.store)
                       : named                ? DataStore(options)
                                              : OwnStore();
  const bool shipped = !named && HoldsTables(ShippedStore());
  if ((bThere && !shipped && !IsThere(path)) || IsBrokenLink(path)) Fail(NotFound(path));
  return path;
}

// The user's own folder where the store comes into it and it is not there yet, else empty.
CString NewFolder(const CStoreOptions& options) {
  const bool named = !options.store.empty() || NamesFolder(options);
  const CString folder = named ? CString() : FolderOf(UserStore());
  return folder.IsEmpty() || Files().IsFolder(folder) ? CString() : folder;
}

// The user's own store starts with the bytes of the shipped one, if there is one.
void StartFromShipped(const CString& user) {
  const CString shipped = ShippedStore();
  const auto to = CStoreFile::OpenToWrite(user);
  if (to->Size() > 0 || !HoldsTables(shipped)) return;
  const auto from = CStoreFile::OpenToRead(shipped);
  if (!from) Fail(LastStoreError().m_strText);
  std::string bytes(static_cast<std::size_t>(from->Size()), '\0');
  if (!from->Read(0, bytes.data(), bytes.size()))
    Fail(Say(L"{1}: 不能读取", L"{1}: cannot be read", {shipped}));
  if (!to->Write(0, bytes.data(), bytes.size()) || !to->Commit()) Fail(LastStoreError().m_strText);
}

}  // namespace

void AddStoreOptions(CLI::App& command, CStoreOptions& options) {
  command
      .add_option("--store", options.store,
                  Say("要使用的截面库文件，代替您自己的库或随程序提供的库",
                      "The table file to work on, instead of your own or the shipped catalogue"))
      ->type_name("FILE");
  command
      .add_option("--data", options.data,
                  Say("程序文件夹，其中有 KvbSystemJmDataBase.KDB；不给时按变量 ORV3CAL_DATA",
                      "The program directory, which holds KvbSystemJmDataBase.KDB; the variable "
                      "ORV3CAL_DATA if it is not given"))
      ->type_name("DIR");
}

void SetShippedFolder(const CString& folder) { ShippedFolder() = folder; }

CString StoreNamed(const CStoreOptions& options) {
  const CString catalogue = Catalogue(options);
  const CString store = options.store.empty() ? catalogue : FromUtf8(options.store);
  if (store.IsEmpty()) {
    Fail(Say(L"程序旁和您自己的文件夹中都没有截面库；请给出 --store FILE 或 --data DIR",
             L"there is no catalogue beside the program or in your own folder; right would be "
             L"--store FILE or --data DIR"));
  }
  if (!IsThere(store)) Fail(NotFound(store));
  UseFor(store, catalogue);
  NoteInput(ToUtf8(store));
  return store;
}

CString StoreToRead(const CStoreOptions& options) {
  const CString store = StoreNamed(options);
  StoreTableNames(store);  // which fails where the file is none, or damaged
  return store;
}

CJson WhichStoreJson(const CStoreOptions& options) {
  const CString store = StoreToRead(options);
  const char* origin = !options.store.empty()  ? "--store"
                       : !options.data.empty() ? "--data"
                       : NamesFolder(options)  ? kDataVariable
                       : store == UserStore()  ? "own"
                                               : "shipped";
  return {{"store", ToUtf8(store)}, {"origin", origin}};
}

std::string WhichStore(const CStoreOptions& options) {
  const CJson which = WhichStoreJson(options);
  std::string origin = which["origin"];
  if (origin == "own") {
    origin = HoldsTables(ShippedStore())
                 ? Say("您自己的副本，代替随程序提供的库",
                       "your own copy, read instead of the shipped catalogue")
                 : Say("您自己的库", "your own store");
  } else if (origin == "shipped") {
    origin = Say("随程序提供的库", "the shipped catalogue");
  } else {
    origin = Say("由 {1} 指定", "named by {1}", {origin});
  }
  return std::string(which["store"]) + " (" + origin + ")";
}

CStoreToWrite::CNewFolder::~CNewFolder() {
  if (m_strPath.IsEmpty()) return;
  std::error_code error;  // of a folder that is no longer empty, which stays
  const std::string path = ToUtf8(m_strPath);
  std::filesystem::remove(std::u8string(path.begin(), path.end()), error);
}

CStoreToWrite::CStoreToWrite(const CStoreOptions& options, bool bThere)
    : m_folder{NewFolder(options)}, m_strPath(PathToWrite(options, bThere)), m_batch(m_strPath) {
  if (!m_batch.IsHeld()) Fail(LastStoreError().m_strText);
  if (options.store.empty() && !NamesFolder(options)) StartFromShipped(m_strPath);
  UseFor(m_strPath, options.store.empty() ? m_strPath : Catalogue(options));
}

void CStoreToWrite::Commit() {
  if (!m_batch.Commit()) Fail(LastStoreError().m_strText);
}

}  // namespace orv3::cli
