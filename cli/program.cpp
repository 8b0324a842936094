#include "program.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <new>
#include <sstream>

#include "commands.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "input/inputs_read.h"
#include "options/asked_language.h"
#include "options/help_words.h"
#include "options/option_errors.h"
#include "output/output.h"

namespace orv3::cli {
namespace {

// CLI11 takes "[a,b]" for a list; with a mark behind it, which every option takes off again, it is
// a name like any other.
constexpr char kMark = '\x01';

// CLI11 takes "-.5" for an option; "-0.5" it knows for a number.
void SpellOut(std::string& argument) {
  if (argument.starts_with("-.") && IsNumber(FromUtf8(argument))) {
    argument.insert(1, "0");
  }
}

bool IsMarked(const std::string& text) {
  return text.starts_with('[') && text.ends_with(std::string("]") + kMark);
}

void Mark(std::string& argument) {
  if (argument.starts_with('[') && argument.ends_with(']')) argument += kMark;
}

std::string Unmarked(std::string argument) {
  if (IsMarked(argument)) argument.pop_back();
  return argument;
}

void TakeMarksOff(CLI::App& command) {
  for (CLI::Option* option : command.get_options()) {
    option->transform(Unmarked);
  }
  for (CLI::App* each : command.get_subcommands({})) TakeMarksOff(*each);
}

// CLI11 gives "--name=" the next word for its value; behind a blank, nothing is a value.
CArguments WithEmptyValues(const CArguments& arguments) {
  CArguments words;
  bool options = true;
  for (const std::string& word : arguments) {
    options = options && word != "--";
    const bool empty = options && word.starts_with("--") && word.find('=') + 1 == word.size();
    words.push_back(empty ? word.substr(0, word.size() - 1) : word);
    if (empty) words.emplace_back();
  }
  return words;
}

// CLI11 takes the arguments in reverse.
CArguments ForParsing(CArguments arguments) {
  arguments = WithEmptyValues(arguments);
  std::for_each(arguments.begin(), arguments.end(), SpellOut);
  std::for_each(arguments.begin(), arguments.end(), Mark);
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

std::string NotEmptyPath(const std::string& path) {
  return path.empty() ? Say("没有给出名称；应为路径", "names nothing; right would be a path") : "";
}

std::string NotEmptyText(const std::string& text) {
  return text.find_first_not_of(' ') == text.npos
             ? Say("为空；请给出内容，或不写此选项",
                   "is empty; give what is meant, or leave the option out")
             : "";
}

// An option whose value says nothing, such as --store "$UNSET", is no option left out.
void RefuseEmptyValues(CLI::App& command) {
  for (CLI::Option* option : command.get_options()) {
    const std::string type = option->get_type_name();
    if (type.starts_with("FILE") || type == "FOLDER" || type == "DIR" ||
        option->get_name(true) == "FILE") {
      option->check(NotEmptyPath);
    } else if (!option->get_positional() && option->get_items_expected_max() > 0) {
      option->check(NotEmptyText);
    }
  }
  for (CLI::App* each : command.get_subcommands({})) RefuseEmptyValues(*each);
}

// What is wrong with the words up to the last command's name: a command that is none, or an option
// that a command with commands of its own does not have. Empty when nothing is.
std::string UnknownCommand(const CLI::App* command, const CArguments& arguments) {
  for (auto word = arguments.rbegin(); word != arguments.rend(); ++word) {
    const auto commands = command->get_subcommands({});
    if (commands.empty()) return {};
    if (word->starts_with('-')) {
      const std::size_t equals = word->find('=');
      const CLI::Option* option = command->get_option_no_throw(word->substr(0, equals));
      if (!option) return Say("没有这样的选项：{1}", "no such option: {1}", {Excerpt(*word)});
      const bool value = option->get_items_expected_max() > 0 && equals == word->npos;
      if (value && std::next(word) != arguments.rend()) ++word;
      continue;
    }
    const std::string names = CommandNames(*command);
    command = nullptr;
    for (const CLI::App* each : commands) {
      if (each->get_name() == *word) command = each;
    }
    if (!command)
      return Say("“{1}”不是命令；应为下列之一：{2}",
                 "\"{1}\" is no command; right would be one of {2}",
                 {Excerpt(Unmarked(*word)), names});
  }
  return {};
}

// An error's text in which no argument is quoted whole that is too long for it.
std::string WithExcerpts(std::string text, const CArguments& arguments) {
  for (const std::string& argument : arguments) {
    const std::string excerpt = Excerpt(Unmarked(argument));
    const std::size_t at = excerpt == argument ? text.npos : text.find(argument);
    if (at != text.npos) text.replace(at, argument.size(), excerpt);
  }
  return text;
}

// A command's sentence quotes a path whole, but nothing that is longer than any path one types.
std::string Bounded(const std::string& text, const CArguments& typed) {
  constexpr std::size_t kLongestPath = 300;
  CArguments endless;
  for (std::string& argument : ForParsing(typed)) {
    if (argument.size() > kLongestPath) endless.push_back(std::move(argument));
  }
  return WithExcerpts(text, endless);
}

// The command that the first word names, else all: a fifth of a short answer's time is making
// options.
void AddCommands(CLI::App& program, const CArguments& typed) {
  const auto isNamed = [&](const CCommand& command) {
    return !typed.empty() && typed.front() == command.m_strName && !command.m_bOfAll;
  };
  const bool alone = std::any_of(std::begin(kCommands), std::end(kCommands), isNamed);
  for (const CCommand& command : kCommands) {
    if (!alone || isNamed(command)) command.m_pAdd(program);
  }
}

int Run(const CArguments& typed) {
  CArguments arguments = ForParsing(typed);
  TakeLanguage({arguments.rbegin(), arguments.rend()});
  CLI::App program(Say("钢结构截面与连接计算，按 GB 50017（2017 版和 2003 版）",
                       "Sections and connection checks of structural steel, by GB 50017 (editions "
                       "of 2017 and 2003)"),
                   "orv3cal");
  program.set_version_flag("--version", "orv3cal " ORV3CAL_VERSION,
                           Say("显示版本", "Display program version information and exit"));
  program.allow_windows_style_options(false);  // "/folder/file" is a path on Windows too
  program.require_subcommand(1);
  program.footer(Say("各命令的用法见 orv3cal COMMAND --help。",
                     "orv3cal COMMAND --help tells what a command takes."));
  AddCommands(program, typed);
  RefuseEmptyValues(program);
  AddLanguageOption(program);
  SayHelpWords(program);
  TakeMarksOff(program);
  if (!std::all_of(arguments.begin(), arguments.end(), IsUtf8)) {
    return Fail(CExit::BadInput, Say("有一个参数不是 UTF-8 文字", "an argument is not UTF-8 text"));
  }
  if (const std::string fault = UnknownCommand(&program, arguments); !fault.empty()) {
    return Fail(CExit::BadInput, fault);
  }
  try {
    program.parse(arguments);
  } catch (const CLI::Success& help) {
    std::ostringstream text;
    const int status = program.exit(help, text, text);
    WriteOutput(text.str());
    return status;
  } catch (const CLI::ParseError& error) {
    std::string name;
    for (const CLI::App* used = &NamedCommand(program); used != &program;
         used = used->get_parent()) {
      name.insert(0, used->get_name() + " ");
    }
    return Fail(CExit::BadInput,
                WithExcerpts(OptionErrorText(error, program), ForParsing(typed)) +
                    Say("（见 orv3cal {1}--help）", " (see orv3cal {1}--help)", {name}));
  }
  return static_cast<int>(CExit::Done);
}

// Run, with every error told.
int RunGuarded(const CArguments& typed) {
  try {
    return Run(typed);
  } catch (const CExit exit) {
    return static_cast<int>(exit);
  } catch (const CCommandError& error) {
    return Fail(error.m_nExit, Bounded(error.what(), typed));
  } catch (const std::bad_alloc&) {
    return Fail(CExit::FileTrouble,
                Say("本机内存不足", "the memory of this machine does not suffice"));
  } catch (const std::exception& error) {
    return Fail(CExit::FileTrouble, error.what());
  }
}

}  // namespace

int Fail(CExit exit, std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  WriteError("orv3cal: " + Visible(text) + '\n');
  return static_cast<int>(exit);
}

int RunProgram(const CArguments& arguments) { return RunGuarded(arguments); }

std::mutex& ProgramTurn() {
  static std::mutex turn;  // the stores in use and the language are of the whole process
  return turn;
}

int RunProgram(const CArguments& arguments, CMemoryStreams& streams) {
  const std::lock_guard lock(ProgramTurn());
  const CUseMemory memory(streams);
  ForgetInputs();
  return RunGuarded(arguments);
}

}  // namespace orv3::cli
