// Default rows: sections of plates by their styles, lattice columns here, where their headings are.
#include <algorithm>
#include <array>
#include <iterator>

#include "catalogue/lattice/steel_ge_gou.h"
#include "framework/number_text.h"
#include "sections/default_row.h"
#include "sections/kind_array.h"
#include "sections/load_data_table.h"

namespace {

// A column to start from. Angles turn the limbs' open sides inwards: with two limbs, channels lie
// on their backs, the lower one opening upwards (90) and the upper one downwards (270); with four,
// the angles' heels stand at the corners, lower left (0), lower right (90), upper right (180) and
// upper left (270). Tubes have no open side and are not turned.
struct CDefaultLattice {
  orv3::CSectionKind m_kind;
  const wchar_t* m_szNo;
  std::array<const wchar_t*, 2> m_arrSpacing;  // "k(mm)", or "kx(mm)" and "ky(mm)"
  orv3::CSectionKind m_limb;                   // table of the limbs
  const wchar_t* m_szLimbNo;
  std::array<const wchar_t*, 4> m_arrAngle;
};

using K = orv3::CSectionKind;
constexpr CDefaultLattice kDefaults[] = {
    {K::TwoLimbs, L"G2[10X800", {L"800", L""}, K::OrdinaryChannel, L"[10", {L"90", L"270"}},
    {K::FourLimbs,
     L"G4L600X800",
     {L"600", L"800"},
     K::EqualAngle,
     L"L30X3",
     {L"0", L"90", L"180", L"270"}},
    {K::ThreeLimbs, L"G3X600X800", {L"600", L"800"}, K::RoundTube, L"30X2.0", {L"0", L"0", L"0"}},
};
static_assert(std::size(kDefaults) == orv3::kLatticeKinds &&
              orv3::InKindOrder(kDefaults, K::TwoLimbs));

const CDefaultLattice* Find(const CString& table) {
  const auto kind = orv3::FindSectionKind(table);
  const auto* const found = std::find_if(std::begin(kDefaults), std::end(kDefaults),
                                         [&](const auto& each) { return each.m_kind == kind; });
  return found == std::end(kDefaults) ? nullptr : found;
}

bool Set(CDataItem& item, const CString& sign, const wchar_t* value) {
  const int cell = item.GetSignIndex(sign);
  if (cell >= 0) item.m_arrCell.Own(cell).m_strValue = value;
  return cell >= 0;
}

int Fill(CDataItem& item, const CDefaultLattice& lattice) {
  const int limbs = orv3::TableOf(lattice.m_kind).m_nLimbs;
  if (item.GetItemLength() < 2) {
    item.Clear();
    item.SetItemTitle(CSteelJMGeGou(limbs).m_Title);
  }
  bool whole = Set(item, L"No.", lattice.m_szNo);
  if (limbs == 2) {
    whole = Set(item, L"k(mm)", lattice.m_arrSpacing[0]) && whole;
  } else {
    whole = Set(item, L"kx(mm)", lattice.m_arrSpacing[0]) && whole;
    whole = Set(item, L"ky(mm)", lattice.m_arrSpacing[1]) && whole;
  }
  for (int limb = 1; limb <= limbs; ++limb) {
    const CString sign = L"P" + orv3::FormatInt(limb);
    const auto angle = lattice.m_arrAngle[static_cast<std::size_t>(limb - 1)];
    whole = Set(item, sign + L"Type", orv3::TableOf(lattice.m_limb).m_szName) && whole;
    whole = Set(item, sign + L"No.", lattice.m_szLimbNo) && whole;
    whole = Set(item, sign + L"θ°", angle) && whole;
  }
  return whole ? 1 : 0;
}

}  // namespace

int CLoadDataTable::GetDefaultDataItem(CDataItem& item) {
  const CDefaultLattice* lattice = Find(item.m_strTableName);
  return lattice ? Fill(item, *lattice) : orv3::DefaultSectionRow(item);
}
