// CResourceScope: while it lives, templates, strings and pictures come from the library's own
// module, and controls have the look that its manifest asks for; then what was current before is
// current again.
#pragma once

#include "dialogs/win32/win32_api.h"

namespace orv3 {

class CResourceScope {
 public:
  CResourceScope();
  CResourceScope(const CResourceScope&) = delete;
  CResourceScope& operator=(const CResourceScope&) = delete;
  ~CResourceScope();

  // The module that templates are loaded from: the library's, unless a scope is open for another.
  static HINSTANCE Current() noexcept;

 private:
  HINSTANCE m_before;
  HANDLE m_context;
  ULONG_PTR m_cookie = 0;
  bool m_bActive = false;
};

}  // namespace orv3
