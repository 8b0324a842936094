#include "options/help_words.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "framework/language.h"
#include "framework/utf8.h"
#include "output/text_table.h"

namespace orv3::cli {
namespace {

constexpr int kIndent = 2;
constexpr int kColumn = 30;  // where what an option does begins
constexpr int kWidth = 100;  // of a whole line

bool MayBreakBetween(wchar_t before, wchar_t after) {
  constexpr std::wstring_view kClosing = L"，。、；：）？”";
  constexpr std::wstring_view kOpening = L"（“";
  if (before == L' ' || before == L'\n') return true;
  if (kClosing.find(after) != kClosing.npos || kOpening.find(before) != kOpening.npos) return false;
  const auto wide = [](wchar_t ch) { return DisplayWidth(ToUtf8({&ch, 1})) > 1; };
  return wide(before) || wide(after);
}

// A text over lines of a width, broken at spaces and beside Chinese characters.
std::vector<std::string> Wrapped(const std::string& about, int width) {
  const CString text = FromUtf8(about);
  const std::wstring_view all = text.View();
  std::vector<std::string> lines(1);
  std::size_t begin = 0;
  for (std::size_t i = 1; i <= all.size(); ++i) {
    if (i < all.size() && !MayBreakBetween(all[i - 1], all[i])) continue;
    std::string piece = ToUtf8(all.substr(begin, i - begin));
    begin = i;
    const bool ends = piece.ends_with('\n');
    if (ends) piece.pop_back();
    const int filled = DisplayWidth(lines.back());
    if (filled > 0 && filled + DisplayWidth(piece) > width + piece.ends_with(' ')) {
      lines.emplace_back();
    }
    lines.back() += piece;
    if (ends) lines.emplace_back();
  }
  return lines;
}

// An entry: its name, and what it is from the column on, a line lower where the name is long.
std::string Entry(const std::string& name, const std::string& about) {
  std::string text = std::string(kIndent, ' ') + name;
  int filled = DisplayWidth(text);
  if (filled >= kColumn) {
    text += '\n';
    filled = 0;
  }
  for (const std::string& line : Wrapped(about, kWidth - kColumn)) {
    text.append(static_cast<std::size_t>(kColumn - filled), ' ');
    text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    filled = 0;
  }
  return text;
}

// The parser's word for what an option takes, in the language of messages.
std::string TypeWord(const std::string& type) {
  struct CWord {
    const char* m_szType;
    const char* m_szChinese;
    const char* m_szEnglish;
  };
  constexpr CWord kWords[] = {
      {"TEXT", "文字", "TEXT"},       {"INT", "整数", "INTEGER"},      {"UINT", "整数", "INTEGER"},
      {"FLOAT", "数值", "NUMBER"},    {"NUMBER...", "数值", "NUMBER"}, {"FILE", "文件", "FILE"},
      {"FOLDER", "文件夹", "FOLDER"}, {"DIR", "文件夹", "FOLDER"},     {"NAME", "名称", "NAME"},
      {"YEAR", "年份", "YEAR"},       {"EXPR", "条件", "EXPR"},        {"MM", "mm", "MM"},
  };
  for (const CWord& word : kWords) {
    if (type == word.m_szType) return Say(word.m_szChinese, word.m_szEnglish);
  }
  return type;
}

// What an option takes: the words of a set "TYPE:{A,B}", or a type with the limits of
// "TYPE:INT in [A - B]", as the parser writes them. A colon in brackets is the type's own.
std::string Takes(const std::string& type) {
  const std::size_t first = type.find_first_of(":[");
  const std::size_t colon = type.substr(0, first + 1).ends_with(':') ? first : type.npos;
  const std::string word = TypeWord(type.substr(0, colon));
  if (colon == type.npos) return word;
  std::string limits = type.substr(colon + 1);
  if (limits.starts_with('{')) {
    std::replace(limits.begin(), limits.end(), ',', '|');
    return limits.substr(1, limits.size() - 2);
  }
  const std::size_t from = limits.find('[');
  const std::size_t dash = limits.find(" - ");
  if (from == limits.npos || dash == limits.npos) return word;
  const std::string least = limits.substr(from + 1, dash - from - 1);
  const std::string most = limits.substr(dash + 3, limits.size() - dash - 4);
  return Say("{1}（{2} 至 {3}）", "{1} ({2} to {3})", {word, least, most});
}

// Columns by what a terminal shows, not by bytes, and no word of the parser's own language.
class CHelpFormatter : public CLI::Formatter {
 public:
  std::string make_option(const CLI::Option* option, bool positional) const override {
    return Entry(make_option_name(option, positional) + make_option_opts(option),
                 make_option_desc(option));
  }

  std::string make_subcommand(const CLI::App* command) const override {
    return Entry(command->get_name(), command->get_description());
  }

  // An argument's own name says what it is, and the line of usage whether it may be left out.
  std::string make_option_opts(const CLI::Option* option) const override {
    std::string text;
    const std::string type = TypeWords(*option);
    const bool set = option->get_type_name().find('{') != type.npos;
    if (!type.empty() && (set || option->nonpositional())) text = " " + type;
    if (option->get_expected_max() == CLI::detail::expected_max_vector_size) text += " ...";
    if (option->nonpositional() && option->get_required()) text += Say("（必填）", " (required)");
    std::string others;
    for (const CLI::Option* other : option->get_excludes()) {
      others += (others.empty() ? "" : ", ") + other->get_name();
    }
    if (!others.empty()) text += Say("（不与 {1} 同用）", " (not with {1})", {others});
    return text;
  }
};

void SayWords(CLI::App& command, const std::shared_ptr<CHelpFormatter>& formatter) {
  command.formatter(formatter);
  command.set_help_flag("-h,--help", Say("显示此说明", "Print this help message and exit"));
  for (CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) option->group(Say("选项", "Options"));
  }
  for (CLI::App* each : command.get_subcommands({})) {
    if (!each->get_group().empty()) each->group(Say("命令", "Subcommands"));
    SayWords(*each, formatter);
  }
}

}  // namespace

std::string TypeWords(const CLI::Option& option) {
  const std::string type = option.get_type_size() != 0 ? option.get_type_name() : "";
  return type.empty() ? type : Takes(type);
}

void SayHelpWords(CLI::App& command) {
  const auto formatter = std::make_shared<CHelpFormatter>();
  formatter->label("Usage", Say("用法", "Usage"));
  formatter->label("OPTIONS", Say("选项", "OPTIONS"));
  formatter->label("SUBCOMMAND", Say("命令", "SUBCOMMAND"));
  formatter->label("SUBCOMMANDS", Say("命令", "SUBCOMMANDS"));
  formatter->label("Positionals", Say("参数", "Arguments"));
  SayWords(command, formatter);
}

}  // namespace orv3::cli
