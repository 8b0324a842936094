#include "catalogue/ifc/ifc_profile.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <vector>

#include "catalogue/outline/row_sizes.h"
#include "catalogue/outline/shapes.h"
#include "framework/elementary.h"
#include "outlines/outline_moments.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

// --- Parameterised profiles ----------------------------------------------------------------------

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();  // an attribute left out

// What an entity has behind its type, its name and its position. Without an entity: an arbitrary
// profile says it.
struct CParameters {
  std::string_view m_strEntity;
  std::vector<double> m_arrValue;
};
using CParametersOf = CParameters (*)(CRowSizes& sizes);

// A shape whose plates stand on each other with something left between them.
CParameters Shape(std::string_view entity, std::vector<double> values,
                  std::initializer_list<double> left) {
  return std::min(left) > 0 ? CParameters{entity, std::move(values)} : CParameters{};
}

CParameters IShaped(double b, double h, double tw, double tf, double r, double toe, double slope) {
  return Shape("IFCISHAPEPROFILEDEF", {b, h, tw, tf, r, toe, slope}, {h - 2 * tf, b - tw});
}

CParameters TaperedI(CRowSizes& s, double slope) {
  return IShaped(s.Size(L"b(mm)"), s.Size(L"h(mm)"), s.Size(L"tw(mm)"), s.Size(L"t(mm)"),
                 s.Radius(L"r(mm)"), s.Radius(L"r1(mm)"), Atan(slope));
}
CParameters OrdinaryIProfile(CRowSizes& s) { return TaperedI(s, kOrdinarySlope); }
CParameters LightIProfile(CRowSizes& s) { return TaperedI(s, kLightSlope); }

CParameters RolledHProfile(CRowSizes& s) {
  return IShaped(s.Size(L"B(mm)"), s.Size(L"H(mm)"), s.Size(L"tw(mm)"), s.Size(L"tf(mm)"),
                 s.Radius(L"r(mm)"), kNone, kNone);
}

CParameters WeldedHProfile(CRowSizes& s) {
  return IShaped(s.Size(L"B(mm)"), s.Size(L"H(mm)"), s.Size(L"tw(mm)"), s.Size(L"tf(mm)"), kNone,
                 kNone, kNone);
}

CParameters TShaped(double h, double b, double tw, double tf, double r) {
  return Shape("IFCTSHAPEPROFILEDEF", {h, b, tw, tf, r, kNone, kNone, kNone, kNone},
               {h - tf, b - tw});
}

CParameters SplitTProfile(CRowSizes& s) {
  return TShaped(s.Size(L"h(mm)"), s.Size(L"B(mm)"), s.Size(L"t1(mm)"), s.Size(L"t2(mm)"),
                 s.Radius(L"r(mm)"));
}

CParameters UShaped(double h, double b, double tw, double tf, double r, double toe, double slope) {
  return Shape("IFCUSHAPEPROFILEDEF", {h, b, tw, tf, r, toe, slope}, {h - 2 * tf, b - tw});
}

// IFC measures the flange at half of the width; the standards midway on its outstand.
CParameters ChannelProfile(CRowSizes& s) {
  const double tw = s.Size(L"tw(mm)");
  return UShaped(s.Size(L"h(mm)"), s.Size(L"b(mm)"), tw, s.Size(L"t(mm)") + kChannelSlope * tw / 2,
                 s.Radius(L"r(mm)"), s.Radius(L"r1(mm)"), Atan(kChannelSlope));
}

CParameters LShaped(double h, double b, double t, double r, double toe) {
  return Shape("IFCLSHAPEPROFILEDEF", {h, b, t, r, toe, kNone}, {h - t, b - t});
}

CParameters AngleProfile(CRowSizes& s, const wchar_t* height) {
  const double t = s.Size(L"t(mm)");
  return LShaped(s.Size(height), s.Size(L"b(mm)"), t, s.Radius(L"r(mm)"), kLegToe * t);
}
CParameters EqualAngleProfile(CRowSizes& s) { return AngleProfile(s, L"b(mm)"); }
CParameters UnequalAngleProfile(CRowSizes& s) { return AngleProfile(s, L"B(mm)"); }

