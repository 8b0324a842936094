#include "catalogue/rolled_expected.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "catalogue/outline/row_outline.h"
#include "catalogue/rolled_midline.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/outline_integral.h"

namespace {

using std::numbers::pi;
constexpr double kDensity = 0.785;  // kg/m per cm^2
constexpr double kShear = 2.6;      // E / G

struct CSizes {
  CValues values;
  double Mm(const char* symbol) const { return values.at(symbol); }
  double Cm(const char* symbol) const { return values.at(symbol) / 10; }
};

// An outline and its moments about the centroid; cm and its powers.
struct CSection {
  explicit CSection(CPolygons polygons) : outline(std::move(polygons)), c(Central(outline)) {}

  double Mean() const { return (c.xx + c.yy) / 2; }
  double Radius() const { return std::hypot((c.xx - c.yy) / 2, c.xy); }
  double Major() const { return Mean() + Radius(); }
  double Minor() const { return Mean() - Radius(); }
  // From the centroid to the farthest point in a direction.
  double Reach(double angle) const {
    double far = 0;
    for (const CPolygon& polygon : outline) {
      for (const CPoint& p : polygon)
        far = std::max(far, (p.x - c.x) * std::cos(angle) + (p.y - c.y) * std::sin(angle));
    }
    return far;
  }

