#include "outlines/exact_keys.h"

namespace orv3 {
namespace {

using P = CExactProperties;

constexpr CExactKey kKeys[kExactKeys] = {
    {"A", "截面面积", "area", "mm²", "mm^2", &P::A},
    {"xo", "形心距左边", "centroid from the left", "mm", "mm", &P::xo},
    {"yo", "形心距底边", "centroid from the bottom", "mm", "mm", &P::yo},
    {"Ix", "水平形心轴惯性矩", "moment of inertia, horizontal axis", "mm⁴", "mm^4", &P::Ix},
    {"Iy", "竖直形心轴惯性矩", "moment of inertia, vertical axis", "mm⁴", "mm^4", &P::Iy},
    {"Ixy", "惯性积", "product of inertia", "mm⁴", "mm^4", &P::Ixy},
    {"I1", "最大主惯性矩", "greatest principal moment", "mm⁴", "mm^4", &P::I1},
    {"I2", "最小主惯性矩", "least principal moment", "mm⁴", "mm^4", &P::I2},
    {"theta", "主轴1倾角", "axis 1, from the horizontal", "°", "deg", &P::theta},
    {"ix", "水平形心轴回转半径", "radius of gyration, horizontal axis", "mm", "mm", &P::ix},
    {"iy", "竖直形心轴回转半径", "radius of gyration, vertical axis", "mm", "mm", &P::iy},
    {"i1", "最大回转半径", "greatest radius of gyration", "mm", "mm", &P::i1},
    {"i2", "最小回转半径", "least radius of gyration", "mm", "mm", &P::i2},
    {"Wx1", "上边缘截面模量", "section modulus, top", "mm³", "mm^3", &P::Wx1},
    {"Wx2", "下边缘截面模量", "section modulus, bottom", "mm³", "mm^3", &P::Wx2},
    {"WyL", "左边缘截面模量", "section modulus, left", "mm³", "mm^3", &P::WyL},
    {"WyR", "右边缘截面模量", "section modulus, right", "mm³", "mm^3", &P::WyR},
    {"Wpx", "塑性截面模量(水平轴)", "plastic modulus, horizontal axis", "mm³", "mm^3", &P::Wpx},
    {"Wpy", "塑性截面模量(竖直轴)", "plastic modulus, vertical axis", "mm³", "mm^3", &P::Wpy},
    {"xp", "塑性中和轴距左边", "plastic axis from the left", "mm", "mm", &P::xp},
    {"yp", "塑性中和轴距底边", "plastic axis from the bottom", "mm", "mm", &P::yp},
    {"It", "自由扭转常数", "torsion constant", "mm⁴", "mm^4", &P::It},
    {"Iw", "扇性惯性矩", "warping constant about the shear centre", "mm⁶", "mm^6", &P::Iw},
    {"xs", "剪心距左边", "shear centre from the left", "mm", "mm", &P::xs},
    {"ys", "剪心距底边", "shear centre from the bottom", "mm", "mm", &P::ys},
    {"Asx", "水平受剪面积", "shear area, horizontal force", "mm²", "mm^2", &P::Asx},
    {"Asy", "竖直受剪面积", "shear area, vertical force", "mm²", "mm^2", &P::Asy},
    {"betax", "不对称常数βx", "constant of monosymmetry βx", "mm", "mm", &P::betax},
    {"betay", "不对称常数βy", "constant of monosymmetry βy", "mm", "mm", &P::betay},
    {"mass", "单位长度质量", "mass at 7850 kg/m³", "kg/m", "kg/m", &P::mass},
    {"surface", "单位长度外表面积", "outer surface", "m²/m", "m^2/m", &P::surface},
};

}  // namespace

std::span<const CExactKey, kExactKeys> ExactKeys() noexcept { return kKeys; }

const CExactKey* FindExactKey(std::string_view key) noexcept {
  for (const CExactKey& each : kKeys) {
    if (key == each.m_szKey) return &each;
  }
  return nullptr;
}

}  // namespace orv3
