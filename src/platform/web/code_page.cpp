// GBK from a table; no other page is known here.
#include "platform/code_page.h"

#include <algorithm>
#include <iterator>

namespace orv3 {
namespace {

constexpr std::size_t kFirstSecond = 0x40;  // second bytes from 0x40 to 0xFF

struct CGbkRow {
  char16_t m_cSingle;
  bool m_bLead;
  char16_t m_arrPair[0x100 - kFirstSecond];
};

constexpr CGbkRow kGbk[] = {
#include "gbk_table.inc"
};
static_assert(std::size(kGbk) == 256);

}  // namespace

int SystemCodePage() { return 936; }

bool LoadCodePage(int codePage, CCodePageTable& table) {
  if (codePage != 936) return false;
  table.m_arrPair.assign(0x10000, 0);
  for (std::size_t i = 0; i < std::size(kGbk); ++i) {
    table.m_arrSingle[i] = kGbk[i].m_cSingle;
    table.m_arrLead[i] = kGbk[i].m_bLead;
    std::copy(std::begin(kGbk[i].m_arrPair), std::end(kGbk[i].m_arrPair),
              table.m_arrPair.begin() + static_cast<std::ptrdiff_t>(i * 256 + kFirstSecond));
  }
  return true;
}

}  // namespace orv3
