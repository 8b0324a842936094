#include "members/cases/style_ranges.h"

#include <algorithm>
#include <cmath>

#include "framework/excerpt.h"
#include "framework/utf8.h"
#include "members/cases/member_row.h"

namespace orv3 {
namespace {

constexpr std::size_t kMostSections = 20'000;  // of all ranges

CText NoSize(const std::string& name) {
  return {name + " 不可用；请给出一个数，或从、到和大于 0 的步长",
          name + " is not possible; give a number, or from, to and a step above 0"};
}

CText TooMany() {
  const std::string most = std::to_string(kMostSections);
  return {"截面多于 " + most + " 个；请缩小范围或加大步长",
          "asks for more than " + most + " sections; give smaller ranges or greater steps"};
}

// "b" of the column "b(mm)".
std::string SizeName(const CSizeColumn& column) {
  const std::string sign = ToUtf8(CString(column.m_szSign));
  return sign.substr(0, sign.find('('));
}

// The end belongs to the range when steps reach it, but for the last digits of a decimal step.
std::optional<CText> Expand(const CSizeRange& range, std::vector<double>& sizes) {
  constexpr double kLastDigits = 1e-9;
  if (!(std::isfinite(range.m_dFrom) && range.m_dTo >= range.m_dFrom))
    return NoSize(range.m_strName);
  if (range.m_dStep == 0 && range.m_dTo == range.m_dFrom) {
    sizes = {range.m_dFrom};
    return std::nullopt;
  }
  const double steps = std::floor((range.m_dTo - range.m_dFrom) / range.m_dStep + kLastDigits);
  if (!(range.m_dStep > 0 && std::isfinite(steps))) return NoSize(range.m_strName);
  if (steps >= static_cast<double>(kMostSections)) return TooMany();
  // Tenths of a step come out as they are written: 0.3 and not 0.1 + 0.2.
  for (int i = 0; i <= static_cast<int>(steps); ++i)
    sizes.push_back(std::round((range.m_dFrom + i * range.m_dStep) * 1e6) / 1e6);
  return std::nullopt;
}

std::optional<CText> UnknownSize(const CSectionStyle& style,
                                 const std::vector<CSizeRange>& ranges) {
  std::string names;
  for (const CSizeColumn& column : style.Sizes()) names += ", " + SizeName(column);
  for (const CSizeRange& range : ranges) {
    const auto isIt = [&](const CSizeColumn& each) { return SizeName(each) == range.m_strName; };
    if (std::any_of(style.Sizes().begin(), style.Sizes().end(), isIt)) continue;
    const std::string key = Excerpt(range.m_strName);
    return CText{"没有键 " + key + "；可用的是 style" + names,
                 "no key " + key + "; there are style" + names};
  }
  return std::nullopt;
}

}  // namespace

std::optional<CText> AddStyleRanges(const std::string& name, const std::vector<CSizeRange>& ranges,
                                    std::vector<CMemberCandidate>& candidates) {
  const CSectionStyle* style = StyleNamed(name);
  if (style == nullptr) {
    const std::string what = Excerpt(name);
    return CText{"style“" + what + "”不是截面类型；请给出 orv3cal styles 列出的别名，如 h 或 box",
                 "style \"" + what +
                     "\" is no section style; give an alias that orv3cal styles lists, such "
                     "as h or box"};
  }
  if (auto fault = UnknownSize(*style, ranges)) return fault;
  std::vector<std::vector<double>> sections(1);
  for (const CSizeColumn& column : style->Sizes()) {
    const std::string size = SizeName(column);
    const auto range = std::find_if(ranges.begin(), ranges.end(),
                                    [&](const CSizeRange& each) { return each.m_strName == size; });
    if (range == ranges.end())
      return CText{"缺少 " + size + "；请给出一个数，或从、到和步长",
                   size + " is missing; give a number, or from, to and step"};
    std::vector<double> sizes;
    if (auto fault = Expand(*range, sizes)) return fault;
    if (sizes.size() * sections.size() + candidates.size() > kMostSections) return TooMany();
    std::vector<std::vector<double>> more;
    for (const std::vector<double>& each : sections) {
      for (const double value : sizes) more.emplace_back(each).push_back(value);
    }
    sections = std::move(more);
  }
  for (const std::vector<double>& each : sections)
    candidates.push_back(StyleCandidate(*style, each));
  return std::nullopt;
}

}  // namespace orv3
