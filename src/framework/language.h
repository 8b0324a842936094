// The two languages of messages, answers and reports, and texts in both.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

enum class CLanguage { Chinese, English };

// The language of messages to come, English unless somebody has set another. Of the program.
ORV3CAL_API CLanguage MessageLanguage() noexcept;
ORV3CAL_API void SetMessageLanguage(CLanguage language) noexcept;

// A text in both, UTF-8.
struct CText {
  std::string m_strChinese;
  std::string m_strEnglish;
  const std::string& In(CLanguage language) const noexcept {
    return language == CLanguage::Chinese ? m_strChinese : m_strEnglish;
  }
};

// The same for constant tables.
struct CTextLiteral {
  const char* m_szChinese;
  const char* m_szEnglish;
  const char* In(CLanguage language) const noexcept {
    return language == CLanguage::Chinese ? m_szChinese : m_szEnglish;
  }
};

// A message in both.
struct CSentence {
  CString m_strChinese;
  CString m_strEnglish;
  const CString& In(CLanguage language) const noexcept {
    return language == CLanguage::Chinese ? m_strChinese : m_strEnglish;
  }
};

// A sentence in both languages, in which {1}, {2} ... stand for the parts.
ORV3CAL_API CSentence Both(const wchar_t* chinese, const wchar_t* english,
                           std::initializer_list<CString> parts = {});

// The same in the language of messages.
ORV3CAL_API CString Say(const wchar_t* chinese, const wchar_t* english,
                        std::initializer_list<CString> parts = {});
ORV3CAL_API std::string Say(const char* chinese, const char* english,
                            std::initializer_list<std::string_view> parts = {});
inline std::string Say(const CText& text) { return text.In(MessageLanguage()); }

}  // namespace orv3
