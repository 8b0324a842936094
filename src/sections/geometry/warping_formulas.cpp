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
  const double heel = read.Plate(0) / 2;
  return read.Give(std::hypot(read(&CFamily::m_x) - heel, read(&CFamily::m_y) - heel));
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
