#include "members/cases/member_lattice.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_figures.h"
#include "framework/elementary.h"
#include "framework/plain_number.h"
#include "framework/utf8.h"
#include "sections/geometry/row_values.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

CCaseFault Missing(const char* key, CText right) {
  return {key, {"缺失", "is missing"}, std::move(right)};
}

class CLatticeReader {
 public:
  CLatticeReader(const CDataItem& row, const CLacingInput& lacing, CMemberLattice& lattice)
      : m_column(row), m_lacing(lacing), m_lattice(lattice), s(lattice.m_section) {}

  std::optional<CCaseFault> Read() {
    m_lattice = {};
    if (auto fault = Limbs()) return fault;
    const bool bLacing = m_lacing.m_strType == "lacing";
    if (!bLacing && m_lacing.m_strType != "battens") {
      return CCaseFault{
          "section.lacing.type",
          {m_lacing.m_strType.empty() ? "缺失" : m_lacing.m_strType + " 不可用",
           m_lacing.m_strType.empty() ? "is missing" : m_lacing.m_strType + " is not possible"},
          {"请给出 lacing 或 battens", "give lacing or battens"}};
    }
    if (auto fault = bLacing ? Bars() : Battens()) return fault;
    Use();
    return std::nullopt;
  }

 private:
  std::optional<CCaseFault> Limbs() {
    if (!m_limbs.Fetch(m_column) || !m_limbs.PlaceTruly(m_column)) {
      return NoRowFault({"section.lattice",
                         {"的分肢不在库中，或缺少间距或转角",
                          "has a limb that is not in the store, or lacks a spacing or an angle"},
                         {"请给出库中的型钢表和型号、间距和转角",
                          "give tables and numbers of the store, the spacings and the angles"}});
    }
    const bool bTwo = m_limbs.m_arrLimb.size() == 2;
    if (!IsPositive(m_limbs.m_dKy) || !(bTwo || IsPositive(m_limbs.m_dKx))) {
      return CCaseFault{"section.lattice",
                        {"的间距不大于 0", "has a spacing that is not above 0"},
                        {"请给出大于 0 的间距 mm", "give spacings above 0 mm"}};
    }
    const CLatticeProperties p = m_limbs.Properties();
    s.m_dA = p.m_dA;
    s.m_dRx = p.m_dixo;
    s.m_dRy = p.m_diyo;
    s.m_dWx = std::min(p.m_dWx1, p.m_dWx2);
    s.m_dKx = m_limbs.m_dKx;
    s.m_dKy = m_limbs.m_dKy;
    s.m_dLimbR1 = HUGE_VAL;
    int tubes = 0;
    for (const CLatticeLimb& limb : m_limbs.m_arrLimb) {
      CMemberRow row;
      if (auto fault = ReadMemberRow(limb.m_row, row)) {
        fault->m_strKey = "section.lattice";
        return fault;
      }
      if (row.m_bTube) ++tubes;
      s.m_arrLimb.push_back(LimbSection(limb, row.m_section));
      s.m_dLimbR1 = std::min(s.m_dLimbR1, RowFigures(limb.m_row).m_dRleast);
      m_lattice.m_dThickest = std::max(m_lattice.m_dThickest, row.m_dThickest);
    }
    m_lattice.m_dWebThick = m_lattice.m_dThickest;
    m_lattice.m_bTubes = tubes > 0;
    if (tubes > 0 && tubes < s.Limbs()) {
      return CCaseFault{"section.lattice",
                        {"有的分肢是圆管，有的不是，不在验算范围内",
                         "has tubes for some of its limbs, which is not covered"},
                        {"请全部选用或不用圆管", "take tubes for all limbs, or for none"}};
    }
    if (!(std::isfinite(s.m_dLimbR1) && s.m_dLimbR1 > 0)) {
      return CCaseFault{"section.lattice",
                        {"分肢缺少最小回转半径", "has a limb without its least radius"},
                        {"请选用其他分肢", "take another limb"}};
    }
    if (s.Limbs() == 2 && m_limbs.m_arrLimb[0].m_dArea != m_limbs.m_arrLimb[1].m_dArea) {
      return CCaseFault{"section.lattice",
                        {"两肢不同，不在验算范围内", "has two unequal limbs, which is not covered"},
                        {"请给相同的分肢", "give equal limbs"}};
    }
    return std::nullopt;
  }

