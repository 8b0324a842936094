// Sketches of rolled and cold-formed sections.
#include "sections/section_shapes.h"
#include "sections/sketch/drawings.h"

namespace orv3::sketch {
namespace {

using CTail = CSketchPen::CTail;

constexpr CFlangeForm kSloped{8, 5, 1.0 / 6};
constexpr CFlangeForm kParallel{8, 0, 0};
constexpr CFlangeForm kAngleForm{9, 6, 0};

// Overall width below and height on the left of a section in `box`.
void OverallSizes(CSketchPen& pen, CBox box, const wchar_t* width, const wchar_t* height) {
  pen.Width(box.left, box.right, box.bottom, box.bottom - 18, width);
  pen.Height(box.bottom, box.top, box.left, box.left - 18, height);
}

CBox BoxAt(double left, double bottom, double width, double height) {
  return {left, bottom, left + width, bottom + height};
}

void Put(CSketchPen& pen, const CPath& path, CBox box) {
  pen.Steel(Moved(path, box.left, box.bottom));
}

CPoint Middle(CBox box) { return {(box.left + box.right) / 2, (box.bottom + box.top) / 2}; }

// What the I and H sections share: sizes, web and flange thickness, axes.
void HSizes(CSketchPen& pen, CBox box, double tw, double t, const wchar_t* flange) {
  const CPoint c = Middle(box);
  pen.Axes(c, box, L"x", L"y");
  pen.ThicknessX(c.x - tw / 2, c.x + tw / 2, c.y - 16, L"tw");
  pen.ThicknessY(box.top - t, box.top, box.right - (box.Width() - tw) / 4, flange);
}

void ParallelH(CSketchPen& pen, CBox box) {
  Put(pen, IShape(box.Width(), box.Height(), 8, 11, kParallel), box);
  OverallSizes(pen, box, L"B", L"H");
  HSizes(pen, box, 8, 11, L"tf");
  const CPoint root{Middle(box).x - 4 - 2.5, box.bottom + 11 + 2.5};
  pen.Leader({root.x - 10, root.y + 14}, root, L"r");
}

void RolledI(CSketchPen& pen) {
  const CBox box = BoxAt(58, 34, 68, 92);
  Put(pen, IShape(68, 92, 8, 12, kSloped), box);
  OverallSizes(pen, box, L"b", L"h");
  HSizes(pen, box, 8, 12, L"t");
  pen.Leader({72, 65}, {85, 54.5}, L"r");
  pen.Leader({140, 56}, {125, 42}, L"r1");
}

void WideH(CSketchPen& pen) { ParallelH(pen, BoxAt(46, 36, 90, 88)); }
void NarrowH(CSketchPen& pen) { ParallelH(pen, BoxAt(65, 34, 52, 92)); }

void WeldedH(CSketchPen& pen) {
  const CBox box = BoxAt(62, 34, 72, 92);
  const double web = 7;
  Put(pen, IShape(72, 92, web, 11), box);
  const double left = Middle(box).x - web / 2;
  const double right = Middle(box).x + web / 2;
  for (const double sense : {1.0, -1.0}) {
    const double y = sense > 0 ? box.bottom + 11 : box.top - 11;
    pen.Weld(left, y, -8, 8 * sense);
    pen.Weld(right, y, 8, 8 * sense);
  }
  pen.Width(box.left, box.right, box.bottom, box.bottom - 18, L"B");
  pen.Height(box.bottom, box.top, box.left, box.left - 32, L"H");
  pen.Height(box.bottom + 11, box.top - 11, box.left, box.left - 12, L"h");
  HSizes(pen, box, web, 11, L"tf");
}

void RolledChannel(CSketchPen& pen) {
  const CBox box = BoxAt(64, 34, 56, 88);
  Put(pen, ChannelShape(56, 88, 9, 13, kSloped), box);
  OverallSizes(pen, box, L"b", L"h");
  pen.Axes({82, 78}, box, L"x", L"y");
  pen.Width({64, 122}, {82, 131}, 131, L"zo");
  pen.ThicknessX(64, 73, 60, L"tw");
  pen.ThicknessY(110, 122, 110, L"t");
  pen.Leader({95, 96}, {75.5, 106}, L"r");
  pen.Leader({133, 54}, {119, 42}, L"r1");
}

void RolledT(CSketchPen& pen) {
  const CBox box = BoxAt(52, 32, 78, 78);
  Put(pen, TShape(78, 78, 9, 12, kParallel), box);
  pen.Axes({91, 87}, {52, 32, 142, 110}, L"x", L"y");
  pen.Width(box.left, box.right, box.top, box.top + 20, L"B");
  pen.Height(box.bottom, box.top, box.left, box.left - 18, L"h");
  pen.Height({130, 110}, {142, 87}, 142, L"Cx");
  pen.ThicknessX(86.5, 95.5, 48, L"t1");
  pen.ThicknessY(98, 110, 62, L"t2");
  pen.Leader({110, 72}, {98, 95.5}, L"r");
}

void EqualAngle(CSketchPen& pen) {
  const CBox box = BoxAt(52, 36, 80, 80);
  Put(pen, AngleShape(80, 80, 13, kAngleForm), box);
  OverallSizes(pen, box, L"b", L"b");
  const CPoint c{76, 60};
  pen.Axes(c, {52, 36, 138, 116}, L"x", L"");
  pen.SlantAxis(c, 45, 52, L"xo");
  pen.SlantAxis(c, -45, 46, L"yo");
  pen.ThicknessX(52, 65, 104, L"t");
  pen.Height({132, 36}, {142, c.y}, 142, L"zo");
  pen.Leader({84, 84}, {68, 52}, L"r");
}

void UnequalAngle(CSketchPen& pen) {
  const CBox box = BoxAt(58, 34, 62, 94);
  Put(pen, AngleShape(62, 94, 12, kAngleForm), box);
  OverallSizes(pen, box, L"b", L"B");
  const CPoint c{75, 65};
  pen.Axes(c, {58, 34, 132, 124}, L"x", L"y");
  pen.Height({120, 34}, {134, c.y}, 134, L"yo");
  pen.Width({58, 128}, {c.x, 133}, 133, L"xo");
  pen.ThicknessX(58, 70, 108, L"t");
  pen.Leader({98, 82}, {73, 49}, L"r");
}

void ColdAngle(CSketchPen& pen) {
  const CBox box = BoxAt(54, 36, 78, 78);
  const CPoint middle[] = {{75 + 3, 3}, {3, 3}, {3, 78}};
  Put(pen, StripShape(middle, 6, 6), box);
  OverallSizes(pen, box, L"b", L"b");
  const CPoint c{74, 56};
  pen.SlantAxis(c, 45, 48, L"x");
  pen.SlantAxis(c, -45, 44, L"y");
  pen.ThicknessX(54, 60, 102, L"t");
  pen.Height({132, 36}, c, 148, L"yo");
}

void ColdLippedAngle(CSketchPen& pen) {
  const CBox box = BoxAt(54, 36, 78, 78);
  const CPoint middle[] = {{75, 21}, {75, 3}, {3, 3}, {3, 75}, {21, 75}};
  Put(pen, StripShape(middle, 6, 5), box);
  OverallSizes(pen, box, L"b", L"b");
  const CPoint c{78, 60};
  pen.SlantAxis(c, 45, 42, L"x");
  pen.SlantAxis(c, -45, 52, L"y");
  pen.Width(54, 75, 114, 126, L"a");
  pen.Height(36, 57, 132, 146, L"a");
  pen.ThicknessX(54, 60, 84, L"t");
}

void ColdChannel(CSketchPen& pen) {
  const CBox box = BoxAt(64, 34, 54, 88);
  const CPoint middle[] = {{54, 3}, {3, 3}, {3, 85}, {54, 85}};
  Put(pen, StripShape(middle, 6, 6), box);
  OverallSizes(pen, box, L"b", L"h");
  pen.Axes({80, 78}, box, L"x", L"y");
  pen.Width({64, 122}, {80, 131}, 131, L"xo");
  pen.ThicknessX(64, 70, 56, L"t");
}

void ColdLippedChannel(CSketchPen& pen) {
  const CBox box = BoxAt(62, 34, 58, 88);
  const CPoint middle[] = {{55, 21}, {55, 3}, {3, 3}, {3, 85}, {55, 85}, {55, 67}};
  Put(pen, StripShape(middle, 6, 5), box);
  OverallSizes(pen, box, L"b", L"h");
  pen.Axes({90, 78}, box, L"x", L"y");
  pen.Height(101, 122, 120, 136, L"a");
  pen.Width({62, 122}, {90, 131}, 131, L"xo");
  pen.ThicknessX(62, 68, 56, L"t");
}

void ColdLippedZ(CSketchPen& pen) {
  const CBox box = BoxAt(44, 34, 92, 88);
  const CPoint middle[] = {{3, 67}, {3, 85}, {46, 85}, {46, 3}, {89, 3}, {89, 21}};
  Put(pen, StripShape(middle, 6, 5), box);
  pen.Width(87, 136, 34, 16, L"b");
  pen.Height({87, 34}, {44, 122}, 28, L"h");
  pen.Axes({90, 78}, box, L"x1", L"y1");
  pen.Height(34, 58, 136, 152, L"a");
  pen.ThicknessX(87, 93, 56, L"t", CTail::Left);
}

void ColdSlantLippedZ(CSketchPen& pen) {
  const CBox box = BoxAt(38, 34, 104, 88);
  const CPoint middle[] = {{3, 72}, {16, 85}, {52, 85}, {52, 3}, {88, 3}, {101, 16}};
  Put(pen, StripShape(middle, 6, 5), box);
  pen.Width(87, 142, 34, 16, L"b");
  pen.Height({87, 34}, {54, 122}, 26, L"h");
  pen.Axes({90, 78}, box, L"x1", L"y1");
  // Along the inner face of the lip.
  pen.Line({125, 41}, {116, 50});
  pen.Line({136, 53}, {127, 62});
  pen.Arrow({124, 54}, {118, 48});
  pen.Arrow({124, 54}, {129, 60});
  pen.Letter({115, 61}, L"a");
  pen.ThicknessX(87, 93, 56, L"t", CTail::Left);
}

void SquareTube(CSketchPen& pen) {
  const CBox box = BoxAt(52, 34, 84, 84);
  std::vector<CPath> loops = TubeShape(84, 84, 8, 12);
  for (CPath& loop : loops) loop = Moved(loop, box.left, box.bottom);
  pen.Steel(loops);
  OverallSizes(pen, box, L"h", L"h");
  pen.Axes(Middle(box), box, L"x", L"y");
  pen.ThicknessX(52, 60, 54, L"t");
}

void RoundTube(CSketchPen& pen) {
  const CBox box = BoxAt(50, 36, 84, 84);
  std::vector<CPath> loops = RingShape(42, 34);
  for (CPath& loop : loops) loop = Moved(loop, box.left, box.bottom);
  pen.Steel(loops);
  pen.Width(50, 134, 78, 16, L"d");
  pen.Axes(Middle(box), box, L"x", L"y");
  pen.ThicknessX(50, 58, 87, L"t");
}

constexpr CSketchEntry kRolledSketches[] = {
    {8008, EqualAngle},       {8009, UnequalAngle},      {8010, WideH},
    {8011, NarrowH},          {8012, RolledChannel},     {8013, RolledI},
    {8014, WeldedH},          {8015, ColdLippedAngle},   {8016, ColdAngle},
    {8017, ColdChannel},      {8018, ColdLippedChannel}, {8019, ColdLippedZ},
    {8020, ColdSlantLippedZ}, {8021, SquareTube},        {8022, RoundTube},
    {8029, RolledT},
};

}  // namespace

std::span<const CSketchEntry> RolledSketches() noexcept { return kRolledSketches; }

}  // namespace orv3::sketch
