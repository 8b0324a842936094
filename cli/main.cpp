// orv3cal COMMAND ...: the sections and checks of the library on a command line.
#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <iostream>

#include "command.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/command_line.h"

namespace {

using orv3::CCommandError;
using orv3::CExit;

constexpr void (*kCommands[])(CLI::App&, CExit&) = {
    orv3::AddStylesCommand,
    orv3::AddSectionCommand,
};

// The command that the arguments name, for the error line.
std::string CommandName(const CLI::App& app) {
  const auto commands = app.get_subcommands();
  return commands.empty() ? "orv3cal" : "orv3cal " + commands.front()->get_name();
}

// The parser takes "-.5" for an option; "-0.5" it knows for a number.
void SpellOut(std::string& argument) {
  if (argument.rfind("-.", 0) == 0 && orv3::IsNumber(orv3::FromUtf8(argument))) {
    argument.insert(1, "0");
  }
}

// The parser does not name a command that it does not know.
void CheckCommand(const CLI::App& app, const std::vector<std::string>& arguments) {
  if (arguments.empty() || arguments[0].rfind('-', 0) == 0) return;
  std::string names;
  for (const CLI::App* command : app.get_subcommands(nullptr)) {
    if (command->get_name() == arguments[0]) return;
    names += " " + command->get_name();
  }
  orv3::BadInput("COMMAND = \"" + arguments[0] + "\" is unknown: must be one of" + names);
}

CExit Fail(const std::string& command, CExit exit, std::string what) {
  std::replace(what.begin(), what.end(), '\n', ' ');
  std::cerr << command << ": " << what << '\n';
  return exit;
}

CExit Run(std::vector<std::string> arguments, CLI::App& app) {
  CExit exit = CExit::Done;
  for (const auto& add : kCommands) add(app, exit);
  if (!std::all_of(arguments.begin(), arguments.end(), orv3::IsUtf8)) {
    return Fail("orv3cal", CExit::BadInput, "an argument is not valid UTF-8 text");
  }
  std::for_each(arguments.begin(), arguments.end(), SpellOut);
  try {
    CheckCommand(app, arguments);
    std::reverse(arguments.begin(), arguments.end());  // as the parser takes them
    app.parse(std::move(arguments));
    return exit;
  } catch (const CCommandError& error) {
    return Fail(CommandName(app), error.Exit(), error.what());
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      app.exit(error);
      return CExit::Done;
    }
    const std::string command = CommandName(app);
    return Fail(command, CExit::BadInput,
                std::string(error.what()) + "; \"" + command + " --help\" tells the usage");
  }
}

}  // namespace

int main(int argc, char** argv) {
  orv3::PrintUtf8();
  CLI::App app("Structural steel sections, catalogues and checks (GB 50017-2003)", "orv3cal");
  app.set_version_flag("--version", "orv3cal " ORV3CAL_VERSION);
  app.allow_windows_style_options(false);
  app.require_subcommand(1);
  app.footer(
      "Exit status: 0 done or check passed, 1 check failed, 2 bad input, 3 file trouble.\n"
      "\"orv3cal COMMAND --help\" tells a command's usage.");
  try {
    CExit exit = Run(orv3::ProgramArguments(argc, argv), app);
    if (!std::cout.flush()) {
      exit = Fail("orv3cal", CExit::FileTrouble, "standard output cannot be written");
    }
    return static_cast<int>(exit);
  } catch (const std::exception& error) {
    return static_cast<int>(Fail("orv3cal", CExit::FileTrouble, error.what()));
  }
}
