#include "dialogs/win32/placement.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace orv3 {
namespace {

struct CValue {
  const wchar_t* m_szName;
  int CPlacement::*m_pField;
};

constexpr CValue kValues[] = {
    {L"Left", &CPlacement::m_nLeft},
    {L"Top", &CPlacement::m_nTop},
    {L"Width", &CPlacement::m_nWidth},
    {L"Height", &CPlacement::m_nHeight},
};

std::wstring KeyOf(const wchar_t* name) { return std::wstring(L"Software\\Orv3Cal\\") + name; }

}  // namespace

bool LoadPlacement(const wchar_t* name, CPlacement& placement) {
  const std::wstring key = KeyOf(name);
  CPlacement loaded;
  for (const CValue& value : kValues) {
    DWORD number = 0;
    DWORD size = sizeof(number);
    if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), value.m_szName, RRF_RT_REG_DWORD, nullptr,
                     &number, &size) != ERROR_SUCCESS) {
      return false;
    }
    loaded.*value.m_pField = static_cast<int>(number);
  }
  if (loaded.m_nWidth <= 0 || loaded.m_nHeight <= 0) return false;
  placement = loaded;
  return true;
}

void SavePlacement(const wchar_t* name, const CPlacement& placement) {
  const std::wstring key = KeyOf(name);
  for (const CValue& value : kValues) {
    const auto number = static_cast<DWORD>(placement.*value.m_pField);
    RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), value.m_szName, REG_DWORD, &number,
                    sizeof(number));
  }
}

RECT WithinScreen(RECT frame) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  if (!GetMonitorInfoW(MonitorFromRect(&frame, MONITOR_DEFAULTTONEAREST), &monitor)) return frame;
  const RECT work = monitor.rcWork;
  const LONG width = std::min(frame.right - frame.left, work.right - work.left);
  const LONG height = std::min(frame.bottom - frame.top, work.bottom - work.top);
  const LONG left = std::clamp(frame.left, work.left, work.right - width);
  const LONG top = std::clamp(frame.top, work.top, work.bottom - height);
  return {left, top, left + width, top + height};
}

}  // namespace orv3
