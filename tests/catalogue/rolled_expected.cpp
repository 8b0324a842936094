#include "catalogue/rolled_expected.h"

#include <cmath>
#include <numbers>

#include "catalogue/rolled_midline.h"
#include "catalogue/rolled_outline.h"

namespace {

constexpr double kDensity = 0.785;  // kg/m per cm^2
constexpr double kShear = 2.6;      // E / G

// Of an area, about its centroid, in cm and its powers.
struct CCentral {
  explicit CCentral(const CIntegrals& mm) {
    A = mm.A / 1e2;
    x = mm.x / mm.A / 10, y = mm.y / mm.A / 10;
    Ix = mm.yy / 1e4 - A * y * y;
    Iy = mm.xx / 1e4 - A * x * x;
    Ixy = mm.xy / 1e4 - A * x * y;
  }
  double Mean() const { return (Ix + Iy) / 2; }
  double Radius() const { return std::hypot((Ix - Iy) / 2, Ixy); }

  double A, x, y, Ix, Iy, Ixy;
};

CValues Common(const CCentral& c) {
  return {{"A", c.A},   {"G", kDensity * c.A},         {"Ix", c.Ix},
          {"Iy", c.Iy}, {"ix", std::sqrt(c.Ix / c.A)}, {"iy", std::sqrt(c.Iy / c.A)}};
}

CValues& operator+=(CValues& values, const CValues& more) {
  for (const auto& [symbol, value] : more) values[symbol] = value;
  return values;
}

// --- Hot-rolled and welded -----------------------------------------------------------------------

CValues DoublySymmetric(const CPolygon& outline, double h, double b) {
  const CCentral c(Integrate(outline));
  CValues values = Common(c);
  values += {{"Aw", Perimeter(outline) / 1e3},
             {"Wx", c.Ix / (h / 20)},
             {"Wy", c.Iy / (b / 20)},
             {"Sx", MomentX(outline, 0, 1) / 1e3}};
  return values;
}

CValues RolledH(const CValues& s) {
  CValues values =
      DoublySymmetric(OutlineI(s.at("H"), s.at("B"), s.at("tw"), s.at("tf"), s.at("r"), 0, 0),
                      s.at("H"), s.at("B"));
  values.erase("Sx");
  values.erase("Aw");
  return values;
}

// The weld: the smallest whole leg of at least 1.5 sqrt(t) of the thicker plate (GB 50017-2003,
// 8.2.7) whose two throats of 0.7 hf carry, at 160 N/mm^2, what the web carries at 125.
double WeldLeg(double tw, double tf) {
  return std::ceil(std::max(1.5 * std::sqrt(std::max(tw, tf)), tw * 125 / (2 * 0.7 * 160)));
}

CValues WeldedH(const CValues& s) {
  CValues values = DoublySymmetric(OutlineI(s.at("H"), s.at("B"), s.at("tw"), s.at("tf"), 0, 0, 0),
                                   s.at("H"), s.at("B"));
  values.erase("Aw");
  values["h"] = s.at("H") - 2 * s.at("tf");
  values["hf"] = WeldLeg(s.at("tw"), s.at("tf"));
  return values;
}

// GB/T 706-1988 and GB/T 707-1988 print the area of a formula, A = h tw + 2 t (b - tw) +
// factor (r^2 - r1^2), and the weight of the printed area.
CValues WithPrintedArea(CValues values, const CValues& s, double factor, double r1) {
  const double tw = s.at("tw"), r = s.at("r");
  const double A = s.at("h") * tw + 2 * s.at("t") * (s.at("b") - tw) + factor * (r * r - r1 * r1);
  values["A"] = A / 100;
  values["G"] = kDensity * std::round(A * 10) / 1e3;
  return values;
}

CValues RolledI(const CValues& s, double slope) {
  return DoublySymmetric(
      OutlineI(s.at("h"), s.at("b"), s.at("tw"), s.at("t"), s.at("r"), s.at("r1"), slope),
      s.at("h"), s.at("b"));
}

CValues RolledChannel(const CValues& s, double slope) {
  const CPolygon outline =
      OutlineChannel(s.at("h"), s.at("b"), s.at("tw"), s.at("t"), s.at("r"), s.at("r1"), slope);
  const CCentral c(Integrate(outline));
  CValues values = DoublySymmetric(outline, s.at("h"), s.at("b"));
  values.erase("Wy");
  values += {{"Wymax", c.Iy / c.x},
             {"Wymin", c.Iy / (s.at("b") / 10 - c.x)},
             {"Iy1", c.Iy + c.A * c.x * c.x},
             {"zo", c.x}};
  return values;
}

// phi of GB 50017-2003, Appendix C, class b, continued beyond the slenderness where its table ends.
double Stability(double lambda) {
  const double n = lambda / std::numbers::pi * std::sqrt(235.0 / 206000);
  if (n <= 0.215) return 1 - 0.65 * n * n;
  const double sum = 0.965 + 0.3 * n + n * n;
  return (sum - std::sqrt(sum * sum - 4 * n * n)) / (2 * n * n);
}

// N and P follow from the A and iyo that stand in the row: f = 215 N/mm^2, kN.
CValues Capacities(double A, double iyo) {
  CValues values{{"N", A * 21.5}};
  for (int i = 0; i < 18; ++i) {
    const int decimetres = 6 + 3 * i;
    const std::string symbol =
        "P(" + std::to_string(decimetres / 10) + "." + std::to_string(decimetres % 10) + "m)";
    values[symbol] = Stability(decimetres * 10 / iyo) * A * 21.5;
  }
  return values;
}

CValues EqualAngle(const CValues& s) {
  const double b = s.at("b"), t = s.at("t");
  const CPolygon outline = OutlineAngle(b, b, t, s.at("r"));
  const CCentral c(Integrate(outline));
  CValues values = Common(c);
  values.erase("Iy");
  values.erase("iy");
  const double Ixo = c.Mean() + c.Radius(), Iyo = c.Mean() - c.Radius();
  // The toes' arcs farthest from the weak axis.
  double toe = 0;
  for (const CPoint& p : outline) toe = std::max(toe, (p.x + p.y) / 10 / std::numbers::sqrt2);
  values += {{"Aw", Perimeter(outline) / 1e3},
             {"Wxmax", c.Ix / c.x},
             {"Wxmin", c.Ix / (b / 10 - c.x)},
             {"Ixo", Ixo},
             {"Wxo", Ixo / (b / 10 / std::numbers::sqrt2)},
             {"ixo", std::sqrt(Ixo / c.A)},
             {"Ix1", c.Ix + c.A * c.x * c.x},
             {"Iyo", Iyo},
             {"WyoMax", Iyo / (toe - std::numbers::sqrt2 * c.x)},
             {"WyoMin", Iyo / (std::numbers::sqrt2 * c.x)},
             {"iyo", std::sqrt(Iyo / c.A)},
             {"zo", c.x}};
  values += Capacities(s.at("A"), s.at("iyo"));
  return values;
}

CValues UnequalAngle(const CValues& s) {
  const double B = s.at("B"), b = s.at("b");
  const CPolygon outline = OutlineAngle(B, b, s.at("t"), s.at("r"));
  const CCentral c(Integrate(outline));
  CValues values = Common(c);
  const double Iu = c.Mean() - c.Radius();
  // U is turned from Y by the angle whose tangent this is.
  const double tangent = (c.Iy - Iu) / -c.Ixy;
  const double angle = std::atan(tangent);
  double far = 0;
  for (const CPoint& p : outline)
    far = std::max(
        far, std::abs((p.x / 10 - c.x) * std::cos(angle) + (p.y / 10 - c.y) * std::sin(angle)));
  values += {{"Aw", Perimeter(outline) / 1e3},
             {"Wxmax", c.Ix / c.y},
             {"Wxmin", c.Ix / (B / 10 - c.y)},
             {"Ix1", c.Ix + c.A * c.y * c.y},
             {"yo", c.y},
             {"Wymax", c.Iy / c.x},
             {"Wymin", c.Iy / (b / 10 - c.x)},
             {"Iy1", c.Iy + c.A * c.x * c.x},
             {"xo", c.x},
             {"Iu", Iu},
             {"Wu", Iu / far},
             {"iu", std::sqrt(Iu / c.A)},
             {"tga", tangent}};
  return values;
}

CValues SplitT(const CValues& s) {
  const CPolygon outline = OutlineT(s.at("h"), s.at("B"), s.at("t1"), s.at("t2"), s.at("r"));
  const CCentral c(Integrate(outline));
  CValues values = Common(c);
  values += {{"Wx", c.Ix / (s.at("h") / 10 - c.y)}, {"Wy", c.Iy / (s.at("B") / 20)}, {"Cx", c.y}};
  return values;
}

// --- Cold-formed ---------------------------------------------------------------------------------

// Both faces and the two edges, m^2/m.
double OpenSurface(const CMidline& line, double t) { return 2 * (line.Length() + t) / 1e3; }

CValues Torsion(const CMidline& line, double t) {
  const CWarping warping = Warping(line, t);
  const double It = line.St() / 1e4, Iw = warping.Iw / 1e6;
  return {{"It", It}, {"Iw", Iw}, {"k", std::sqrt(It / (kShear * Iw))}};
}

// Distance of the shear centre from the centroid, cm.
double ShearCentre(const CMidline& line, double t) {
  const CPoint centre = Warping(line, t).centre;
  return std::hypot(centre.x, centre.y) / 10;
}

// The integral of x (x^2 + y^2), x along the axis of symmetry `direction`, cm^5.
double Asymmetry(const CMidline& line, const CCentral& c, CVector direction) {
  return std::abs(line.Over([&](CPoint p) {
           const double x = p.x - 10 * c.x, y = p.y - 10 * c.y;
           return (x * direction.x + y * direction.y) * (x * x + y * y);
         })) /
         1e5;
}

CValues ColdAngleAxes(const CMidline& line, double b, double t) {
  const CCentral c(line.Moments());
  const double Ix = c.Mean() + c.Radius(), Iy = c.Mean() - c.Radius();
  constexpr double kHalf = 1 / std::numbers::sqrt2;
  return {{"A", c.A},
          {"G", kDensity * c.A},
          {"Aw", OpenSurface(line, t)},
          {"Ixo", c.Ix},
          {"Wxomax", c.Ix / c.y},
          {"Wxomin", c.Ix / (b / 10 - c.y)},
          {"ixo", std::sqrt(c.Ix / c.A)},
          {"Ix", Ix},
          {"ix", std::sqrt(Ix / c.A)},
          {"Iy", Iy},
          {"iy", std::sqrt(Iy / c.A)},
          {"Ix1", c.Ix + c.A * c.y * c.y},
          {"yo", c.y},
          {"It", line.St() / 1e4},
          {"Uy", Asymmetry(line, c, {kHalf, kHalf})}};
}

CValues ColdAngle(const CValues& s) {
  const double b = s.at("b"), t = s.at("t"), m = t / 2;
  const CMidline line({{b, m}, {m, m}, {m, b}}, t, false);
  CValues values = ColdAngleAxes(line, b, t);
  // To where the legs' middle lines cross, as the code takes the shear centre.
  values["eo"] = std::numbers::sqrt2 * (values["yo"] - m / 10);
  return values;
}

CValues LippedAngle(const CValues& s) {
  const double b = s.at("b"), t = s.at("t"), m = t / 2, a = s.at("a");
  const CMidline line({{b - m, a}, {b - m, m}, {m, m}, {m, b - m}, {a, b - m}}, t, false);
  CValues values = ColdAngleAxes(line, b, t);
  values["Iw"] = Warping(line, t).Iw / 1e6;
  values["eo"] = ShearCentre(line, t);
  return values;
}

// The sectorial area at the middle of the arc nearest to a corner, cm^2.
double OmegaAt(const CMidline& line, const CWarping& warping, CPoint corner) {
  const CPolygon& p = line.Points();
  std::size_t best = 0;
  for (std::size_t i = 0; i < p.size(); ++i) {
    const auto distance = [&](std::size_t k) {
      return std::hypot(p[k].x - corner.x, p[k].y - corner.y);
    };
    if (distance(i) < distance(best)) best = i;
  }
  return std::abs(warping.omega[best]) / 100;
}

CValues ColdChannel(const CValues& s, bool lipped) {
  const double h = s.at("h"), b = s.at("b"), t = s.at("t"), m = t / 2;
  const CCorners half =
      lipped ? CCorners{{m, h / 2 - m}, {b - m, h / 2 - m}, {b - m, h / 2 - s.at("a")}}
             : CCorners{{m, h / 2 - m}, {b, h / 2 - m}};
  CCorners whole = WithMirror({half.rbegin(), half.rend()}, &CCorner::y);
  const CMidline line(whole, t, false);
  const CCentral c(line.Moments());
  const CWarping warping = Warping(line, t);
  CValues values = Common(c);
  values += Torsion(line, t);
  values += {{"Aw", OpenSurface(line, t)},
             {"Wx", c.Ix / (h / 20)},
             {"Wymax", c.Iy / c.x},
             {"Wymin", c.Iy / (b / 10 - c.x)},
             {"Iy1", c.Iy + c.A * c.x * c.x},
             {"xo", c.x},
             {"eo", ShearCentre(line, t)},
             {"Ww1", values["Iw"] / OmegaAt(line, warping, {m, h / 2 - m})},
             {"Ww2", values["Iw"] / OmegaAt(line, warping, {lipped ? b - m : b, h / 2 - m})}};
  if (!lipped) values["Uy"] = Asymmetry(line, c, {1, 0});
  return values;
}

// Lips at a right angle to the flange, or turned from it by 45 degrees. Sizes go to where the outer
// faces meet.
CValues LippedZ(const CValues& s, double lipTurn) {
  const double h = s.at("h"), b = s.at("b"), t = s.at("t"), m = t / 2;
  const double tip = b - m - m * std::tan(lipTurn / 2);  // of the flange's middle line
  const double lip = s.at("a") - m * std::tan(lipTurn / 2);
  const CCorner flange{tip, h / 2 - m};
  const CCorner end{tip + lip * std::cos(lipTurn), h / 2 - m - lip * std::sin(lipTurn)};
  const CMidline line(
      {end, flange, {0, h / 2 - m}, {0, m - h / 2}, {-flange.x, -flange.y}, {-end.x, -end.y}}, t,
      false);
  const CCentral c(line.Moments());
  const CWarping warping = Warping(line, t);
  const double Ix = c.Mean() + c.Radius(), Iy = c.Mean() - c.Radius();
  const double theta = std::atan2(2 * c.Ixy, c.Ix - c.Iy) / 2;
  // Distances of a point of the outline from the principal axes, cm.
  const auto fromX = [&](double x, double y) {
    return std::abs(y * std::cos(theta) + x * std::sin(theta)) / 10;
  };
  const auto fromY = [&](double x, double y) {
    return std::abs(x * std::cos(theta) - y * std::sin(theta)) / 10;
  };
  // Points a and b lie on the outer faces of the arcs at web and lip: where the arc is halfway,
  // or, in the printed table of sloping lips, farthest from y and from x.
  const CPoint web{2.5 * t, h / 2 - m - 2.5 * t};
  const double start = tip - 2.5 * t * std::tan(lipTurn / 2);
  const CPoint lipArc{start, web.y};
  const bool farthest = lipTurn < 1.5 && h < 250;
  const double aTurn = farthest ? theta : std::numbers::pi / 4;
  const double bTurn = farthest ? theta : lipTurn / 2;
  const CPoint pa{web.x - 3 * t * std::cos(aTurn), web.y + 3 * t * std::sin(aTurn)};
  const CPoint pb{lipArc.x + 3 * t * std::sin(bTurn), lipArc.y + 3 * t * std::cos(bTurn)};
  CValues values = Torsion(line, t);
  values += {{"A", c.A},
             {"G", kDensity * c.A},
             {"Aw", OpenSurface(line, t)},
             {"θ", theta * 180 / std::numbers::pi},
             {"Ix1", c.Ix},
             {"Wx1", c.Ix / (h / 20)},
             {"ix1", std::sqrt(c.Ix / c.A)},
             {"Iy1", c.Iy},
             {"Wy1", c.Iy / ((end.x + m * std::sin(lipTurn)) / 10)},
             {"iy1", std::sqrt(c.Iy / c.A)},
             {"Ix", Ix},
             {"Wxa", Ix / fromX(pa.x, pa.y)},
             {"Wxb", Ix / fromX(pb.x, pb.y)},
             {"ix", std::sqrt(Ix / c.A)},
             {"Iy", Iy},
             {"Wya", Iy / fromY(pa.x, pa.y)},
             {"Wyb", Iy / fromY(pb.x, pb.y)},
             {"iy", std::sqrt(Iy / c.A)},
             {"Ix1y1", c.Ixy},
             {"Ww1", values["Iw"] / OmegaAt(line, warping, {0, h / 2 - m})},
             {"Ww2", values["Iw"] / OmegaAt(line, warping, {flange.x, flange.y})}};
  return values;
}

CValues SquareTube(const CValues& s) {
  const double h = s.at("h"), t = s.at("t"), m = h / 2 - t / 2;
  const CMidline line({{-m, -m}, {m, -m}, {m, m}, {-m, m}}, t, true);
  CValues values = Common(CCentral(line.Moments()));
  values.erase("Iy");
  values.erase("iy");
  // The outer face: the middle line t / 2 further out.
  values += {{"Aw", (line.Length() + std::numbers::pi * t) / 1e3}, {"Wx", values["Ix"] / (h / 20)}};
  return values;
}

CValues RoundTube(const CValues& s) {
  const double d = s.at("d") / 10, inner = d - s.at("t") / 5;
  constexpr double kPi = std::numbers::pi;
  const double A = kPi / 4 * (d * d - inner * inner);
  const double I = kPi / 64 * (std::pow(d, 4) - std::pow(inner, 4));
  return {{"A", A}, {"G", kDensity * A}, {"Aw", kPi * d / 100},
          {"I", I}, {"W", I / (d / 2)},  {"i", std::sqrt(I / A)}};
}

}  // namespace

