#include "sections/section_check.h"

#include <algorithm>
#include <cmath>

#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/styles/style_form.h"

namespace orv3 {
namespace {

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
    const bool zero = i >= style.m_pForm->m_nMayBeZero;
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
  double all[kSectionSizes] = {};
  std::copy(sizes.begin(), sizes.end(), all);
  for (const CSizeBound& rule : style.m_pForm->m_bounds) {
    const double value = all[rule.m_nSize];
    const double bound = rule.m_pBound(CSizes(all));
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
