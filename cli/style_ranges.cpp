#include "style_ranges.h"

#include <algorithm>
#include <cmath>

#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "members/cases/member_row.h"
#include "output.h"

namespace orv3::cli {
namespace {

constexpr std::size_t kMostSections =
    20'000;  // of all ranges; the torsion of one takes milliseconds

[[noreturn]] void RefuseStyle(const std::string& what) { Refuse("--style: " + what); }

[[noreturn]] void RefuseSize(const std::string& name) {
  RefuseStyle(Say("{1} 不可用；请给出一个数，或 [从, 到, 步长]，步长大于 0",
                  "{1} is not possible; give a number, or [from, to, step] with a step above 0",
                  {name}));
}

[[noreturn]] void RefuseCount() {
  RefuseStyle(Say("截面多于 {1} 个；请缩小范围或加大步长",
                  "asks for more than {1} sections; give smaller ranges or greater steps",
                  {std::to_string(kMostSections)}));
}

// The end belongs to the range when steps reach it, but for the last digits of a decimal step.
std::vector<double> SizesOf(const std::string& name, const CJson& value) {
  constexpr double kLastDigits = 1e-9;
  if (value.is_number()) return {value.get<double>()};
  const auto isNumber = [](const CJson& each) { return each.is_number(); };
  if (!value.is_array() || value.size() != 3 || !std::all_of(value.begin(), value.end(), isNumber))
    RefuseSize(name);
  const double from = value[0].get<double>(), to = value[1].get<double>();
  const double step = value[2].get<double>();
  const double steps = std::floor((to - from) / step + kLastDigits);
  if (!(step > 0 && to >= from && std::isfinite(steps))) RefuseSize(name);
  if (steps >= static_cast<double>(kMostSections)) RefuseCount();
  std::vector<double> sizes;
  // Tenths of a step come out as they are written: 0.3 and not 0.1 + 0.2.
  for (int i = 0; i <= static_cast<int>(steps); ++i)
    sizes.push_back(std::round((from + i * step) * 1e6) / 1e6);
  return sizes;
}

// "b" of the column "b(mm)".
std::string SizeName(const CSizeColumn& column) {
  const std::string sign = ToUtf8(CString(column.m_szSign));
  return sign.substr(0, sign.find('('));
}

const CSectionStyle& StyleOf(const CJson& json) {
  const auto text = json.find("style");
  const bool bText = text != json.end() && (text->is_string() || text->is_number());
  const std::string name = !bText              ? ""
                           : text->is_string() ? text->get<std::string>()
                                               : text->dump();
  const CSectionStyle* style = StyleNamed(name);
  if (style == nullptr) {
    RefuseStyle(Say("style“{1}”不是截面种类；请给出 orv3cal styles 列出的别名，如 h 或 box",
                    "style \"{1}\" is no section style; give an alias that orv3cal styles lists, "
                    "such as h or box",
                    {Excerpt(name)}));
  }
  return *style;
}

void NeedKnownKeys(const CSectionStyle& style, const CJson& json) {
  std::string names;
  for (const CSizeColumn& column : style.Sizes()) names += ", " + SizeName(column);
  for (const auto& [key, value] : json.items()) {
    const auto isIt = [&key = key](const CSizeColumn& each) { return SizeName(each) == key; };
    if (key == "style" || std::any_of(style.Sizes().begin(), style.Sizes().end(), isIt)) continue;
    RefuseStyle(Say("没有键 {1}；可用的是 style{2}", "no key {1}; there are style{2}",
                    {Excerpt(key), names}));
  }
}

}  // namespace

void AddStyleRanges(const std::string& text, std::vector<CMemberCandidate>& candidates) {
  const CJson json = CJson::parse(text, nullptr, false);
  if (!json.is_object())
    RefuseStyle(
        Say("“{1}”不是 JSON 对象；应如 {2}", "\"{1}\" is no JSON object; give one as {2}",
            {Excerpt(text), R"({"style": "box", "b": [200, 400, 50], "h": 400, "t": 16})"}));
  const CSectionStyle& style = StyleOf(json);
  NeedKnownKeys(style, json);
  std::vector<std::vector<double>> sections(1);
  for (const CSizeColumn& column : style.Sizes()) {
    const std::string name = SizeName(column);
    const auto value = json.find(name);
    if (value == json.end())
      RefuseStyle(Say("缺少 {1}；请给出一个数，或 [从, 到, 步长]",
                      "{1} is missing; give a number, or [from, to, step]", {name}));
    const std::vector<double> sizes = SizesOf(name, *value);
    if (sizes.size() * sections.size() + candidates.size() > kMostSections) RefuseCount();
    std::vector<std::vector<double>> more;
    for (const std::vector<double>& each : sections) {
      for (const double size : sizes) more.emplace_back(each).push_back(size);
    }
    sections = std::move(more);
  }
  for (const std::vector<double>& each : sections)
    candidates.push_back(StyleCandidate(style, each));
}

}  // namespace orv3::cli
