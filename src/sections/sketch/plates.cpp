// Sketches of sections from plate sizes, lettered with the signs of their columns.
#include <cmath>

#include "sections/section_shapes.h"
#include "sections/sketch/drawings.h"

namespace orv3::sketch {
namespace {

using CTail = CSketchPen::CTail;

CPath Polygon(const std::vector<CCorner>& corners) { return RoundedPath(corners); }

void PlateH(CSketchPen& pen) {
  pen.Steel(Moved(IShape(76, 90, 9, 12), 56, 34));
  pen.Axes({94, 79}, {56, 34, 132, 124}, L"Xo", L"Yo");
  pen.Width(56, 132, 34, 16, L"b");
  pen.Height(34, 124, 56, 38, L"h");
  pen.ThicknessX(89.5, 98.5, 60, L"tw");
  pen.ThicknessY(112, 124, 124, L"tf");
}

void GeneralH(CSketchPen& pen) {
  // Web 82..92, top flange 54..122, bottom flange 44..138.
  pen.Steel(Polygon({{44, 36},
                     {138, 36},
                     {138, 50},
                     {92, 50},
                     {92, 104},
                     {122, 104},
                     {122, 115},
                     {54, 115},
                     {54, 104},
                     {82, 104},
                     {82, 50},
                     {44, 50}}));
  pen.Width(54, 82, 115, 131, L"bf1");
  pen.Width(92, 122, 115, 131, L"bf2");
  pen.Width(44, 82, 36, 22, L"bf3");
  pen.Width(92, 138, 36, 22, L"bf4");
  pen.Height({44, 36}, {54, 115}, 22, L"h");
  pen.ThicknessX(82, 92, 77, L"b");
  pen.ThicknessY(104, 115, 110, L"bh2", CTail::Below);
  pen.ThicknessY(36, 50, 122, L"bh1");
}

void Box(CSketchPen& pen) {
  pen.Steel({RectPath(54, 34, 78, 88), Reversed(RectPath(63, 43, 60, 70))});
  pen.Axes({93, 78}, {54, 34, 132, 122}, L"Xo", L"Yo");
  pen.Width(54, 132, 34, 16, L"b");
  pen.Height(34, 122, 54, 36, L"h");
  pen.ThicknessX(54, 63, 58, L"t");
}

void GeneralBox(CSketchPen& pen) {
  pen.Steel({RectPath(48, 34, 88, 90), Reversed(RectPath(58, 50, 64, 63))});
  pen.Width(48, 136, 34, 16, L"b");
  pen.Height(34, 124, 48, 26, L"h");
  pen.ThicknessY(113, 124, 90, L"t1", CTail::Below);
  pen.ThicknessY(34, 50, 90, L"t2");
  pen.ThicknessX(48, 58, 81, L"t3");
  pen.ThicknessX(122, 136, 81, L"t4");
}

void Cross(CSketchPen& pen) {
  // Vertical arm 84..98, bar 72..86.
  pen.Steel(Polygon({{84, 34},
                     {98, 34},
                     {98, 72},
                     {142, 72},
                     {142, 86},
                     {98, 86},
                     {98, 122},
                     {84, 122},
                     {84, 86},
                     {48, 86},
                     {48, 72},
                     {84, 72}}));
  pen.Height(34, 122, 84, 24, L"h");
  pen.Height(34, 72, 98, 112, L"bh1");
  pen.Height(86, 122, 98, 112, L"bh2");
  pen.Width(48, 84, 72, 56, L"bf1");
  pen.Width(98, 142, 86, 20, L"bf2");
  pen.ThicknessX(84, 98, 106, L"b", CTail::Left);
}

void FlangedCross(CSketchPen& pen) {
  const double tf = 9;
  const double tw = 8;
  const CPoint c{92, 79};
  const double half = 45;
  const double flange = 24;
  std::vector<CCorner> corners;
  const CCorner arm[] = {{half, -flange},     {half, flange},   {half - tf, flange},
                         {half - tf, tw / 2}, {tw / 2, tw / 2}, {tw / 2, half - tf},
                         {flange, half - tf}};
  for (int turn = 0; turn < 4; ++turn) {
    for (const CCorner& p : arm) {
      const CCorner turned[] = {{p.x, p.y}, {-p.y, p.x}, {-p.x, -p.y}, {p.y, -p.x}};
      corners.push_back({c.x + turned[turn].x, c.y + turned[turn].y, 0});
    }
  }
  pen.Steel(Polygon(corners));
  pen.Width(47, 137, 55, 17, L"b");
  pen.Height(34, 124, 68, 24, L"h");
  pen.Width(68, 116, 124, 134, L"bf1");
  pen.Height(55, 103, 137, 147, L"bf2");
  pen.ThicknessX(88, 96, 60, L"tw", CTail::Left);
  pen.ThicknessY(115, 124, 108, L"tf", CTail::Below);
}

void PlateT(CSketchPen& pen) {
  pen.Steel(Polygon(
      {{82, 30}, {93, 30}, {93, 98}, {136, 98}, {136, 112}, {50, 112}, {50, 98}, {82, 98}}));
  pen.Width(50, 82, 112, 126, L"bf1");
  pen.Width(93, 136, 112, 126, L"bf2");
  pen.Height({82, 30}, {50, 112}, 32, L"h");
  pen.ThicknessX(82, 93, 54, L"b");
  pen.ThicknessY(98, 112, 122, L"bh", CTail::Below);
}

void PlateChannel(CSketchPen& pen) {
  pen.Steel(Polygon(
      {{56, 36}, {136, 36}, {136, 51}, {66, 51}, {66, 105}, {120, 105}, {120, 116}, {56, 116}}));
  pen.Height(36, 116, 56, 36, L"h");
  pen.Width(66, 136, 36, 20, L"bf1");
  pen.Width(66, 120, 116, 131, L"bf2");
  pen.ThicknessX(56, 66, 78, L"b");
  pen.ThicknessY(36, 51, 118, L"bh1");
  pen.ThicknessY(105, 116, 102, L"bh2", CTail::Below);
}

void PlateZ(CSketchPen& pen) {
  pen.Steel(Polygon(
      {{86, 36}, {140, 36}, {140, 51}, {96, 51}, {96, 116}, {46, 116}, {46, 105}, {86, 105}}));
  pen.Height({86, 36}, {46, 116}, 26, L"h");
  pen.Width(96, 140, 36, 20, L"bf2");
  pen.Width(46, 86, 116, 131, L"bf1");
  pen.ThicknessX(86, 96, 80, L"b");
  pen.ThicknessY(36, 51, 124, L"bh1");
  pen.ThicknessY(105, 116, 56, L"bh2", CTail::Below);
}

void PlateL(CSketchPen& pen) {
  pen.Steel(Polygon({{58, 36}, {134, 36}, {134, 50}, {69, 50}, {69, 122}, {58, 122}}));
  pen.Height(36, 122, 58, 38, L"h");
  pen.Width(69, 134, 36, 20, L"bf");
  pen.ThicknessX(58, 69, 96, L"b");
  pen.ThicknessY(36, 50, 118, L"bh");
}

void Circle(CSketchPen& pen) {
  const CPoint c{90, 76};
  pen.Steel(CirclePath(c, 46));
  pen.Axes(c, {44, 30, 136, 122}, L"Xo", L"Yo");
  const double part = std::sqrt(0.5);
  pen.Arrow(c, {c.x + 46 * part, c.y + 46 * part});
  pen.Letter({c.x + 14, c.y + 25}, L"R");
}

void Tube(CSketchPen& pen) {
  const CPoint c{90, 76};
  pen.Steel({CirclePath(c, 46), Reversed(CirclePath(c, 32))});
  pen.Axes(c, {44, 30, 136, 122}, L"Xo", L"Yo");
  const double part = std::sqrt(0.5);
  pen.Arrow(c, {c.x + 46 * part, c.y + 46 * part});
  pen.Arrow(c, {c.x - 32 * part, c.y + 32 * part});
  pen.Letter({c.x + 10, c.y + 21}, L"R");
  pen.Letter({c.x - 18, c.y + 9}, L"r");
}

void Rectangle(CSketchPen& pen) {
  pen.Steel(RectPath(64, 34, 58, 88));
  pen.Axes({93, 78}, {64, 34, 122, 122}, L"Xo", L"Yo");
  pen.Width(64, 122, 34, 16, L"b");
  pen.Height(34, 122, 64, 44, L"h");
}

void Hexagon(CSketchPen& pen) {
  const CPoint c{94, 78};
  const double a = 46;
  const double half = a * std::sqrt(3.0) / 2;
  pen.Steel(Polygon({{c.x, c.y - a},
                     {c.x + half, c.y - a / 2},
                     {c.x + half, c.y + a / 2},
                     {c.x, c.y + a},
                     {c.x - half, c.y + a / 2},
                     {c.x - half, c.y - a / 2}}));
  pen.Axes(c, {c.x - half, c.y - a, c.x + half, c.y + a}, L"Xo", L"Yo");
  pen.Height(c.y - a / 2, c.y + a / 2, c.x - half, c.x - half - 20, L"a");
}

void Triangle(CSketchPen& pen) {
  pen.Steel(Polygon({{48, 36}, {136, 36}, {92, 120}}));
  pen.Axes({92, 64}, {48, 36, 136, 120}, L"Xo", L"Yo");
  pen.Width(48, 136, 36, 18, L"b");
  pen.Height(36, 120, 92, 30, L"h");
}

constexpr CSketchEntry kPlateSketches[] = {
    {8035, Box},          {8036, PlateT},   {8037, Cross},     {8038, GeneralBox},
    {8039, Hexagon},      {8040, Triangle}, {8041, Tube},      {8042, Circle},
    {8043, GeneralH},     {8044, PlateL},   {8045, PlateZ},    {8046, PlateChannel},
    {8047, FlangedCross}, {8048, PlateH},   {8049, Rectangle},
};

}  // namespace

std::span<const CSketchEntry> PlateSketches() noexcept { return kPlateSketches; }

}  // namespace orv3::sketch
