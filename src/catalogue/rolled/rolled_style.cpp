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

constexpr C tw{L"tw(mm)", L"腹板厚度"}, tf{L"tf(mm)", L"翼缘厚度"}, r{L"r(mm)", L"内圆弧半径"};
constexpr C H{L"H(mm)", L"截面高度"}, B{L"B(mm)", L"截面宽度"};
constexpr C A{L"A(cm^2)", L"截面面积"}, G{L"G(kg/m)", L"每米重量"}, Aw{L"Aw(m^2/m)", L"外表面积"};

constexpr C Ix{L"Ix(cm^4)", L"X轴截面惯性矩"}, Iy{L"Iy(cm^4)", L"Y轴截面惯性矩"};
constexpr C ix{L"ix(cm)", L"X轴截面回转半径"}, iy{L"iy(cm)", L"Y轴截面回转半径"};
constexpr C Wx{L"Wx(cm^3)", L"X轴截面抵抗矩"}, Wy{L"Wy(cm^3)", L"Y轴截面抵抗矩"};
constexpr C Sx{L"Sx(cm^3)", L"X轴半截面面积矩"};
constexpr C Wxmax{L"Wxmax(cm^3)", L"X轴截面最大抵抗矩"},
    Wxmin{L"Wxmin(cm^3)", L"X轴截面最小抵抗矩"};
constexpr C Wymax{L"Wymax(cm^3)", L"Y轴截面最大抵抗矩"},
    Wymin{L"Wymin(cm^3)", L"Y轴截面最小抵抗矩"};
constexpr C Ix1{L"Ix1(cm^4)", L"X1轴截面惯性矩"}, Iy1{L"Iy1(cm^4)", L"Y1轴截面惯性矩"};
constexpr C ix1{L"ix1(cm)", L"X1轴截面回转半径"}, iy1{L"iy1(cm)", L"Y1轴截面回转半径"};
constexpr C Ixo{L"Ixo(cm^4)", L"Xo轴截面惯性矩"}, ixo{L"ixo(cm)", L"Xo轴截面回转半径"};

// Thin-walled sections: torsion, warping, and the integral of x(x^2 + y^2) over the section.
constexpr C It{L"It(cm^4)", L"边截面惯性矩"}, Iw{L"Iw(cm^6)", L"毛截面扇性惯性矩"};
constexpr C k{L"k(cm^-1)", L"弯扭特性系数"}, Uy{L"Uy(cm^5)", L"Y轴不对称截面特性"};
constexpr C Ww1{L"Ww1(cm^4)", L"毛截面扇性模量"}, Ww2{L"Ww2(cm^4)", L"毛截面扇性模量"};

// --- Columns of one family -----------------------------------------------------------------------

constexpr C bAngle{L"b(mm)", L"边宽度"}, tAngle{L"t(mm)", L"边厚度"};
constexpr C BLong{L"B(mm)", L"长边宽度"}, bShort{L"b(mm)", L"短边宽度"};
constexpr C Wxo{L"Wxo(cm^3)", L"Xo轴截面抵抗矩"}, Iyo{L"Iyo(cm^4)", L"Yo轴截面惯性矩"};
constexpr C WyoMax{L"WyoMax(cm^3)", L"Yo轴截面最大抵抗矩"};
constexpr C WyoMin{L"WyoMin(cm^3)", L"Yo轴截面最小抵抗矩"};
constexpr C iyo{L"iyo(cm)", L"Yo轴截面回转半径"}, zo{L"zo(cm)", L"重心距离"};
constexpr C N{L"N(kN)", L"抗拉承载力设计值"};
constexpr C yoAngle{L"yo(cm)", L"Y向重心距离"}, xoAngle{L"xo(cm)", L"X向重心距离"};
constexpr C Iu{L"Iu(cm^4)", L"U轴截面惯性矩"}, Wu{L"Wu(cm^3)", L"U轴截面抵抗矩"};
constexpr C iu{L"iu(cm)", L"U轴截面回转半径"}, tga{L"tga", L"tga"};

