#include "members/cases/member_row.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "catalogue/exact/exact_figures.h"
#include "catalogue/exact/row_exact.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/outline/row_figures.h"
#include "catalogue/outline/row_spacing.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/exact_properties.h"
#include "sections/load_data_table.h"
#include "sections/section_check.h"
#include "sections/section_figures.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

using K = CSectionKind;
using B = CBucklingShape;

CCaseFault NotCovered(CText what) {
  return {"section",
          std::move(what),
          {"请选用工字形、H、T、槽钢、角钢及其组合、箱形、圆管或实心截面",
           "take an I, H, T, channel, angle, pair of angles, box, tube or solid section"}};
}

CCaseFault Unsymmetric() {
  return NotCovered(
      {"是不对称截面，不在验算范围内", "is an unsymmetric section, which is not covered"});
}

// Area and height above the inner edge of a flange of two root fillets of radius r, as shares.
constexpr double kFilletArea = 0.4292;   // (2 - pi/2) r^2
constexpr double kFilletReach = 0.2234;  // of r

class CRowReader {
 public:
  CRowReader(const CDataItem& row, CMemberRow& member)
      : m_row(row), r(member), s(member.m_section) {}

  std::optional<CCaseFault> Read();

  // Null for a table whose rows are no members.
  using CReadPlates = std::optional<CCaseFault> (CRowReader::*)();
  static CReadPlates PlatesOf(CSectionKind kind) noexcept;

 private:
  double Cell(const wchar_t* sign) const {
    const int index = m_row.GetSignIndex(sign);
    return index < 0 ? 0 : ToDouble(m_row[index].m_strValue);
  }
  void Figures(const CRowFigures& f);
  std::optional<CCaseFault> TaperedI();
  std::optional<CCaseFault> RolledH();
  std::optional<CCaseFault> WeldedH();
  std::optional<CCaseFault> PlateH();
  std::optional<CCaseFault> GeneralH();
  std::optional<CCaseFault> SplitT();
  std::optional<CCaseFault> PlateT();
  std::optional<CCaseFault> RolledChannel();
  std::optional<CCaseFault> PlateChannel();
  std::optional<CCaseFault> SquareTube();
  std::optional<CCaseFault> PlateBox();
  std::optional<CCaseFault> GeneralBox();
  std::optional<CCaseFault> RoundTube();
  std::optional<CCaseFault> PlateTube();
  std::optional<CCaseFault> Angles();
  std::optional<CCaseFault> Solid();
  void H(double b, double h, double tw, double tf, double root);
  void GeneralI(CMemberFlange top, CMemberFlange bottom, double h, double tw, double root);
  void Tee(double b, double h, double tw, double tf, double root);
  void Channel(double b, double h, double tw, double t, double root);
  void BoxOf(double b, double h, double top, double bottom, double left, double right);
  void TubeOf(double d, double t);
  void Leg(const CDataItem& part, bool bUnequal);
  std::nullopt_t Buckling(CBucklingShape flameCut, CBucklingShape rolled) {
    r.m_nFlameCut = flameCut;
    r.m_nRolled = rolled;
    return std::nullopt;
  }
  std::nullopt_t Buckling(CBucklingShape shape) { return Buckling(shape, shape); }
  std::nullopt_t RolledBuckling();
  std::nullopt_t WeldedIBuckling();
  std::nullopt_t WeldedBoxBuckling();
  void Web(double h0, double t) {
    s.m_dH0 = h0;
    s.m_dTw = r.m_dWebThick = t;
  }

  const CDataItem& m_row;
  CMemberRow& r;
  CMemberSection& s;
  CSectionKind m_kind{};
  CRowFigures m_figures;
};

void CRowReader::Figures(const CRowFigures& f) {
  s.m_dHeight = f.m_dHeight;
  s.m_dWidth = f.m_dWidth;
  s.m_dA = f.m_dArea;
  s.m_dIx = f.m_dIx;
  s.m_dIy = f.m_dIy;
  s.m_dRx = f.m_dRx;
  s.m_dRy = f.m_dRy;
  s.m_dRmin = f.m_dRleast;
  s.m_dWTop = f.m_dWTop;
  s.m_dWBottom = f.m_dWBottom;
  s.m_dWSide = std::min(f.m_dWLeft, f.m_dWRight);
  r.m_dThickest = r.m_dWebThick = r.m_dFlangeThick = f.m_dThickest;
}

