// Shear centre and warping constant of user-defined sections against the closed forms of
// thin-walled theory, and of rolled ones against published values.
#include <gtest/gtest.h>

#include <cmath>

#include "framework/utf8.h"
#include "sections/geometry_rows.h"

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

// The flow of a vertical force runs clockwise from the middle of the left web, where the half above
// the axis begins, and less by the constant flow that keeps the cell from twisting.
TEST(GeometryWarping, BoxWithUnequalWebs) {
  // Mid-lines 200 x 300; flanges 12, webs 10 and 30.
  constexpr double b = 200, h = 300, t = 12, left = 10, right = 30;
  const double Ix = (left + right) * Cube(h) / 12 + t * b * h * h / 2;
  const double corner = left * h * h / 8;     // first moment of half the left web,
  const double far = corner + t * h * b / 2;  // and of the flange with it
  const double flange = corner * b + t * h * b * b / 4, web = far * h + right * Cube(h) / 12;
  const double constant =
      (Cube(h) / 24 + 2 * flange / t + web / right) / (h / left + h / right + 2 * b / t);
  const double e = ((web - constant * h) * b + (flange - constant * b) * h) / Ix;

  const double width = b + (left + right) / 2, inside = h - t;
  const double A = (left + right) * inside + 2 * t * width;
  const double xo = (left * inside * left / 2 + right * inside * (width - right / 2) +
                     2 * t * width * width / 2) /
                    A;
  const CDataItem row = RowOfPlates(L"自定义非对称箱形截面", {width, h + t, t, t, left, right});
  EXPECT_NEAR(CLoadDataTable::GetDatIteme0(row), e + left / 2 - xo, 1e-9);
}

// A hot-rolled channel with its tapering flanges: the channel's forms with the moments of a flange
// whose thickness is a - x / 10 at x from the web's mid-line.
TEST(GeometryWarping, HotRolledChannel) {
  // [20a of GB/T 707.
  constexpr double height = 200, width = 73, tw = 7, t = 11, zo = 20.1;
  constexpr double h = height - t, b = width - tw / 2, a = t + (b + tw / 2) / 20;
  const double M0 = a * b - b * b / 20, M1 = a * b * b / 2 - Cube(b) / 30;
  const double M2 = a * Cube(b) / 3 - b * Cube(b) / 40;
  const double Ix = h * h / 2 * M0 + tw * Cube(h) / 12, e = h * h / 2 * M1 / Ix;
  const double Iw = h * h / 2 * (M2 - 2 * e * M1 + e * e * M0) + e * e * tw * Cube(h) / 12;

  const CDataItem row = RowOf(L"热轧普通槽钢", L"[20a",
                              {{L"h(mm)", height},
                               {L"b(mm)", width},
                               {L"tw(mm)", tw},
                               {L"t(mm)", t},
                               {L"zo(cm)", zo / 10}});
  EXPECT_NEAR(CLoadDataTable::GetDatIteme0(row), zo - tw / 2 + e, 1e-9);
  EXPECT_NEAR(CLoadDataTable::GetDataItemIw(row), Iw, 1e-9 * Iw);
}

// Missing sizes leave 0.
TEST(GeometryWarping, MissingSizes) {
  const CDataItem row = RowOfPlates(L"自定义槽钢", {10, 300});
  EXPECT_EQ(CLoadDataTable::GetDatIteme0(row), 0);
  EXPECT_EQ(CLoadDataTable::GetDataItemIw(row), 0);
}

}  // namespace
