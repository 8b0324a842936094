// The C interface: checks of bolt groups and welds as lists of values.
#include <map>
#include <string_view>

#include "codes/edition.h"
#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "connections/gb2017/bolt_case.h"
#include "connections/gb2017/weld_case.h"
#include "connections/weld_group/group_case.h"
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

const std::vector<CNeed>& NeedsOf(const CBoltCase&) {
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

const std::vector<CNeed>& NeedsOf(const CFilletCase&) {
  static const std::vector<CNeed> kNeeds = {
      {nullptr, nullptr, {"case", "steel", "lw", "N", "M", "V", "betaF"}},
      {"hf", nullptr, {"angle"}},
      {"s", nullptr, {"angle", "groove"}},
  };
  return kNeeds;
}

const std::vector<CNeed>& NeedsOf(const CButtCase&) {
  static const std::vector<CNeed> kNeeds = {
      {nullptr, nullptr, {"case", "steel", "quality", "lw", "t", "N", "M", "V"}},
  };
  return kNeeds;
}

const std::vector<CNeed>& NeedsOf(const CWeldGroupCase&) {
  static const std::vector<CNeed> kNeeds = {
      {nullptr, nullptr, {"welds", "steel", "N", "Vx", "Vy", "M", "T", "x", "y"}},
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
typename CHECK::CCase CaseOf(const CValues& values) {
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
  CheckNeeds(NeedsOf(input), values);
  return input;
}

// A whole number, a double, or a verdict as 1 or 0.
CString ValueText(double value) { return FormatShortest(value); }
CString ValueText(int value) { return FormatInt(value); }

template <class CHECK>
std::vector<CString> Answer(const CValues& values) {
  CHECK check;
  const auto input = CaseOf<CHECK>(values);
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
  return lines;
}

template <class CHECK>
int Check(const orv3_char* text, orv3_char* out, int size) {
  return GiveText(JoinLines(Answer<CHECK>(ReadValues(text))), out, size);
}

using CAnswerOf = std::vector<CString> (*)(const CValues&);

struct CCheckKind {
  const char* m_szName;
  CAnswerOf m_arrAnswer[2];  // by 2003 and by 2017
};
constexpr CCheckKind kCheckKinds[] = {
    {"bolt", {Answer<CBoltCheck>, Answer<CBoltCheck2017>}},
    {"fillet", {Answer<CFilletCheck>, Answer<CFilletCheck2017>}},
    {"butt", {Answer<CButtCheck>, Answer<CButtCheck2017>}},
    {"weld-group", {Answer<CWeldGroupCheck2003>, Answer<CWeldGroupCheck2017>}},
};

// The edition of a case: that of the call, else of its line "code", which goes, else the default.
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

int CheckBy(const std::string& name, const std::string& code, const orv3_char* text, orv3_char* out,
            int size) {
  for (const CCheckKind& kind : kCheckKinds) {
    if (name != kind.m_szName) continue;
    CValues values = ReadValues(text);
    const CCodeEdition edition = EditionOf(code, values);
    std::vector<CString> lines = kind.m_arrAnswer[static_cast<std::size_t>(edition)](values);
    lines.insert(lines.begin(), L"code=" + FromUtf8(EditionFacts(edition).m_szYear));
    return GiveText(JoinLines(lines), out, size);
  }
  throw CFailure("kind: \"" + name + "\" is no check; give bolt, fillet, butt or weld-group");
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

int ORV3_CALL orv3_check(const orv3_char* kind, const orv3_char* code, const orv3_char* input,
                         orv3_char* text, int size) {
  return Guarded([&] {
    return CheckBy(Utf8Of(kind, "kind"), code == nullptr ? "" : Utf8Of(code, "code"), input, text,
                   size);
  });
}