  // As it is turned, by quarters.
  static CLatticeLimbSection LimbSection(const CLatticeLimb& limb, const CMemberSection& section) {
    const CRowFigures f = RowFigures(limb.m_row, limb.m_dAngle);
    const auto area = [&](const CShearCut& cut, double I) {
      return cut.m_dS > 0 ? I * cut.m_dT / cut.m_dS : section.m_dLeg * section.m_dLegThick / 1.5;
    };
    CLatticeLimbSection each;
    each.m_section = section;
    each.m_dIx = limb.m_dIx;
    each.m_dIy = limb.m_dIy;
    each.m_dWx = std::min(f.m_dWTop, f.m_dWBottom);
    each.m_dWy = std::min(f.m_dWLeft, f.m_dWRight);
    each.m_dShearX = area(section.m_cutX, section.m_dIy);
    each.m_dShearY = area(section.m_cutY, section.m_dIx);
    if (QuarterTurns(limb.m_dAngle) % 2 != 0) std::swap(each.m_dShearX, each.m_dShearY);
    return each;
  }

  static bool IsPositive(double value) { return std::isfinite(value) && value > 0; }

  std::optional<CCaseFault> Bars() {
    s.m_nBond = CLatticeBond::Lacing;
    if (m_lacing.m_strBarTable.empty() || m_lacing.m_strNo.empty())
      return Missing("section.lacing.table", {"请给出缀条的表和型号 no（等边角钢）",
                                              "give the bar's table and no, an equal angle"});
    const CString table = FromUtf8(m_lacing.m_strBarTable);
    const auto kind = FindSectionKind(table.GetString());
    const CDataItem bar = ComponentRow(table, FromUtf8(m_lacing.m_strNo));
    if (kind != CSectionKind::EqualAngle || bar.IsEmpty()) {
      const std::string name = m_lacing.m_strBarTable + " " + m_lacing.m_strNo;
      return NoRowFault({"section.lacing.table",
                         {name + " 不是库中的等边角钢", name + " is no equal angle of the store"},
                         {"请给出热轧等边角钢的型号", "give a number of 热轧等边角钢"}});
    }
    CMemberRow member;
    if (auto fault = ReadMemberRow(bar, member)) {
      fault->m_strKey = "section.lacing.table";
      return fault;
    }
    s.m_dBarA = member.m_section.m_dA;
    s.m_dBarR = member.m_section.m_dRmin;
    s.m_dBarLeg = member.m_section.m_dLeg;
    m_lattice.m_dBondThick = member.m_dThickest;
    s.m_dBarThick = member.m_section.m_dLegThick;
    s.m_dBarRoot = member.m_section.m_dLegRoot;
    s.m_dAngle = std::isnan(m_lacing.m_dAngle) ? 45 : m_lacing.m_dAngle;
    if (!(s.m_dAngle >= 40 && s.m_dAngle <= 70)) {
      return CCaseFault{"section.lacing.angle",
                        {"不在 40° 至 70° 之间", "is not from 40 to 70 degrees"},
                        {"请给出 40 至 70", "give 40 to 70"}};
    }
    // Crossed lacing, or single with cross bars, has half the panel of single lacing. Nodes off the
    // centroids lengthen it by a quarter at most.
    const double half = s.WidestPlane() / Tan(s.m_dAngle * std::numbers::pi / 180);
    return LimbLength(
        2 * half, half, 1.25 * 2 * half,
        {"与缀条间距和角度不符", "contradicts the spacing and the angle of the bars"});
  }