CParameters LippedChannelProfile(CRowSizes& s) {
  const double h = s.Size(L"h(mm)"), b = s.Size(L"b(mm)"), t = s.Size(L"t(mm)");
  const double a = s.Size(L"a(mm)");
  return Shape("IFCCSHAPEPROFILEDEF", {h, b, t, a, kInnerBend * t}, {h - 2 * a, b - 2 * t});
}

CParameters Hollow(double b, double h, double t, double inner, double outer) {
  return Shape("IFCRECTANGLEHOLLOWPROFILEDEF", {b, h, t, inner, outer}, {b - 2 * t, h - 2 * t});
}

CParameters SquareTubeProfile(CRowSizes& s) {
  const double h = s.Size(L"h(mm)"), t = s.Size(L"t(mm)");
  return Hollow(h, h, t, kInnerBend * t, kOuterBend * t);
}

CParameters RoundTubeProfile(CRowSizes& s) {
  const double r = s.Size(L"d(mm)") / 2, t = s.Size(L"t(mm)");
  return Shape("IFCCIRCLEHOLLOWPROFILEDEF", {r, t}, {r - t});
}

// --- Plates ---

CParameters PlateHProfile(CRowSizes& s) {
  return IShaped(s.Size(L"b(mm)"), s.Size(L"h(mm)"), s.Size(L"tw(mm)"), s.Size(L"tf(mm)"), kNone,
                 kNone, kNone);
}

// Both flanges stand midway on the web, or an arbitrary profile says where.
CParameters GeneralHProfile(CRowSizes& s) {
  const double tw = s.Size(L"b(mm)"), h = s.Size(L"h(mm)");
  const double bottom = s.Size(L"bh1(mm)"), top = s.Size(L"bh2(mm)");
  const double upper = s.Size(L"bf1(mm)"), lower = s.Size(L"bf3(mm)");
  if (s.Size(L"bf2(mm)") != upper || s.Size(L"bf4(mm)") != lower) return {};
  return Shape("IFCASYMMETRICISHAPEPROFILEDEF",
               {tw + 2 * lower, h, tw, bottom, kNone, tw + 2 * upper, top, kNone, kNone, kNone,
                kNone, kNone},
               {h - bottom - top});
}

CParameters PlateTProfile(CRowSizes& s) {
  const double tw = s.Size(L"b(mm)"), overhang = s.Size(L"bf1(mm)");
  if (s.Size(L"bf2(mm)") != overhang) return {};
  return TShaped(s.Size(L"h(mm)"), tw + 2 * overhang, tw, s.Size(L"bh(mm)"), kNone);
}

CParameters PlateLProfile(CRowSizes& s) {
  const double t = s.Size(L"b(mm)");
  if (s.Size(L"bh(mm)") != t) return {};
  return LShaped(s.Size(L"h(mm)"), t + s.Size(L"bf(mm)"), t, kNone, kNone);
}

// Two flanges of one size, at the bottom to the right and at the top to the right or to the left.
bool HasEqualFlanges(CRowSizes& s) {
  return s.Size(L"bh1(mm)") == s.Size(L"bh2(mm)") && s.Size(L"bf1(mm)") == s.Size(L"bf2(mm)");
}

CParameters PlateChannelProfile(CRowSizes& s) {
  if (!HasEqualFlanges(s)) return {};
  const double tw = s.Size(L"b(mm)");
  return UShaped(s.Size(L"h(mm)"), tw + s.Size(L"bf1(mm)"), tw, s.Size(L"bh1(mm)"), kNone, kNone,
                 kNone);
}

CParameters PlateZProfile(CRowSizes& s) {
  if (!HasEqualFlanges(s)) return {};
  const double tw = s.Size(L"b(mm)"), h = s.Size(L"h(mm)"), tf = s.Size(L"bh1(mm)");
  return Shape("IFCZSHAPEPROFILEDEF", {h, tw + s.Size(L"bf1(mm)"), tw, tf, kNone, kNone},
               {h - 2 * tf});
}

