#include "sections/outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "sections/plate_h.h"

namespace orv3 {
namespace {

using CSizes = std::span<const double, kSectionSizes>;

struct CPlate {
  double m_dLeft;
  double m_dRight;
  double m_dBottom;
  double m_dTop;
  bool IsEmpty() const { return m_dRight == m_dLeft || m_dTop == m_dBottom; }
};

// One loop around plates that stand on each other.
CPath StackedPlates(std::span<const CPlate> plates) {
  CPath path;
  const auto add = [&path](double x, double y) {
    auto& all = path.m_arrVertex;
    if (all.empty() || all.back().x != x || all.back().y != y) all.push_back({x, y, 0});
  };
  for (const CPlate& plate : plates) {
    add(plate.m_dRight, plate.m_dBottom);
    add(plate.m_dRight, plate.m_dTop);
  }
  for (std::size_t i = plates.size(); i-- > 0;) {
    add(plates[i].m_dLeft, plates[i].m_dTop);
    add(plates[i].m_dLeft, plates[i].m_dBottom);
  }
  return path;
}

COutline HOutline(const CPlateH& h) {
  COutline out{{}, h.Width(), h.m_dHeight};
  if (std::min({h.WebHeight(), h.m_dWeb, h.m_dTop, h.m_dBottom, h.TopWidth(), h.BottomWidth()}) < 0)
    return out;
  const double bottom = h.BottomEdge();
  const double web = h.WebEdge();
  const double top = h.TopEdge();
  const CPlate plates[] = {
      {bottom, bottom + h.BottomWidth(), 0, h.m_dBottom},
      {web, web + h.m_dWeb, h.m_dBottom, h.m_dHeight - h.m_dTop},
      {top, top + h.TopWidth(), h.m_dHeight - h.m_dTop, h.m_dHeight},
  };
  // An empty plate parts the others, unless it has no height and they stand on each other.
  std::vector<CPlate> run;
  for (const CPlate& plate : plates) {
    if (!plate.IsEmpty()) {
      run.push_back(plate);
    } else if (plate.m_dTop != plate.m_dBottom && !run.empty()) {
      out.m_arrLoop.push_back(StackedPlates(run));
      run.clear();
    }
  }
  if (!run.empty()) out.m_arrLoop.push_back(StackedPlates(run));
  return out;
}

COutline BoxOutline(double b, double h, double top, double bottom, double left, double right) {
  COutline out{{}, b, h};
  const double holeWidth = b - left - right;
  const double holeHeight = h - top - bottom;
  if (!(b > 0 && h > 0) || std::min({top, bottom, left, right, holeWidth, holeHeight}) < 0)
    return out;
  const bool hole = holeWidth > 0 && holeHeight > 0;
  if (hole && holeWidth == b && holeHeight == h) return out;
  out.m_arrLoop.push_back(RectPath(0, 0, b, h));
  if (hole) out.m_arrLoop.push_back(Reversed(RectPath(left, bottom, holeWidth, holeHeight)));
  return out;
}

// The first quarter of a flanged cross around its middle, from the right to the top.
std::vector<CPoint> CrossQuarter(double b, double h, double bf1, double bf2, double tw, double tf) {
  std::vector<CPoint> quarter;
  if (tf > 0 && bf2 > 0) {
    quarter.push_back({b / 2, bf2 / 2});
    quarter.push_back({b / 2 - tf, bf2 / 2});
  }
  quarter.push_back({b / 2 - tf, tw / 2});
  quarter.push_back({tw / 2, tw / 2});
  quarter.push_back({tw / 2, h / 2 - tf});
  if (tf > 0 && bf1 > 0) {
    quarter.push_back({bf1 / 2, h / 2 - tf});
    quarter.push_back({bf1 / 2, h / 2});
  }
  return quarter;
}

std::vector<CPath> CrossFlanges(double b, double h, double bf1, double bf2, double tf) {
  return {RectPath((b - bf1) / 2, 0, bf1, tf), RectPath((b - bf1) / 2, h - tf, bf1, tf),
          RectPath(0, (h - bf2) / 2, tf, bf2), RectPath(b - tf, (h - bf2) / 2, tf, bf2)};
}

COutline FlangedCrossOutline(double b, double h, double bf1, double bf2, double tw, double tf) {
  COutline out{{}, b, h};
  if (std::min({bf1, bf2, tw, tf, b - 2 * tf - tw, h - 2 * tf - tw}) < 0) return out;
  if (tw == 0) {
    if (tf > 0) out.m_arrLoop = CrossFlanges(b, h, bf1, bf2, tf);
    std::erase_if(out.m_arrLoop, [](const CPath& loop) {
      const CBox box = PathBounds({&loop, 1});
      return box.Width() == 0 || box.Height() == 0;
    });
    return out;
  }
  const std::vector<CPoint> quarter = CrossQuarter(b, h, bf1, bf2, tw, tf);
  CPath path;
  const auto add = [&](double x, double y) {
    path.m_arrVertex.push_back({b / 2 + x, h / 2 + y, 0});
  };
  const std::vector<CPoint> back(quarter.rbegin(), quarter.rend());
  for (const CPoint& p : quarter) add(p.x, p.y);
  for (const CPoint& p : back) add(-p.x, p.y);
  for (const CPoint& p : quarter) add(-p.x, -p.y);
  for (const CPoint& p : back) add(p.x, -p.y);
  out.m_arrLoop.push_back(std::move(path));
  return out;
}

COutline PolygonOutline(double width, double height, std::vector<CVertex> vertices) {
  COutline out{{}, width, height};
  if (width > 0 && height > 0) out.m_arrLoop.push_back({std::move(vertices), true});
  return out;
}

// Two corners on the vertical axis.
COutline HexagonOutline(double a) {
  const double width = std::numbers::sqrt3 * a;
  return PolygonOutline(width, 2 * a,
                        {{width / 2, 0, 0},
                         {width, a / 2, 0},
                         {width, 1.5 * a, 0},
                         {width / 2, 2 * a, 0},
                         {0, 1.5 * a, 0},
                         {0, a / 2, 0}});
}

COutline RingOutline(double outer, double inner) {
  COutline out{{}, 2 * outer, 2 * outer};
  if (!(outer > 0 && inner >= 0 && inner < outer)) return out;
  const CPoint center{outer, outer};
  out.m_arrLoop.push_back(CirclePath(center, outer));
  if (inner > 0) out.m_arrLoop.push_back(Reversed(CirclePath(center, inner)));
  return out;
}

COutline StyleOutline(int style, CSizes s) {
  switch (style) {
    case kStyleBox:
      return BoxOutline(s[0], s[1], s[2], s[2], s[2], s[2]);
    case kStyleFlangedCross:
      return FlangedCrossOutline(s[0], s[1], s[2], s[3], s[4], s[5]);
    case kStyleRectangle:
      return PolygonOutline(s[0], s[1], RectPath(0, 0, s[0], s[1]).m_arrVertex);
    case kStyleHexagon:
      return HexagonOutline(s[0]);
    case kStyleTriangle:
      return PolygonOutline(s[0], s[1], {{0, 0, 0}, {s[0], 0, 0}, {s[0] / 2, s[1], 0}});
    case kStyleCircle:
      return RingOutline(s[0], 0);
    case kStyleTube:
      return RingOutline(s[0], s[1]);
    case kStyleGeneralBox:
      return BoxOutline(s[0], s[1], s[2], s[3], s[4], s[5]);
    default:
      return HOutline(PlateHOf(style, s));
  }
}

}  // namespace

COutline SectionOutline(int style, std::span<const double, kSectionSizes> sizes) {
  const CSectionStyle* known = FindSectionStyle(style);
  if (known == nullptr) return {};
  // Finite sizes far below the largest double keep every sum finite.
  const auto used = sizes.first(known->Sizes().size());
  if (!std::all_of(used.begin(), used.end(), [](double s) { return std::fabs(s) < 1e300; }))
    return {};
  return StyleOutline(style, sizes);
}

}  // namespace orv3
