// Which store a command works on.
//
// --store FILE is taken as it stands. Else it is KvbSystemJmDataBase.KDB in --data DIR (or
// ORV3CAL_DATA); else the user's own copy; else the one that comes with the installation, in
// share/orv3cal beside the program's folder. The last one is never changed: the first command that
// writes without --store and --data copies it to the user's folder.
#pragma once

#include <CLI/App.hpp>
#include <string>

#include "framework/cstring.h"

namespace orv3::cli {

struct CStoreOptions {
  std::string store;
  std::string data;
};

// Adds --store and --data.
void AddStoreOptions(CLI::App& command, CStoreOptions& options);

// The file of the store to read, or to change; CCommandError with status 3 when there is none.
// CLoadDataTable's look-ups then go to it first and, for what a --store lacks, to the catalogue
// that would serve without --store. With a writing command openers wait five seconds for a busy
// file, and a store that is not there yet may be made.
CString StoreToRead(const CStoreOptions& options);
CString StoreToWrite(const CStoreOptions& options);

}  // namespace orv3::cli