// First moments of the flanges and the root fillets, and of the whole half.
void CRowReader::GeneralI(CMemberFlange top, CMemberFlange bottom, double h, double tw,
                          double root) {
  s.m_nShape = CMemberShape::I;
  s.m_top = top;
  s.m_bottom = bottom;
  Web(h - top.m_dThick - bottom.m_dThick - 2 * root, tw);
  // A printed modulus has the centroid of equal flanges a little off their middle.
  const double up = s.IsEqualFlanged() ? h / 2 : s.m_dIx / s.m_dWTop, down = h - up;
  const auto beyond = [&](const CMemberFlange& f, double edge) {
    const double inner = edge - f.m_dThick;
    return f.m_dWidth * f.m_dThick * (edge - f.m_dThick / 2) + tw * root * (inner - root / 2) +
           kFilletArea * root * root * (inner - kFilletReach * root);
  };
  s.m_dWebTop = up - top.m_dThick - root;
  s.m_dWebBottom = down - bottom.m_dThick - root;
  s.m_dSTop = beyond(top, up);
  s.m_dSBottom = beyond(bottom, down);
  s.m_cutY = {std::max(s.m_dSTop + tw * s.m_dWebTop * s.m_dWebTop / 2,
                       s.m_dSBottom + tw * s.m_dWebBottom * s.m_dWebBottom / 2),
              tw};
  if (const double printed = Cell(L"Sx(cm^3)"); printed > 0) s.m_cutY.m_dS = 1000 * printed;
  // The flanges carry Vx, each its share by b^3 t, and are cut in their middle: V S / (Iy t) with
  // the figures of one flange, greatest in the wider.
  const bool bTop = top.m_dWidth != bottom.m_dWidth ? top.m_dWidth > bottom.m_dWidth
                                                    : top.m_dThick >= bottom.m_dThick;
  const CMemberFlange& wider = bTop ? top : bottom;
  s.m_cutX = {wider.m_dThick * wider.m_dWidth * wider.m_dWidth / 8, wider.m_dThick};
  r.m_dFlangeThick = wider.m_dThick;
}

void CRowReader::H(double b, double h, double tw, double tf, double root) {
  const CMemberFlange flange = {b, tf, (b - tw) / 2 - root};
  GeneralI(flange, flange, h, tw, root);
}

void CRowReader::Tee(double b, double h, double tw, double tf, double root) {
  s.m_nShape = CMemberShape::T;
  s.m_top = {b, tf, (b - tw) / 2 - root};
  Web(h - tf - root, tw);
  const double up = s.m_dIx / s.m_dWTop, down = h - up;
  s.m_dWebTop = up - tf - root;
  s.m_dWebBottom = down;
  s.m_dSTop = b * tf * (up - tf / 2) + tw * root * (up - tf - root / 2) +
              kFilletArea * root * root * (up - tf - kFilletReach * root);
  s.m_cutY = {tw * down * down / 2, tw};
  s.m_cutX = {tf * b * b / 8, tf};
  r.m_dFlangeThick = tf;
}

void CRowReader::Channel(double b, double h, double tw, double t, double root) {
  s.m_nShape = CMemberShape::Channel;
  s.m_top = s.m_bottom = {b, t, b - tw - root};
  Web(h - 2 * t - 2 * root, tw);
  s.m_dWebTop = s.m_dWebBottom = s.m_dH0 / 2;
  const double inner = h / 2 - t;
  s.m_dSTop = s.m_dSBottom = b * t * (h - t) / 2 + tw * root * (inner - root / 2) +
                             kFilletArea / 2 * root * root * (inner - kFilletReach * root);
  s.m_cutY = {s.m_dSTop + tw * s.m_dWebTop * s.m_dWebTop / 2, tw};
  if (const double printed = Cell(L"Sx(cm^3)"); printed > 0) s.m_cutY.m_dS = 1000 * printed;
  const double beyond = b - m_figures.m_dXc;
  s.m_cutX = {t * beyond * beyond, 2 * t};
  r.m_dFlangeThick = t;
}

