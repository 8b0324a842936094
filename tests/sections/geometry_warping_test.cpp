// Shear centre and warping constant of user-defined sections against the closed forms of
// thin-walled theory, and of rolled ones against published values.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "framework/utf8.h"
#include "sections/geometry_rows.h"
#include "sections/outline_integral.h"

namespace {

double Cube(double x) { return x * x * x; }

// Expectations: e, the shear centre's distance from the mid-line that the form measures it to, is
// turned into e0 by the centroid of the plates.
struct CCase {
  const wchar_t* table;
  std::initializer_list<double> sizes;  // in the order of the columns
  double e0, Iw;
  const char* form;
};

void Check(const CCase& c) {
  const CDataItem row = RowOfPlates(c.table, c.sizes);
  EXPECT_NEAR(CLoadDataTable::GetDatIteme0(row), c.e0, 1e-9 * (1 + c.e0)) << c.form;
  EXPECT_NEAR(CLoadDataTable::GetDataItemIw(row), c.Iw, 1e-9 * (1 + c.Iw)) << c.form;
}

TEST(GeometryWarping, DoublySymmetric) {
  // 300 x 400 x 20, web 10: flanges 380 apart. Iw = (t b^3 / 6) h^2 / 4.
  Check({L"自定义对称H型钢",
         {300, 400, 20, 10},
         0,
         20 * Cube(300) / 6 * 380 * 380 / 4,
         "I: Iy h^2 / 4"});
  // Each flange warps in its own plane as it does in an I.
  Check({L"自定义翼缘十字形截面",
         {500, 400, 200, 150, 10, 20},
         0,
         2 * (20 * Cube(200) / 12) * 190 * 190 + 2 * (20 * Cube(150) / 12) * 240 * 240,
         "flanged cross"});
  // A box without warping: b/tf = h/tw.
  Check({L"自定义对称箱形截面", {300, 300, 10}, 0, 0, "square"});
  // Corners warp by w = (b h / 4) (b/tf - h/tw) / (b/tf + h/tw), plates linearly between them.
  const double b = 290, h = 380, tf = 20, tw = 10;
  const double w = b * h / 4 * (b / tf - h / tw) / (b / tf + h / tw);
  Check({L"自定义非对称箱形截面",
         {300, 400, 20, 20, 10, 10},
         0,
         w * w / 3 * 2 * (b * tf + h * tw),
         "box"});
  for (const wchar_t* table : {L"自定义圆形截面", L"自定义圆管"}) {
    Check({table, {100, 90}, 0, 0, "round"});
  }
  Check({L"矩形截面", {100, 200}, 0, 0, "solid"});
}

TEST(GeometryWarping, UnequalFlanges) {
  // Flanges 300 x 20 at the top and 200 x 16 at the bottom, web 10, 400 high.
  const double h = 400 - 10 - 8;
  const double top = 20 * Cube(300) / 12, bottom = 16 * Cube(200) / 12;
  // The shear centre divides h as the flanges' moments of inertia do.
  const double y = 8 + h * top / (top + bottom);
  const double web = 400 - 36;
  const double A = 300 * 20 + 200 * 16 + 10 * web;
  const double yo = (300 * 20 * 390 + 200 * 16 * 8 + 10 * web * (16 + web / 2)) / A;
  Check({L"自定义非对称H型钢",
         {10, 400, 16, 20, 145, 145, 95, 95},
         y - yo,
         h * h * top * bottom / (top + bottom),
         "I with unequal flanges"});
}

TEST(GeometryWarping, ChannelAndZ) {
  // Web 10, flanges 90 x 16 beyond it, 300 high; b and h of the mid-lines.
  const double b = 95, h = 284, t = 16, tw = 10;
  const double e = 3 * b * b * t / (6 * b * t + h * tw);
  const double A = 300 * 10 + 2 * 90 * 16;
  const double xo = (300 * 10 * 5 + 2 * 90 * 16 * 55) / A;
  Check({L"自定义槽钢",
         {10, 300, 16, 16, 90, 90},
         e + xo - 5,
         t * Cube(b) * h * h / 12 * (3 * b * t + 2 * h * tw) / (6 * b * t + h * tw),
         "channel"});
  Check({L"自定义Z形截面",
         {10, 300, 16, 16, 90, 90},
         0,
         Cube(b) * t * h * h / 12 * (b * t + 2 * h * tw) / (2 * b * t + h * tw),
         "Z"});
}

// All walls meet in one line: nothing warps, and the shear centre lies there.
TEST(GeometryWarping, Stars) {
  // T: flange 210 x 20 on a stem 10 x 180.
  const double T = (210.0 * 20 * 190 + 10 * 180 * 90) / (210 * 20 + 10 * 180);
  Check({L"自定义T形截面", {10, 200, 20, 100, 100}, 190 - T, 0, "T"});
  // L: legs 200 x 10 upright and 100 x 20 beside it at the bottom.
  const double A = 200 * 10 + 100 * 20;
  const double x = (2000.0 * 5 + 2000 * 60) / A, y = (2000.0 * 100 + 2000 * 10) / A;
  Check({L"自定义L形截面", {10, 200, 20, 100}, std::hypot(x - 5, y - 10), 0, "L"});
  // Cross: arm 10 x 200 and a bar 20 thick that reaches 40 to the left and 60 to the right at 80.
  const double C = (2000.0 * 45 + 800 * 20 + 1200 * 80) / 4000;
  const double Cy = (2000.0 * 100 + 2000 * 90) / 4000;
  Check({L"自定义十字形截面", {10, 200, 80, 100, 40, 60}, std::hypot(C - 45, Cy - 90), 0, "cross"});
}

struct CPiece {
  double x, y, dx, dy, t;
  double Length() const { return std::hypot(dx, dy); }
};

// Many pieces of a wall from one point to the other, its thickness by x.
template <class THICKNESS>
void AddWall(std::vector<CPiece>& pieces, CPoint from, CPoint to, THICKNESS thickness) {
  constexpr int kPieces = 20000;
  const double dx = (to.x - from.x) / kPieces, dy = (to.y - from.y) / kPieces;
  for (int i = 0; i < kPieces; ++i) {
    const double x = from.x + dx * (i + 0.5), y = from.y + dy * (i + 0.5);
    pieces.push_back({x, y, dx, dy, thickness(x)});
  }
}

// Where the flow of a vertical force acts; in a cell, the flow of the cell cut open and the
// constant one that undoes its twist. Symmetric about y = 0.
double ShearCentre(const std::vector<CPiece>& pieces, bool cell) {
  double S = 0, twist = 0, path = 0;
  std::vector<double> flow;
  for (const CPiece& p : pieces) {
    const double own = p.t * p.Length() * p.y;
    flow.push_back(S + own / 2);
    S += own;
    twist += flow.back() / p.t * p.Length();
    path += p.Length() / p.t;
  }
  double moment = 0, force = 0;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const CPiece& p = pieces[i];
    const double q = flow[i] - (cell ? twist / path : 0);
    moment += q * (p.x * p.dy - p.y * p.dx);
    force += q * p.dy;
  }
  return moment / force;
}