CParameters PlateBoxProfile(CRowSizes& s) {
  return Hollow(s.Size(L"b(mm)"), s.Size(L"h(mm)"), s.Size(L"t(mm)"), kNone, kNone);
}

CParameters CircleProfile(CRowSizes& s) { return {"IFCCIRCLEPROFILEDEF", {s.Size(L"R(mm)")}}; }

CParameters PlateTubeProfile(CRowSizes& s) {
  const double outer = s.Size(L"R(mm)"), t = outer - s.Size(L"r(mm)");
  return Shape("IFCCIRCLEHOLLOWPROFILEDEF", {outer, t}, {t, outer - t});
}

CParameters RectangleProfile(CRowSizes& s) {
  return {"IFCRECTANGLEPROFILEDEF", {s.Size(L"b(mm)"), s.Size(L"h(mm)")}};
}

// --- The tables ---

// Those whose sections IFC has a shape for. Any other's profile is arbitrary, which draws it whole.
// IFC's U has no rounded outer corners and its C has lips: neither is the cold-formed channel.
using K = CSectionKind;
struct CProfileOfKind {
  CSectionKind m_kind;
  CParametersOf m_pParameters;
};
constexpr CProfileOfKind kProfiles[] = {
    {K::OrdinaryI, OrdinaryIProfile},
    {K::LightI, LightIProfile},
    {K::WeldedH, WeldedHProfile},
    {K::LightWeldedH, WeldedHProfile},
    {K::WideH, RolledHProfile},
    {K::NarrowH, RolledHProfile},
    {K::SquareTube, SquareTubeProfile},
    {K::SplitT, SplitTProfile},
    {K::OrdinaryChannel, ChannelProfile},
    {K::LightChannel, ChannelProfile},
    {K::LippedChannel, LippedChannelProfile},
    {K::RoundTube, RoundTubeProfile},
    {K::EqualAngle, EqualAngleProfile},
    {K::UnequalAngle, UnequalAngleProfile},
    {K::PlateH, PlateHProfile},
    {K::PlateGeneralH, GeneralHProfile},
    {K::PlateBox, PlateBoxProfile},
    {K::PlateT, PlateTProfile},
    {K::PlateChannel, PlateChannelProfile},
    {K::PlateZ, PlateZProfile},
    {K::SolidCircle, CircleProfile},
    {K::PlateTube, PlateTubeProfile},
    {K::PlateL, PlateLProfile},
    {K::SolidRectangle, RectangleProfile},
};

CParameters ParametersOf(const CDataItem& row) {
  const auto kind = FindSectionKind(row.GetTableName());
  const auto* const profile = std::find_if(std::begin(kProfiles), std::end(kProfiles),
                                           [&](const auto& each) { return each.m_kind == kind; });
  if (profile == std::end(kProfiles)) return {};
  CRowSizes sizes(row);
  CParameters found = profile->m_pParameters(sizes);
  return sizes.IsWhole() ? found : CParameters{};
}

int AddParameterised(CStepFile& file, const CParameters& parameters, const std::string& name) {
  std::vector<std::string> values{".AREA.", name, kStepUnset};
  for (const double value : parameters.m_arrValue)
    values.push_back(std::isnan(value) ? kStepUnset : StepReal(value));
  return file.Add(parameters.m_strEntity, values);
}

// --- Arbitrary profiles --------------------------------------------------------------------------

