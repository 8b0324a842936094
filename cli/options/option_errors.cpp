#include "options/option_errors.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "framework/excerpt.h"
#include "framework/language.h"
#include "options/help_words.h"

namespace orv3::cli {
namespace {

struct CWording {
  const char* m_szParser;  // the parser's text, * for what changes
  CTextLiteral m_sentence;
};

// Every text that CLI11 makes of options as the commands declare them, but for those below. Only
// the last * of a text is what a user typed.
constexpr CWording kWordings[] = {
    {"Expected exactly * arguments to *, got *",
     {"{2}：应给 {1} 个值，给出的是 {3} 个", "{2}: takes {1} values, {3} were given"}},
    {"Expected at least * arguments to *, got *",
     {"{2}：至少应给 {1} 个值，给出的是 {3} 个", "{2}: takes {1} values or more, {3} were given"}},
    {"*: At least * required but received *",
     {"{1}：至少应给 {2} 个值，给出的是 {3} 个", "{1}: takes {2} values or more, {3} were given"}},
    {"*: At Most * required but received *",
     {"{1}：至多可给 {2} 个值，给出的是 {3} 个", "{1}: {2} at most may be given, not {3}"}},
    {"* was given a disallowed flag override",
     {"{1}：是开关，不能给值", "{1}: is a switch and takes no value"}},
    {"*: too many inputs for a flag",
     {"{1}：是开关，不能给值", "{1}: is a switch and takes no value"}},
    {"*: Should be true/false or a number",
     {"{1}：是开关，不能给值", "{1}: is a switch and takes no value"}},
    {"* excludes *", {"{1} 与 {2} 不能同时给出", "{1} and {2} cannot be given together"}},
    {"* requires *", {"{1} 要求同时给出 {2}", "{1} is of no use without {2}; give both"}},
    // Of switches alone: every other option takes a text or has a check of its own.
    {"Could not convert: * = *",
     {"{1}：是开关，不能给值“{2}”", "{1}: is a switch and takes no value, not \"{2}\""}},
};

// What stands in a text for each * of a pattern; nothing when the text is another.
std::optional<std::vector<std::string>> Changing(std::string_view text, std::string_view pattern) {
  std::vector<std::string> parts;
  for (std::size_t star = pattern.find('*');; star = pattern.find('*')) {
    if (!text.starts_with(pattern.substr(0, star))) return {};
    if (star == pattern.npos) break;
    text.remove_prefix(star);
    pattern.remove_prefix(star + 1);
    const std::string_view next = pattern.substr(0, pattern.find('*'));
    const std::size_t end =
        next == pattern ? text.size() - std::min(next.size(), text.size()) : text.find(next);
    if (end == text.npos) return {};
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  if (text != pattern) return {};
  for (std::string& part : parts) part = Excerpt(part);
  parts.resize(3);
  return parts;
}

// The words that no command takes, as they were typed.
std::string NotExpected(const CLI::App& program) {
  std::string words;
  for (const std::string& word : program.remaining(true))
    words += (words.empty() ? "" : " ") + word;
  return Say("没有这样的选项或参数：{1}", "no such option or argument: {1}", {words});
}

// An argument that is missing may stand there behind a hyphen, as a row's number may begin.
std::string ArgumentMissing(const std::string& name, const CLI::App& program) {
  const std::string text = Say("必须给出 {1}", "{1} is missing; it must be given", {name});
  for (const std::string& word : program.remaining(true)) {
    if (!word.starts_with('-')) continue;
    return text + Say("；“{1}”按选项读取，以连字符开头的值请写在 -- 之后",
                      "; \"{1}\" was taken for an option, a value that begins with a hyphen goes "
                      "behind --",
                      {Excerpt(word)});
  }
  return text;
}

std::string ValueMissing(const std::string& name, const CLI::App& command) {
  const CLI::Option* option = command.get_option_no_throw(name);
  return Say("{1}：缺少值；应为 {2}", "{1}: a value is missing; right would be {2}",
             {name, option ? TypeWords(*option) : ""});
}

}  // namespace

std::string OptionErrorText(const CLI::ParseError& error, const CLI::App& program) {
  const std::string text = error.what();
  const CLI::App& command = NamedCommand(program);
  if (dynamic_cast<const CLI::ValidationError*>(&error)) return text;  // a check's own words
  if (dynamic_cast<const CLI::ExtrasError*>(&error)) return NotExpected(program);
  if (text == "A subcommand is required") {
    return Say("没有给出命令；应为下列之一：{1}", "no command is given; right would be one of {1}",
               {CommandNames(command)});
  }
  if (const auto parts = Changing(text, "*: * required * missing")) {
    return ValueMissing(parts->front(), command);
  }
  if (const auto parts = Changing(text, "* is required")) {
    return ArgumentMissing(parts->front(), program);
  }
  for (const CWording& wording : kWordings) {
    if (const auto parts = Changing(text, wording.m_szParser)) {
      return Say(wording.m_sentence.m_szChinese, wording.m_sentence.m_szEnglish,
                 {(*parts)[0], (*parts)[1], (*parts)[2]});
    }
  }
  return text;
}

const CLI::App& NamedCommand(const CLI::App& program) {
  const CLI::App* command = &program;
  while (!command->get_subcommands().empty()) command = command->get_subcommands().front();
  return *command;
}

std::string CommandNames(const CLI::App& command) {
  std::string names;
  for (const CLI::App* each : command.get_subcommands({})) {
    if (!each->get_group().empty()) names += (names.empty() ? "" : ", ") + each->get_name();
  }
  return names;
}

std::string FileName(const std::string& name) {
  return name.empty() ? Say("为空；请给出文件名", "is empty; give the name of a file") : "";
}

}  // namespace orv3::cli
