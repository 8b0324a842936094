// The headings of the lattice tables.
#include <string>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/lattice/lattice_properties.h"
#include "catalogue/lattice/steel_ge_gou.h"

namespace {

constexpr auto kText = CDataTypeStruct::KVBT_STRING;
constexpr auto kNumber = CDataTypeStruct::KVBT_DOUBLE;

constexpr const wchar_t* kOrdinals[] = {L"一", L"二", L"三", L"四"};

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

void AddSpacings(CDataTable& table, int limbs) {
  if (limbs == 2) {
    table.AddTableCol(L"肢距", L"k(mm)", kNumber, 0);
    return;
  }
  table.AddTableCol(L"X向肢距", L"kx(mm)", kNumber, 0);
  table.AddTableCol(L"Y向肢距", L"ky(mm)", kNumber, 0);
}

void AddLimb(CDataTable& table, int limb) {
  const orv3::CLimbColumns& columns = orv3::kLimbColumns[limb - 1];
  const std::wstring title = std::wstring(L"第") + kOrdinals[limb - 1] + L"肢";
  table.AddTableCol(title + L"类型", columns.m_szType, kText, 0);
  table.AddTableCol(title + L"型号", columns.m_szNo, kText, 0);
  table.AddTableCol(title + L"角度", columns.m_szAngle, kNumber, 0);
}

}  // namespace

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
