// First moments about the horizontal centroidal axis, for rows that have no column for it: of the
// part above it, or, which is the same, of the part below.
#include <array>
#include <cmath>
#include <numbers>

#include "sections/geometry/angle_moment.h"
#include "sections/geometry/formulas.h"
#include "sections/geometry/strip.h"
#include "sections/rect_moments.h"

namespace orv3 {

namespace {

// Mid-line radius of the corners of cold-formed sections (inner radius twice the thickness).
constexpr double kCornerRadius = 2.5;

double ColdMoment(std::span<const CStripPoint> points, double t) {
  return StripMoment(points, kCornerRadius * t, t);
}

}  // namespace

std::optional<double> WideHMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double H = read(L"H(mm)"), B = read(L"B(mm)");
  const double tw = read(L"tw(mm)"), tf = read(L"tf(mm)"), r = read(L"r(mm)");
  const double inner = H / 2 - tf;
  return read.Give(B * tf * (H - tf) / 2 + tw * inner * inner / 2 +
                   2 * kFilletArea * r * r * (inner - kFilletDepth * r));
}

// Depths from the flange's outer face.
std::optional<double> TMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double h = read(&CFamily::m_height), B = read(L"B(mm)");
  const double t1 = read(L"t1(mm)"), t2 = read(L"t2(mm)"), r = read(L"r(mm)");
  const double Cx = read(L"Cx(cm)");
  return read.Give(RectFirstMoment(B, t2, 0, Cx, 1) + RectFirstMoment(t1, h - t2, t2, Cx, 1) +
                   2 * FilletMoment(r, Cx - t2));
}

std::optional<double> SquareTubeMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double t = read(L"t(mm)"), half = (read(L"h(mm)") - t) / 2;
  const CStripPoint points[] = {{-half, 0}, {-half, half}, {half, half}, {half, 0}};
  return read.Give(ColdMoment(points, t));
}

std::optional<double> RoundTubeMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double R = read(L"d(mm)") / 2, r = R - read(L"t(mm)");
  return read.Give((R * R * R - r * r * r) * 2 / 3);
}

std::optional<double> HotAngleMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double width = read(&CFamily::m_width), height = read(&CFamily::m_height);
  return read.Give(AngleMoment(width, height, read(L"t(mm)"), read(L"r(mm)"), read(&CFamily::m_y)));
}

std::optional<double> ColdAngleMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double leg = read(L"b(mm)") - read(L"yo(cm)");
  return read.Give(read(L"t(mm)") * leg * leg / 2);
}

std::optional<double> LippedAngleMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double t = read(L"t(mm)"), lip = read(L"a(mm)") - t / 2;
  const double leg = read(L"b(mm)") - read(L"yo(cm)") - t / 2;
  const CStripPoint points[] = {{0, 0}, {0, leg}, {lip, leg}};
  return read.Give(ColdMoment(points, t));
}

std::optional<double> ColdChannelMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double t = read(L"t(mm)"), half = (read(L"h(mm)") - t) / 2;
  const CStripPoint points[] = {{0, 0}, {0, half}, {read(L"b(mm)") - t / 2, half}};
  return read.Give(ColdMoment(points, t));
}

std::optional<double> LippedMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double t = read(L"t(mm)"), half = (read(L"h(mm)") - t) / 2;
  const double flange = read(L"b(mm)") - t, lip = read(L"a(mm)") - t / 2;
  const CStripPoint points[] = {{0, 0}, {0, half}, {flange, half}, {flange, half - lip}};
  return read.Give(ColdMoment(points, t));
}

// b ends where the outer faces of flange and lip meet.
std::optional<double> SlantLipMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double t = read(L"t(mm)"), half = (read(L"h(mm)") - t) / 2;
  const double bend = t / 2 * (std::numbers::sqrt2 - 1);  // t/2 tan 22.5 degrees
  const double flange = read(L"b(mm)") - t / 2 - bend;
  const double reach = (read(L"a(mm)") - bend) * std::numbers::sqrt2 / 2;
  const CStripPoint points[] = {{0, 0}, {0, half}, {flange, half}, {flange + reach, half - reach}};
  return read.Give(ColdMoment(points, t));
}

std::optional<double> FlangedCrossMoment(const CDataItem& row, const CFamily& family,
                                         const CCell&) {
  CReader read(row, family);
  const double b = read(L"b(mm)"), h = read(L"h(mm)");
  const double bf1 = read(L"bf1(mm)"), bf2 = read(L"bf2(mm)");
  const double tw = read(L"tw(mm)"), tf = read(L"tf(mm)");
  const double web = h / 2 - tf;
  return read.Give(bf1 * tf * (h - tf) / 2 + tw * web * web / 2 + (b - 2 * tf - tw) * tw * tw / 8 +
                   2 * tf * bf2 * bf2 / 8);
}

// A band a/2 high across the hexagon, and the triangle upon it.
std::optional<double> HexagonMoment(const CDataItem& row, const CFamily& family,
                                    const CCell& cell) {
  CReader read(row, family);
  const double a = read(cell);
  return read.Give(7 * std::numbers::sqrt3 / 24 * a * a * a);
}

std::optional<double> TriangleMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double b = read(L"b(mm)"), h = read(L"h(mm)");
  return read.Give(4 * b * h * h / 81);
}

}  // namespace orv3
