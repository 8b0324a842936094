// The C interface: checks of bolt groups and welds as lists of values.
#include <string_view>

#include "connections/connection_kinds.h"
#include "framework/utf8.h"
#include "module/c_values.h"

namespace orv3::c_interface {
namespace {

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
  SetValues(input, CHECK::InputKeys(), values);
  CheckNeeds(NeedsOf(input), values);
  return input;
}

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

template <class CHECK2003, class CHECK2017>
std::vector<CString> AnswerBy(const CConnectionKind<CHECK2003, CHECK2017>&, const std::string& code,
                              CValues values) {
  const CCodeEdition edition = EditionOf(code, values);
  std::vector<CString> lines =
      edition == CCodeEdition::Gb2003 ? Answer<CHECK2003>(values) : Answer<CHECK2017>(values);
  lines.insert(lines.begin(), L"code=" + FromUtf8(EditionFacts(edition).m_szYear));
  return lines;
}

int CheckBy(const std::string& name, const std::string& code, const orv3_char* text, orv3_char* out,
            int size) {
  std::vector<CString> lines;
  const auto answer = [&](const auto& kind) { lines = AnswerBy(kind, code, ReadValues(text)); };
  if (WithConnectionKind(name, answer)) return GiveText(JoinLines(lines), out, size);
  std::string names;
  for (const std::string& each : ConnectionKindNames()) names += (names.empty() ? "" : ", ") + each;
  throw CFailure("kind: \"" + name + "\" is no check; there are " + names);
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
