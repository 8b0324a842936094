// The commands of orv3cal, one source file each. A command adds itself to the program with its
// options and what it does; it reports failure by throwing CCommandError (error.h), and ends with
// another status than 0 without a word by throwing that CExit.
#pragma once

#include <CLI/App.hpp>
#include <string_view>

namespace orv3::cli {

void AddStylesCommand(CLI::App& program);
void AddSectionCommand(CLI::App& program);
void AddTablesCommand(CLI::App& program);
void AddRowsCommand(CLI::App& program);
void AddShowCommand(CLI::App& program);
void AddOutlineCommand(CLI::App& program);
void AddLatticeCommand(CLI::App& program);
void AddCodeCommand(CLI::App& program);
void AddCheckCommand(CLI::App& program);
void AddChooseCommand(CLI::App& program);
void AddGaugeCommand(CLI::App& program);
void AddStoreCommand(CLI::App& program);
void AddDescribeCommand(CLI::App& program);
void AddCompleteCommand(CLI::App& program);

struct CCommand {
  std::string_view m_strName;
  void (*m_pAdd)(CLI::App&);
  bool m_bOfAll = false;  // tells of all commands
};

// The commands in the order of the help; a new one is entered here.
inline constexpr CCommand kCommands[] = {{"styles", AddStylesCommand},
                                         {"section", AddSectionCommand},
                                         {"tables", AddTablesCommand},
                                         {"rows", AddRowsCommand},
                                         {"show", AddShowCommand},
                                         {"outline", AddOutlineCommand},
                                         {"lattice", AddLatticeCommand},
                                         {"code", AddCodeCommand},
                                         {"check", AddCheckCommand},
                                         {"choose", AddChooseCommand},
                                         {"gauge", AddGaugeCommand},
                                         {"store", AddStoreCommand},
                                         {"describe", AddDescribeCommand, true},
                                         {"complete", AddCompleteCommand, true}};

}  // namespace orv3::cli
