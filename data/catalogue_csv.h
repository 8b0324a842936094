// The catalogue's CSV files: one for each rolled-section table that is printed in a standard. The
// first line holds the column signs, every other one a section.
#pragma once

#include <stdexcept>
#include <string>

#include "tables/data_table.h"

namespace orv3::catalogue {

// One line that names file and row.
class CCatalogueError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The table of the style, 0 to 26, whose data file is the CSV's with ".kvb" for ".csv".
CDataTable ReadCsvTable(const std::string& folder, int style);

}  // namespace orv3::catalogue
