#include "options/value_checks.h"

#include "framework/excerpt.h"
#include "framework/language.h"

namespace orv3::cli {
namespace {

// A check of the parser's with a sentence in the language of messages.
CLI::Validator Worded(const CLI::Validator& check, const std::string& right) {
  const auto refusal = [check, right](const std::string& value) {
    return check(value).empty()
               ? std::string()
               : Say("“{1}”不可用；应为{2}", "\"{1}\" is not possible; right would be {2}",
                     {Excerpt(value), right});
  };
  return CLI::Validator(refusal, check.get_description());
}

}  // namespace

CLI::Validator OneOf(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) list += (list.empty() ? "" : ", ") + word;
  return Worded(CLI::IsMember(words), Say("下列之一：{1}", "one of {1}", {list}));
}

CLI::Validator Within(int least, int most) {
  return Worded(CLI::Range(least, most), Say(" {1} 至 {2} 的整数", "a whole number from {1} to {2}",
                                             {std::to_string(least), std::to_string(most)}));
}

}  // namespace orv3::cli
