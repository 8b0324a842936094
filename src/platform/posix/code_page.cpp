#include "platform/code_page.h"

#include <iconv.h>

#include <cerrno>

namespace orv3 {
namespace {

class CConverter {
 public:
  explicit CConverter(int codePage)
      : m_handle(::iconv_open("UTF-16LE", ("CP" + std::to_string(codePage)).c_str())) {}
  CConverter(const CConverter&) = delete;
  CConverter& operator=(const CConverter&) = delete;
  ~CConverter() {
    if (IsOpen()) ::iconv_close(m_handle);
  }

  bool IsOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

  // The character of the basic plane that the bytes stand for; 0 for none. `incomplete` tells
  // whether they are the beginning of a longer character.
  char16_t Decode(std::string bytes, bool& incomplete) {
    std::array<unsigned char, 8> out{};
    char* in = bytes.data();
    std::size_t inLeft = bytes.size();
    char* to = reinterpret_cast<char*>(out.data());
    std::size_t outLeft = out.size();
    ::iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
    const bool failed =
        ::iconv(m_handle, &in, &inLeft, &to, &outLeft) == static_cast<std::size_t>(-1);
    incomplete = failed && errno == EINVAL;
    if (failed || out.size() - outLeft != 2) return 0;
    return static_cast<char16_t>(out[0] | (out[1] << 8));
  }

 private:
  iconv_t m_handle;
};

}  // namespace

int SystemCodePage() { return 936; }

bool LoadCodePage(int codePage, CCodePageTable& table) {
  CConverter converter(codePage);
  if (!converter.IsOpen()) return false;
  bool anyLead = false;
  for (std::size_t i = 0; i < 256; ++i) {
    table.m_arrSingle[i] =
        converter.Decode(std::string(1, static_cast<char>(i)), table.m_arrLead[i]);
    anyLead = anyLead || table.m_arrLead[i];
  }
  // Windows counts the euro sign as part of the page.
  if (codePage == 936 && !table.m_arrLead[0x80]) table.m_arrSingle[0x80] = 0x20AC;
  if (!anyLead) return true;
  table.m_arrPair.assign(0x10000, 0);
  for (std::size_t i = 0; i < 0x10000; ++i) {
    if (!table.m_arrLead[i >> 8]) continue;
    bool incomplete = false;
    table.m_arrPair[i] = converter.Decode(
        std::string{static_cast<char>(i >> 8), static_cast<char>(i & 0xFF)}, incomplete);
  }
  return true;
}

}  // namespace orv3
