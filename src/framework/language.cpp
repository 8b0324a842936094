#include "framework/language.h"

#include <atomic>
#include <cstddef>

namespace orv3 {
namespace {

std::atomic<CLanguage> g_language{CLanguage::English};

// `parts` by their numbers in `sentence`; what a part holds is left as it is.
template <class TEXT, class VIEW, class PARTS>
TEXT Filled(VIEW sentence, const PARTS& parts) {
  TEXT text;
  for (std::size_t at = 0; at < sentence.size(); ++at) {
    const bool place = sentence.size() - at > 2 && sentence[at] == '{' && sentence[at + 2] == '}';
    const std::size_t part = place ? static_cast<std::size_t>(sentence[at + 1] - '1') : 0;
    if (!place || part >= parts.size()) {
      text += sentence[at];
      continue;
    }
    text += VIEW(*(parts.begin() + part));
    at += 2;
  }
  return text;
}

CString Wide(const wchar_t* sentence, std::initializer_list<CString> parts) {
  return CString(Filled<std::wstring, std::wstring_view>(std::wstring_view(sentence), parts));
}

}  // namespace

CLanguage MessageLanguage() noexcept { return g_language; }

void SetMessageLanguage(CLanguage language) noexcept { g_language = language; }

CSentence Both(const wchar_t* chinese, const wchar_t* english,
               std::initializer_list<CString> parts) {
  return {Wide(chinese, parts), Wide(english, parts)};
}

CString Say(const wchar_t* chinese, const wchar_t* english, std::initializer_list<CString> parts) {
  return Wide(MessageLanguage() == CLanguage::Chinese ? chinese : english, parts);
}

std::string Say(const char* chinese, const char* english,
                std::initializer_list<std::string_view> parts) {
  const std::string_view sentence = MessageLanguage() == CLanguage::Chinese ? chinese : english;
  return Filled<std::string, std::string_view>(sentence, parts);
}

}  // namespace orv3
