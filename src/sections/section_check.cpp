#include "sections/section_check.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

enum class CBound { Below, AtMost };

// One size against a bound that the others set.
struct CRule {
  int m_nStyle;
  int m_nSize;
  CBound m_nBound;
  double (*m_pBound)(const double* s);
  CTextLiteral m_bound;  // how the bound comes about
  CTextLiteral m_why;
};

constexpr CTextLiteral Signs(const char* signs) { return {signs, signs}; }

constexpr double kNoBound = std::numeric_limits<double>::infinity();

// The flanges of a flanged cross reach into the same corner when both are longer than the clear
// distance between the opposite pair.
double FlangeClearOfCorner(const double* s) {
  const double b = s[0], h = s[1], bf1 = s[2], tf = s[5];
  return bf1 > b - 2 * tf ? h - 2 * tf : kNoBound;
}

// In the order in which faults are told: by style, then by what a designer looks at first.
constexpr CRule kRules[] = {
    {kStyleH,
     2,
     CBound::Below,
     [](const double* s) { return s[1] / 2; },
     Signs("h(mm) / 2"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
    {kStyleH,
     3,
     CBound::AtMost,
     [](const double* s) { return s[0]; },
     Signs("b(mm)"),
     {"腹板不应厚于截面宽度", "the web is no thicker than the section is wide"}},
    {kStyleBox,
     2,
     CBound::Below,
     [](const double* s) { return std::min(s[0], s[1]) / 2; },
     {"b(mm) 与 h(mm) 较小者的一半", "half the smaller of b(mm) and h(mm)"},
     {"箱形截面应为空心", "the box needs a hole"}},
    {kStyleFlangedCross,
     2,
     CBound::AtMost,
     [](const double* s) { return s[0]; },
     Signs("b(mm)"),
     {"翼缘不应长于截面宽度", "a flange is no longer than the section is wide"}},
    {kStyleFlangedCross,
     3,
     CBound::AtMost,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘不应长于截面高度", "a flange is no longer than the section is high"}},
    {kStyleFlangedCross,
     4,
     CBound::AtMost,
     [](const double* s) { return std::min(s[2], s[3]); },
     {"bf1(mm) 与 bf2(mm) 的较小者", "the smaller of bf1(mm) and bf2(mm)"},
     {"腹板不应厚于翼缘宽度", "the web is no thicker than its flanges are wide"}},
    {kStyleFlangedCross,
     5,
     CBound::Below,
     [](const double* s) { return (std::min(s[0], s[1]) - s[4]) / 2; },
     {"b(mm) 与 h(mm) 较小者减 tw(mm) 后的一半",
      "half of the smaller of b(mm) and h(mm) less tw(mm)"},
     {"交点与翼缘之间应有腹板长度", "the webs need a length between the crossing and the flanges"}},
    {kStyleFlangedCross,
     3,
     CBound::AtMost,
     FlangeClearOfCorner,
     Signs("h(mm) - 2 tf(mm)"),
     {"翼缘过宽，在角部重叠", "flanges so wide overlap in the corners"}},
    {kStyleTube,
     1,
     CBound::Below,
     [](const double* s) { return s[0]; },
     Signs("R(mm)"),
     {"内半径应小于外半径", "the inner radius is below the outer one"}},
    {kStyleT,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之下应有腹板高度", "the web needs a height below the flange"}},
    {kStyleGeneralH,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之上应有腹板高度", "the web needs a height above the flange"}},
    {kStyleGeneralH,
     3,
     CBound::Below,
     [](const double* s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
    {kStyleL,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"肢之上应有腹板高度", "the web needs a height above the leg"}},
    {kStyleZ,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之上应有腹板高度", "the web needs a height above the flange"}},
    {kStyleZ,
     3,
     CBound::Below,
     [](const double* s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
    {kStyleChannel,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"翼缘之上应有腹板高度", "the web needs a height above the flange"}},
    {kStyleChannel,
     3,
     CBound::Below,
     [](const double* s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"翼缘之间应有腹板高度", "the web needs a height between the flanges"}},
    {kStyleCross,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"下伸臂之上横板应有厚度", "the bar needs a thickness above the lower arm"}},
    {kStyleCross,
     3,
     CBound::Below,
     [](const double* s) { return s[1] - s[2]; },
     Signs("h(mm) - bh1(mm)"),
     {"两臂之间横板应有厚度", "the bar needs a thickness between the arms"}},
    {kStyleGeneralBox,
     2,
     CBound::Below,
     [](const double* s) { return s[1]; },
     Signs("h(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
    {kStyleGeneralBox,
     3,
     CBound::Below,
     [](const double* s) { return s[1] - s[2]; },
     Signs("h(mm) - t1(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
    {kStyleGeneralBox,
     4,
     CBound::Below,
     [](const double* s) { return s[0]; },
     Signs("b(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
    {kStyleGeneralBox,
     5,
     CBound::Below,
     [](const double* s) { return s[0] - s[4]; },
     Signs("b(mm) - t3(mm)"),
     {"箱形截面应为空心", "the box needs a hole"}},
};

// Sizes that may be 0: overhangs and the arms of a plain cross.
bool MayBeZero(int style, int size) {
  switch (style) {
    case kStyleT:
    case kStyleL:
      return size >= 3;
    case kStyleGeneralH:
    case kStyleZ:
    case kStyleChannel:
      return size >= 4;
    case kStyleCross:
      return size >= 2;
    default:
      return false;
  }
}

std::string Number(double value) { return ToUtf8(FormatShortest(value)); }

CSectionFault Fault(const CSectionStyle& style, int size, double value, const std::string& wanted,
                    CSizeRule rule, double bound = 0) {
  const CSizeColumn& column = style.m_arrSize[size];
  return {size,
          Say("{1}（{2}）= {4}：应{5}", "{1} ({3}) = {4}: must be {5}",
              {ToUtf8(column.m_szSign), ToUtf8(column.m_szTitle), column.m_szMeaning, Number(value),
               wanted}),
          rule, bound};
}

std::optional<CSectionFault> CheckCount(const CSectionStyle& style, std::size_t count) {
  if (count == style.Sizes().size()) return {};
  std::string sizes;
  for (const CSizeColumn& size : style.Sizes()) {
    if (!sizes.empty()) sizes += Say("、", ", ");
    sizes += ToUtf8(size.m_szSign) + " " + Say({ToUtf8(size.m_szTitle), size.m_szMeaning});
  }
  return CSectionFault{
      .m_strText =
          Say("截面 {1} 有 {2} 个尺寸（{3}），给出的是 {4} 个",
              style.m_nSizes == 1 ? "style {1} takes {2} size ({3}), not {4}"
                                  : "style {1} takes {2} sizes ({3}), not {4}",
              {style.m_szAlias, std::to_string(style.m_nSizes), sizes, std::to_string(count)})};
}

std::optional<CSectionFault> CheckSign(const CSectionStyle& style, std::span<const double> sizes) {
  for (int i = 0; i < style.m_nSizes; ++i) {
    const double value = sizes[static_cast<std::size_t>(i)];
    if (!std::isfinite(value))
      return Fault(style, i, value, Say("为有限的数值", "a finite number"), CSizeRule::Finite);
    const bool zero = MayBeZero(style.m_nStyle, i);
    if (value > 0 || (zero && value == 0)) continue;
    return Fault(style, i, value, zero ? Say("不小于 0", "0 or above") : Say("大于 0", "above 0"),
                 zero ? CSizeRule::NotNegative : CSizeRule::Positive);
  }
  return {};
}

}  // namespace

std::optional<CSectionFault> CheckSectionSizes(const CSectionStyle& style,
                                               std::span<const double> sizes) {
  if (auto fault = CheckCount(style, sizes.size())) return fault;
  if (auto fault = CheckSign(style, sizes)) return fault;
  for (const CRule& rule : kRules) {
    if (rule.m_nStyle != style.m_nStyle) continue;
    const double value = sizes[static_cast<std::size_t>(rule.m_nSize)];
    const double bound = rule.m_pBound(sizes.data());
    const bool strict = rule.m_nBound == CBound::Below;
    if (strict ? value < bound : value <= bound) continue;
    return Fault(
        style, rule.m_nSize, value,
        Say(strict ? "小于 {1}（{2}）：{3}" : "不大于 {1}（{2}）：{3}",
            strict ? "below {1} ({2}): {3}" : "at most {1} ({2}): {3}",
            {Number(bound), rule.m_bound.In(MessageLanguage()), rule.m_why.In(MessageLanguage())}),
        strict ? CSizeRule::Below : CSizeRule::AtMost, bound);
  }
  return {};
}

std::string CheckSectionName(std::wstring_view name) {
  const auto is_control = [](wchar_t c) { return c < L' ' || c == L'\x7f'; };
  if (name.size() > static_cast<std::size_t>(kMaxSectionName)) {
    return Say("有 {1} 个字符：最多 {2} 个", "has {1} characters: must have at most {2}",
               {std::to_string(name.size()), std::to_string(kMaxSectionName)});
  }
  if (name.find(L',') != std::wstring_view::npos) {
    return Say("含有逗号：行中用它分隔各值", "has a comma: it separates values in rows");
  }
  if (std::any_of(name.begin(), name.end(), is_control))
    return Say("含有控制字符", "has a control character");
  if (!name.empty() && (name.front() == L' ' || name.back() == L' ')) {
    return Say("首尾有空格：行中不保留", "has a space at an end: rows are kept without it");
  }
  return {};
}

}  // namespace orv3
