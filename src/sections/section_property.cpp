#include "sections/section_property.h"

namespace orv3 {
namespace {

using JM = CSteelJMData;

// X0 and Y0 are the centroidal axes, X and Y the axes through the base point. The last two rows
// carry the signs of the centroidal radii: a look-up by sign finds the centroidal column.
constexpr CSectionProperty kProperties[] = {
    {L"x(mm)", L"基点X坐标", "x", "base point x", 1, false, &JM::m_dX},
    {L"y(mm)", L"基点Y坐标", "y", "base point y", 1, false, &JM::m_dY},
    {L"xo(mm)", L"重心X坐标", "xo", "centroid x", 1, false, &JM::m_dXo},
    {L"yo(mm)", L"重心Y坐标", "yo", "centroid y", 1, false, &JM::m_dYo},
    {L"A(mm^2)", L"截面面积", "A", "area", 2, false, &JM::m_dA},
    {L"Ixo(mm^4)", L"X0轴惯性矩", "Ixo", "moment of inertia about X0", 4, false, &JM::m_dIxo},
    {L"Iyo(mm^4)", L"Y0轴惯性矩", "Iyo", "moment of inertia about Y0", 4, false, &JM::m_dIyo},
    {L"Wxo1(mm^3)", L"X0轴抵抗矩(上)", "Wxo1", "modulus about X0, top", 3, false, &JM::m_dWxo1},
    {L"Wxo2(mm^3)", L"X0轴抵抗矩(下)", "Wxo2", "modulus about X0, bottom", 3, false, &JM::m_dWxo2},
    {L"WyoL(mm^3)", L"Y0轴抵抗矩(左)", "WyoL", "modulus about Y0, left", 3, false, &JM::m_dWyoL},
    {L"WyoR(mm^3)", L"Y0轴抵抗矩(右)", "WyoR", "modulus about Y0, right", 3, false, &JM::m_dWyoR},
    {L"Sxo(mm^3)", L"X0轴面积矩", "Sxo", "first moment about X0", 3, true, &JM::m_dSxo},
    {L"Syo(mm^3)", L"Y0轴面积矩", "Syo", "first moment about Y0", 3, true, &JM::m_dSyo},
    {L"ixo(mm)", L"X0轴回转半径", "ixo", "radius of gyration about X0", 1, false, &JM::m_dixo},
    {L"iyo(mm)", L"Y0轴回转半径", "iyo", "radius of gyration about Y0", 1, false, &JM::m_diyo},
    {L"Ix(mm^4)", L"X轴惯性矩", "Ix", "moment of inertia about X", 4, false, &JM::m_dIx},
    {L"Iy(mm^4)", L"Y轴惯性矩", "Iy", "moment of inertia about Y", 4, false, &JM::m_dIy},
    {L"Wx1(mm^3)", L"X轴抵抗矩(上)", "Wx1", "modulus about X, top", 3, false, &JM::m_dWx1},
    {L"Wx2(mm^3)", L"X轴抵抗矩(下)", "Wx2", "modulus about X, bottom", 3, false, &JM::m_dWx2},
    {L"WyL(mm^3)", L"Y轴抵抗矩(左)", "WyL", "modulus about Y, left", 3, false, &JM::m_dWyL},
    {L"WyR(mm^3)", L"Y轴抵抗矩(右)", "WyR", "modulus about Y, right", 3, false, &JM::m_dWyR},
    {L"Sx1(mm^3)", L"X轴面积矩(上)", "Sx1", "first moment above X", 3, true, &JM::m_dSx1},
    {L"Sx2(mm^3)", L"X轴面积矩(下)", "Sx2", "first moment below X", 3, true, &JM::m_dSx2},
    {L"SyL(mm^3)", L"Y轴面积矩(左)", "SyL", "first moment right of Y", 3, true, &JM::m_dSyL},
    {L"SyR(mm^3)", L"Y轴面积矩(右)", "SyR", "first moment left of Y", 3, true, &JM::m_dSyR},
    {L"ixo(mm)", L"X轴回转半径", "ix", "radius of gyration about X", 1, false, &JM::m_dix},
    {L"iyo(mm)", L"Y轴回转半径", "iy", "radius of gyration about Y", 1, false, &JM::m_diy},
};

}  // namespace

std::span<const CSectionProperty> SectionProperties() noexcept { return kProperties; }

}  // namespace orv3