  CPolygons outline;
  CIntegrals c;  // its xx is Iy, its yy Ix
};

CPolygons InCm(CPolygons mm) {
  for (CPolygon& polygon : mm) {
    for (CPoint& p : polygon) p = {p.x / 10, p.y / 10};
  }
  return mm;
}

double Perimeter(const CPolygon& p) {
  double sum = 0;
  for (std::size_t i = 0; i < p.size(); ++i) {
    const CPoint a = p[i], b = p[(i + 1) % p.size()];
    sum += std::hypot(b.x - a.x, b.y - a.y);
  }
  return sum;
}

CValues& operator+=(CValues& values, const CValues& more) {
  for (const auto& [symbol, value] : more) values[symbol] = value;
  return values;
}

// What every family calls the same. Of the two edges, one is usually as far as the other; "max" and
// "min" are of the modulus.
CValues OfOutline(const CSection& s) {
  const CIntegrals& c = s.c;
  const double Ix = c.yy, Iy = c.xx, ix = std::sqrt(Ix / c.A), iy = std::sqrt(Iy / c.A);
  const auto [lowX, highX] = std::minmax({s.Reach(pi / 2), s.Reach(-pi / 2)});
  const auto [lowY, highY] = std::minmax({s.Reach(0), s.Reach(pi)});
  return {{"A", c.A},
          {"G", kDensity * c.A},
          {"Aw", Perimeter(s.outline.front()) / 100},
          {"Ix", Ix},
          {"Iy", Iy},
          {"ix", ix},
          {"iy", iy},
          {"Wx", Ix / highX},
          {"Wxmax", Ix / lowX},
          {"Wxmin", Ix / highX},
          {"Wy", Iy / highY},
          {"Wymax", Iy / lowY},
          {"Wymin", Iy / highY},
          {"Sx", MomentX(s.outline, c.y, 1)},
          {"Ix1", Ix + c.A * c.y * c.y},
          {"Iy1", Iy + c.A * c.x * c.x},
          {"xo", c.x},
          {"yo", c.y},
          {"zo", c.x},
          {"Cx", s.Reach(pi / 2)},
          {"I", Ix},
          {"W", Ix / highX},
          {"i", ix}};
}

// --- Hot-rolled and welded -----------------------------------------------------------------------

// The weld: the smallest whole leg of at least 1.5 sqrt(t) of the thicker plate (GB 50017-2003,
// 8.2.7) whose two throats of 0.7 hf carry, at 160 N/mm^2, what the web carries at 125.
CValues Weld(const CSizes& s) {
  const double tw = s.Mm("tw"), tf = s.Mm("tf");
  const double least = std::max(1.5 * std::sqrt(std::max(tw, tf)), tw * 125 / (2 * 0.7 * 160));
  return {{"h", s.Mm("H") - 2 * tf}, {"hf", std::ceil(least)}};
}

// GB/T 706-1988 and GB/T 707-1988 print the area of a formula, A = h tw + 2 t (b - tw) +
// factor (r^2 - r1^2), and the weight of the printed area.
CValues PrintedArea(const CSizes& s, double factor, double r1) {
  const double tw = s.Cm("tw"), r = s.Cm("r");
  const double plates = s.Cm("h") * tw + 2 * s.Cm("t") * (s.Cm("b") - tw);
  const double A = plates + factor * (r * r - r1 * r1);
  return {{"A", A}, {"G", kDensity * std::round(A * 1e3) / 1e3}};
}

// phi of GB 50017-2003, Appendix C, class b, continued beyond the slenderness where its table ends.
double Stability(double lambda) {
  const double n = lambda / pi * std::sqrt(235.0 / 206000);
  if (n <= 0.215) return 1 - 0.65 * n * n;
  const double sum = 0.965 + 0.3 * n + n * n;
  return (sum - std::sqrt(sum * sum - 4 * n * n)) / (2 * n * n);
}

// N and P, kN, follow from the t, A and iyo that stand in the row; f is that of Q235 (GB
// 50017-2003, Table 3.4.1-1), which is less above 16 mm.
CValues Capacities(double t, double A, double iyo) {
  const double f = t <= 16 ? 21.5 : 20.5;  // kN/cm^2
  CValues values{{"N", A * f}};
  for (int decimetres = 6; decimetres <= 57; decimetres += 3) {
    const std::string length =
        std::to_string(decimetres / 10) + "." + std::to_string(decimetres % 10);
    values["P(" + length + "m)"] = Stability(decimetres * 10 / iyo) * A * f;
  }
  return values;
}

CValues EqualAngle(const CSection& s) {
  const double A = s.c.A;
  return {{"Ixo", s.Major()},
          {"Wxo", s.Major() / s.Reach(-pi / 4)},
          {"ixo", std::sqrt(s.Major() / A)},
          {"Iyo", s.Minor()},
          {"WyoMax", s.Minor() / s.Reach(pi / 4)},
          {"WyoMin", s.Minor() / s.Reach(-3 * pi / 4)},
          {"iyo", std::sqrt(s.Minor() / A)}};
}

// U is turned from Y by the angle whose tangent "tga" is.
CValues UnequalAngle(const CSection& s) {
  const double tangent = (s.c.xx - s.Minor()) / -s.c.xy;
  const double angle = std::atan(tangent);
  return {{"Iu", s.Minor()},
          {"Wu", s.Minor() / std::max(s.Reach(angle), s.Reach(angle + pi))},
          {"iu", std::sqrt(s.Minor() / s.c.A)},
          {"tga", tangent}};
}

// --- Cold-formed ---------------------------------------------------------------------------------

CValues Torsion(const CMidline& line) {
  return {{"It", line.St()},
          {"Iw", line.Iw()},
          {"k", std::sqrt(line.St() / (kShear * line.Iw()))},
          {"eo", std::hypot(line.ShearCentre().x, line.ShearCentre().y)}};
}

CValues Principal(const CSection& s) {
  return {{"Ix", s.Major()},
          {"ix", std::sqrt(s.Major() / s.c.A)},
          {"Iy", s.Minor()},
          {"iy", std::sqrt(s.Minor() / s.c.A)}};
}

// As the tables are computed: of the strip along the middle line, the surface of both faces and the
// two edges.
CValues OfStrip(const CMidline& line, const CSection& s, double t) {
  CValues values = OfOutline(s);
  values["Aw"] = 2 * (line.Length() + t) / 100;
  values += Torsion(line);
  return values;
}

// The integral of x (x^2 + y^2), x along the axis of symmetry, which has this angle.
double Asymmetry(const CMidline& line, const CSection& s, double angle) {
  return std::abs(line.Over([&](CPoint p) {
    const double x = p.x - s.c.x, y = p.y - s.c.y;
    return (x * std::cos(angle) + y * std::sin(angle)) * (x * x + y * y);
  }));
}

CValues ColdAngle(const CMidline& line, double t) {
  const CSection s(line.Strip());
  CValues values = OfStrip(line, s, t);
  values += {{"Ixo", values["Ix"]},
             {"Wxomax", values["Wxmax"]},
             {"Wxomin", values["Wxmin"]},
             {"ixo", values["ix"]},
             {"Uy", Asymmetry(line, s, pi / 4)}};
  values += Principal(s);
  return values;
}

// The code takes the shear centre where the legs' middle lines cross.
CValues PlainAngle(const CSizes& s) {
  const double b = s.Cm("b"), t = s.Cm("t"), m = t / 2;
  CValues values = ColdAngle(CMidline({{b, m}, {m, m}, {m, b}}, t), t);
  values["eo"] = std::numbers::sqrt2 * (values["yo"] - m);
  return values;
}

CValues LippedAngle(const CSizes& s) {
  const double b = s.Cm("b"), t = s.Cm("t"), m = t / 2, a = s.Cm("a");
  return ColdAngle(CMidline({{b - m, a}, {b - m, m}, {m, m}, {m, b - m}, {a, b - m}}, t), t);
}

CValues ColdChannel(const CMidline& line, double t, CPoint corner, CPoint tip) {
  const CSection s(line.Strip());
  CValues values = OfStrip(line, s, t);
  values += {{"Ww1", line.Iw() / line.OmegaAt(corner)},
             {"Ww2", line.Iw() / line.OmegaAt(tip)},
             {"Uy", Asymmetry(line, s, 0)}};
  return values;
}

CValues PlainChannel(const CSizes& s) {
  const double h = s.Cm("h"), b = s.Cm("b"), t = s.Cm("t"), m = t / 2;
  const CMidline line({{b, m}, {m, m}, {m, h - m}, {b, h - m}}, t);
  return ColdChannel(line, t, {m, h - m}, {b, h - m});
}

CValues LippedChannel(const CSizes& s) {
  const double h = s.Cm("h"), b = s.Cm("b"), t = s.Cm("t"), m = t / 2, a = s.Cm("a");
  const CMidline line({{b - m, a}, {b - m, m}, {m, m}, {m, h - m}, {b - m, h - m}, {b - m, h - a}},
                      t);
  return ColdChannel(line, t, {m, h - m}, {b - m, h - m});
}

// Lips at a right angle to the flange, or turned from it by 45 degrees. Sizes go to where the outer
// faces meet; the origin is the centroid.
CValues LippedZ(const CSizes& sizes, double lipTurn) {
  const double h = sizes.Cm("h"), b = sizes.Cm("b"), t = sizes.Cm("t"), m = t / 2;
  const double tip = b - m - m * std::tan(lipTurn / 2);  // of the flange's middle line
  const double lip = sizes.Cm("a") - m * std::tan(lipTurn / 2);
  const CPoint flange{tip, h / 2 - m};
  const CPoint end{tip + lip * std::cos(lipTurn), flange.y - lip * std::sin(lipTurn)};
  const CMidline line(
      {end, flange, {0, flange.y}, {0, -flange.y}, {-flange.x, -flange.y}, {-end.x, -end.y}}, t);
  const CSection s(line.Strip());
  const double theta = std::atan2(2 * s.c.xy, s.c.yy - s.c.xx) / 2;
  // Distances of a point of the outline from the principal axes.
  const auto fromX = [&](CPoint p) {
    return std::abs(p.y * std::cos(theta) + p.x * std::sin(theta));
  };
  const auto fromY = [&](CPoint p) {
    return std::abs(p.x * std::cos(theta) - p.y * std::sin(theta));
  };
  // Points a and b lie on the outer faces of the arcs at web and lip: where the arc is halfway,
  // or, in the printed table of sloping lips, farthest from y and from x.
  const CPoint web{2.5 * t, flange.y - 2.5 * t};
  const CPoint lipArc{tip - 2.5 * t * std::tan(lipTurn / 2), web.y};
  const bool farthest = lipTurn < 1.5 && h < 25;
  const double aTurn = farthest ? theta : pi / 4;
  const double bTurn = farthest ? theta : lipTurn / 2;
  const CPoint pa{web.x - 3 * t * std::cos(aTurn), web.y + 3 * t * std::sin(aTurn)};
  const CPoint pb{lipArc.x + 3 * t * std::sin(bTurn), lipArc.y + 3 * t * std::cos(bTurn)};
  const CValues upright = OfStrip(line, s, t);
  CValues values = upright;
  values += Principal(s);
  values += {{"θ", theta * 180 / pi},
             {"Ix1", upright.at("Ix")},
             {"Wx1", upright.at("Wx")},
             {"ix1", upright.at("ix")},
             {"Iy1", upright.at("Iy")},
             {"Wy1", upright.at("Wy")},
             {"iy1", upright.at("iy")},
             {"Wxa", s.Major() / fromX(pa)},
             {"Wxb", s.Major() / fromX(pb)},
             {"Wya", s.Minor() / fromY(pa)},
             {"Wyb", s.Minor() / fromY(pb)},
             {"Ix1y1", s.c.xy},
             {"Ww1", line.Iw() / line.OmegaAt({0, flange.y})},
             {"Ww2", line.Iw() / line.OmegaAt(flange)}};
  return values;
}

CValues SquareTube(const CSizes& s) {
  const double h = s.Cm("h"), t = s.Cm("t"), m = t / 2;
  const CMidline line({{m, m}, {h - m, m}, {h - m, h - m}, {m, h - m}}, t, true);
  CValues values = OfOutline(CSection(line.Strip()));
  values["Aw"] = (line.Length() + pi * t) / 100;  // the outer face: t / 2 further out
  return values;
}

}  // namespace

