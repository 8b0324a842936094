#include "catalogue/rolled/rolled_style.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "framework/exception.h"

namespace orv3 {
namespace {

using C = CRolledColumn;
using K = CSectionKind;

// --- Columns that several tables have ------------------------------------------------------------

constexpr C tw{L"tw(mm)", L"腹板厚度", "web thickness"},
    tf{L"tf(mm)", L"翼缘厚度", "flange thickness"}, r{L"r(mm)", L"内圆弧半径", "fillet radius"};
constexpr C H{L"H(mm)", L"截面高度", "depth of the section"},
    B{L"B(mm)", L"截面宽度", "width of the section"};
constexpr C A{L"A(cm^2)", L"截面面积", "area"}, G{L"G(kg/m)", L"每米重量", "mass per metre"},
    Aw{L"Aw(m^2/m)", L"外表面积", "outer surface per metre"};

constexpr C Ix{L"Ix(cm^4)", L"X轴截面惯性矩", "moment of inertia about X"},
    Iy{L"Iy(cm^4)", L"Y轴截面惯性矩", "moment of inertia about Y"};
constexpr C ix{L"ix(cm)", L"X轴截面回转半径", "radius of gyration about X"},
    iy{L"iy(cm)", L"Y轴截面回转半径", "radius of gyration about Y"};
constexpr C Wx{L"Wx(cm^3)", L"X轴截面抵抗矩", "modulus about X"},
    Wy{L"Wy(cm^3)", L"Y轴截面抵抗矩", "modulus about Y"};
constexpr C Sx{L"Sx(cm^3)", L"X轴半截面面积矩", "first moment of half the section about X"};
constexpr C Wxmax{L"Wxmax(cm^3)", L"X轴截面最大抵抗矩", "greatest modulus about X"},
    Wxmin{L"Wxmin(cm^3)", L"X轴截面最小抵抗矩", "least modulus about X"};
constexpr C Wymax{L"Wymax(cm^3)", L"Y轴截面最大抵抗矩", "greatest modulus about Y"},
    Wymin{L"Wymin(cm^3)", L"Y轴截面最小抵抗矩", "least modulus about Y"};
constexpr C Ix1{L"Ix1(cm^4)", L"X1轴截面惯性矩", "moment of inertia about X1"},
    Iy1{L"Iy1(cm^4)", L"Y1轴截面惯性矩", "moment of inertia about Y1"};
constexpr C ix1{L"ix1(cm)", L"X1轴截面回转半径", "radius of gyration about X1"},
    iy1{L"iy1(cm)", L"Y1轴截面回转半径", "radius of gyration about Y1"};
constexpr C Ixo{L"Ixo(cm^4)", L"Xo轴截面惯性矩", "moment of inertia about Xo"},
    ixo{L"ixo(cm)", L"Xo轴截面回转半径", "radius of gyration about Xo"};

// Thin-walled sections: torsion, warping, and the integral of x(x^2 + y^2) over the section.
constexpr C It{L"It(cm^4)", L"边截面惯性矩", "torsion constant"},
    Iw{L"Iw(cm^6)", L"毛截面扇性惯性矩", "warping constant"};
constexpr C k{L"k(cm^-1)", L"弯扭特性系数", "flexural-torsional factor"},
    Uy{L"Uy(cm^5)", L"Y轴不对称截面特性", "asymmetry about Y"};
constexpr C Ww1{L"Ww1(cm^4)", L"毛截面扇性模量", "warping modulus"},
    Ww2{L"Ww2(cm^4)", L"毛截面扇性模量", "warping modulus"};

// --- Columns of one family -----------------------------------------------------------------------

constexpr C bAngle{L"b(mm)", L"边宽度", "leg width"}, tAngle{L"t(mm)", L"边厚度", "leg thickness"};
constexpr C BLong{L"B(mm)", L"长边宽度", "long leg"}, bShort{L"b(mm)", L"短边宽度", "short leg"};
constexpr C Wxo{L"Wxo(cm^3)", L"Xo轴截面抵抗矩", "modulus about Xo"},
    Iyo{L"Iyo(cm^4)", L"Yo轴截面惯性矩", "moment of inertia about Yo"};
constexpr C WyoMax{L"WyoMax(cm^3)", L"Yo轴截面最大抵抗矩", "greatest modulus about Yo"};
constexpr C WyoMin{L"WyoMin(cm^3)", L"Yo轴截面最小抵抗矩", "least modulus about Yo"};
constexpr C iyo{L"iyo(cm)", L"Yo轴截面回转半径", "radius of gyration about Yo"},
    zo{L"zo(cm)", L"重心距离", "centroid distance"};
constexpr C N{L"N(kN)", L"抗拉承载力设计值", "design tensile capacity"};
constexpr C yoAngle{L"yo(cm)", L"Y向重心距离", "centroid distance in y"},
    xoAngle{L"xo(cm)", L"X向重心距离", "centroid distance in x"};
constexpr C Iu{L"Iu(cm^4)", L"U轴截面惯性矩", "moment of inertia about U"},
    Wu{L"Wu(cm^3)", L"U轴截面抵抗矩", "modulus about U"};
constexpr C iu{L"iu(cm)", L"U轴截面回转半径", "radius of gyration about U"},
    tga{L"tga", L"tga", "tan α of the U axis"};

constexpr C hRolled{L"h(mm)", L"截面高度", "depth of the section"},
    bRolled{L"b(mm)", L"截面宽度", "width of the section"};
constexpr C tRolled{L"t(mm)", L"翼缘厚度", "flange thickness"},
    r1{L"r1(mm)", L"边端内弧半径", "toe radius"};
constexpr C hWeb{L"h(mm)", L"腹板高度", "web height"}, hf{L"hf(mm)", L"焊缝厚度", "weld size"};
constexpr C t1{L"t1(mm)", L"腹板厚度", "web thickness"},
    t2{L"t2(mm)", L"翼缘厚度", "flange thickness"}, Cx{L"Cx(cm)", L"重心距离", "centroid distance"};

constexpr C hCold{L"h(mm)", L"高度", "depth"}, bCold{L"b(mm)", L"宽度", "width"},
    tCold{L"t(mm)", L"厚度", "thickness"};
constexpr C a{L"a(mm)", L"卷边高度", "lip height"}, bZ{L"b(mm)", L"边宽度", "leg width"},
    tZ{L"t(mm)", L"卷边厚度", "thickness"};
constexpr C Wxomax{L"Wxomax(cm^3)", L"Xo轴截面最大抵抗矩", "greatest modulus about Xo"};
constexpr C Wxomin{L"Wxomin(cm^3)", L"Xo轴截面最小抵抗矩", "least modulus about Xo"};
constexpr C yo{L"yo(cm)", L"重心距离", "centroid distance"},
    eoAngle{L"eo(cm)", L"重心距离", "shear centre distance"};
constexpr C xo{L"xo(cm)", L"重心距离", "centroid distance"},
    eo{L"eo(cm)", L"剪心距离", "shear centre distance"};
constexpr C theta{L"θ(°)", L"角度", "angle of the principal axis"},
    Ix1y1{L"Ix1y1(cm^4)", L"截面惯性矩", "product of inertia about X1 and Y1"};
constexpr C Wx1{L"Wx1(cm^3)", L"X1轴截面抵抗矩", "modulus about X1"},
    Wy1{L"Wy1(cm^3)", L"Y1轴截面抵抗矩", "modulus about Y1"};
constexpr C Wxa{L"Wxa(cm^3)", L"X轴截面抵抗矩", "modulus about X"},
    Wxb{L"Wxb(cm^3)", L"X轴截面抵抗矩", "modulus about X"};
constexpr C Wya{L"Wya(cm^3)", L"Y轴截面抵抗矩", "modulus about Y"},
    Wyb{L"Wyb(cm^3)", L"Y轴截面抵抗矩", "modulus about Y"};

constexpr C hTube{L"h(mm)", L"边长", "side"}, d{L"d(mm)", L"直径", "diameter"};
constexpr C I{L"I(cm^4)", L"截面惯性矩", "moment of inertia"},
    W{L"W(cm^3)", L"截面抵抗矩", "section modulus"};
constexpr C i{L"i(cm)", L"截面回转半径", "radius of gyration"};

#define CAPACITY(length)                                     \
  C {                                                        \
    L"P(" length L"m)(kN)", length L"m长度抗压承载力设计值", \
        "design compressive capacity, " length " m long"     \
  }
#define CAPACITIES                                                                         \
  CAPACITY("0.6"), CAPACITY("0.9"), CAPACITY("1.2"), CAPACITY("1.5"), CAPACITY("1.8"),     \
      CAPACITY("2.1"), CAPACITY("2.4"), CAPACITY("2.7"), CAPACITY("3.0"), CAPACITY("3.3"), \
      CAPACITY("3.6"), CAPACITY("3.9"), CAPACITY("4.2"), CAPACITY("4.5"), CAPACITY("4.8"), \
      CAPACITY("5.1"), CAPACITY("5.4"), CAPACITY("5.7")
#define GAP(a)                                                                                  \
  C{L"Wy" a L"(cm^3)", L"a=" a L"mm时Y轴截面抵抗矩", "modulus about Y, a = " a " mm"}, C {      \
    L"iy" a L"(cm)", L"a=" a L"mm时Y轴截面回转半径", "radius of gyration about Y, a = " a " mm" \
  }
#define GAPS                                                                                     \
  GAP("0"), GAP("4"), GAP("6"), GAP("8"), GAP("10"), GAP("12"), GAP("14"), GAP("16"), GAP("18"), \
      GAP("20")
#define CROSS(d)                                                                                   \
  C{L"Ix" d L"(cm^4)", L"δ=" d L"mm时X1轴截面惯性矩", "moment of inertia about X1, δ = " d " mm"}, \
      C {                                                                                          \
    L"ix" d L"(cm)", L"δ=" d L"mm时X1轴截面回转半径", "radius of gyration about X1, δ = " d " mm"  \
  }

// --- Tables, the key column left out -------------------------------------------------------------

constexpr C kEqualAngle[] = {bAngle, tAngle, r,      A,   G,   Aw,  Ix,
                             Wxmax,  Wxmin,  ix,     Ixo, Wxo, ixo, Ix1,
                             Iyo,    WyoMax, WyoMin, iyo, zo,  N,   CAPACITIES};
constexpr C kUnequalAngle[] = {BLong, bShort, tAngle,  r,   A,       G,  Aw,    Ix,
                               Wxmax, Wxmin,  ix,      Ix1, yoAngle, Iy, Wymax, Wymin,
                               iy,    Iy1,    xoAngle, Iu,  Wu,      iu, tga};
constexpr C kRolledH[] = {H, B, tw, tf, r, A, G, Ix, Wx, ix, Iy, Wy, iy};
constexpr C kWeldedH[] = {H, hWeb, B, tw, tf, A, G, Ix, Wx, Sx, ix, Iy, Wy, iy, hf};
constexpr C kRolledI[] = {hRolled, bRolled, tw, tRolled, r,  r1, A,  G,
                          Aw,      Ix,      Wx, Sx,      ix, Iy, Wy, iy};
constexpr C kRolledChannel[] = {hRolled, bRolled, tw, tRolled, r,     r1,    A,  G,   Aw, Ix,
                                Wx,      Sx,      ix, Iy,      Wymax, Wymin, iy, Iy1, zo};
constexpr C kSplitT[] = {hRolled, B, t1, t2, r, A, G, Ix, Wx, ix, Iy, Wy, iy, Cx};

constexpr C kColdAngle[] = {bAngle, tAngle, A,  G,  Aw,  Ixo, Wxomax,  Wxomin, ixo,
                            Ix,     ix,     Iy, iy, Ix1, yo,  eoAngle, It,     Uy};
constexpr C kLippedAngle[] = {bAngle, a,  tAngle, A,  G,   Aw, Ixo,     Wxomax, Wxomin, ixo,
                              Ix,     ix, Iy,     iy, Ix1, yo, eoAngle, It,     Iw,     Uy};
constexpr C kColdChannel[] = {hCold, bCold, tCold, A,  G,  Aw, Ix, Wx, ix,  Iy,  Wymax,
                              Wymin, iy,    Iy1,   xo, eo, It, Iw, k,  Ww1, Ww2, Uy};
constexpr C kLippedChannel[] = {hCold, bCold, a,  tCold, A,  G,  Aw, Ix, Wx, ix,  Iy,
                                Wymax, Wymin, iy, Iy1,   xo, eo, It, Iw, k,  Ww1, Ww2};
constexpr C kLippedZ[] = {hCold, bZ,  a,   tZ, A,  G,   Aw,  theta, Ix1,   Wx1, ix1, Iy1, Wy1, iy1,
                          Ix,    Wxa, Wxb, ix, Iy, Wya, Wyb, iy,    Ix1y1, It,  Iw,  k,   Ww1, Ww2};
constexpr C kSquareTube[] = {hTube, tCold, A, G, Aw, Ix, Wx, ix};
constexpr C kRoundTube[] = {d, tCold, A, G, Aw, I, W, i};

constexpr C kAnglePair[] = {A, G, Ix, Wxmax, Wxmin, ix, GAPS};
constexpr C kChannelPairBack[] = {A, G, Ix, Wx, ix, GAPS};
constexpr C kChannelPairToe[] = {A, G, Ix, Wx, ix, Iy, Wy, iy};
constexpr C kAngleCross[] = {A,          G,           CROSS("0"), CROSS("4"), CROSS("6"),
                             CROSS("8"), CROSS("10"), Iy1,        iy1};

#undef CROSS
#undef GAPS
#undef GAP
#undef CAPACITIES
#undef CAPACITY

// --- Styles --------------------------------------------------------------------------------------

// Table, data file, bytes of a record, characters of the model number, columns that are text, whole
// numbers, capacities.
constexpr CRolledStyle kStyles[] = {
    {K::EqualAngle, L"DbData.kvb", sizeof(dbangleiron), 20, 0, 2, 18, kEqualAngle},
    {K::UnequalAngle, L"BDbData.kvb", sizeof(bdbangleiron), 20, 0, 3, 0, kUnequalAngle},
    {K::WideH, L"KHData.kvb", sizeof(kyyHiron), 14, 0, 2, 0, kRolledH},
    {K::WeldedH, L"PHData.kvb", sizeof(PthjHiron), 15, 0, 5, 0, kWeldedH},
    {K::OrdinaryChannel, L"PCGData.kvb", sizeof(Ptcgiron), 20, 0, 2, 0, kRolledChannel},
    {K::OrdinaryI, L"GZGData.kvb", sizeof(Ptgzgiron), 20, 0, 2, 0, kRolledI},
    {K::LightWeldedH, L"QxHData.kvb", sizeof(QxhjHiron), 20, 0, 3, 0, kWeldedH},
    {K::NarrowH, L"ZHData.kvb", sizeof(ZyyHiron), 14, 0, 2, 0, kRolledH},
    {K::LightChannel, L"QCGData.kvb", sizeof(QxCgiron), 20, 0, 2, 0, kRolledChannel},
    {K::LightI, L"QGZGData.kvb", sizeof(QxGzgiron), 20, 0, 2, 0, kRolledI},
    {K::ColdAngle, L"LWDBData.kvb", sizeof(LwbbDbiron), 20, 0, 1, 0, kColdAngle},
    {K::LippedChannel, L"LWBBJbCG.kvb", sizeof(LwbbJbCgiron), 20, 0, 3, 0, kLippedChannel},
    {K::ColdChannel, L"LWBBCG.kvb", sizeof(LwbbCgiron), 20, 0, 2, 0, kColdChannel},
    {K::LippedAngle, L"LWJBDB.kvb", sizeof(LwJbDbiron), 20, 0, 2, 0, kLippedAngle},
    {K::LippedZ, L"LWJBZ.kvb", sizeof(LwJbZiron), 20, 0, 3, 0, kLippedZ},
    {K::SlantLippedZ, L"LWXJBZ.kvb", sizeof(LwXJbZiron), 20, 0, 3, 0, kLippedZ},
    {K::SquareTube, L"LWRECT.kvb", sizeof(LwRectiron), 20, 0, 1, 0, kSquareTube},
    {K::RoundTube, L"LWCIR.kvb", sizeof(LwCircleiron), 20, 0, 1, 0, kRoundTube},
    {K::EqualAnglePair, L"DBJGZH.kvb", sizeof(DbJgzhiron), 20, 0, 0, 0, kAnglePair},
    {K::LongLegPair, L"BDBJGCBZH.kvb", sizeof(BdbJgCbzhiron), 20, 0, 0, 0, kAnglePair},
    {K::ShortLegPair, L"BDBJGDBZH.kvb", sizeof(BdbJgDbzhiron), 20, 0, 0, 0, kAnglePair},
    {K::AngleCross, L"DBJGSZZH.kvb", sizeof(DbJgSzzhiron), 20, 0, 0, 0, kAngleCross},
    {K::OrdinaryBackToBack, L"PTCGWXZH.kvb", sizeof(PtCgWxzhiron), 20, 0, 0, 0, kChannelPairBack},
    {K::OrdinaryToeToToe, L"PTCGNXZH.kvb", sizeof(PtCgNxzhiron), 20, 0, 0, 0, kChannelPairToe},
    {K::LightBackToBack, L"QXCGWXZH.kvb", sizeof(QxCgWxzhiron), 20, 0, 0, 0, kChannelPairBack},
    {K::LightToeToToe, L"QXCGNXZH.kvb", sizeof(QxCgNxzhiron), 20, 0, 0, 0, kChannelPairToe},
    {K::SplitT, L"PFTIRON.kvb", sizeof(PftIron), 20, 1, 0, 0, kSplitT},
};

constexpr bool EveryRolledTableOnce() {
  std::array<bool, kRolledKinds> seen{};
  for (const CRolledStyle& style : kStyles) {
    if (IndexOf(style.m_kind) >= seen.size() || seen[IndexOf(style.m_kind)]) return false;
    seen[IndexOf(style.m_kind)] = true;
  }
  return std::size(kStyles) == kRolledKinds;
}
static_assert(EveryRolledTableOnce());
static_assert(std::all_of(std::begin(kStyles), std::end(kStyles),
                          [](const CRolledStyle& style) {
                            return style.Field(style.Columns() - 1).m_nOffset + 8 == style.m_nSize;
                          }),
              "a record holds its table's columns and nothing behind them");

}  // namespace

std::span<const CRolledStyle, kRolledStyles> RolledStyles() { return kStyles; }

int FindRolledStyle(std::wstring_view name) {
  const auto kind = FindSectionKind(name);
  const auto* const found = std::find_if(std::begin(kStyles), std::end(kStyles),
                                         [&](const auto& each) { return each.m_kind == kind; });
  return found == std::end(kStyles) ? -1 : static_cast<int>(found - kStyles);
}

int FindRolledFile(std::wstring_view file, bool& userTwin) {
  for (int i = 0; i < kRolledStyles; ++i) {
    const std::wstring_view plain = kStyles[i].m_strFile;
    userTwin = file.starts_with(L'O') && file.substr(1) == plain;
    if (userTwin || file == plain) return i;
  }
  return -1;
}

CDataTableTitle RolledTitle(const CRolledStyle& style) {
  CDataTableTitle title;
  title.InsertColumn(0, {L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1});
  for (int i = 0; i < style.Columns(); ++i) {
    const bool text = style.Field(i).m_nKind == CFieldKind::Text;
    const CRolledColumn& column = style.m_arrColumn[static_cast<std::size_t>(i)];
    title.InsertColumn(i + 1,
                       {column.m_strName, column.m_strSign,
                        text ? CDataTypeStruct::KVBT_STRING : CDataTypeStruct::KVBT_DOUBLE, 0});
  }
  return title;
}

Ironcfg RolledLayout(int style) {
  CheckIndex("rolled-section style", style, kRolledStyles);
  const CRolledStyle& of = kStyles[style];
  const auto narrow = [](int value) { return static_cast<std::int16_t>(value); };
  return {narrow(of.m_nSize), narrow(of.m_nName), narrow(of.m_nWhole), narrow(of.Columns() + 1)};
}

}  // namespace orv3
