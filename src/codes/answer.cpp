#include "codes/answer.h"

#include "codes/edition.h"
#include "codes/refusals.h"
#include "framework/excerpt.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

template <class NAMES, class NAME>
std::string Joined(const NAMES& names, const char* separator, NAME name) {
  std::string text;
  for (const auto& each : names) text += (text.empty() ? "" : separator) + std::string(name(each));
  return text;
}

template <class NAMES, class NAME>
CText OneOfThem(const NAMES& names, NAME name) {
  const char* chinese = names.size() == 1 ? "请给出 " : "请给出其一：";
  const char* english = names.size() == 1 ? "give " : "give one of ";
  return {chinese + Joined(names, "、", name), english + Joined(names, ", ", name)};
}

}  // namespace

CText SourceText(const CCodeSource& source) {
  const std::string name = EditionFacts(source.m_nEdition).m_szName;
  return {name + " " + source.m_place.m_szChinese, name + ", " + source.m_place.m_szEnglish};
}

std::string CodeNumber(double number) { return ToUtf8(FormatShortest(number)); }

CCodeRefusal NotPossible(const char* argument, double number, CText right) {
  const std::string text = CodeNumber(number);
  return {argument, {text + " 不可用", text + " is not possible"}, std::move(right)};
}

CCodeRefusal NoneOf(const char* argument, std::string_view name,
                    std::span<const char* const> names) {
  const std::string text = Excerpt(name);
  return {argument, {"“" + text + "”不可用", "\"" + text + "\" is not possible"}, OneOf(names)};
}

CCodeRefusal NotInEdition(const char* argument, CCodeEdition edition, const CText& name,
                          CText right) {
  const std::string code = EditionFacts(edition).m_szName;
  return {argument,
          {code + " 没有" + name.m_strChinese, code + " has no " + name.m_strEnglish},
          std::move(right)};
}

CCodeRefusal NotInEdition(CCodeEdition edition, CSteelGrade grade,
                          std::span<const CSteelGrade> grades) {
  const std::string name = GradeName(grade);
  return NotInEdition("grade", edition, {" " + name, name}, OneOf(grades));
}

CText OneOf(std::span<const char* const> names) {
  return OneOfThem(names, [](const char* name) { return name; });
}

CText OneOf(std::span<const CSteelGrade> grades) { return OneOfThem(grades, GradeName); }

CText FromTo(double first, double last, const char* unit) {
  const std::string from = CodeNumber(first);
  const std::string to = CodeNumber(last) + (*unit == 0 ? "" : std::string(" ") + unit);
  return {"请给出 " + from + " 至 " + to, "give " + from + " to " + to};
}

CText AboveZero(double last, const char* unit) {
  const std::string to = CodeNumber(last) + (*unit == 0 ? "" : std::string(" ") + unit);
  return {"请给出大于 0 且不大于 " + to + " 的数", "give a number above 0 and up to " + to};
}

CText ThicknessAbove(double over, double to) {
  const std::string from = CodeNumber(over);
  const std::string upTo = CodeNumber(to);
  return {"请给出大于 " + from + " 且不大于 " + upTo + " mm 的厚度",
          "give a thickness above " + from + " and up to " + upTo + " mm"};
}

}  // namespace orv3
