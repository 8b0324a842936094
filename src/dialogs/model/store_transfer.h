// Import into the system store and export out of it, with what is asked and told on the way.
#pragma once

#include <vector>

#include "dialogs/model/dialog_user.h"
#include "framework/array.h"
#include "framework/cstring.h"

namespace orv3 {

// Rolled-section data files first, then table files, which export writes.
std::vector<CFileFilter> ImportFilters();

// Brings the rows of the files into the store. Rows that the store has are replaced only with
// `overwrite`, rows of the catalogue only by rows of the catalogue. What did not come in is told at
// the end, and so are rows that came in though their figures contradict their sizes.
void ImportFiles(const std::vector<CString>& files, const CString& store, bool overwrite,
                 CDialogUser& user);

// Puts the rows of a table into two groups, each in the order it had: those without an X in the
// number (HK300a) before those named by their sizes (400X300). The data files of the two series are
// imported at different times, and people look them up apart.
void GroupByNumber(const CString& path, const CString& tableName, CDialogUser& user);

// Asks for tables (`marked` to start with) of the system store under `path` and for a file, and
// writes the tables there, without deleted rows. The file is whole or as it was.
void ExportTables(const CString& path, const CStringArray& marked, CDialogUser& user);

// A name for a new table file, from the time: "KVBDB%d%d%d.KDB". None of that name is in `folder`.
CString NewTableFileName(const CString& folder);

}  // namespace orv3
