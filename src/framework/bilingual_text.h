// A text in both languages of the system, UTF-8.
#pragma once

#include <string>

namespace orv3 {

enum class CLanguage { Chinese, English };

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

}  // namespace orv3
