// Points of the mesh around concave arcs that are small beside the material there.
#pragma once

#include <vector>

#include "outlines/edge.h"

namespace orv3 {

// Rings about the arc's center, each twice as wide as the one before, as far as the material
// reaches; nothing for an arc whose radius is no small part of it. Between an arc and a boundary
// far away there would else be slivers alone, which cannot be halved to its size. edges: of a part,
// material to the left; to: gets the points.
void AddRings(const std::vector<CEdge>& edges, std::vector<CPoint>& to);

}  // namespace orv3
