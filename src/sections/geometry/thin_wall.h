// Thin-walled theory: a section as the mid-lines of its walls.
#pragma once

#include <array>
#include <span>

namespace orv3 {

// One straight wall, mm.
struct CWall {
  double m_x1, m_y1, m_x2, m_y2;
  double m_t;       // thickness; walls of 0 do not count
  int m_from = -1;  // the wall before it, which ends where this one starts; -1 at the root
};

enum class CWallForm {
  Tree,  // open: walls that start at the root start at one point
  Loop,  // one closed cell: each wall starts where the one before it ends
};

struct CSectorial {
  double m_x = 0, m_y = 0;  // shear centre
  double m_Iw = 0;          // warping constant, mm^6
};

// By sectorial coordinates (V. Z. Vlasov, Thin-walled elastic beams); those of a cell are lessened
// by the flow that keeps the warping continuous around it (S. U. Benscoter, 1954). All 0 for
// walls without extent in two directions; a straight strip gives its own centroid. At most 12
// walls.
CSectorial SectorialProperties(std::span<const CWall> walls, CWallForm form);

// A box b wide and h high outside, its plates at the top, bottom, left and right.
CSectorial BoxSectorial(double b, double h, double top, double bottom, double left, double right);

}  // namespace orv3
