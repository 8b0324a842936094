#include "cases/check_editions.h"

#include "codes/slip.h"
#include "error.h"
#include "framework/excerpt.h"
#include "options/edition_option.h"

namespace orv3::cli {
namespace {

constexpr CCodeEdition kBoth[] = {CCodeEdition::Gb2017, CCodeEdition::Gb2003};
constexpr CTextLiteral kRefused = {"拒绝", "refused"};

}  // namespace

std::span<const CCodeEdition> EditionsNamed(std::string_view text,
                                            std::span<const CCodeEdition> otherwise) {
  if (text == "both") return kBoth;
  for (const CCodeEdition& edition : kBoth) {
    if (text == EditionFacts(edition).m_szYear) return {&edition, 1};
  }
  return otherwise;
}

std::vector<CCodeEdition> EditionsAsked(const std::string& option) {
  const std::string asked = YearAsked(option);
  const auto editions = EditionsNamed(asked.empty() ? "2017" : asked, {});
  if (editions.empty()) {
    const std::string place =
        option.empty() ? Say("环境变量 ORV3CAL_CODE", "the variable ORV3CAL_CODE") : "--code";
    Refuse(Say("{1}：“{2}”不可用；请给出 2017、2003 或 both",
               "{1}: \"{2}\" is not possible; give 2017, 2003 or both", {place, Excerpt(asked)}));
  }
  return {editions.begin(), editions.end()};
}

std::optional<CCaseFault> ReadByBoth(CBoltCase& input) {
  if (input.m_nType != kFrictionBolt) return std::nullopt;
  static constexpr int kSame[] = {-1, 0, 3};  // of the rows of 2017; 3 and 4 have the same figures
  const int surface = input.m_nSurface;
  const std::string number = std::to_string(surface);
  if (surface < 0 || surface >= SurfaceCount(CCodeEdition::Gb2017)) {
    return CCaseFault{"surface",
                      {"由两版规范计算时按 2017 版取值，" + number + " 不可用",
                       number + " is not possible: by both editions it is a row of 2017's table"},
                      {"请给 1 或 2", "give 1 or 2"}};
  }
  input.m_nSurface = kSame[surface];
  if (input.m_nSurface >= 0) return std::nullopt;
  const CTextLiteral name = SurfaceName(CCodeEdition::Gb2017, surface);
  return CCaseFault{
      "surface",
      {number + "（" + name.m_szChinese + "）在 2003 版中没有",
       number + " (" + name.m_szEnglish + ") is no treatment of the 2003 edition"},
      {"请给 1 或 2，或分版本计算", "give 1 or 2, or compute the editions one by one"}};
}

const char* SurfaceOf(const CBoltCase& input, CCodeEdition edition, CLanguage language) {
  return input.m_nType == kFrictionBolt ? SurfaceName(edition, input.m_nSurface).In(language) : "";
}

std::string SurfaceText(const CBoltCase& input, CCodeEdition edition, CLanguage language) {
  if (input.m_nType != kFrictionBolt) return "";
  const std::string number = std::to_string(input.m_nSurface);
  const CTextLiteral name = SurfaceName(edition, input.m_nSurface);
  const CText text = {"摩擦面 " + number + "：" + name.m_szChinese,
                      "surface " + number + ": " + name.m_szEnglish};
  return text.In(language);
}

std::vector<std::string> CAnyEditionRun::RefusedRow(const std::string& number,
                                                    const std::string& id) const {
  return {number, Excerpt(id), Year(), kRefused.In(m_nLanguage), "", m_fault->Line(m_nLanguage)};
}

}  // namespace orv3::cli