void CRowReader::BoxOf(double b, double h, double top, double bottom, double left, double right) {
  s.m_nShape = CMemberShape::Box;
  s.m_nWebs = 2;
  s.m_top = {b, top, 0};
  s.m_bottom = {b, bottom, 0};
  s.m_dB0 = b - left - right;
  Web(h - top - bottom, std::min(left, right));
  r.m_dWebThick = std::max(left, right);
  r.m_dFlangeThick = std::max(top, bottom);
  const double up = top == bottom ? h / 2 : s.m_dIx / s.m_dWTop, down = h - up;
  const double both = left + right;
  s.m_dWebTop = up - top;
  s.m_dWebBottom = down - bottom;
  s.m_dSTop = b * top * (up - top / 2);
  s.m_dSBottom = b * bottom * (down - bottom / 2);
  s.m_cutY = {s.m_dSTop + both * s.m_dWebTop * s.m_dWebTop / 2, both};
  const double x = m_figures.m_dXc;
  const double inner = std::max(0.0, x - left);
  s.m_cutX = {h * left * (x - left / 2) + (top + bottom) * inner * inner / 2, top + bottom};
}

void CRowReader::TubeOf(double d, double t) {
  s.m_nShape = CMemberShape::Tube;
  s.m_dDiameter = d;
  s.m_dWall = r.m_dThickest = r.m_dWebThick = r.m_dFlangeThick = t;
  const double inner = d - 2 * t;
  s.m_cutY = s.m_cutX = {(d * d * d - inner * inner * inner) / 12, 2 * t};
  r.m_bTube = true;
}

std::optional<CCaseFault> CRowReader::Solid() {
  const bool bRound = m_kind == K::SolidCircle;
  s.m_nShape = bRound ? CMemberShape::SolidRound : CMemberShape::SolidBar;
  const double d = s.m_dHeight;
  if (bRound) {
    s.m_cutY = s.m_cutX = {d * d * d / 12, d};
  } else {  // 1.5 V / A: exact for rectangle and triangle, above the hexagon's
    s.m_cutY = {1.5 * s.m_dIx / s.m_dA, 1};
    s.m_cutX = {1.5 * s.m_dIy / s.m_dA, 1};
  }
  r.m_dThickest = r.m_dWebThick = r.m_dFlangeThick = std::min(s.m_dHeight, s.m_dWidth);
  return Buckling(B::Solid);
}

void CRowReader::Leg(const CDataItem& part, bool bUnequal) {
  const auto cell = [&part](const wchar_t* sign) {
    const int index = part.GetSignIndex(sign);
    return index < 0 ? 0 : ToDouble(part[index].m_strValue);
  };
  s.m_dLegShort = cell(L"b(mm)");
  s.m_dLeg = bUnequal ? cell(L"B(mm)") : s.m_dLegShort;
  s.m_dLegThick = cell(L"t(mm)");
  s.m_dLegRoot = cell(L"r(mm)");
}

// A pair's class is that of a T of angles: b about both axes.
std::optional<CCaseFault> CRowReader::Angles() {
  const bool bUnequal =
      m_kind == K::UnequalAngle || m_kind == K::LongLegPair || m_kind == K::ShortLegPair;
  if (TableOf(m_kind).m_pPair == nullptr) {
    s.m_nShape = CMemberShape::Angle;
    Leg(m_row, bUnequal);
    return Buckling(bUnequal ? B::RolledUnequalAngle : B::RolledEqualAngle);
  }
  Buckling(B::RolledT);
  s.m_nShape = m_kind == K::EqualAnglePair ? CMemberShape::EqualPair
               : m_kind == K::LongLegPair  ? CMemberShape::LongLegPair
                                           : CMemberShape::ShortLegPair;
  const CString no = m_row[0].m_strValue;
  Leg(PairPartRow(m_row), bUnequal);
  if (s.m_dLeg > 0 && s.m_dLegShort > 0 && s.m_dLegThick > 0) return std::nullopt;
  return CCaseFault{
      "section",
      {"库中没有组合的角钢 " + ToUtf8(no), "has no angle in the store for " + ToUtf8(no)},
      {"请在库中加入该角钢", "add it to the store"}};
}

