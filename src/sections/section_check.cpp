#include "sections/section_check.h"

#include <algorithm>
#include <cmath>
#include <limits>

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
  const char* m_szBound;  // how the bound comes about
  const char* m_szWhy;
};

constexpr double kNoBound = std::numeric_limits<double>::infinity();

// The flanges of a flanged cross reach into the same corner when both are longer than the clear
// distance between the opposite pair.
double FlangeClearOfCorner(const double* s) {
  const double b = s[0], h = s[1], bf1 = s[2], tf = s[5];
  return bf1 > b - 2 * tf ? h - 2 * tf : kNoBound;
}

// In the order in which faults are told: by style, then by what a designer looks at first.
constexpr CRule kRules[] = {
    {kStyleH, 2, CBound::Below, [](const double* s) { return s[1] / 2; }, "h(mm) / 2",
     "the web needs a height between the flanges"},
    {kStyleH, 3, CBound::AtMost, [](const double* s) { return s[0]; }, "b(mm)",
     "the web is no thicker than the section is wide"},
    {kStyleBox, 2, CBound::Below, [](const double* s) { return std::min(s[0], s[1]) / 2; },
     "half the smaller of b(mm) and h(mm)", "the box needs a hole"},
    {kStyleFlangedCross, 2, CBound::AtMost, [](const double* s) { return s[0]; }, "b(mm)",
     "a flange is no longer than the section is wide"},
    {kStyleFlangedCross, 3, CBound::AtMost, [](const double* s) { return s[1]; }, "h(mm)",
     "a flange is no longer than the section is high"},
    {kStyleFlangedCross, 4, CBound::AtMost, [](const double* s) { return std::min(s[2], s[3]); },
     "the smaller of bf1(mm) and bf2(mm)", "the web is no thicker than its flanges are wide"},
    {kStyleFlangedCross, 5, CBound::Below,
     [](const double* s) { return (std::min(s[0], s[1]) - s[4]) / 2; },
     "half of the smaller of b(mm) and h(mm) less tw(mm)",
     "the webs need a length between the crossing and the flanges"},
    {kStyleFlangedCross, 3, CBound::AtMost, FlangeClearOfCorner, "h(mm) - 2 tf(mm)",
     "flanges so wide overlap in the corners"},
    {kStyleTube, 1, CBound::Below, [](const double* s) { return s[0]; }, "R(mm)",
     "the inner radius is below the outer one"},
    {kStyleT, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the web needs a height below the flange"},
    {kStyleGeneralH, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the web needs a height above the flange"},
    {kStyleGeneralH, 3, CBound::Below, [](const double* s) { return s[1] - s[2]; },
     "h(mm) - bh1(mm)", "the web needs a height between the flanges"},
    {kStyleL, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the web needs a height above the leg"},
    {kStyleZ, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the web needs a height above the flange"},
    {kStyleZ, 3, CBound::Below, [](const double* s) { return s[1] - s[2]; }, "h(mm) - bh1(mm)",
     "the web needs a height between the flanges"},
    {kStyleChannel, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the web needs a height above the flange"},
    {kStyleChannel, 3, CBound::Below, [](const double* s) { return s[1] - s[2]; },
     "h(mm) - bh1(mm)", "the web needs a height between the flanges"},
    {kStyleCross, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the bar needs a thickness above the lower arm"},
    {kStyleCross, 3, CBound::Below, [](const double* s) { return s[1] - s[2]; }, "h(mm) - bh1(mm)",
     "the bar needs a thickness between the arms"},
    {kStyleGeneralBox, 2, CBound::Below, [](const double* s) { return s[1]; }, "h(mm)",
     "the box needs a hole"},
    {kStyleGeneralBox, 3, CBound::Below, [](const double* s) { return s[1] - s[2]; },
     "h(mm) - t1(mm)", "the box needs a hole"},
    {kStyleGeneralBox, 4, CBound::Below, [](const double* s) { return s[0]; }, "b(mm)",
     "the box needs a hole"},
    {kStyleGeneralBox, 5, CBound::Below, [](const double* s) { return s[0] - s[4]; },
     "b(mm) - t3(mm)", "the box needs a hole"},
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
          ToUtf8(column.m_szSign) + " (" + column.m_szMeaning + ") = " + Number(value) +
              ": must be " + wanted,
          rule, bound};
}

std::optional<CSectionFault> CheckCount(const CSectionStyle& style, std::size_t count) {
  if (count == style.Sizes().size()) return {};
  std::string text = "style " + std::string(style.m_szAlias) + " takes " +
                     std::to_string(style.m_nSizes) +
                     (style.m_nSizes == 1 ? " size (" : " sizes (");
  for (const CSizeColumn& size : style.Sizes()) {
    if (&size != style.m_arrSize) text += ", ";
    text += ToUtf8(size.m_szSign) + " " + size.m_szMeaning;
  }
  return CSectionFault{.m_strText = text + "), not " + std::to_string(count)};
}

std::optional<CSectionFault> CheckSign(const CSectionStyle& style, std::span<const double> sizes) {
  for (int i = 0; i < style.m_nSizes; ++i) {
    const double value = sizes[static_cast<std::size_t>(i)];
    if (!std::isfinite(value)) return Fault(style, i, value, "a finite number", CSizeRule::Finite);
    const bool zero = MayBeZero(style.m_nStyle, i);
    if (value > 0 || (zero && value == 0)) continue;
    return Fault(style, i, value, zero ? "0 or above" : "above 0",
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
    return Fault(style, rule.m_nSize, value,
                 (strict ? "below " : "at most ") + Number(bound) + " (" + rule.m_szBound +
                     "): " + rule.m_szWhy,
                 strict ? CSizeRule::Below : CSizeRule::AtMost, bound);
  }
  return {};
}

std::string CheckSectionName(std::wstring_view name) {
  const auto is_control = [](wchar_t c) { return c < L' ' || c == L'\x7f'; };
  if (name.size() > static_cast<std::size_t>(kMaxSectionName)) {
    return "has " + std::to_string(name.size()) + " characters: must have at most " +
           std::to_string(kMaxSectionName);
  }
  if (name.find(L',') != std::wstring_view::npos) return "has a comma: it separates values in rows";
  if (std::any_of(name.begin(), name.end(), is_control)) return "has a control character";
  if (!name.empty() && (name.front() == L' ' || name.back() == L' ')) {
    return "has a space at an end: rows are kept without it";
  }
  return {};
}

}  // namespace orv3
