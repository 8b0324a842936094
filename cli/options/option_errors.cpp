#include "options/option_errors.h"

#include <regex>

#include "framework/language.h"

namespace orv3::cli {
namespace {

struct CWording {
  const char* m_szEnglish;  // a pattern of the parser's whole text
  const char* m_szChinese;
};

// Every text that CLI11 makes of options as the commands declare them.
constexpr CWording kWordings[] = {
    {"The following arguments? (?:was|were) not expected: (.*)", "没有这样的选项或参数：$1"},
    {"A subcommand is required", "请给出子命令"},
    {"(.*) is required", "必须给出 $1"},
    {"(.*): (\\d+) required (.*) missing", "$1：缺少 $2 个值（$3）"},
    {"Expected exactly (\\d+) arguments to (.*), got (\\d+)", "$2：应给 $1 个值，给出的是 $3 个"},
    {"Expected at least (\\d+) arguments to (.*), got (\\d+)",
     "$2：至少应给 $1 个值，给出的是 $3 个"},
    {"(.*): At least (\\d+) required but received (\\d+)", "$1：至少应给 $2 个值，给出的是 $3 个"},
    {"(.*): At Most (\\d+) required but received (\\d+)", "$1：至多可给 $2 个值，给出的是 $3 个"},
    {"(.*) was given a disallowed flag override", "$1：是开关，不能给值"},
    {"(.*): too many inputs for a flag", "$1：是开关，不能给值"},
    {"(.*): Should be true/false or a number", "$1：应为 true、false 或数值"},
    {"(.*) excludes (.*)", "$1 与 $2 不能同时给出"},
    {"(.*) requires (.*)", "$1 要求同时给出 $2"},
    {"Could not convert: (.*) = (.*)", "$1：“$2”不可用，应为数值"},
    {"The value (.*) is not an allowed value for (.*)", "$2：“$1”不可用"},
    {"(.*): Value (.*) not in range (.*) to (.*)", "$1：“$2”不可用，应为 $3 至 $4"},
    {"(.*): Value (.*) could not be converted", "$1：“$2”不可用，应为数值"},
    {"(.*): (.*) not in \\{(.*)\\}", "$1：“$2”不可用，应为下列之一：$3"},
};

}  // namespace

std::string OptionErrorText(const CLI::ParseError& error) {
  const std::string text = error.what();
  if (MessageLanguage() == CLanguage::English) return text;
  for (const CWording& wording : kWordings) {
    std::smatch parts;
    if (std::regex_match(text, parts, std::regex(wording.m_szEnglish)))
      return parts.format(wording.m_szChinese);
  }
  return text;  // of a check that has its words from the command
}

std::string FileName(const std::string& name) {
  return name.empty() ? Say("为空；请给出文件名", "is empty; give the name of a file") : "";
}

}  // namespace orv3::cli
