#include "platform/code_page.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <type_traits>

#include "framework/utf8.h"
#include "platform/threads.h"

namespace orv3 {
namespace {

constexpr int kUtf8 = 65001;
constexpr wchar_t kReplacement = 0xFFFD;

unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

struct CPage {
  int m_nNumber = 0;
  CCodePageTable m_decode;
  std::vector<std::uint16_t> m_arrEncode;  // by character: one byte, or lead * 256 + second; 0 none
};

void FillEncode(CPage& page) {
  page.m_arrEncode.assign(0x10000, 0);
  const auto put = [&page](char16_t character, std::size_t bytes) {
    std::uint16_t& slot = page.m_arrEncode[character];
    if (character != 0 && slot == 0) slot = static_cast<std::uint16_t>(bytes);
  };
  for (std::size_t i = 0; i < 256; ++i) put(page.m_decode.m_arrSingle[i], i);
  for (std::size_t i = 0; i < page.m_decode.m_arrPair.size(); ++i)
    put(page.m_decode.m_arrPair[i], i);
}

std::unique_ptr<CPage> Load(int number) {
  auto page = std::make_unique<CPage>();
  page->m_nNumber = number;
  if (number != kUtf8) {
    if (!LoadCodePage(number, page->m_decode)) return nullptr;
    FillEncode(*page);
  }
  return page;
}

// Seven-bit text: what is left when the system knows no page at all.
std::unique_ptr<CPage> Ascii() {
  auto page = std::make_unique<CPage>();
  for (std::size_t i = 1; i < 128; ++i) page->m_decode.m_arrSingle[i] = static_cast<char16_t>(i);
  FillEncode(*page);
  return page;
}

// The pages in use so far; a page once loaded stays, so references to it hold.
class CPages {
 public:
  static CPages& Instance() {
    static CPages pages;
    return pages;
  }

  const CPage& Current() {
    const std::lock_guard lock(m_lock);
    if (!m_pCurrent) m_pCurrent = Find(SystemCodePage());
    if (!m_pCurrent) m_pCurrent = (m_pages[0] = Ascii()).get();
    return *m_pCurrent;
  }

  bool Select(int number) {
    const std::lock_guard lock(m_lock);
    const CPage* page = Find(number == 0 ? SystemCodePage() : number);
    if (page) m_pCurrent = page;
    return page != nullptr;
  }

 private:
  const CPage* Find(int number) {
    auto& page = m_pages[number];
    if (!page) page = Load(number);
    return page.get();
  }

  CLock m_lock;
  std::map<int, std::unique_ptr<CPage>> m_pages;
  const CPage* m_pCurrent = nullptr;
};

bool IsUtf8Tail(char c) { return (Byte(c) & 0xC0) == 0x80; }

// The bytes of the UTF-8 character that starts with `lead`.
std::size_t Utf8Length(char lead) {
  const unsigned char byte = Byte(lead);
  if (byte < 0xC0) return 1;
  return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

std::size_t CharacterLength(const CPage& page, char lead) {
  if (page.m_nNumber == kUtf8) return Utf8Length(lead);
  return page.m_decode.m_arrLead[Byte(lead)] ? 2 : 1;
}

std::size_t Cut(const CPage& page, std::string_view bytes, std::size_t limit) {
  if (page.m_nNumber == kUtf8) {
    std::size_t start = std::min(limit, bytes.size());
    if (start == bytes.size() && start > 0) {  // whole unless the last character lacks bytes
      std::size_t last = start - 1;
      while (last > 0 && IsUtf8Tail(bytes[last])) --last;
      return last + Utf8Length(bytes[last]) > bytes.size() ? last : start;
    }
    while (start > 0 && IsUtf8Tail(bytes[start])) --start;
    return start;
  }
  limit = std::min(limit, bytes.size());
  std::size_t at = 0;
  while (at < limit) {
    const std::size_t length = CharacterLength(page, bytes[at]);
    if (at + length > limit) break;
    at += length;
  }
  return at;
}

}  // namespace

int AnsiCodePage() { return CPages::Instance().Current().m_nNumber; }

bool SetAnsiCodePage(int codePage) { return CPages::Instance().Select(codePage); }

std::string ToAnsi(std::wstring_view text, bool* missing) {
  const CPage& page = CPages::Instance().Current();
  if (page.m_nNumber == kUtf8) return ToUtf8(text);
  std::string bytes(2 * text.size(), '\0');
  char* end = bytes.data();
  for (const wchar_t ch : text) {
    const auto code = std::uint32_t{static_cast<std::make_unsigned_t<wchar_t>>(ch)};
    const std::uint16_t encoded = code < 0x10000 ? page.m_arrEncode[code] : std::uint16_t{0};
    if (encoded > 0xFF) *end++ = static_cast<char>(encoded >> 8);
    if (encoded == 0 && missing) *missing = true;
    *end++ = encoded == 0 ? '?' : static_cast<char>(encoded & 0xFF);
  }
  bytes.resize(static_cast<std::size_t>(end - bytes.data()));
  return bytes;
}

CString FromAnsi(std::string_view bytes) {
  const CPage& page = CPages::Instance().Current();
  if (page.m_nNumber == kUtf8) return FromUtf8(bytes.substr(0, Cut(page, bytes, bytes.size())));
  std::wstring text(bytes.size(), L'\0');
  wchar_t* end = text.data();
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const char byte = bytes[at];
    char16_t character = page.m_decode.m_arrSingle[Byte(byte)];
    if (page.m_decode.m_arrLead[Byte(byte)]) {
      if (at + 1 == bytes.size()) break;
      // A byte that cannot follow a lead byte stands for itself.
      character = page.m_decode.m_arrPair[std::size_t{Byte(byte)} * 256 + Byte(bytes[at + 1])];
      if (character) ++at;
    }
    *end++ = character ? static_cast<wchar_t>(character) : kReplacement;
  }
  return CString(text.data(), static_cast<int>(end - text.data()));
}

bool HasMeaningless(std::wstring_view text) {
  return std::any_of(text.begin(), text.end(), [](wchar_t ch) {
    return ch == kReplacement || (ch >= 0xE000 && ch <= 0xF8FF);
  });
}

std::size_t AnsiCut(std::string_view bytes, std::size_t limit) {
  return Cut(CPages::Instance().Current(), bytes, limit);
}

}  // namespace orv3