// --- Each table's plates from its columns --------------------------------------------------------

std::nullopt_t CRowReader::RolledBuckling() {
  return Buckling(s.m_top.m_dWidth / s.m_dHeight <= 0.8 ? B::RolledINarrow : B::RolledIWide);
}

std::nullopt_t CRowReader::WeldedIBuckling() {
  s.m_bRolled = false;
  return Buckling(B::WeldedIFlameCut, B::WeldedIRolled);
}

// The worse of the walls.
std::nullopt_t CRowReader::WeldedBoxBuckling() {
  s.m_bRolled = false;
  const double flange = s.m_dB0 / std::min(s.m_top.m_dThick, s.m_bottom.m_dThick);
  return Buckling(std::min(flange, s.m_dH0 / s.m_dTw) > 20 ? B::WeldedBox : B::WeldedBoxThick);
}

std::optional<CCaseFault> CRowReader::TaperedI() {
  H(Cell(L"b(mm)"), Cell(L"h(mm)"), Cell(L"tw(mm)"), Cell(L"t(mm)"), Cell(L"r(mm)"));
  r.m_bTapered = true;
  if (m_kind == K::OrdinaryI) r.m_dRolledNumber = Cell(L"h(mm)") / 10;
  return RolledBuckling();
}

std::optional<CCaseFault> CRowReader::RolledH() {
  H(Cell(L"B(mm)"), Cell(L"H(mm)"), Cell(L"tw(mm)"), Cell(L"tf(mm)"), Cell(L"r(mm)"));
  return RolledBuckling();
}

std::optional<CCaseFault> CRowReader::WeldedH() {
  H(Cell(L"B(mm)"), Cell(L"H(mm)"), Cell(L"tw(mm)"), Cell(L"tf(mm)"), 0);
  return WeldedIBuckling();
}

std::optional<CCaseFault> CRowReader::PlateH() {
  H(Cell(L"b(mm)"), Cell(L"h(mm)"), Cell(L"tw(mm)"), Cell(L"tf(mm)"), 0);
  return WeldedIBuckling();
}

std::optional<CCaseFault> CRowReader::GeneralH() {
  const double tw = Cell(L"b(mm)"), top = Cell(L"bf1(mm)"), bottom = Cell(L"bf3(mm)");
  if (top != Cell(L"bf2(mm)") || bottom != Cell(L"bf4(mm)")) return Unsymmetric();
  if (!(top > 0 && bottom > 0 && tw > 0)) return Unsymmetric();
  GeneralI({2 * top + tw, Cell(L"bh2(mm)"), top}, {2 * bottom + tw, Cell(L"bh1(mm)"), bottom},
           Cell(L"h(mm)"), tw, 0);
  return WeldedIBuckling();
}

std::optional<CCaseFault> CRowReader::SplitT() {
  Tee(Cell(L"B(mm)"), Cell(L"h(mm)"), Cell(L"t1(mm)"), Cell(L"t2(mm)"), Cell(L"r(mm)"));
  return Buckling(B::RolledT);
}

std::optional<CCaseFault> CRowReader::PlateT() {
  const double tw = Cell(L"b(mm)"), out = Cell(L"bf1(mm)");
  if (out != Cell(L"bf2(mm)")) return Unsymmetric();
  Tee(2 * out + tw, Cell(L"h(mm)"), tw, Cell(L"bh(mm)"), 0);
  s.m_bRolled = false;
  return Buckling(B::WeldedTFlameCut, B::WeldedTRolled);
}

std::optional<CCaseFault> CRowReader::RolledChannel() {
  Channel(Cell(L"b(mm)"), Cell(L"h(mm)"), Cell(L"tw(mm)"), Cell(L"t(mm)"), Cell(L"r(mm)"));
  return Buckling(B::RolledChannel);
}

std::optional<CCaseFault> CRowReader::PlateChannel() {
  const double tw = Cell(L"b(mm)"), out = Cell(L"bf1(mm)"), t = Cell(L"bh1(mm)");
  if (out != Cell(L"bf2(mm)") || t != Cell(L"bh2(mm)")) return Unsymmetric();
  Channel(out + tw, Cell(L"h(mm)"), tw, t, 0);
  s.m_bRolled = false;
  return Buckling(B::RolledChannel);
}

