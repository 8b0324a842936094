#include "platform/store_error.h"

namespace orv3 {
namespace {

CStoreError& Current() {
  thread_local CStoreError error;
  return error;
}

}  // namespace

const CStoreError& LastStoreError() { return Current(); }

void ClearStoreError() { Current() = CStoreError(); }

int SetStoreError(CStoreTrouble trouble, const CString& path, const CString& text) {
  CStoreError& error = Current();
  if (error.m_nTrouble == CStoreTrouble::None) error = {trouble, path, text};
  return 0;
}

}  // namespace orv3
