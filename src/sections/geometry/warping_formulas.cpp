// Shear centres and warping constants where the catalogue prints none, by thin-walled theory on the
// mid-lines. What the tables print as "eo(cm)" is
// the distance from shear centre to centroid, and so is every e0 here.
#include <cmath>

#include "framework/elementary.h"
#include "sections/geometry/formulas.h"
#include "sections/geometry/plate_walls.h"

namespace orv3 {

namespace {

// A hot-rolled channel's mid-lines. Its flanges' inner faces slope 1 in 10, with the thickness t
// midway on the outstand (GB/T 707, YB 164).
class CChannel {
 public:
  explicit CChannel(CReader& read) {
    const double tw = read(L"tw(mm)"), t = read(L"t(mm)");
    const double b = read(L"b(mm)") - tw / 2;
    m_h = read(L"h(mm)") - t;
    // Integrals along a flange, from the web's mid-line, of its thickness root - kSlope s.
    const double root = t + kSlope * (b + tw / 2) / 2;
    m_area = root * b - kSlope * b * b / 2;
    m_first = root * b * b / 2 - kSlope * b * b * b / 3;
    m_second = root * b * b * b / 3 - kSlope * b * b * b * b / 4;
    m_webIx = tw * m_h * m_h * m_h / 12;
  }

  // Distance beyond the web's mid-line.
  double ShearCentre() const {
    return m_h * m_h / 2 * m_first / (m_webIx + m_h * m_h / 2 * m_area);
  }
  double Warping() const {
    const double e = ShearCentre();
    return m_h * m_h / 2 * (m_second - 2 * e * m_first + e * e * m_area) + e * e * m_webIx;
  }

 private:
  static constexpr double kSlope = 0.1;

  double m_h;  // between the flanges
  double m_area, m_first, m_second;
  double m_webIx;
};

}  // namespace

// Iy h^2 / 4 with the distance of the flanges' mid-lines.
std::optional<double> IWarping(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double h = read(&CFamily::m_height) - read.Plate(0);
  return read.Give(read(&CFamily::m_Iy) * h * h / 4);
}

std::optional<double> ChannelShearCentre(const CDataItem& row, const CFamily& family,
                                         const CCell& cell) {
  CReader read(row, family);
  const double e = CChannel(read).ShearCentre();
  return read.Give(e + read(cell) - read(L"tw(mm)") / 2);
}

std::optional<double> ChannelWarping(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(CChannel(read).Warping());
}

// Where the mid-lines of flange and stem meet.
std::optional<double> TShearCentre(const CDataItem& row, const CFamily& family, const CCell& cell) {
  CReader read(row, family);
  return read.Give(std::fabs(read(cell) - read.Plate(0) / 2));
}

// Where the mid-lines of the legs meet.
std::optional<double> AngleShearCentre(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double heel = read.Plate(0) / 2;
  return read.Give(Hypot(read(&CFamily::m_x) - heel, read(&CFamily::m_y) - heel));
}

std::optional<double> PlateShearCentre(const CDataItem& row, const CFamily&, const CCell&) {
  const auto warping = PlateWarpingOf(row);
  return warping ? std::optional(warping->m_e0) : std::nullopt;
}

std::optional<double> PlateWarping(const CDataItem& row, const CFamily&, const CCell&) {
  const auto warping = PlateWarpingOf(row);
  return warping ? std::optional(warping->m_Iw) : std::nullopt;
}

}  // namespace orv3