std::optional<CCaseFault> CRowReader::SquareTube() {
  const double h = Cell(L"h(mm)"), t = Cell(L"t(mm)");
  BoxOf(h, h, t, t, t, t);
  return Buckling(B::RolledBox);
}

std::optional<CCaseFault> CRowReader::PlateBox() {
  const double t = Cell(L"t(mm)");
  BoxOf(Cell(L"b(mm)"), Cell(L"h(mm)"), t, t, t, t);
  return WeldedBoxBuckling();
}

std::optional<CCaseFault> CRowReader::GeneralBox() {
  const double top = Cell(L"t1(mm)"), left = Cell(L"t3(mm)");
  if (top != Cell(L"t2(mm)") || left != Cell(L"t4(mm)")) return Unsymmetric();
  BoxOf(Cell(L"b(mm)"), Cell(L"h(mm)"), top, top, left, left);
  return WeldedBoxBuckling();
}

std::optional<CCaseFault> CRowReader::RoundTube() {
  TubeOf(Cell(L"d(mm)"), Cell(L"t(mm)"));
  return Buckling(B::WeldedTube);
}

std::optional<CCaseFault> CRowReader::PlateTube() {
  TubeOf(2 * Cell(L"R(mm)"), Cell(L"R(mm)") - Cell(L"r(mm)"));
  return Buckling(B::WeldedTube);
}

CRowReader::CReadPlates CRowReader::PlatesOf(CSectionKind kind) noexcept {
  using R = CRowReader;
  static constexpr struct {
    CSectionKind m_kind;
    CReadPlates m_pRead;
  } kTables[] = {{K::OrdinaryI, &R::TaperedI},
                 {K::LightI, &R::TaperedI},
                 {K::WeldedH, &R::WeldedH},
                 {K::LightWeldedH, &R::WeldedH},
                 {K::WideH, &R::RolledH},
                 {K::NarrowH, &R::RolledH},
                 {K::SquareTube, &R::SquareTube},
                 {K::SplitT, &R::SplitT},
                 {K::OrdinaryChannel, &R::RolledChannel},
                 {K::LightChannel, &R::RolledChannel},
                 {K::RoundTube, &R::RoundTube},
                 {K::EqualAngle, &R::Angles},
                 {K::UnequalAngle, &R::Angles},
                 {K::EqualAnglePair, &R::Angles},
                 {K::LongLegPair, &R::Angles},
                 {K::ShortLegPair, &R::Angles},
                 {K::PlateH, &R::PlateH},
                 {K::PlateGeneralH, &R::GeneralH},
                 {K::PlateBox, &R::PlateBox},
                 {K::PlateGeneralBox, &R::GeneralBox},
                 {K::PlateT, &R::PlateT},
                 {K::PlateChannel, &R::PlateChannel},
                 {K::SolidCircle, &R::Solid},
                 {K::PlateTube, &R::PlateTube},
                 {K::SolidRectangle, &R::Solid},
                 {K::SolidHexagon, &R::Solid},
                 {K::SolidTriangle, &R::Solid}};
  const auto* const found = std::find_if(std::begin(kTables), std::end(kTables),
                                         [=](const auto& each) { return each.m_kind == kind; });
  return found == std::end(kTables) ? nullptr : found->m_pRead;
}

std::optional<CCaseFault> CRowReader::Read() {
  const auto kind = FindSectionKind(m_row.GetTableName().GetString());
  r = {};
  r.m_row = m_row;
  if (!kind) return NotCovered({"不是截面表的行", "is no row of a section table"});
  m_kind = *kind;
  m_figures = RowFigures(m_row);
  Figures(m_figures);
  if (auto fault = ThinWalled(m_row)) return fault;
  const CReadPlates plates = PlatesOf(m_kind);
  if (plates == nullptr) {
    const std::string table = ToUtf8(m_row.GetTableName());
    return NotCovered(
        {table + " 的构件不在验算范围内", "members of " + table + " are not covered"});
  }
  if (auto fault = (this->*plates)()) return fault;
  const double all = s.m_dA + s.m_dIx + s.m_dIy + s.m_dRx + s.m_dRy;
  if (!(std::isfinite(all) && s.m_dA > 0 && s.m_dIx > 0 && s.m_dIy > 0)) {
    return CCaseFault{"section",
                      {"缺少面积或惯性矩", "lacks its area or moments of inertia"},
                      {"请给出完整的截面", "give a whole section"}};
  }
  if (auto fault = Contradicting(m_row)) return fault;
  return std::nullopt;
}

}  // namespace

