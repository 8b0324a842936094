#include "platform/code_page.h"

#include <windows.h>

namespace orv3 {
namespace {

char16_t Decode(int codePage, const std::string& bytes) {
  wchar_t out[4] = {};
  const int count = MultiByteToWideChar(static_cast<UINT>(codePage), MB_ERR_INVALID_CHARS,
                                        bytes.data(), static_cast<int>(bytes.size()), out, 4);
  return count == 1 ? static_cast<char16_t>(out[0]) : char16_t{0};
}

}  // namespace

int SystemCodePage() { return static_cast<int>(GetACP()); }

bool LoadCodePage(int codePage, CCodePageTable& table) {
  CPINFO info{};
  if (!GetCPInfo(static_cast<UINT>(codePage), &info) || info.MaxCharSize > 2) return false;
  for (std::size_t i = 0; i < 256; ++i) {
    table.m_arrLead[i] = info.MaxCharSize == 2 &&
                         IsDBCSLeadByteEx(static_cast<UINT>(codePage), static_cast<BYTE>(i));
    if (!table.m_arrLead[i]) {
      table.m_arrSingle[i] = Decode(codePage, std::string(1, static_cast<char>(i)));
    }
  }
  if (info.MaxCharSize < 2) return true;
  table.m_arrPair.assign(0x10000, 0);
  for (std::size_t i = 0; i < 0x10000; ++i) {
    if (!table.m_arrLead[i >> 8]) continue;
    table.m_arrPair[i] =
        Decode(codePage, std::string{static_cast<char>(i >> 8), static_cast<char>(i & 0xFF)});
  }
  return true;
}

}  // namespace orv3
