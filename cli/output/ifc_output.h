// Sections as an IFC4 library of profiles (catalogue/ifc/ifc_library.h).
#pragma once

#include <string>
#include <vector>

#include "tables/data_item.h"
#include "tables/data_table.h"

namespace orv3::cli {

// CCommandError, which names it, for a row whose sizes bound no section.
std::string IfcText(const std::vector<CDataItem>& rows, const std::string& name);

// All rows of the tables. CCommandError for a table of no sections too.
std::string IfcText(const std::vector<CDataTable>& tables, const std::string& name);

}  // namespace orv3::cli