TEST(GeometryWarping, BoxWithUnequalWebs) {
  // Mid-lines 200 x 300; flanges 12, webs 10 and 30.
  constexpr double b = 200, h = 300, t = 12, left = 10, right = 30;
  std::vector<CPiece> pieces;
  const auto thick = [](double t) { return [t](double) { return t; }; };
  AddWall(pieces, {0, -h / 2}, {b, -h / 2}, thick(t));
  AddWall(pieces, {b, -h / 2}, {b, h / 2}, thick(right));
  AddWall(pieces, {b, h / 2}, {0, h / 2}, thick(t));
  AddWall(pieces, {0, h / 2}, {0, -h / 2}, thick(left));

  const double width = b + (left + right) / 2, web = h - t;
  const double A = (left + right) * web + 2 * t * width;
  const double xo =
      (left * web * left / 2 + right * web * (width - right / 2) + 2 * t * width * width / 2) / A;
  const CDataItem row = RowOfPlates(L"自定义非对称箱形截面", {width, h + t, t, t, left, right});
  EXPECT_NEAR(CLoadDataTable::GetDatIteme0(row), ShearCentre(pieces, true) + left / 2 - xo, 1e-5);
}

// A hot-rolled channel with its tapering flanges, by the flow of a vertical force and the sectorial
// coordinate about the shear centre, piece by piece from toe to toe.
TEST(GeometryWarping, HotRolledChannel) {
  // [20a of GB/T 707.
  constexpr double height = 200, width = 73, tw = 7, t = 11, zo = 20.1;
  constexpr double h = height - t, b = width - tw / 2;
  std::vector<CPiece> pieces;
  const auto flange = [](double x) { return t + ((b + tw / 2) / 2 - x) / 10; };
  AddWall(pieces, {b, -h / 2}, {0, -h / 2}, flange);
  AddWall(pieces, {0, -h / 2}, {0, h / 2}, [](double) { return tw; });
  AddWall(pieces, {0, h / 2}, {b, h / 2}, flange);

  const double e = ShearCentre(pieces, false);  // negative: beyond the web
  double w = 0, sum1 = 0, sum2 = 0, A = 0;
  for (const CPiece& p : pieces) {
    const double step = (p.x - e) * p.dy - p.y * p.dx, dA = p.t * p.Length();
    w += step;
    sum1 += (w - step / 2) * dA;
    sum2 += (w - step / 2) * (w - step / 2) * dA;
    A += dA;
  }
  const double Iw = sum2 - sum1 * sum1 / A;

  const CDataItem row = RowOf(L"热轧普通槽钢", L"[20a",
                              {{L"h(mm)", height},
                               {L"b(mm)", width},
                               {L"tw(mm)", tw},
                               {L"t(mm)", t},
                               {L"zo(cm)", zo / 10}});
  EXPECT_NEAR(CLoadDataTable::GetDatIteme0(row), zo - tw / 2 - e, 1e-3);
  EXPECT_NEAR(CLoadDataTable::GetDataItemIw(row), Iw, 1e-5 * Iw);
}

// Missing sizes leave 0.
TEST(GeometryWarping, MissingSizes) {
  const CDataItem row = RowOfPlates(L"自定义槽钢", {10, 300});
  EXPECT_EQ(CLoadDataTable::GetDatIteme0(row), 0);
  EXPECT_EQ(CLoadDataTable::GetDataItemIw(row), 0);
}

}  // namespace
