// Torsion and flexure by a method that shares nothing with the library's: unknowns in the cells of
// a square grid, flows through their sides in balance, conjugate gradients. For outlines whose
// edges lie on the grid.
#pragma once

#include <functional>

namespace orv3::test {

struct CGridFigures {
  double It = 0, Iw = 0, xs = 0, ys = 0, Asx = 0, Asy = 0;
};

// inside(x, y) tells material; the section lies within 0..width, 0..height. Extrapolated from cells
// of `cell` and half of it; good for 1 %.
CGridFigures GridFigures(const std::function<bool(double, double)>& inside, double width,
                         double height, double cell);

}  // namespace orv3::test
