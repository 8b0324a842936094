// The system store that comes with the program.
#pragma once

#include <string>

namespace orv3::catalogue {

// Makes KvbSystemJmDataBase.KDB in the folder, which holds the 54 data files; a store that is there
// is replaced. The same data files give the same bytes on every day and machine.
void MakeSystemStore(const std::string& folder);

}  // namespace orv3::catalogue
