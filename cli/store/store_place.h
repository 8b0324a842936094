// Which store a command works on.
//
// --store FILE is taken as it stands. Else it is KvbSystemJmDataBase.KDB in --data DIR (or
// ORV3CAL_DATA); else the user's own copy; else the one that comes with the installation, in
// share/orv3cal beside the program's folder. The last one is never changed: the first command that
// saves without --store and --data saves into a copy of it in the user's folder. Where the system
// does not tell the program's own file, as Linux without /proc, it is the folder that was
// configured for the installation.
#pragma once

#include <CLI/App.hpp>
#include <string>

#include "framework/cstring.h"
#include "output/output.h"
#include "platform/store_file.h"

namespace orv3::cli {

struct CStoreOptions {
  std::string store;
  std::string data;
};

// Adds --store and --data; the variable ORV3CAL_DATA stands for a --data that is not given.
void AddStoreOptions(CLI::App& command, CStoreOptions& options);

// The folder of the catalogue that comes with the installation, for a program in whose folders it
// does not stand; an empty one, as at the start, is share/orv3cal beside the program's folder.
void SetShippedFolder(const CString& folder);

// The file of the store; CCommandError with status 3 when there is none. CLoadDataTable's look-ups
// then go to it, and those of what a row of a --store is made of, when it lacks them, to the
// catalogue that would serve without --store.
CString StoreNamed(const CStoreOptions& options);
// The same of a store that can be read; CCommandError with status 3 otherwise.
CString StoreToRead(const CStoreOptions& options);

// "PATH (your own copy, ...)": which store StoreToRead has chosen, and why.
std::string WhichStore(const CStoreOptions& options);
// The same as {"store", "origin"}, the origin one of --store, --data, ORV3CAL_DATA, own, shipped.
CJson WhichStoreJson(const CStoreOptions& options);

// The store to change, kept to this command from its making to its end, with look-ups as above. It
// may be one that is not there yet. What is saved into it comes into the file with Commit, the copy
// of the shipped store with it: a command that is refused or changes nothing leaves nothing behind,
// nor the folder of the user's stores if that was not there.
// CCommandError with status 3 when the store, busy for five seconds perhaps, cannot be had.
class CStoreToWrite {
 public:
  // With `bThere` the store must be there: it is a row of it that is to change.
  explicit CStoreToWrite(const CStoreOptions& options, bool bThere = false);
  const CString& Path() const noexcept { return m_strPath; }
  void Commit();

 private:
  // Takes away the folder that it names unless something stands in it.
  struct CNewFolder {
    CString m_strPath;
    ~CNewFolder();
  };
  CNewFolder m_folder;  // taken away after the batch has left it
  CString m_strPath;
  CStoreBatch m_batch;
};

}  // namespace orv3::cli
