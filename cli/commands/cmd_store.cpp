// orv3cal store: what stores hold, and changes to them. One source file for each group of
// subcommands.

#include "commands.h"
#include "framework/language.h"
#include "store/store_commands.h"

namespace orv3::cli {

void AddStoreCommand(CLI::App& program) {
  CLI::App* store = program.add_subcommand(
      "store", Say("查看和修改截面库文件", "Look into table files and change them"));
  store->require_subcommand(1);
  for (const auto add : kStoreCommands) add(*store);
}

}  // namespace orv3::cli
