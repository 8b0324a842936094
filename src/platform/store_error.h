// Why the last operation on a store failed, for those who want more than its 0.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

enum class CStoreTrouble {
  None,
  NotFound,   // no such file or folder
  Busy,       // in use by another opener for all of the waiting time
  Denied,     // read-only, or missing rights
  NotAStore,  // the file is of another kind
  NoTable,    // the store has no such table
  Damaged,    // the file contradicts itself
  Refused,    // what was to be saved does not fit the store
  Failed,     // reading or writing failed; the file is as it was before
};

struct CStoreError {
  CStoreTrouble m_nTrouble = CStoreTrouble::None;
  CString m_strPath;
  CString m_strText;   // one line: what was wrong and what would be right
  CString m_strPlace;  // what of the file it is about, as the dialogs' users know it; may be empty
};

// Of this thread's last operation; None after one that succeeded.
ORV3CAL_API const CStoreError& LastStoreError();

void ClearStoreError();
// Keeps the first trouble since the last clearing, which is the cause of those after it. Returns 0,
// the result that the failing operation gives.
int SetStoreError(CStoreTrouble trouble, const CString& path, const CString& text,
                  const CString& place = {});

}  // namespace orv3
