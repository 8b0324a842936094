#include "dialogs/win32/resource_scope.h"

#include "dialogs/win32/host_services.h"
#include "dialogs/win32/resource.h"

namespace orv3 {
namespace {

HINSTANCE g_current = nullptr;

// The activation context of the library's own manifest; none when the library is part of a program,
// whose manifest is active anyway.
HANDLE OwnContext(HINSTANCE module) {
  if (module == GetModuleHandleW(nullptr)) return INVALID_HANDLE_VALUE;
  ACTCTXW request{};
  request.cbSize = sizeof(request);
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  request.hModule = module;
  request.lpResourceName = MAKEINTRESOURCEW(IDM_MANIFEST);
  return CreateActCtxW(&request);
}

}  // namespace

CResourceScope::CResourceScope() : m_before(g_current), m_context(OwnContext(ModuleInstance())) {
  g_current = ModuleInstance();
  m_bActive = m_context != INVALID_HANDLE_VALUE && ActivateActCtx(m_context, &m_cookie) != FALSE;
}

CResourceScope::~CResourceScope() {
  if (m_bActive) DeactivateActCtx(0, m_cookie);
  if (m_context != INVALID_HANDLE_VALUE) ReleaseActCtx(m_context);
  g_current = m_before;
}

HINSTANCE CResourceScope::Current() noexcept {
  return g_current != nullptr ? g_current : ModuleInstance();
}

}  // namespace orv3
