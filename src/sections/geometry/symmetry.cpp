// Whether a row's section is symmetric. Rolled sections are by family; of user-defined ones some
// are by style, the others when their sizes say so. A missing cell counts as 0.
#include <algorithm>

#include "framework/kvb_math.h"
#include "sections/geometry/families.h"
#include "sections/load_data_table.h"

namespace orv3 {

namespace {

// Sizes of a row, as the rules compare them.
class CSizes {
 public:
  explicit CSizes(const CDataItem& row) : m_row(row) {}

  bool Zero(CCell cell) const { return CKvbMath::EqualTo(Size(cell), 0); }
  bool Equal(CCell a, CCell b) const { return CKvbMath::EqualTo(Size(a), Size(b)); }

 private:
  double Size(const CCell& cell) const { return Read(m_row, cell).value_or(0); }

  const CDataItem& m_row;
};

using K = CSectionKind;
using CRule = bool (*)(const CSizes& s);

struct CStyleRules {
  CSectionKind m_kind;
  CRule m_x, m_y;  // about the horizontal and the vertical axis
};

constexpr CRule kAlways = [](const CSizes&) { return true; };
constexpr CRule kNever = [](const CSizes&) { return false; };

// Without its outstanding plates a section is a bare rectangle.
constexpr CRule kBareL = [](const CSizes& s) { return s.Zero(L"bh(mm)") || s.Zero(L"bf(mm)"); };
constexpr CRule kBareWeb = [](const CSizes& s) {
  return (s.Zero(L"bh1(mm)") && s.Zero(L"bh2(mm)")) || s.Zero(L"bf1(mm)");
};

constexpr CStyleRules kRules[] = {
    {K::PlateH, kAlways, kAlways},
    {K::PlateGeneralH,
     [](const CSizes& s) {
       return s.Equal(L"bh1(mm)", L"bh2(mm)") && s.Equal(L"bf1(mm)", L"bf3(mm)") &&
              s.Equal(L"bf2(mm)", L"bf4(mm)");
     },
     [](const CSizes& s) {
       return s.Equal(L"bf1(mm)", L"bf2(mm)") && s.Equal(L"bf3(mm)", L"bf4(mm)");
     }},
    {K::PlateBox, kAlways, kAlways},
    {K::PlateGeneralBox, [](const CSizes& s) { return s.Equal(L"t1(mm)", L"t2(mm)"); },
     [](const CSizes& s) { return s.Equal(L"t3(mm)", L"t4(mm)"); }},
    {K::PlateT,
     [](const CSizes& s) {
       return s.Zero(L"bh(mm)") || (s.Zero(L"bf1(mm)") && s.Zero(L"bf2(mm)"));
     },
     [](const CSizes& s) { return s.Zero(L"bh(mm)") || s.Equal(L"bf1(mm)", L"bf2(mm)"); }},
    {K::PlateChannel,
     [](const CSizes& s) {
       return s.Equal(L"bh1(mm)", L"bh2(mm)") && s.Equal(L"bf1(mm)", L"bf2(mm)");
     },
     kBareWeb},
    {K::PlateZ, kBareWeb, kBareWeb},
    {K::SolidCircle, kAlways, kAlways},
    {K::PlateTube, kAlways, kAlways},
    {K::PlateL, kBareL, kBareL},
    {K::PlateCross, [](const CSizes& s) { return s.Equal(L"bh1(mm)", L"bh2(mm)"); },
     [](const CSizes& s) { return s.Equal(L"bf1(mm)", L"bf2(mm)"); }},
    {K::FlangedCross, kAlways, kAlways},
    {K::SolidRectangle, kAlways, kAlways},
    {K::SolidHexagon, kAlways, kAlways},
    {K::SolidTriangle, kNever, kAlways},
};
static_assert(std::size(kRules) == kPlateKinds && InKindOrder(kRules, K::PlateH));

int Symmetric(const CDataItem& row, bool CFamily::*byFamily, CRule CStyleRules::*byStyle) {
  const auto kind = FindSectionKind(row.m_strTableName);
  if (!kind) return 0;
  if (const auto rules = std::ranges::find(kRules, *kind, &CStyleRules::m_kind);
      rules != std::end(kRules)) {
    return ((*rules).*byStyle)(CSizes(row)) ? 1 : 0;
  }
  return FamilyOf(*kind).*byFamily ? 1 : 0;
}

}  // namespace

}  // namespace orv3

int CLoadDataTable::IsDaTaItemSymmetryX(const CDataItem& item) {
  return orv3::Symmetric(item, &orv3::CFamily::m_bSymmetricX, &orv3::CStyleRules::m_x);
}

int CLoadDataTable::IsDaTaItemSymmetryY(const CDataItem& item) {
  return orv3::Symmetric(item, &orv3::CFamily::m_bSymmetricY, &orv3::CStyleRules::m_y);
}
