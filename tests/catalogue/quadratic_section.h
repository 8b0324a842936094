// Torsion and flexure by plain quadratic triangles on a uniform mesh: another mesh, other elements
// and for the torsion constant the other problem (the stress function) than the library's.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "drawing/path.h"

namespace orv3::test {

// Counter-clockwise triangles; arcs are polygons.
struct CSectionTriangles {
  std::vector<CPoint> m_arrPoint;
  std::vector<std::array<int, 3>> m_arrTriangle;
};

// Triangles about as long as `size` over loops as ExactProperties takes them.
CSectionTriangles RasterTriangles(std::span<const CPath> loops, double size);

// In the frame of the points. For a section of parts all but It mean nothing.
struct CCoarseFigures {
  double It = 0, Iw = 0, xs = 0, ys = 0, Asx = 0, Asy = 0;
};
CCoarseFigures QuadraticFigures(const CSectionTriangles& mesh);

}  // namespace orv3::test
