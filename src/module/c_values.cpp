#include "module/c_values.h"

#include <algorithm>
#include <string_view>

#include "framework/utf8.h"

namespace orv3::c_interface {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kSpace = " \t\r";
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

void AddValue(CValues& values, std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos)
    throw CFailure("input: \"" + std::string(line) + "\" has no \"=\"; give lines key=value");
  const std::string_view value = Trimmed(line.substr(equals + 1));
  if (value.empty()) return;
  const std::string key(Trimmed(line.substr(0, equals)));
  if (!values.emplace(key, value).second) throw CFailure(key + ": stands twice; give it once");
}

// Takes every line without the spaces around it.
template <class TAKE>
void ForEachLine(const orv3_char* input, TAKE take) {
  const std::string text = Utf8Of(input, "input");
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    take(Trimmed(std::string_view(text).substr(at, end - at)));
    at = end + 1;
  }
}

}  // namespace

CValues ReadValues(const orv3_char* input) {
  CValues values;
  ForEachLine(input, [&](std::string_view line) {
    if (!line.empty()) AddValue(values, line);
  });
  return values;
}

std::vector<CValues> ReadValueLists(const orv3_char* input) {
  std::vector<CValues> lists(1);
  ForEachLine(input, [&](std::string_view line) {
    if (!line.empty()) {
      AddValue(lists.back(), line);
    } else if (!lists.back().empty()) {
      lists.emplace_back();
    }
  });
  if (lists.size() > 1 && lists.back().empty()) lists.pop_back();
  return lists;
}

CCodeEdition EditionOf(const std::string& code, CValues& values) {
  std::string year = code;
  if (const auto line = values.find("code"); line != values.end()) {
    if (year.empty()) year = line->second;
    values.erase(line);
  }
  if (year.empty()) return kDefaultEdition;
  const auto edition = EditionByYear(year);
  if (!edition) throw CFailure(edition.Refusal().Text().m_strEnglish);
  return *edition;
}

double NumberOf(const std::string& key, std::string_view text) {
  const CString wide = FromUtf8(Trimmed(text));
  if (!IsNumber(wide))
    throw CFailure(key + ": \"" + std::string(text) + "\" is no number; give one");
  return ToDouble(wide);
}

std::vector<double> NumbersOf(const std::string& key, std::string_view text) {
  std::vector<double> numbers;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(';', at), text.size());
    numbers.push_back(NumberOf(key, text.substr(at, end - at)));
    at = end + 1;
  }
  return numbers;
}

void RefuseValue(const std::string& key, const std::string& text,
                 std::span<const char* const> choices) {
  std::string right = choices.empty() ? "give a whole number" : "give one of";
  for (std::size_t i = 0; i < choices.size(); ++i)
    right += std::string(i == 0 ? " " : ", ") + choices[i];
  throw CFailure(key + ": \"" + text + "\" is not possible; " + right);
}

}  // namespace orv3::c_interface