std::string SymbolOf(const CDataCell& cell) {
  const std::string sign = orv3::ToUtf8(cell.m_strSign);
  return sign.substr(0, sign.rfind('('));
}

CValues ValuesOf(const CDataItem& row) {
  CValues values;
  for (int i = 1; i < row.GetItemLength(); ++i)
    values[SymbolOf(row[i])] = orv3::ToDouble(row[i].m_strValue);
  return values;
}

CValues Expected(const std::string& file, const CDataItem& row) {
  const CSizes sizes{ValuesOf(row)};
  if (file == "LWDBData") return PlainAngle(sizes);
  if (file == "LWJBDB") return LippedAngle(sizes);
  if (file == "LWBBCG") return PlainChannel(sizes);
  if (file == "LWBBJbCG") return LippedChannel(sizes);
  if (file == "LWJBZ") return LippedZ(sizes, pi / 2);
  if (file == "LWXJBZ") return LippedZ(sizes, pi / 4);
  if (file == "LWRECT") return SquareTube(sizes);
  const CSection s(InCm(Polygons(orv3::RowOutline(row), 0, 1000)));
  CValues values = OfOutline(s);
  if (file == "DbData") {
    values += EqualAngle(s);
    values += Capacities(sizes.Mm("t"), sizes.values.at("A"), sizes.values.at("iyo"));
  }
  if (file == "BDbData") values += UnequalAngle(s);
  if (file == "PHData" || file == "QxHData") values += Weld(sizes);
  if (file == "GZGData") values += PrintedArea(sizes, 0.615, sizes.Cm("r1"));
  if (file == "PCGData") values += PrintedArea(sizes, 0.349, sizes.Cm("r") / 2);
  return values;
}
