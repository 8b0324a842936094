// Outlines from files: DXF, or JSON {"unit": "mm", "loops": [[[x, y], [x, y, bulge], ...], ...]}.
#pragma once

#include <string>
#include <vector>

#include "drawing/path.h"

namespace orv3::cli {

struct COutlineInput {
  // In mm, parts counter-clockwise and holes clockwise, moved so that the lower left corner of the
  // rectangle around them is the origin.
  std::vector<CPath> loops;
  CPoint corner;  // where it was
  // Of parts that touch: the same moved clear of each other (touching_parts.h); else empty.
  std::vector<CPath> cleared;
};

// A DXF file is known by its name (.dxf) or its content, `layer` is for one alone. "-" is standard
// input.
//
// CCommandError names the file and what is wrong with it: status 2, or 3 when it cannot be read.
COutlineInput ReadOutline(const std::string& path, const std::string& layer);

}  // namespace orv3::cli
