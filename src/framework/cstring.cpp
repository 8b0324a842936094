#include "framework/cstring.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>
#include <stdexcept>

#include "framework/exception.h"

namespace {

constexpr std::wstring_view kBlanks = L" \t\n\v\f\r";

// Orders characters as their UTF-16 forms are ordered. A character beyond 0xFFFF is written with
// surrogates (0xD800..0xDFFF) there, so that it stands before 0xE000..0xFFFF.
constexpr std::uint32_t Utf16Order(wchar_t ch) noexcept {
  const auto code = static_cast<std::uint32_t>(static_cast<char32_t>(ch));
  if (code > 0xFFFF) return 0xE000 + (code - 0x10000);
  return code < 0xE000 ? code : code + 0x100000;
}

}  // namespace

CString::Data* CString::Allocate(std::size_t length, std::size_t capacity) {
  if (capacity > static_cast<std::size_t>(std::numeric_limits<int>::max()) / sizeof(wchar_t) - 64) {
    throw std::length_error("CString: a text of " + std::to_string(length) +
                            " characters is too long");
  }
  void* memory = ::operator new(sizeof(Data) + (capacity + 1) * sizeof(wchar_t));
  Data* data = new (memory) Data{{1}, static_cast<int>(length), static_cast<int>(capacity)};
  Chars(data)[length] = L'\0';
  return data;
}

void CString::Free(Data* data) noexcept {
  data->~Data();
  ::operator delete(data);
}

CString::CString(const wchar_t* text) : CString(ViewOf(text)) {}

CString::CString(const wchar_t* text, int length)
    : CString(text && length > 0 ? std::wstring_view(text, static_cast<std::size_t>(length))
                                 : L"") {}

CString::CString(std::wstring_view text) {
  if (text.empty()) return;
  m_pData = Allocate(text.size(), text.size());
  std::copy(text.begin(), text.end(), Chars(m_pData));
}

CString::CString(wchar_t ch, int repeat) {
  if (repeat <= 0) return;
  m_pData = Allocate(static_cast<std::size_t>(repeat), static_cast<std::size_t>(repeat));
  std::fill_n(Chars(m_pData), repeat, ch);
}

CString& CString::operator=(const CString& other) noexcept {
  if (m_pData == other.m_pData) return *this;
  CString copy(other);
  return *this = static_cast<CString&&>(copy);
}

CString& CString::operator=(CString&& other) noexcept {
  std::swap(m_pData, other.m_pData);
  return *this;
}

wchar_t CString::GetAt(int index) const {
  orv3::CheckIndex("CString", index, GetLength());
  return GetString()[index];
}

void CString::SetAt(int index, wchar_t ch) {
  orv3::CheckIndex("CString", index, GetLength());
  if (m_pData->refs.load(std::memory_order_acquire) != 1) *this = CString(View());
  Chars(m_pData)[index] = ch;
}

void CString::Empty() noexcept {
  Release();
  m_pData = nullptr;
}

CString CString::Left(int count) const {
  if (count >= GetLength()) return *this;
  return CString(GetString(), count);
}

CString CString::Right(int count) const {
  if (count >= GetLength()) return *this;
  return count > 0 ? CString(GetString() + GetLength() - count, count) : CString();
}

CString CString::Mid(int first) const { return Mid(first, GetLength()); }

CString CString::Mid(int first, int count) const {
  const int begin = std::clamp(first, 0, GetLength());
  const int length = std::clamp(count, 0, GetLength() - begin);
  if (length == GetLength()) return *this;
  return CString(GetString() + begin, length);
}

int CString::Find(std::wstring_view sub, int start) const noexcept {
  if (start < 0 || start > GetLength()) return -1;
  const std::size_t at = View().find(sub, static_cast<std::size_t>(start));
  return at == std::wstring_view::npos ? -1 : static_cast<int>(at);
}

int CString::Find(wchar_t ch, int start) const noexcept {
  return Find(std::wstring_view(&ch, 1), start);
}

int CString::ReverseFind(wchar_t ch) const noexcept {
  const std::size_t at = View().rfind(ch);
  return at == std::wstring_view::npos ? -1 : static_cast<int>(at);
}

CString& CString::Trim() { return Trim(kBlanks); }
CString& CString::TrimLeft() { return TrimLeft(kBlanks); }
CString& CString::TrimRight() { return TrimRight(kBlanks); }
CString& CString::Trim(std::wstring_view chars) { return TrimRight(chars).TrimLeft(chars); }

CString& CString::TrimLeft(std::wstring_view chars) {
  const std::size_t first = View().find_first_not_of(chars);
  if (first == std::wstring_view::npos) {
    Empty();
  } else if (first > 0) {
    *this = Mid(static_cast<int>(first));
  }
  return *this;
}

CString& CString::TrimRight(std::wstring_view chars) {
  const std::size_t last = View().find_last_not_of(chars);
  return *this = Left(last == std::wstring_view::npos ? 0 : static_cast<int>(last) + 1);
}

int CString::Replace(std::wstring_view from, std::wstring_view to) {
  if (from.empty()) return 0;
  std::wstring result;
  int replaced = 0;
  std::size_t begin = 0;
  for (std::size_t at = View().find(from); at != std::wstring_view::npos;
       at = View().find(from, begin)) {
    result.append(View(), begin, at - begin).append(to);
    begin = at + from.size();
    ++replaced;
  }
  if (replaced > 0) *this = CString(result.append(View(), begin));
  return replaced;
}

int CString::Compare(std::wstring_view other) const noexcept {
  const std::wstring_view text = View();
  const auto [a, b] = std::mismatch(text.begin(), text.end(), other.begin(), other.end());
  if (a == text.end()) return b == other.end() ? 0 : -1;
  if (b == other.end()) return 1;
  return Utf16Order(*a) < Utf16Order(*b) ? -1 : 1;
}

CString& CString::operator+=(std::wstring_view text) {
  if (text.empty()) return *this;
  const std::size_t length = View().size() + text.size();
  const bool room = m_pData && m_pData->refs.load(std::memory_order_acquire) == 1 &&
                    static_cast<std::size_t>(m_pData->capacity) >= length;
  if (!room) {
    CString grown;
    grown.m_pData = Allocate(length, std::max(length, View().size() + View().size() / 2));
    std::copy(View().begin(), View().end(), Chars(grown.m_pData));
    std::copy(text.begin(), text.end(), Chars(grown.m_pData) + View().size());
    return *this = static_cast<CString&&>(grown);
  }
  std::copy(text.begin(), text.end(), Chars(m_pData) + m_pData->length);
  m_pData->length = static_cast<int>(length);
  Chars(m_pData)[length] = L'\0';
  return *this;
}

CString operator+(const CString& a, std::wstring_view b) {
  CString sum(a);
  sum += b;
  return sum;
}

CString operator+(const CString& a, const CString& b) { return a + b.View(); }
CString operator+(std::wstring_view a, const CString& b) { return CString(a) + b.View(); }
