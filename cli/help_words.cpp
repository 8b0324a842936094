#include "help_words.h"

#include "framework/language.h"

namespace orv3::cli {
namespace {

struct CHelpWord {
  const char* m_szLabel;  // the parser's
  const char* m_szChinese;
};
constexpr CHelpWord kWords[] = {
    {"Usage", "用法"},          {"OPTIONS", "选项"},
    {"SUBCOMMAND", "命令"},     {"SUBCOMMANDS", "命令"},
    {"Positionals", "参数"},    {"REQUIRED", "必填"},
    {"Excludes", "不能同时用"}, {"Needs", "须同时用"},
    {"TEXT", "文字"},           {"INT", "整数"},
    {"UINT", "整数"},           {"FLOAT", "数值"},
};

void Group(CLI::App& command) {
  command.set_help_flag("-h,--help", Say("显示此说明", "Print this help message and exit"));
  for (CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) option->group(Say("选项", "Options"));
  }
  for (CLI::App* each : command.get_subcommands({})) {
    if (!each->get_group().empty()) each->group(Say("命令", "Subcommands"));
    Group(*each);
  }
}

}  // namespace

void SayHelpWords(CLI::App& command) {
  if (MessageLanguage() == CLanguage::Chinese) {
    for (const CHelpWord& word : kWords)
      command.get_formatter()->label(word.m_szLabel, word.m_szChinese);
  }
  Group(command);
}

}  // namespace orv3::cli
