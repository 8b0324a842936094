#include "gmsh_triangles.h"

#include <gmsh.h>

#include <cmath>
#include <numbers>
#include <unordered_map>

#include "outlines/edge.h"

namespace orv3 {
namespace {

// The points of a loop, arcs as polygons of 5 degrees.
std::vector<CPoint> PolygonOf(const CPath& loop) {
  std::vector<CPoint> points;
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
    const double pieces = std::max(1.0, std::ceil(std::fabs(edge.Sweep()) * 36 / std::numbers::pi));
    for (double i = 0; i < pieces; ++i) points.push_back(edge.At(i / pieces));
  });
  return points;
}

int AddLoop(const CPath& loop, double size) {
  const std::vector<CPoint> points = PolygonOf(loop);
  const std::size_t count = points.size();
  std::vector<int> ends, lines;
  for (std::size_t i = 0; i < count; ++i) {
    const CPoint a = points[(i + count - 1) % count], p = points[i], b = points[(i + 1) % count];
    const double u = p.x - a.x, v = p.y - a.y, s = b.x - p.x, t = b.y - p.y;
    const bool sharp = std::atan2(u * t - v * s, u * s + v * t) < -0.3;
    ends.push_back(gmsh::model::geo::addPoint(p.x, p.y, 0, sharp ? size / 5 : size));
  }
  for (std::size_t i = 0; i < count; ++i)
    lines.push_back(gmsh::model::geo::addLine(ends[i], ends[(i + 1) % count]));
  return gmsh::model::geo::addCurveLoop(lines);
}

}  // namespace

test::CSectionTriangles GmshTriangles(std::span<const CPath> loops, double size) {
  gmsh::clear();
  std::vector<int> wires;
  for (const CPath& loop : loops) wires.push_back(AddLoop(loop, size));
  gmsh::model::geo::addPlaneSurface(wires);
  gmsh::model::geo::synchronize();
  gmsh::model::mesh::generate(2);
  std::vector<std::size_t> tags, elements, corners;
  std::vector<double> places, parameters;
  gmsh::model::mesh::getNodes(tags, places, parameters);
  test::CSectionTriangles mesh;
  std::unordered_map<std::size_t, int> of;
  for (std::size_t i = 0; i < tags.size(); ++i) {
    of[tags[i]] = static_cast<int>(i);
    mesh.m_arrPoint.push_back({places[3 * i], places[3 * i + 1]});
  }
  constexpr int kTriangle = 2;
  gmsh::model::mesh::getElementsByType(kTriangle, elements, corners);
  for (std::size_t i = 0; i < corners.size(); i += 3) {
    const int a = of[corners[i]], b = of[corners[i + 1]], c = of[corners[i + 2]];
    const auto p = [&](int k) { return mesh.m_arrPoint[static_cast<std::size_t>(k)]; };
    const double twice =
        (p(b).x - p(a).x) * (p(c).y - p(a).y) - (p(b).y - p(a).y) * (p(c).x - p(a).x);
    mesh.m_arrTriangle.push_back(twice > 0 ? std::array{a, b, c} : std::array{a, c, b});
  }
  return mesh;
}

}  // namespace orv3
