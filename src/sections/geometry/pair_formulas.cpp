// Pairs of angles and channels, and crosses of angles, from their component by the parallel-axis
// rule. The pair acts as one section, as its catalogue columns assume.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "sections/geometry/angle_moment.h"
#include "sections/geometry/formulas.h"
#include "sections/geometry/plate_walls.h"
#include "sections/geometry/row_values.h"
#include "sections/load_data_table.h"

namespace orv3 {

namespace {

using std::numbers::sqrt2;

const CSectionPair& PairOf(const CFamily& family) { return *TableOf(family.m_kind).m_pPair; }

// The component as it stands on the right of the pair's vertical axis.
class CPart {
 public:
  CPart(const CDataItem& pair, const CFamily& family)
      : m_pair(PairOf(family)),
        m_row(ComponentRow(TableOf(m_pair.m_part).m_szName,
                           ReadText(pair, L"No.").Mid(m_pair.m_nMarker))),
        m_gap(ReadSpacing(pair, m_pair.m_szGap)),
        m_family(FamilyOf(m_pair.m_part)),
        m_read(m_row, m_family) {}
  CPart(const CPart&) = delete;
  CPart& operator=(const CPart&) = delete;

  double Gap() const { return m_gap; }
  double Width() { return Turned() ? OwnHeight() : OwnWidth(); }
  double Height() { return Turned() ? OwnWidth() : OwnHeight(); }
  // Centroid from the back, and from the bottom.
  double Back() { return m_read(Turned() ? &CFamily::m_y : &CFamily::m_x); }
  double Rise() { return m_read(Turned() ? &CFamily::m_x : &CFamily::m_y); }
  double Iy() { return m_read(Turned() ? &CFamily::m_Ix : &CFamily::m_Iy); }
  double Area() const { return AreaOf(m_row); }
  double operator()(const CCell& cell) { return m_read(cell); }
  double Moment() {
    const bool printed = m_family.m_Sx.m_formula == nullptr;  // of channels
    if (printed) return m_read(&CFamily::m_Sx);
    return AngleMoment(Width(), Height(), m_read(L"t(mm)"), m_read(L"r(mm)"), Rise());
  }
  double Thickest() const { return ThickestPlate(m_row); }
  double Thinnest() const { return ThinnestPlate(m_row); }

  // From the pair's axis to the centroid.
  double Offset() {
    return m_gap / 2 + (m_pair.m_form == CPairForm::ToeToToe ? Width() - Back() : Back());
  }

  std::optional<double> Give(double value) const { return m_read.Give(value); }

 private:
  bool Turned() const { return m_pair.m_form == CPairForm::LegsUp; }
  double OwnWidth() { return m_read(&CFamily::m_width); }
  double OwnHeight() { return m_read(&CFamily::m_height); }

  const CSectionPair& m_pair;
  CDataItem m_row;
  double m_gap;
  const CFamily& m_family;
  CReader m_read;
};

double SpacingOf(const CDataItem& row, const CFamily& family) {
  return ReadSpacing(row, PairOf(family).m_szGap);
}

std::optional<double> RadiusFrom(const std::optional<double>& inertia, const CDataItem& row) {
  if (!inertia) return std::nullopt;
  return CLoadDataTable::CalDataItemRio(*inertia, AreaOf(row));
}

}  // namespace

std::optional<double> PairWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  return part.Give(2 * part.Width() + part.Gap());
}

std::optional<double> PairHeight(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  return part.Give(part.Height());
}

std::optional<double> PairY(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  const bool cross = PairOf(family).m_form == CPairForm::Cross;
  return part.Give(cross ? part.Height() + part.Gap() / 2 : part.Rise());
}

std::optional<double> PairIy(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  const double offset = part.Offset();
  return part.Give(2 * (part.Iy() + part.Area() * offset * offset));
}

std::optional<double> PairRadiusY(const CDataItem& row, const CFamily& family, const CCell&) {
  constexpr CGapCell kRadius{L"iy", L"(cm)"};
  const double gap = SpacingOf(row, family);
  if (const auto printed = Read(row, kRadius, gap)) return printed;
  if (const auto printed = gap == 0 ? Read(row, L"iy(cm)") : std::nullopt) return printed;
  return RadiusFrom(Value(row, family, family.m_Iy), row);
}

