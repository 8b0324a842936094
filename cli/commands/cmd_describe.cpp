// orv3cal describe: the commands with the texts of their help, from which the manual pages are
// made.

#include <memory>
#include <string>

#include "commands.h"
#include "output/output.h"

namespace orv3::cli {
namespace {

CJson OptionJson(const CLI::Formatter& help, const CLI::Option& option) {
  return {{"name", help.make_option_name(&option, option.get_positional())},
          {"takes", help.make_option_opts(&option)},
          {"about", help.make_option_desc(&option)}};
}

CJson CommandJson(const CLI::App& command, const std::string& path) {
  const auto help = std::dynamic_pointer_cast<CLI::Formatter>(command.get_formatter());
  CJson json = {{"command", path},
                {"about", command.get_description()},
                {"usage", help->make_usage(&command, path)},
                {"footer", command.get_footer()}};
  for (const char* list : {"arguments", "options", "commands"}) json[list] = CJson::array();
  for (const CLI::Option* option : command.get_options()) {
    json[option->get_positional() ? "arguments" : "options"].push_back(OptionJson(*help, *option));
  }
  for (const CLI::App* each : command.get_subcommands({})) {
    if (each->get_group().empty()) continue;  // not for people
    json["commands"].push_back(CommandJson(*each, path + " " + each->get_name()));
  }
  return json;
}

}  // namespace

void AddDescribeCommand(CLI::App& program) {
  CLI::App* command = program.add_subcommand("describe", "The commands and their help as JSON");
  command->group("");
  command->callback([&program] { PrintJson(CommandJson(program, program.get_name())); });
}

}  // namespace orv3::cli
