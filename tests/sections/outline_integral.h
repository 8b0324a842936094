// Integration of a section's outline by Green's theorem: knows polygons, not section formulas.
#pragma once

#include <cmath>
#include <numbers>
#include <vector>

struct CPoint {
  double x, y;
};
using CPolygon = std::vector<CPoint>;

// Polygons whose areas add; holes carry sign -1. Their direction does not matter.
struct COutline {
  struct CPart {
    CPolygon polygon;
    double sign = 1;
  };
  std::vector<CPart> parts;

  COutline(CPolygon polygon) { parts.push_back({std::move(polygon)}); }
  COutline& Hole(CPolygon polygon) {
    parts.push_back({std::move(polygon), -1});
    return *this;
  }
  COutline& Plate(CPolygon polygon) {
    parts.push_back({std::move(polygon)});
    return *this;
  }
};

struct CIntegrals {
  double A = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;  // of 1, x, y, x^2, ... over the area
};

inline CIntegrals Integrate(const CPolygon& p) {
  CIntegrals sum;
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
  if (sum.A < 0) sum = {-sum.A, -sum.x, -sum.y, -sum.xx, -sum.yy, -sum.xy};
  return sum;
}

inline CIntegrals Integrate(const COutline& outline) {
  CIntegrals sum;
  for (const auto& [polygon, sign] : outline.parts) {
    const CIntegrals one = Integrate(polygon);
    sum.A += sign * one.A;
    sum.x += sign * one.x;
    sum.y += sign * one.y;
    sum.xx += sign * one.xx;
    sum.yy += sign * one.yy;
    sum.xy += sign * one.xy;
  }
  return sum;
}

// The part of the outline with `side` * (coordinate - at) >= 0, the coordinate x or y.
inline COutline Clip(COutline outline, double CPoint::*coordinate, double at, double side) {
  for (auto& part : outline.parts) {
    const CPolygon p = std::move(part.polygon);
    part.polygon.clear();
    for (std::size_t i = 0; i < p.size(); ++i) {
      const CPoint a = p[i], b = p[(i + 1) % p.size()];
      const double da = side * (a.*coordinate - at), db = side * (b.*coordinate - at);
      if (da >= 0) part.polygon.push_back(a);
      if ((da > 0 && db < 0) || (da < 0 && db > 0)) {
        const double t = da / (da - db);
        part.polygon.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
      }
    }
  }
  return outline;
}

// First moments of the part beyond (side 1) or before (side -1) an axis, about the axis.
inline double MomentX(const COutline& outline, double y, double side) {
  const CIntegrals part = Integrate(Clip(outline, &CPoint::y, y, side));
  return side * (part.y - y * part.A);
}
inline double MomentY(const COutline& outline, double x, double side) {
  const CIntegrals part = Integrate(Clip(outline, &CPoint::x, x, side));
  return side * (part.x - x * part.A);
}

inline CPolygon Box(double x0, double y0, double x1, double y1) {
  return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

// A circle as a polygon of 40,000 corners on it: areas and moments are low by less than 2e-8.
inline CPolygon Circle(double cx, double cy, double radius) {
  constexpr int kCorners = 40000;
  CPolygon p;
  p.reserve(kCorners);
  for (int i = 0; i < kCorners; ++i) {
    const double angle = 2 * std::numbers::pi * (i + 0.5) / kCorners;
    p.push_back({cx + radius * std::cos(angle), cy + radius * std::sin(angle)});
  }
  return p;
}