std::optional<double> PairModulusY(const CDataItem& row, const CFamily& family, const CCell&) {
  constexpr CGapCell kModulus{L"Wy", L"(cm^3)"};
  const double gap = SpacingOf(row, family);
  if (const auto printed = Read(row, kModulus, gap)) return printed;
  if (const auto printed = gap == 0 ? Read(row, L"Wy(cm^3)") : std::nullopt) return printed;
  CReader read(row, family);
  const double Iy = read(&CFamily::m_Iy);
  return read.Give(CLoadDataTable::CalDataItemWo(Iy, read(&CFamily::m_width) / 2));
}

std::optional<double> PairMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  return part.Give(2 * part.Moment());
}

std::optional<double> PairThickest(const CDataItem& row, const CFamily& family, const CCell&) {
  return CPart(row, family).Thickest();
}

std::optional<double> PairThinnest(const CDataItem& row, const CFamily& family, const CCell&) {
  return CPart(row, family).Thinnest();
}

// As a T: where the outstanding legs' mid-line meets the axis.
std::optional<double> AnglePairShearCentre(const CDataItem& row, const CFamily& family,
                                           const CCell&) {
  CPart part(row, family);
  return part.Give(std::fabs(part.Rise() - part(L"t(mm)") / 2));
}

// As an I whose flanges are 2b wide, apart by the spacing: Iy of the flanges h^2 / 4.
std::optional<double> BackToBackWarping(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  const double b = part.Width(), t = part(L"t(mm)"), h = part.Height() - t;
  const double inner = part.Gap() / 2, outer = inner + b;
  const double flanges = 4 * t * (outer * outer * outer - inner * inner * inner) / 3;
  return part.Give(flanges * h * h / 4);
}

std::optional<double> ToeToToeWarping(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  const double width = 2 * part.Width() + part.Gap(), height = part.Height();
  const double t = part(L"t(mm)"), tw = part(L"tw(mm)");
  const auto value = part.Give(0);
  return value ? std::optional(BoxSectorial(width, height, t, t, tw, tw).m_Iw) : value;
}

// --- Crosses: each angle's axis of symmetry lies along Y1 ----------------------------------------

std::optional<double> CrossPairIx(const CDataItem& row, const CFamily& family, const CCell&) {
  constexpr CGapCell kInertia{L"Ix", L"(cm^4)"};
  if (const auto printed = Read(row, kInertia, SpacingOf(row, family))) return printed;
  CPart part(row, family);
  const double offset = sqrt2 * part.Offset();
  return part.Give(2 * (part(L"Iyo(cm^4)") + part.Area() * offset * offset));
}

std::optional<double> CrossPairRadiusX(const CDataItem& row, const CFamily& family, const CCell&) {
  constexpr CGapCell kRadius{L"ix", L"(cm)"};
  if (const auto printed = Read(row, kRadius, SpacingOf(row, family))) return printed;
  return RadiusFrom(Value(row, family, family.m_Ix), row);
}

// The toes are farthest from X1; their radius, t/3 (GB/T 9787), touches that fibre.
std::optional<double> CrossPairModulusX(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  CReader read(row, family);
  const double toe = part(L"t(mm)") / 3;
  const double fibre = (part.Width() + toe + part.Gap()) / sqrt2 + toe;
  const double Ix = read(&CFamily::m_Ix);
  const auto value = part.Give(CLoadDataTable::CalDataItemWo(Ix, fibre));
  return read.Complete() ? value : std::nullopt;
}

std::optional<double> CrossPairModulusY(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  CReader read(row, family);
  const double Iy = read(&CFamily::m_Iy);
  const auto value = part.Give(CLoadDataTable::CalDataItemWo(Iy, part.Width() / sqrt2));
  return read.Complete() ? value : std::nullopt;
}

std::optional<double> CrossPairMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  CPart part(row, family);
  return part.Give(part.Area() * sqrt2 * part.Offset());
}

}  // namespace orv3
