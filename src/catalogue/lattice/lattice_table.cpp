// The headings of the lattice tables.
#include <string>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/lattice/lattice_properties.h"
#include "catalogue/lattice/steel_ge_gou.h"

namespace {

constexpr auto kText = CDataTypeStruct::KVBT_STRING;
constexpr auto kNumber = CDataTypeStruct::KVBT_DOUBLE;

using orv3::CLatticeColumn;

#define LIMB(i, ordinal)                                             \
  {L"P" i "Type", L"第" ordinal "肢类型", "table of limb " i},       \
      {L"P" i "No.", L"第" ordinal "肢型号", "number of limb " i}, { \
    L"P" i "θ°", L"第" ordinal "肢角度", "angle of limb " i          \
  }
// Two limbs have one spacing, three and four have one in each direction.
constexpr CLatticeColumn kGiven[] = {{L"k(mm)", L"肢距", "spacing of the limbs"},
                                     {L"kx(mm)", L"X向肢距", "spacing of the limbs in X"},
                                     {L"ky(mm)", L"Y向肢距", "spacing of the limbs in Y"},
                                     LIMB("1", "一"),
                                     LIMB("2", "二"),
                                     LIMB("3", "三"),
                                     LIMB("4", "四")};
#undef LIMB
constexpr int kFirstLimb = 3;

using orv3::CLatticeProperties;

constexpr orv3::CLatticeProperty kResults[] = {
    {L"A(mm^2)", L"截面面积", "area", "A", 2, &CLatticeProperties::m_dA},
    {L"xo(mm)", L"重心X坐标", "centroid x", "xo", 1, &CLatticeProperties::m_dXo},
    {L"yo(mm)", L"重心Y坐标", "centroid y", "yo", 1, &CLatticeProperties::m_dYo},
    {L"Ix(mm^4)", L"X轴惯性矩", "moment of inertia about X", "Ix", 4, &CLatticeProperties::m_dIx},
    {L"Iy(mm^4)", L"Y轴惯性矩", "moment of inertia about Y", "Iy", 4, &CLatticeProperties::m_dIy},
    {L"Wx1(mm^3)", L"X轴抵抗矩(上)", "modulus about X, top", "Wx1", 3, &CLatticeProperties::m_dWx1},
    {L"Wx2(mm^3)", L"X轴抵抗矩(下)", "modulus about X, bottom", "Wx2", 3,
     &CLatticeProperties::m_dWx2},
    {L"WyL(mm^3)", L"Y轴抵抗矩(左)", "modulus about Y, left", "WyL", 3,
     &CLatticeProperties::m_dWyL},
    {L"WyR(mm^3)", L"Y轴抵抗矩(右)", "modulus about Y, right", "WyR", 3,
     &CLatticeProperties::m_dWyR},
    {L"ixo(mm)", L"X轴回转半径", "radius of gyration about X", "ixo", 1,
     &CLatticeProperties::m_dixo},
    {L"iyo(mm)", L"Y轴回转半径", "radius of gyration about Y", "iyo", 1,
     &CLatticeProperties::m_diyo},
};

void Add(CDataTable& table, const CLatticeColumn& column, CDataTypeStruct::KVBT_Value_Type type) {
  table.AddTableCol(column.m_szTitle, column.m_szSign, type, 0);
}

void AddSpacings(CDataTable& table, int limbs) {
  if (limbs == 2) return Add(table, kGiven[0], kNumber);
  Add(table, kGiven[1], kNumber);
  Add(table, kGiven[2], kNumber);
}

void AddLimb(CDataTable& table, int limb) {
  const CLatticeColumn* columns = kGiven + kFirstLimb + 3 * (limb - 1);
  Add(table, columns[0], kText);
  Add(table, columns[1], kText);
  Add(table, columns[2], kNumber);
}

}  // namespace

std::span<const CLatticeColumn> orv3::LatticeGivenColumns() noexcept { return kGiven; }
std::span<const orv3::CLatticeProperty> orv3::LatticePropertyColumns() noexcept { return kResults; }

CSteelJMGeGou::CSteelJMGeGou(int limbs) {
  AddTableCol(L"型号", L"No.", kText, 1);
  if (limbs >= 2 && limbs <= orv3::kMaxLimbs) {
    SetTableName(orv3::LatticeTableName(limbs));
    AddSpacings(*this, limbs);
    for (int limb = 1; limb <= limbs; ++limb) AddLimb(*this, limb);
  }
  for (const orv3::CLatticeProperty& column : kResults) {
    AddTableCol(column.m_szTitle, column.m_szSign, kNumber, 0);
  }
}

CSteelItemGeGou::CSteelItemGeGou(int limbs) {
  const CSteelJMGeGou table(limbs);
  m_strTableName = table.m_strTableName;
  SetItemTitle(table.m_Title);
}
