#include "platform/store_error.h"

#include "platform/per_thread.h"

namespace orv3 {
namespace {

CStoreError& Current() {
  static CPerThread<CStoreError> errors;
  return errors.Here();
}

}  // namespace

const CStoreError& LastStoreError() { return Current(); }

void ClearStoreError() { Current() = CStoreError(); }

int SetStoreError(CStoreTrouble trouble, const CString& path, const CString& text,
                  const CString& place) {
  CStoreError& error = Current();
  if (error.m_nTrouble == CStoreTrouble::None) error = {trouble, path, text, place};
  return 0;
}

}  // namespace orv3