constexpr C hRolled{L"h(mm)", L"截面高度"}, bRolled{L"b(mm)", L"截面宽度"};
constexpr C tRolled{L"t(mm)", L"翼缘厚度"}, r1{L"r1(mm)", L"边端内弧半径"};
constexpr C hWeb{L"h(mm)", L"腹板高度"}, hf{L"hf(mm)", L"焊缝厚度"};
constexpr C t1{L"t1(mm)", L"腹板厚度"}, t2{L"t2(mm)", L"翼缘厚度"}, Cx{L"Cx(cm)", L"重心距离"};

constexpr C hCold{L"h(mm)", L"高度"}, bCold{L"b(mm)", L"宽度"}, tCold{L"t(mm)", L"厚度"};
constexpr C a{L"a(mm)", L"卷边高度"}, bZ{L"b(mm)", L"边宽度"}, tZ{L"t(mm)", L"卷边厚度"};
constexpr C Wxomax{L"Wxomax(cm^3)", L"Xo轴截面最大抵抗矩"};
constexpr C Wxomin{L"Wxomin(cm^3)", L"Xo轴截面最小抵抗矩"};
constexpr C yo{L"yo(cm)", L"重心距离"}, eoAngle{L"eo(cm)", L"重心距离"};
constexpr C xo{L"xo(cm)", L"重心距离"}, eo{L"eo(cm)", L"剪心距离"};
constexpr C theta{L"θ(°)", L"角度"}, Ix1y1{L"Ix1y1(cm^4)", L"截面惯性矩"};
constexpr C Wx1{L"Wx1(cm^3)", L"X1轴截面抵抗矩"}, Wy1{L"Wy1(cm^3)", L"Y1轴截面抵抗矩"};
constexpr C Wxa{L"Wxa(cm^3)", L"X轴截面抵抗矩"}, Wxb{L"Wxb(cm^3)", L"X轴截面抵抗矩"};
constexpr C Wya{L"Wya(cm^3)", L"Y轴截面抵抗矩"}, Wyb{L"Wyb(cm^3)", L"Y轴截面抵抗矩"};

constexpr C hTube{L"h(mm)", L"边长"}, d{L"d(mm)", L"直径"};
constexpr C I{L"I(cm^4)", L"截面惯性矩"}, W{L"W(cm^3)", L"截面抵抗矩"};
constexpr C i{L"i(cm)", L"截面回转半径"};

#define CAPACITY(length) \
  C { L"P(" length L"m)(kN)", length L"m长度抗压承载力设计值" }
#define CAPACITIES                                                                              \
  CAPACITY(L"0.6"), CAPACITY(L"0.9"), CAPACITY(L"1.2"), CAPACITY(L"1.5"), CAPACITY(L"1.8"),     \
      CAPACITY(L"2.1"), CAPACITY(L"2.4"), CAPACITY(L"2.7"), CAPACITY(L"3.0"), CAPACITY(L"3.3"), \
      CAPACITY(L"3.6"), CAPACITY(L"3.9"), CAPACITY(L"4.2"), CAPACITY(L"4.5"), CAPACITY(L"4.8"), \
      CAPACITY(L"5.1"), CAPACITY(L"5.4"), CAPACITY(L"5.7")
#define GAP(a)                                              \
  C{L"Wy" a L"(cm^3)", L"a=" a L"mm时Y轴截面抵抗矩"}, C {   \
    L"iy" a L"(cm)", L"a=" a L"mm时Y轴截面回转半径" \
  }
#define GAPS                                                                                  \
  GAP(L"0"), GAP(L"4"), GAP(L"6"), GAP(L"8"), GAP(L"10"), GAP(L"12"), GAP(L"14"), GAP(L"16"), \
      GAP(L"18"), GAP(L"20")
#define CROSS(d)                                             \
  C{L"Ix" d L"(cm^4)", L"δ=" d L"mm时X1轴截面惯性矩"}, C {   \
    L"ix" d L"(cm)", L"δ=" d L"mm时X1轴截面回转半径" \
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
constexpr C kAngleCross[] = {
    A, G, CROSS(L"0"), CROSS(L"4"), CROSS(L"6"), CROSS(L"8"), CROSS(L"10"), Iy1, iy1};

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