  std::optional<CCaseFault> Battens() {
    s.m_nBond = CLatticeBond::Battens;
    for (const auto& [key, value] : {std::pair{"section.lacing.width", m_lacing.m_dWidth},
                                     {"section.lacing.thick", m_lacing.m_dThick},
                                     {"section.lacing.pitch", m_lacing.m_dPitch}}) {
      if (!IsPositive(value))
        return Missing(key, {"请给出大于 0 的数 mm", "give a number above 0 mm"});
    }
    s.m_dBattenWidth = m_lacing.m_dWidth;
    s.m_dBattenT = m_lattice.m_dBondThick = m_lacing.m_dThick;
    s.m_dBattenPitch = m_lacing.m_dPitch;
    if (s.m_dBattenPitch <= s.m_dBattenWidth) {
      return CCaseFault{"section.lacing.pitch",
                        {"不大于缀板宽度", "is not above the width of the battens"},
                        {"请给出缀板中心距", "give the distance of their centres"}};
    }
    // Bolted battens: between their outermost bolts, which lie within them.
    const double clear = s.m_dBattenPitch - s.m_dBattenWidth;
    return LimbLength(clear, clear, s.m_dBattenPitch,
                      {"与缀板中心距和宽度不符", "contradicts the pitch and width of the battens"});
  }

  // l1 as given, or what it is unless given; within 5 % it may be rounded.
  std::optional<CCaseFault> LimbLength(double usual, double least, double greatest, CText what) {
    constexpr double kRounded = 0.05;
    const bool bGiven = !std::isnan(m_lacing.m_dL1);
    m_lattice.m_bL1Assumed = !bGiven && s.m_nBond == CLatticeBond::Lacing;
    s.m_dL1 = bGiven ? m_lacing.m_dL1 : usual;
    if (s.m_dL1 >= (1 - kRounded) * least && s.m_dL1 <= (1 + kRounded) * greatest)
      return std::nullopt;
    const std::string from = PlainNumber(least), to = PlainNumber(greatest);
    return CCaseFault{"section.lacing.l1",
                      std::move(what),
                      {"请给出 " + from + " 至 " + to + " mm，或删去",
                       "give " + from + " to " + to + " mm, or leave it out"}};
  }

  void Use() {
    const CText limbs = {"由各肢的表列值按平行轴定理", "of the limbs' cells, by parallel axes"};
    const CText cell = {"分肢的最小回转半径", "the least radius of the limbs"};
    const CText bar = {"缀条的表列值", "of the bar's cells"};
    m_lattice.m_arrUsed = {
        {"A", {"面积", "area"}, s.m_dA, "mm²", limbs},
        {"i_x", {"回转半径", "radius of gyration"}, s.m_dRx, "mm", limbs},
        {"i_y", {"回转半径", "radius of gyration"}, s.m_dRy, "mm", limbs},
        {"W_x", {"截面模量（较小侧）", "modulus, the lesser of both sides"}, s.m_dWx, "mm³", limbs},
        {"i_1", {"分肢回转半径", "radius of a limb"}, s.m_dLimbR1, "mm", cell}};
    if (s.m_nBond != CLatticeBond::Lacing) return;
    m_lattice.m_arrUsed.push_back({"A_d", {"缀条面积", "area of a bar"}, s.m_dBarA, "mm²", bar});
    m_lattice.m_arrUsed.push_back(
        {"i_d", {"缀条最小回转半径", "least radius of a bar"}, s.m_dBarR, "mm", bar});
  }

  const CSteelItemGeGou m_column;
  const CLacingInput& m_lacing;
  CMemberLattice& m_lattice;
  CLatticeSection& s;
  CLatticeLimbs m_limbs;
};

}  // namespace

std::optional<CCaseFault> ReadMemberLattice(const CDataItem& row, const CLacingInput& lacing,
                                            CMemberLattice& lattice) {
  return CLatticeReader(row, lacing, lattice).Read();
}

}  // namespace orv3
