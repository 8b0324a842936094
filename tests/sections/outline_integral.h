// Integration of a section's outline by Green's theorem: knows polygons, not section formulas.
#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "sections/outline.h"

struct CPoint {
  double x, y;
};
// Counter-clockwise ones bound steel, clockwise ones holes.
using CPolygon = std::vector<CPoint>;
using CPolygons = std::vector<CPolygon>;

// The library's outline turned by so many degrees about the origin. Of an arc's moments, chords of
// 1/200 radian take less than 1e-5.
inline CPolygons Polygons(const orv3::COutline& outline, double degrees = 0,
                          double chordsPerRadian = 200) {
  CPolygons polygons;
  for (const orv3::CPath& loop : outline.m_arrLoop) {
    CPolygon polygon;
    const orv3::CPath turned = orv3::Turned(loop, degrees);
    const auto& vertices = turned.m_arrVertex;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      const orv3::CVertex from = vertices[i], to = vertices[(i + 1) % vertices.size()];
      polygon.push_back({from.x, from.y});
      if (from.bulge == 0) continue;
      const orv3::CArc arc = orv3::EdgeArc(from, to);
      const int chords = static_cast<int>(std::ceil(std::fabs(arc.sweep) * chordsPerRadian));
      for (int k = 1; k < chords; ++k) {
        const double angle = arc.start + arc.sweep * k / chords;
        polygon.push_back({arc.center.x + arc.radius * std::cos(angle),
                           arc.center.y + arc.radius * std::sin(angle)});
      }
    }
    polygons.push_back(std::move(polygon));
  }
  return polygons;
}

struct CIntegrals {
  double A = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;  // of 1, x, y, x^2, ... over the area
};

inline CIntegrals Integrate(const CPolygons& polygons) {
  CIntegrals sum;
  for (const CPolygon& p : polygons) {
    for (std::size_t i = 0; i < p.size(); ++i) {
      const CPoint a = p[i], b = p[(i + 1) % p.size()];
      const double cross = a.x * b.y - b.x * a.y;
      sum.A += cross / 2;
      sum.x += (a.x + b.x) * cross / 6;
      sum.y += (a.y + b.y) * cross / 6;
      sum.xx += (a.x * a.x + a.x * b.x + b.x * b.x) * cross / 12;
      sum.yy += (a.y * a.y + a.y * b.y + b.y * b.y) * cross / 12;
      sum.xy += (2 * a.x * a.y + a.x * b.y + b.x * a.y + 2 * b.x * b.y) * cross / 24;
    }
  }
  return sum;
}

// About the centroid (x, y); first moved near the origin, where little is lost.
inline CIntegrals Central(CPolygons polygons) {
  const CPoint origin = polygons.at(0).at(0);
  for (CPolygon& polygon : polygons) {
    for (CPoint& p : polygon) p = {p.x - origin.x, p.y - origin.y};
  }
  CIntegrals i = Integrate(polygons);
  i.x /= i.A;
  i.y /= i.A;
  i.xx -= i.A * i.x * i.x;
  i.yy -= i.A * i.y * i.y;
  i.xy -= i.A * i.x * i.y;
  i.x += origin.x;
  i.y += origin.y;
  return i;
}

// The part of the area with `side` * (coordinate - at) >= 0, the coordinate x or y.
inline CPolygons Clip(CPolygons polygons, double CPoint::*coordinate, double at, double side) {
  for (CPolygon& polygon : polygons) {
    const CPolygon p = std::move(polygon);
    polygon.clear();
    for (std::size_t i = 0; i < p.size(); ++i) {
      const CPoint a = p[i], b = p[(i + 1) % p.size()];
      const double da = side * (a.*coordinate - at), db = side * (b.*coordinate - at);
      if (da >= 0) polygon.push_back(a);
      if ((da > 0 && db < 0) || (da < 0 && db > 0)) {
        const double t = da / (da - db);
        polygon.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
      }
    }
  }
  return polygons;
}

// First moments of the part beyond (side 1) or before (side -1) an axis, about the axis.
inline double MomentX(const CPolygons& polygons, double y, double side) {
  const CIntegrals part = Integrate(Clip(polygons, &CPoint::y, y, side));
  return side * (part.y - y * part.A);
}
inline double MomentY(const CPolygons& polygons, double x, double side) {
  const CIntegrals part = Integrate(Clip(polygons, &CPoint::x, x, side));
  return side * (part.x - x * part.A);
}