CValues Expected(const std::string& name, const CValues& row) {
  using std::numbers::pi;
  if (name == "DbData") return EqualAngle(row);
  if (name == "BDbData") return UnequalAngle(row);
  if (name == "KHData" || name == "ZHData") return RolledH(row);
  if (name == "PHData" || name == "QxHData") return WeldedH(row);
  if (name == "GZGData") return WithPrintedArea(RolledI(row, 1.0 / 6), row, 0.615, row.at("r1"));
  if (name == "QGZGData") return RolledI(row, 0.12);
  if (name == "PCGData")
    return WithPrintedArea(RolledChannel(row, 0.1), row, 0.349, row.at("r") / 2);
  if (name == "QCGData") return RolledChannel(row, 0.1);
  if (name == "PFTIRON") return SplitT(row);
  if (name == "LWDBData") return ColdAngle(row);
  if (name == "LWJBDB") return LippedAngle(row);
  if (name == "LWBBCG") return ColdChannel(row, false);
  if (name == "LWBBJbCG") return ColdChannel(row, true);
  if (name == "LWJBZ") return LippedZ(row, pi / 2);
  if (name == "LWXJBZ") return LippedZ(row, pi / 4);
  if (name == "LWRECT") return SquareTube(row);
  return RoundTube(row);
}
