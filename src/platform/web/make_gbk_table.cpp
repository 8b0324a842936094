// Writes the code page GBK of this machine as the rows of CGbkRow that web/code_page.cpp includes.
#include <cstdio>

#include "platform/code_page.h"

int main(int argc, char** argv) {
  orv3::CCodePageTable page;
  if (argc != 2 || !orv3::LoadCodePage(936, page)) return 1;
  std::FILE* out = std::fopen(argv[1], "w");
  if (!out) return 1;
  for (int lead = 0; lead < 256; ++lead) {
    std::fprintf(out, "{%d, %d, {", page.m_arrSingle[lead], page.m_arrLead[lead] ? 1 : 0);
    for (int second = 0x40; page.m_arrLead[lead] && second < 0x100; ++second)
      std::fprintf(out, "%d,", page.m_arrPair[lead * 256 + second]);
    std::fprintf(out, "}},\n");
  }
  return std::fclose(out) == 0 ? 0 : 1;
}
