// Triangles that fill a part of a section, their edges following its lines and arcs.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "drawing/path.h"
#include "outlines/edge.h"
#include "outlines/mesh/fold.h"

namespace orv3 {

// A stretch of an edge of the outline, or of a line that the part is mirrored in.
struct CStretch {
  static constexpr int kOnX = -1, kOnY = -2;  // the lines x = and y = of the fold

  int m_nLoop = 0;                // kOnX, kOnY
  int m_nEdge = 0;                // of CSectionMesh::m_arrEdge
  double m_dFrom = 0, m_dTo = 1;  // of the edge's t, material to the left
};

struct CMeshTriangle {
  std::array<int, 3> m_vertex{};
  std::array<int, 3> m_stretch{-1, -1, -1};  // of the edge from vertex i to the next; -1 inside
};

struct CSectionMesh {
  std::vector<CEdge> m_arrEdge;  // of the outline
  std::vector<CPoint> m_arrVertex;
  std::vector<CStretch> m_arrStretch;
  std::vector<CMeshTriangle> m_arrTriangle;
  std::vector<char> m_arrSharp;  // by vertex: a re-entrant corner
  CFold m_fold;                  // the mesh is of what it keeps

  CPoint At(const CStretch& s, double part) const {
    return m_arrEdge[static_cast<std::size_t>(s.m_nEdge)].At(s.m_dFrom +
                                                             (s.m_dTo - s.m_dFrom) * part);
  }
};

// The first mesh of a part: graded towards the ends of the edges by the local thickness. Loops of
// size 1. More than one mesh when the part hangs together in points alone; none when its edges
// cross. Arcs are halved at least `arcs` times, and more often where triangles ask for it: how
// often is left there. A part that is its own mirror image is cut in half where `fold` says so.
std::vector<CSectionMesh> MeshesOfPart(std::span<const CPath> loops, int& arcs, bool fold);

// By triangle: whether it lies at a concave arc and is longer than 1.5 times the radius, within
// which the stress beside such an arc falls off.
std::vector<char> CoarseAtArcs(const CSectionMesh& mesh);

// The mesh with the marked triangles halved, and others as needed to keep it whole; none when an
// arc would cut through a triangle.
std::optional<CSectionMesh> Refined(const CSectionMesh& mesh, std::span<const char> marked);

}  // namespace orv3
