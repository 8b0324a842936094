// Sketches of pairs of rolled sections and of lattice columns.
#include "sections/section_shapes.h"
#include "sections/sketch/drawings.h"

namespace orv3::sketch {
namespace {

constexpr CFlangeForm kPartAngle{7, 5, 0};
constexpr CFlangeForm kPartChannel{6, 4, 1.0 / 6};

// `part`, whose back is the y axis, and its mirror image with `gap` between the backs.
void MirroredPair(CSketchPen& pen, const CPath& part, double middle, double bottom, double gap) {
  pen.Steel(Moved(part, middle + gap / 2, bottom));
  pen.Steel(Moved(MirroredX(part), middle - gap / 2, bottom));
}

// Two angles back to back, outstanding legs `b` at the bottom, vertical legs `h`.
void AnglePair(CSketchPen& pen, double b, double h, double centroid, const wchar_t* width,
               const wchar_t* height) {
  const double middle = 90;
  const double bottom = 34;
  const double gap = 10;
  MirroredPair(pen, AngleShape(b, h, 10, kPartAngle), middle, bottom, gap);
  const CBox box{middle - gap / 2 - b, bottom, middle + gap / 2 + b, bottom + h};
  pen.Axes({middle, bottom + centroid}, box, L"x", L"y");
  pen.Width(middle + gap / 2, box.right, bottom, bottom - 18, width);
  pen.Height(bottom, box.top, box.left, box.left - 14, height);
  pen.ThicknessX(middle - gap / 2, middle + gap / 2, bottom + h - 14, L"a");
}

void Lacing(CSketchPen& pen, CPoint a, CPoint b) { pen.Line(a, b, CLayer::BaseAxis); }

void EqualAnglePair(CSketchPen& pen) { AnglePair(pen, 58, 68, 22, L"b", L"b"); }
void LongLegPair(CSketchPen& pen) { AnglePair(pen, 42, 84, 32, L"b", L"B"); }
void ShortLegPair(CSketchPen& pen) { AnglePair(pen, 55, 46, 13, L"B", L"b"); }

void CrossAnglePair(CSketchPen& pen) {
  const CPoint c{86, 76};
  const double gap = 8;
  const CPath angle = AngleShape(50, 50, 10, kPartAngle);
  pen.Steel(Moved(angle, c.x + gap / 2, c.y + gap / 2));
  pen.Steel(Moved(Turned(angle, 180), c.x - gap / 2, c.y - gap / 2));
  pen.SlantAxis(c, 45, 52, L"x1");
  pen.SlantAxis(c, -45, 52, L"y1");
  pen.Height({140, 80}, {100, 130}, 154, L"b");
  pen.Line({82, 74}, {82, 124});
  pen.ThicknessX(c.x - gap / 2, c.x + gap / 2, c.y + 44, L"", CSketchPen::CTail::Left);
  pen.Letter({c.x - gap / 2 - 14, c.y + 44}, L"δ", CAnchor::Right);
}

void ChannelsBackToBack(CSketchPen& pen) {
  const double middle = 90;
  MirroredPair(pen, ChannelShape(44, 84, 8, 11, kPartChannel), middle, 36, 12);
  const CBox box{40, 36, 140, 120};
  pen.Axes({middle, 78}, box, L"x", L"y");
  pen.Width(96, 140, 36, 18, L"b");
  pen.Height(36, 120, 40, 24, L"h");
  pen.ThicknessX(84, 96, 96, L"a");
}

void ChannelsToeToToe(CSketchPen& pen) {
  const CPath channel = ChannelShape(46, 84, 8, 11, kPartChannel);
  pen.Steel(Moved(channel, 44, 36));
  pen.Steel(Moved(MirroredX(channel), 136, 36));
  const CBox box{44, 36, 136, 120};
  pen.Axes({90, 78}, box, L"x", L"y");
  pen.Width(44, 90, 36, 18, L"b");
  pen.Width(90, 136, 36, 18, L"b");
  pen.Height(36, 120, 44, 26, L"h");
  pen.ThicknessX(44, 52, 58, L"tw");
}

void TwoLimbs(CSketchPen& pen) {
  // Webs outside, toes inside, laced along both sides.
  const CPath limb = Turned(ChannelShape(30, 64, 7, 8, kPartChannel), 90);
  const double middle = 92;
  const double low = 28;
  const double high = 128;
  pen.Steel(Moved(limb, middle + 32, low));
  pen.Steel(Moved(MirroredY(limb), middle + 32, high));
  for (const double x : {middle - 32.0, middle + 32.0}) Lacing(pen, {x, low + 30}, {x, high - 30});
  pen.Axes({middle, 78}, {middle - 32, low, middle + 32, high}, L"x", L"y");
  const double centroid = 11;
  const double left = middle - 32;
  pen.Line({left - 8, low + centroid}, {middle + 40, low + centroid}, CLayer::CentroidAxis);
  pen.Line({left - 8, high - centroid}, {middle + 40, high - centroid}, CLayer::CentroidAxis);
  pen.Height(low + centroid, high - centroid, left - 8, left - 22, L"k");
  pen.Letter({middle + 46, low + centroid}, L"1", CAnchor::Left, CLayer::Text);
  pen.Letter({middle + 46, high - centroid}, L"2", CAnchor::Left, CLayer::Text);
}

void FourLimbs(CSketchPen& pen) {
  const CPath angle = AngleShape(28, 28, 7, {5, 3, 0});
  const CBox box{50, 38, 134, 122};
  pen.Steel(Moved(angle, box.left, box.bottom));
  pen.Steel(Moved(MirroredX(angle), box.right, box.bottom));
  pen.Steel(Moved(MirroredY(angle), box.left, box.top));
  pen.Steel(Moved(Turned(angle, 180), box.right, box.top));
  for (const double x : {box.left, box.right}) Lacing(pen, {x, box.bottom + 28}, {x, box.top - 28});
  for (const double y : {box.bottom, box.top}) Lacing(pen, {box.left + 28, y}, {box.right - 28, y});
  pen.Axes({92, 80}, box, L"x", L"y");
  const double zo = 9;
  pen.Width(box.left + zo, box.right - zo, box.bottom + zo, 20, L"kx");
  pen.Height(box.bottom + zo, box.top - zo, box.left + zo, 34, L"ky");
}

void GeneralSection(CSketchPen& pen) {
  const CPath outline{{{52, 52, 0.2},
                       {92, 38, 0.12},
                       {132, 62, 0.3},
                       {122, 104, -0.15},
                       {94, 108, 0.25},
                       {58, 104, 0.18}},
                      true};
  pen.Steel(outline);
  pen.Axes({92, 76}, {44, 36, 140, 114}, L"x", L"y");
}

constexpr CSketchEntry kBuiltSketches[] = {
    {8023, EqualAnglePair}, {8024, LongLegPair},      {8025, ShortLegPair},
    {8026, CrossAnglePair}, {8027, ChannelsToeToToe}, {8028, ChannelsBackToBack},
    {8076, GeneralSection}, {8077, FourLimbs},        {8078, TwoLimbs},
};

}  // namespace

std::span<const CSketchEntry> BuiltSketches() noexcept { return kBuiltSketches; }

}  // namespace orv3::sketch
