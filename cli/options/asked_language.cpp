#include "options/asked_language.h"

#include <optional>

#include "error.h"
#include "framework/excerpt.h"
#include "framework/utf8.h"
#include "options/value_checks.h"
#include "platform/places.h"

namespace orv3::cli {
namespace {

constexpr const char* kOption = "--lang";
constexpr const char* kLanguageVariable = "ORV3CAL_LANG";

std::optional<CLanguage> LanguageOf(std::string_view name) {
  if (name == "zh") return CLanguage::Chinese;
  if (name == "en") return CLanguage::English;
  return {};
}

// Of a locale's name as well, such as zh_CN.UTF-8: the variable is often copied from one.
std::optional<CLanguage> LanguageOfLocale(std::string_view name) {
  std::string language(name.substr(0, name.find_first_of("_-.@")));
  for (char& ch : language) ch = (ch >= 'A' && ch <= 'Z') ? static_cast<char>(ch - 'A' + 'a') : ch;
  return LanguageOf(language);
}

// The last one that is given.
std::optional<CLanguage> Given(const std::vector<std::string>& arguments) {
  const std::string assigned = std::string(kOption) + "=";
  std::optional<CLanguage> language;
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    if (arguments[i].starts_with(assigned)) {
      language = LanguageOf(std::string_view(arguments[i]).substr(assigned.size()));
    } else if (arguments[i] == kOption && i + 1 < arguments.size()) {
      language = LanguageOf(arguments[i + 1]);
    }
  }
  return language;
}

std::string Variable() { return ToUtf8(Environment(kLanguageVariable)); }

// What option or variable ask for.
std::optional<CLanguage> Wanted(const std::vector<std::string>& arguments) {
  const std::optional<CLanguage> given = Given(arguments);
  return given ? given : LanguageOfLocale(Variable());
}

}  // namespace

void TakeLanguage(const std::vector<std::string>& arguments) {
  const std::optional<CLanguage> wanted = Wanted(arguments);
  SetMessageLanguage(wanted.value_or(UserLanguage()));
  const std::string variable = Variable();
  if (!wanted && !variable.empty()) {
    Refuse(std::string(kLanguageVariable) + ": \"" + Excerpt(variable) +
           "\" is no language; right would be zh or en (不是语言，应为 zh 或 en)");
  }
}

CLanguage LanguageFor(const std::vector<std::string>& arguments) {
  return Wanted(arguments).value_or(UserLanguage());
}

void AddLanguageOption(CLI::App& command) {
  command
      .add_option_function<std::string>(
          kOption, [](const std::string&) {},
          Say("语言：zh 或 en；不给时按环境变量 ORV3CAL_LANG，再则按系统语言",
              "Language: zh or en; the variable ORV3CAL_LANG if it is not given, else the user's "
              "own"))
      ->check(OneOf({"zh", "en"}))
      ->type_name("zh|en");
  for (CLI::App* each : command.get_subcommands({})) AddLanguageOption(*each);
}

}  // namespace orv3::cli
