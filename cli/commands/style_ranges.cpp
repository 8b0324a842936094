#include "commands/style_ranges.h"

#include <cmath>

#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "members/cases/style_ranges.h"
#include "output/output.h"

namespace orv3::cli {
namespace {

[[noreturn]] void RefuseStyle(const std::string& what) { Refuse("--style: " + what); }

std::string StyleName(const CJson& json) {
  const auto text = json.find("style");
  if (text == json.end()) return "";
  return text->is_string() ? text->get<std::string>() : text->is_number() ? text->dump() : "";
}

// A number, or [from, to, step]; NaN for anything else.
CSizeRange RangeOf(const std::string& name, const CJson& value) {
  if (value.is_number()) return {name, value.get<double>(), value.get<double>(), 0};
  CSizeRange range = {name, NAN, NAN, NAN};
  if (!value.is_array() || value.size() != 3) return range;
  for (const CJson& each : value) {
    if (!each.is_number()) return range;
  }
  return {name, value[0].get<double>(), value[1].get<double>(), value[2].get<double>()};
}

}  // namespace

void AddStyles(const std::string& text, std::vector<CMemberCandidate>& candidates) {
  const CJson json = CJson::parse(text, nullptr, false);
  if (!json.is_object())
    RefuseStyle(
        Say("“{1}”不是 JSON 对象；应如 {2}", "\"{1}\" is no JSON object; give one as {2}",
            {Excerpt(text), R"({"style": "box", "b": [200, 400, 50], "h": 400, "t": 16})"}));
  std::vector<CSizeRange> ranges;
  for (const auto& [key, value] : json.items()) {
    if (key != "style") ranges.push_back(RangeOf(key, value));
  }
  if (const auto fault = AddStyleRanges(StyleName(json), ranges, candidates))
    RefuseStyle(fault->In(MessageLanguage()));
}

}  // namespace orv3::cli