// Points of a curve, from the middle of the enclosing rectangle, and the edges between them.
class CCurve {
 public:
  CCurve(const CPath& loop, CPoint middle) : m_middle(middle) {
    const auto& v = loop.m_arrVertex;
    std::vector<std::size_t> at;
    for (std::size_t i = 0; i < v.size(); ++i) {
      at.push_back(Point(v[i].x, v[i].y));
      if (v[i].bulge != 0) at.push_back(ArcMiddle(v[i], v[(i + 1) % v.size()]));
    }
    at.push_back(at.front());
    for (std::size_t i = 0, k = 0; i < v.size(); ++i) {
      if (v[i].bulge != 0) {
        Edge("IFCARCINDEX", {at[k], at[k + 1], at[k + 2]});
        k += 2;
      } else {
        Edge("IFCLINEINDEX", {at[k], at[k + 1]});
        k += 1;
      }
    }
  }

  int AddTo(CStepFile& file) const {
    const int points = file.Add("IFCCARTESIANPOINTLIST2D", {StepList(m_arrPoint)});
    return file.Add("IFCINDEXEDPOLYCURVE", {StepRef(points), StepList(m_arrEdge), ".F."});
  }

 private:
  std::size_t Point(double x, double y) {
    const std::string point[] = {Coordinate(x - m_middle.x), Coordinate(y - m_middle.y)};
    m_arrPoint.push_back(StepList(point));
    return m_arrPoint.size();  // counted from 1
  }
  static std::string Coordinate(double value) {
    return StepReal(std::fabs(value) < 1e-9 ? 0 : value);
  }
  std::size_t ArcMiddle(const CVertex& from, const CVertex& to) {
    const CArc arc = EdgeArc(from, to);
    const double angle = arc.start + arc.sweep / 2;
    return Point(arc.center.x + arc.radius * Cos(angle), arc.center.y + arc.radius * Sin(angle));
  }
  void Edge(std::string_view type, std::initializer_list<std::size_t> points) {
    std::vector<std::string> numbers;
    for (const std::size_t point : points) numbers.push_back(std::to_string(point));
    m_arrEdge.push_back(StepTyped(type, StepList(numbers)));
  }

  CPoint m_middle;
  std::vector<std::string> m_arrPoint;
  std::vector<std::string> m_arrEdge;
};

// A part's outer loop and its holes.
struct CPart {
  int m_nOuter = 0;
  std::vector<std::string> m_arrHole;
};

int AddPart(CStepFile& file, const CPart& part, const std::string& name) {
  if (part.m_arrHole.empty())
    return file.Add("IFCARBITRARYCLOSEDPROFILEDEF", {".AREA.", name, StepRef(part.m_nOuter)});
  return file.Add("IFCARBITRARYPROFILEDEFWITHVOIDS",
                  {".AREA.", name, StepRef(part.m_nOuter), StepList(part.m_arrHole)});
}

// A hole follows the loop that it lies in.
std::vector<CPart> AddCurves(CStepFile& file, const COutline& outline) {
  const CPoint middle{outline.m_dWidth / 2, outline.m_dHeight / 2};
  std::vector<CPart> parts;
  for (const CPath& loop : outline.m_arrLoop) {
    const bool hole = RowOutlineMoments({&loop, 1}).m_dArea < 0;
    const int curve = CCurve(loop, middle).AddTo(file);
    if (hole && !parts.empty()) {
      parts.back().m_arrHole.push_back(StepRef(curve));
    } else {
      parts.push_back({curve, {}});
    }
  }
  return parts;
}

int AddArbitrary(CStepFile& file, const COutline& outline, const std::string& name) {
  const std::vector<CPart> parts = AddCurves(file, outline);
  if (parts.size() == 1) return AddPart(file, parts[0], name);
  std::vector<std::string> profiles;
  for (const CPart& part : parts) profiles.push_back(StepRef(AddPart(file, part, kStepUnset)));
  return file.Add("IFCCOMPOSITEPROFILEDEF", {".AREA.", name, StepList(profiles), kStepUnset});
}

}  // namespace

int AddIfcProfile(CStepFile& file, const CDataItem& row, const COutline& outline,
                  const std::string& name) {
  const CParameters parameters = ParametersOf(row);
  return parameters.m_strEntity.empty() ? AddArbitrary(file, outline, name)
                                        : AddParameterised(file, parameters, name);
}

}  // namespace orv3
