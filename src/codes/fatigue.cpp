#include "codes/fatigue.h"

#include <cmath>
#include <iterator>

#include "catalogue/code_tables/table_search.h"
#include "codes/gb2017/tables.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

constexpr const char* kCategories2003[] = {"1", "2", "3", "4", "5", "6", "7", "8"};

CCodeAnswer<CFatigueCategory> Category2003(std::string_view name) {
  for (int i = 0; i < 8; ++i) {
    if (name != kCategories2003[i]) continue;
    CFatigueCategory category = {kCategories2003[i], 0, 0, {}, {}, {}};
    CTableSearch::SearchSub7(0, i, category.m_dC);
    CTableSearch::SearchSub7(1, i, category.m_dBeta);
    category.m_dC *= 1e12;
    return {category, {CCodeEdition::Gb2003, {"表 6.2.1-1", "Table 6.2.1-1"}}};
  }
  return NoneOf("category", name, kCategories2003);
}

// The row of "Z1" to "Z14", "J1" to "J3"; null for another name. The rows of Z stand first.
const CFatigueCategory* Row2017(std::string_view name) noexcept {
  constexpr std::size_t kNormal = 14;
  constexpr std::size_t kShear = std::size(gb2017::kFatigue) - kNormal;
  if (name.size() < 2 || name.size() > 3 || (name[0] != 'Z' && name[0] != 'J')) return nullptr;
  std::size_t number = 0;
  for (const char digit : name.substr(1)) {
    if (digit < '0' || digit > '9') return nullptr;
    number = 10 * number + static_cast<std::size_t>(digit - '0');
  }
  const bool bShear = name[0] == 'J';
  if (name[1] == '0' || number > (bShear ? kShear : kNormal)) return nullptr;
  return &gb2017::kFatigue[(bShear ? kNormal : 0) + number - 1];
}

bool IsShear(const CFatigueCategory& category) noexcept { return *category.m_szName == 'J'; }

constexpr double kKnee = 5e6;    // cycles, from which on the slope of Z is beta + 2
constexpr double kCutOff = 1e8;  // cycles, beyond which nothing more is lost

}  // namespace

CCodeAnswer<CFatigueCategory> FatigueCategory(CCodeEdition edition, std::string_view name) {
  if (edition == CCodeEdition::Gb2003) return Category2003(name);
  if (const CFatigueCategory* row = Row2017(name)) {
    const CTextLiteral place = name.front() == 'J'
                                   ? CTextLiteral{"16.2.1 表 16.2.1-2", "16.2.1, Table 16.2.1-2"}
                                   : CTextLiteral{"16.2.1 表 16.2.1-1", "16.2.1, Table 16.2.1-1"};
    return {*row, {edition, place}};
  }
  CCodeRefusal refusal = NoneOf("category", name, {});
  refusal.m_right = {"请给出 Z1 至 Z14（正应力）或 J1 至 J3（剪应力）",
                     "give Z1 to Z14 (normal stress) or J1 to J3 (shear)"};
  return refusal;
}

double AllowableRange(const CFatigueCategory& category, double n) noexcept {
  const double C = category.m_dC;
  const double beta = category.m_dBeta;
  if (category.m_cutOff && n > kCutOff) return *category.m_cutOff;
  if (!category.m_range5e6 || IsShear(category) || n <= kKnee) return std::pow(C / n, 1 / beta);
  const double atKnee = *category.m_range5e6;
  return std::pow(atKnee * atKnee * C / n, 1 / (beta + 2));
}

}  // namespace orv3
