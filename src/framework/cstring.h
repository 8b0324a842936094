// CString: wide text, implicitly shared.
//
// Copying a CString copies a pointer and counts a reference; the characters are copied only when a
// shared text is changed. Counting is atomic, so copies of one text may live on several threads.
// Lengths and positions count wchar_t units and start at 0. A null pointer is the empty text.
#pragma once

#include <atomic>
#include <cstddef>
#include <cwchar>
#include <string>
#include <string_view>

#include "framework/export.h"

class ORV3CAL_API CString {
 public:
  CString() noexcept = default;
  CString(const wchar_t* text);
  CString(const wchar_t* text, int length);
  CString(std::wstring_view text);
  CString(const std::wstring& text) : CString(std::wstring_view(text)) {}
  explicit CString(wchar_t ch, int repeat = 1);
  CString(const CString& other) noexcept : m_pData(other.m_pData) { AddRef(); }
  CString(CString&& other) noexcept : m_pData(other.m_pData) { other.m_pData = nullptr; }
  ~CString() { Release(); }

  CString& operator=(const CString& other) noexcept;
  CString& operator=(CString&& other) noexcept;
  CString& operator=(const wchar_t* text) { return *this = CString(text); }
  CString& operator=(std::wstring_view text) { return *this = CString(text); }
  CString& operator=(const std::wstring& text) { return *this = CString(text); }

  // The characters, ended by a zero; valid until this text is changed.
  const wchar_t* GetString() const noexcept { return m_pData ? Chars(m_pData) : L""; }
  int GetLength() const noexcept { return m_pData ? m_pData->length : 0; }
  bool IsEmpty() const noexcept { return m_pData == nullptr; }
  operator std::wstring_view() const noexcept { return View(); }
  std::wstring_view View() const noexcept {
    return {GetString(), static_cast<std::size_t>(GetLength())};
  }

  static std::wstring_view ViewOf(const wchar_t* text) noexcept {
    return text ? std::wstring_view(text) : std::wstring_view();
  }

  // The character at `index`; CInvalidArgException outside 0..GetLength()-1.
  wchar_t GetAt(int index) const;
  wchar_t operator[](int index) const { return GetAt(index); }
  void SetAt(int index, wchar_t ch);
  void Empty() noexcept;

  // Parts of the text; counts and positions beyond it are taken as its ends.
  CString Left(int count) const;
  CString Right(int count) const;
  CString Mid(int first) const;
  CString Mid(int first, int count) const;

  // The first position of `sub` (`ch`) at or after `start`, -1 when there is none.
  int Find(std::wstring_view sub, int start = 0) const noexcept;
  int Find(const wchar_t* sub, int start = 0) const noexcept { return Find(ViewOf(sub), start); }
  int Find(wchar_t ch, int start = 0) const noexcept;
  int ReverseFind(wchar_t ch) const noexcept;

  // Remove white space (or any of `chars`) from both ends, the left or the right; return *this.
  CString& Trim();
  CString& TrimLeft();
  CString& TrimRight();
  CString& Trim(std::wstring_view chars);
  CString& TrimLeft(std::wstring_view chars);
  CString& TrimRight(std::wstring_view chars);
  CString& Trim(const wchar_t* chars) { return Trim(ViewOf(chars)); }
  CString& TrimLeft(const wchar_t* chars) { return TrimLeft(ViewOf(chars)); }
  CString& TrimRight(const wchar_t* chars) { return TrimRight(ViewOf(chars)); }

  // Replaces every `from` by `to`, scanning once from the left; returns the number replaced.
  int Replace(std::wstring_view from, std::wstring_view to);
  int Replace(const wchar_t* from, const wchar_t* to) { return Replace(ViewOf(from), ViewOf(to)); }

  // Negative, 0 or positive as the text stands before, at or after `other` in UTF-16 code unit
  // order, which is the same on every platform whatever the width of wchar_t.
  int Compare(std::wstring_view other) const noexcept;
  int Compare(const wchar_t* other) const noexcept { return Compare(ViewOf(other)); }

  CString& operator+=(std::wstring_view text);
  CString& operator+=(const wchar_t* text) { return *this += ViewOf(text); }
  CString& operator+=(wchar_t ch) { return *this += std::wstring_view(&ch, 1); }

 private:
  // Stands before the characters in one allocation; the empty text has none.
  struct Data {
    std::atomic<int> refs;
    int length;
    int capacity;
  };

  static wchar_t* Chars(Data* data) noexcept { return reinterpret_cast<wchar_t*>(data + 1); }
  static Data* Allocate(std::size_t length, std::size_t capacity);
  static void Free(Data* data) noexcept;
  void AddRef() noexcept {
    if (m_pData) m_pData->refs.fetch_add(1, std::memory_order_relaxed);
  }
  void Release() noexcept {
    if (m_pData && m_pData->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) Free(m_pData);
  }

  Data* m_pData = nullptr;
};

inline bool operator==(const CString& a, const CString& b) noexcept { return a.View() == b.View(); }
inline bool operator==(const CString& a, std::wstring_view b) noexcept { return a.View() == b; }
inline bool operator==(const CString& a, const wchar_t* b) noexcept {
  return a.View() == CString::ViewOf(b);
}
inline bool operator<(const CString& a, const CString& b) noexcept { return a.Compare(b) < 0; }

ORV3CAL_API CString operator+(const CString& a, const CString& b);
ORV3CAL_API CString operator+(const CString& a, std::wstring_view b);
ORV3CAL_API CString operator+(std::wstring_view a, const CString& b);
inline CString operator+(const CString& a, const wchar_t* b) { return a + CString::ViewOf(b); }
inline CString operator+(const wchar_t* a, const CString& b) { return CString::ViewOf(a) + b; }
inline CString operator+(const CString& a, wchar_t b) { return a + std::wstring_view(&b, 1); }
