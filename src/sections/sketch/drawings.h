// The sketches by family. Each family's file ends with the resource numbers of its drawings.
#pragma once

#include <span>

#include "sections/sketch/pen.h"

namespace orv3::sketch {

struct CSketchEntry {
  int m_nResource;
  void (*m_pDraw)(CSketchPen&);
};

// Rolled and cold-formed sections.
std::span<const CSketchEntry> RolledSketches() noexcept;
// Pairs of rolled sections, lattice columns and the sketch of what has none of its own.
std::span<const CSketchEntry> BuiltSketches() noexcept;
// Sections from plate sizes, lettered with the signs of their columns.
std::span<const CSketchEntry> PlateSketches() noexcept;

}  // namespace orv3::sketch
