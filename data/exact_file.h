// The exact properties of the shipped rows, in their file beside the system store.
#pragma once

#include <string>

namespace orv3::catalogue {

// Makes KvbSystemJmDataBase.KXP in the folder from the system store there.
void MakeExactFile(const std::string& folder);

}  // namespace orv3::catalogue
