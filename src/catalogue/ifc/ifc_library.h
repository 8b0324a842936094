// Section rows as a library of profiles for building models: an IFC4 file.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {

struct CIfcLibrary {
  std::string m_strText;                  // ASCII, the same for the same rows
  std::vector<std::size_t> m_arrLeftOut;  // positions of rows without an outline
};

// Each row as a profile that has the row's "No." for its name, with "(table)" behind it where rows
// of several tables share the number or it reads like such a name. Each profile has its figures
// (Pset_ProfileMechanical) and stands, with steel, in a material profile set of the same name whose
// description is the table's. `name` is the project's. Lengths in mm; the file's time is always
// 1970-01-01.
ORV3CAL_API CIfcLibrary IfcLibrary(std::span<const CDataItem> rows, const CString& name);

}  // namespace orv3
