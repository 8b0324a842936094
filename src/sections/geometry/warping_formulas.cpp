// Shear centres and warping constants where the catalogue prints none, by thin-walled theory on the
// mid-lines; a sloping flange counts with its mean thickness. What the tables print as "eo(cm)" is
// the distance from shear centre to centroid, and so is every e0 here.
#include <cmath>

#include "sections/geometry/formulas.h"
#include "sections/geometry/plate_walls.h"

namespace orv3 {

namespace {

// A channel's mid-lines.
struct CChannel {
  double b, h;  // flange from the web's mid-line to its tip; between the flanges
  double t, tw;

  explicit CChannel(CReader& read)
      : b(read(L"b(mm)") - read(L"tw(mm)") / 2),
        h(read(L"h(mm)") - read(L"t(mm)")),
        t(read(L"t(mm)")),
        tw(read(L"tw(mm)")) {}

  // Beyond the web's mid-line.
  double ShearCentre() const { return 3 * b * b * t / (6 * b * t + h * tw); }
  double Warping() const {
    return t * b * b * b * h * h / 12 * (3 * b * t + 2 * h * tw) / (6 * b * t + h * tw);
  }
};

// From a centroid in the row's frame; coordinates that agree within rounding give 0.
std::optional<double> DistanceToCentroid(CReader& read, double x, double y) {
  constexpr double kRounding = 1e-6;
  const double e0 = std::hypot(x - read(&CFamily::m_x), y - read(&CFamily::m_y));
  return read.Give(e0 < kRounding ? 0 : e0);
}

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
  const CChannel channel(read);
  return read.Give(channel.ShearCentre() + read(cell) - channel.tw / 2);
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
  const double t = read.Plate(0);
  return DistanceToCentroid(read, t / 2, t / 2);
}

std::optional<double> PlateShearCentre(const CDataItem& row, const CFamily& family, const CCell&) {
  const auto sectorial = PlateSectorial(row);
  if (!sectorial) return std::nullopt;
  CReader read(row, family);
  return DistanceToCentroid(read, sectorial->m_x, sectorial->m_y);
}

std::optional<double> PlateWarping(const CDataItem& row, const CFamily&, const CCell&) {
  const auto sectorial = PlateSectorial(row);
  return sectorial ? std::optional(sectorial->m_Iw) : std::nullopt;
}

// Where the mid-lines of arm and bar meet.
std::optional<double> CrossShearCentre(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double x = read(L"bf1(mm)") + read(L"b(mm)") / 2;
  const double lower = read(L"bh1(mm)"), upper = read(L"bh2(mm)");
  const double y = (lower + read(L"h(mm)") - upper) / 2;
  return DistanceToCentroid(read, x, y);
}

}  // namespace orv3
