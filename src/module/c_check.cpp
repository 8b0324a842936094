// The C interface: checks of bolt groups, fillet welds and butt welds as lists of values.
#include <map>
#include <string_view>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "module/c_support.h"

namespace orv3::c_interface {
namespace {

using CValues = std::map<std::string, std::string, std::less<>>;

// A case with m_szKey given (as m_szValue, when there is one) must give m_arrNeeded too. What a
// check refuses by itself, such as a spacing of 0, is not repeated here.
struct CNeed {
  const char* m_szKey;
  const char* m_szValue;
  std::vector<const char*> m_arrNeeded;
};

const std::vector<CNeed>& NeedsOf(const CBoltCheck&) {
  static const std::vector<CNeed> kNeeds = {
      {nullptr,
       nullptr,
       {"layout", "type", "cols", "rows", "d", "N", "Vx", "Vy", "M", "T", "ex", "ey", "t", "steel",
        "grade"}},
      {"type", "ordinary", {"sumT", "nv", "class"}},
      {"type", "bearing", {"sumT", "nv"}},
      {"type", "friction", {"nf", "surface"}},
  };
  return kNeeds;
}

const std::vector<CNeed>& NeedsOf(const CFilletCheck&) {
  static const std::vector<CNeed> kNeeds = {
      {nullptr, nullptr, {"case", "steel", "lw", "N", "M", "V", "betaF"}},
      {"hf", nullptr, {"angle"}},
      {"s", nullptr, {"angle", "groove"}},
  };
  return kNeeds;
}

const std::vector<CNeed>& NeedsOf(const CButtCheck&) {
  static const std::vector<CNeed> kNeeds = {
      {nullptr, nullptr, {"case", "steel", "quality", "lw", "t", "N", "M", "V"}},
  };
  return kNeeds;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kSpace = " \t\r";
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

// A line without a value leaves its key out: an empty cell of a spreadsheet.
CValues ReadValues(const orv3_char* input) {
  const std::string text = Utf8Of(input, "input");
  CValues values;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string_view line = Trimmed(std::string_view(text).substr(at, end - at));
    at = end + 1;
    if (line.empty()) continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
      throw CFailure("input: \"" + std::string(line) + "\" has no \"=\"; give lines key=value");
    const std::string_view value = Trimmed(line.substr(equals + 1));
    if (value.empty()) continue;
    const std::string key(Trimmed(line.substr(0, equals)));
    if (!values.emplace(key, value).second) throw CFailure(key + ": stands twice; give it once");
  }
  return values;
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

std::string Choices(std::span<const char* const> choices) {
  std::string text = choices.empty() ? "give a whole number" : "give one of";
  for (std::size_t i = 0; i < choices.size(); ++i)
    text += std::string(i == 0 ? " " : ", ") + choices[i];
  return text;
}

template <class CASE>
void SetValue(CASE& target, const CInputKey<CASE>& key, const std::string& text) {
  const bool bText =
      !key.m_choices.empty() || std::holds_alternative<std::string CASE::*>(key.m_field);
  bool bSet = false;
  if (bText) {
    bSet = SetInput(target, key, std::string_view(text));
  } else if (text.find(';') == std::string::npos) {
    bSet = SetInput(target, key, NumberOf(key.m_szKey, text));
  } else {
    const std::vector<double> numbers = NumbersOf(key.m_szKey, text);
    bSet = SetInput(target, key, std::span<const double>(numbers));
  }
  if (!bSet) {
    throw CFailure(std::string(key.m_szKey) + ": \"" + text + "\" is not possible; " +
                   Choices(key.m_choices));
  }
}

void CheckNeeds(const std::vector<CNeed>& needs, const CValues& values) {
  for (const CNeed& need : needs) {
    if (need.m_szKey != nullptr) {
      const auto found = values.find(need.m_szKey);
      if (found == values.end()) continue;
      if (need.m_szValue != nullptr && found->second != need.m_szValue) continue;
    }
    for (const char* key : need.m_arrNeeded) {
      if (!values.contains(key)) throw CFailure(std::string(key) + ": is missing; give it");
    }
  }
}

template <class CHECK>
typename CHECK::CCase CaseOf(const CHECK& check, const CValues& values) {
  typename CHECK::CCase input;
  for (const auto& [name, text] : values) {
    bool bKnown = false;
    std::string known;
    for (const auto& key : CHECK::InputKeys()) {
      known += known.empty() ? "" : ", ";
      known += key.m_szKey;
      if (name != key.m_szKey) continue;
      SetValue(input, key, text);
      bKnown = true;
    }
    if (!bKnown) throw CFailure(name + ": is no key of this check; the keys are " + known);
  }
  CheckNeeds(NeedsOf(check), values);
  return input;
}

// A whole number, a double, or a verdict as 1 or 0.
CString ValueText(double value) { return FormatShortest(value); }
CString ValueText(int value) { return FormatInt(value); }

template <class CHECK>
int Check(const orv3_char* text, orv3_char* out, int size) {
  CHECK check;
  const auto input = CaseOf(check, ReadValues(text));
  if (!check.Run(input)) throw CFailure(check.Faults().front().Line(CLanguage::English));
  std::vector<CString> lines{L"pass=" + ValueText(check.Pass() ? 1 : 0),
                             L"utilisation=" + ValueText(check.Worst().m_dUtilisation)};
  for (const auto& key : CHECK::ResultKeys()) {
    if ((key.m_nKinds >> CHECK::Kind(input) & 1U) == 0) continue;
    const CString value =
        std::visit([&](auto field) { return ValueText(check.Results().*field); }, key.m_field);
    lines.push_back(FromUtf8(key.m_szKey) + L"=" + value);
  }
  for (const CCaseWarning& warning : check.Warnings())
    lines.push_back(L"warning=" + FromUtf8(warning.m_text.m_strEnglish));
  return GiveText(JoinLines(lines), out, size);
}

}  // namespace
}  // namespace orv3::c_interface

using namespace orv3;
using namespace orv3::c_interface;

int ORV3_CALL orv3_check_bolt(const orv3_char* input, orv3_char* text, int size) {
  return Guarded([&] { return Check<CBoltCheck>(input, text, size); });
}

int ORV3_CALL orv3_check_fillet(const orv3_char* input, orv3_char* text, int size) {
  return Guarded([&] { return Check<CFilletCheck>(input, text, size); });
}

int ORV3_CALL orv3_check_butt(const orv3_char* input, orv3_char* text, int size) {
  return Guarded([&] { return Check<CButtCheck>(input, text, size); });
}
