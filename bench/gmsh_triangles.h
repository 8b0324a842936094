// The mesh of a section by Gmsh, for the peer of the exact properties.
#pragma once

#include <span>

#include "catalogue/quadratic_section.h"

namespace orv3 {

// Triangles about as long as `size`, a fifth of it at sharp re-entrant corners.
test::CSectionTriangles GmshTriangles(std::span<const CPath> loops, double size);

}  // namespace orv3