const CSectionStyle* StyleNamed(const std::string& name) {
  if (const auto* style = FindSectionAlias(name)) return style;
  const CString text = FromUtf8(name);
  if (const auto* style = FindSectionStyle(std::wstring_view(text.GetString()))) return style;
  return IsNumber(text) ? FindSectionStyle(ToInt(text)) : nullptr;
}

CDataItem SizesRow(const CSectionStyle& style, std::span<const double> sizes,
                   std::optional<CCaseFault>& fault) {
  if (const auto wrong = CheckSectionSizes(style, sizes)) {
    fault =
        CCaseFault{"section.sizes",
                   {"不能构成截面：" + wrong->m_strText, "bound no section: " + wrong->m_strText},
                   {"请改正尺寸", "give sizes that do"}};
    return {};
  }
  CSteelJMData record;
  CArray<double, double> values;
  for (const double size : sizes) values.Add(size);
  record.SetSectSize(style.m_nStyle, values);
  CSteelJMData::CalSectCharacterStyle(record);
  return ExactRow(record);
}

// Of a gusset plate; parts further apart are the limbs of a lattice column.
bool IsPairGap(double gap) noexcept { return gap >= 0 && gap <= 60 && gap == std::floor(gap); }

CCaseFault PairGapFault() {
  return {"section.gap",
          {"不可用", "is not possible"},
          {"请只给两肢分开的组合截面（如双角钢）以间距，整数毫米，不大于 60；更远的按格构柱",
           "give it of a pair whose parts stand apart, as two angles do, in whole millimetres up "
           "to 60; "
           "parts further apart are a lattice column"}};
}

bool IsMemberKind(CSectionKind kind) noexcept { return CRowReader::PlatesOf(kind) != nullptr; }

std::optional<CCaseFault> ReadMemberRow(const CDataItem& row, CMemberRow& member) {
  return CRowReader(row, member).Read();
}

std::optional<CCaseFault> ThinWalled(const CDataItem& row) {
  const CSectionTable* table = FindSectionTable(row.GetTableName().GetString());
  const int index = row.GetSignIndex(L"t(mm)");
  if (!table || table->m_forming != CForming::Cold || index < 0) return std::nullopt;
  const double t = ToDouble(row[index].m_strValue);
  if (t >= 6) return std::nullopt;
  const std::string is = ToUtf8(FormatShortest(t));
  return CCaseFault{"section",
                    {"壁厚 " + is + " mm 的冷弯截面属冷弯薄壁型钢规范",
                     "a cold-formed section with a wall of " + is +
                         " mm belongs to the code of thin-walled sections"},
                    {"请给壁厚不小于 6 mm 的截面", "take a section with walls of at least 6 mm"}};
}

std::optional<CCaseFault> Contradicting(const CDataItem& row) {
  // What has its exact figures kept was held against them when they were.
  const auto what = FindExact(row) ? std::nullopt : Contradiction(row);
  if (!what) return std::nullopt;
  const std::string no = ToUtf8(row[0].m_strValue);
  return CCaseFault{"section",
                    {no + " 的行自相矛盾：" + what->m_strChinese,
                     "the row of " + no + " contradicts itself: " + what->m_strEnglish},
                    {"请在库中改正尺寸或特性", "correct its sizes or figures in the store"}};
}

bool AddTorsion(CMemberRow& member) {
  if (member.m_bExact) return true;
  const CExactProperties exact = ExactProperties(member.m_row);
  CMemberSection& s = member.m_section;
  s.m_dIt = exact.It;
  s.m_dIw = exact.Iw;
  s.m_dXs = exact.xs - exact.xo;
  s.m_dYs = exact.ys - exact.yo;
  member.m_bExact = std::isfinite(s.m_dIt + s.m_dIw + s.m_dXs + s.m_dYs);
  return member.m_bExact;
}

}  // namespace orv3
