// What a case says of its steel, its forces and its lengths, refused by name where it cannot be.
#include <algorithm>
#include <cmath>
#include <string_view>

#include "codes/edition.h"
#include "codes/steel_strength.h"
#include "framework/number_text.h"
#include "framework/plain_number.h"
#include "framework/utf8.h"
#include "members/cases/member_case.h"

namespace orv3 {

// --- Edition and steel ---------------------------------------------------------------------------

bool CMemberCheck::ReadEdition(const CMemberCase& input) {
  m_nEdition = m_nDefault;
  if (input.m_strCode.empty()) return true;
  const auto edition = EditionByYear(input.m_strCode);
  if (!edition) return Refuse("code", edition.Refusal().m_what, edition.Refusal().m_right);
  m_nEdition = *edition;
  return true;
}

namespace {

// A thickness that the steel has no strength of is the section's fault.
CCaseFault StrengthFault(const CMemberCase& input, const CCodeRefusal& refusal) {
  if (refusal.m_szArgument != std::string_view("t"))
    return {"steel", refusal.m_what, refusal.m_right};
  const char* key = !input.m_strLattice.empty() ? "section.lattice"
                    : !input.m_strStyle.empty() ? "section.sizes"
                                                : "section";
  return {key,
          {"厚度 " + refusal.m_what.m_strChinese + "（" + input.m_strSteel + "）",
           "the thickness " + refusal.m_what.m_strEnglish + " with " + input.m_strSteel},
          refusal.m_right};
}

}  // namespace

bool CMemberCheck::ReadSteel(const CMemberCase& input, const CMemberRow& section) {
  if (input.m_strSteel.empty()) {
    return Refuse("steel", {"缺失", "is missing"},
                  {"请给出钢材牌号", "give the grade of the steel"});
  }
  const auto grade = GradeByName(m_nEdition, input.m_strSteel);
  if (!grade) return Refuse("steel", grade.Refusal().m_what, grade.Refusal().m_right);
  const auto refuse = [&](const CCodeRefusal& refusal) {
    m_fault = StrengthFault(input, refusal);
    return false;
  };
  const CSteelProduct product = section.m_bTube ? CSteelProduct::Tube : CSteelProduct::Plate;
  const auto thick = SteelStrengths(m_nEdition, *grade, section.m_dThickest, product);
  if (!thick) return refuse(thick.Refusal());
  const auto web = SteelStrengths(m_nEdition, *grade, section.m_dWebThick, product);
  if (!web) return refuse(web.Refusal());
  const auto flange = SteelStrengths(m_nEdition, *grade, section.m_dFlangeThick, product);
  if (!flange) return refuse(flange.Refusal());
  m_steel.m_nEdition = m_nEdition;
  m_steel.m_nGrade = *grade;
  m_steel.m_dF = thick->m_dF;
  m_steel.m_dFv = web->m_dFv;
  m_steel.m_dFvX = flange->m_dFv;
  m_steel.m_dFu = thick->m_dFu.value_or(0);
  m_steel.m_dFy = thick->m_dFy;
  return true;
}

bool CMemberCheck::ReadClasses(const CMemberCase& input, const CMemberRow& section) {
  if (!input.m_strEdges.empty() && !section.HasEdges()) {
    return Refuse("edges", {"只用于焊接工字形和 T 形截面", "is for welded I and T sections alone"},
                  {"请删去", "leave it out"});
  }
  if (input.m_strEdges != "" && input.m_strEdges != "rolled" && input.m_strEdges != "flame-cut") {
    return Refuse("edges", {input.m_strEdges + " 不可用", input.m_strEdges + " is not possible"},
                  {"请给出 flame-cut 或 rolled", "give flame-cut or rolled"});
  }
  if (!(input.m_dN < 0)) return true;  // classes are asked by compression alone
  const bool bRolled = input.m_strEdges == "rolled";
  const CBucklingShape shape = bRolled ? section.m_nRolled : section.m_nFlameCut;
  const double t = section.m_dThickest;
  const CSteelGrade grade = m_steel.m_nGrade;
  const auto x = BucklingClass(m_nEdition, shape, CSectionAxis::X, t, grade);
  const auto y = BucklingClass(m_nEdition, shape, CSectionAxis::Y, t, grade);
  if (!x || !y) {
    const CCodeRefusal& refusal = !x ? x.Refusal() : y.Refusal();
    return Refuse("section", refusal.m_what, refusal.m_right);
  }
  m_steel.m_nClassX = *x;
  m_steel.m_nClassY = *y;
  return true;
}

// --- Forces --------------------------------------------------------------------------------------

bool CMemberCheck::ReadCourse(const char* key, const CSpacing& moment, const char* loadKey,
                              double Mq, CMomentCourse& course) {
  course = {};
  course.m_nLoad = m_nLoad;
  const bool bLoad = m_nLoad != CSpanLoad::None;
  if (moment.m_arrEach.empty()) {
    if (!std::isnan(Mq)) {
      return Refuse(loadKey,
                    {std::string("只与 ") + key + " 的两个端弯矩一起使用",
                     std::string("goes with two end moments at ") + key + " alone"},
                    {"请删去", "leave it out"});
    }
    const double M = 1000 * moment.m_dUniform;
    if (bLoad) {
      course.m_dMq = M;
    } else {
      course.m_dM1 = course.m_dM2 = M;
    }
    return true;
  }
  if (moment.m_arrEach.size() != 2) {
    return Refuse(key, {"应为一个弯矩或两个端弯矩", "is neither one moment nor two end moments"},
                  {"请给出 M 或 [M1, M2]", "give M or [M1, M2]"});
  }
  const double first = moment.m_arrEach[0], second = moment.m_arrEach[1];
  const bool bFirst = std::fabs(first) >= std::fabs(second);
  course.m_dM1 = 1000 * (bFirst ? first : second);
  course.m_dM2 = 1000 * (bFirst ? second : first);
  course.m_bFar = !bFirst;
  if (!bLoad) {
    if (std::isnan(Mq)) return true;
    return Refuse(loadKey, {"没有荷载", "has no load"},
                  {"请给出 load，或删去", "give load, or leave it out"});
  }
  if (std::isnan(Mq)) {
    return Refuse(loadKey, {"缺失", "is missing"},
                  {"请给出荷载在简支跨度上的最大弯矩",
                   "give the greatest moment of the load on a simple span"});
  }
  course.m_dMq = 1000 * Mq;
  return true;
}

bool CMemberCheck::IsPossible(const char* key, std::span<const double> values) {
  constexpr double kMost = 1e15;  // kN, kN mm: what no member is asked, and no formula overflows by
  if (std::all_of(values.begin(), values.end(), [](double v) { return std::fabs(v) <= kMost; }))
    return true;
  return Refuse(key, {"太大或不是有限数", "is too great or no finite number"},
                {"请给出绝对值不大于 1e15 的数", "give a number of at most 1e15 in magnitude"});
}

bool CMemberCheck::ReadForces(const CMemberCase& input) {
  const auto given = [](double value) { return std::isnan(value) ? 0 : value; };
  for (const auto& [key, value] : {std::pair{"N", given(input.m_dN)},
                                   {"Vx", input.m_dVx},
                                   {"Vy", input.m_dVy},
                                   {"Mx", input.m_Mx.m_dUniform},
                                   {"My", input.m_My.m_dUniform},
                                   {"Mqx", given(input.m_dMqx)},
                                   {"Mqy", given(input.m_dMqy)}}) {
    if (!IsPossible(key, std::span(&value, 1))) return false;
  }
  if (!IsPossible("Mx", input.m_Mx.m_arrEach) || !IsPossible("My", input.m_My.m_arrEach))
    return false;
  m_loads.m_dN = std::isnan(input.m_dN) ? 0 : 1000 * input.m_dN;
  m_loads.m_dVx = 1000 * input.m_dVx;
  m_loads.m_dVy = 1000 * input.m_dVy;
  m_nLoad = input.m_strLoad == "uniform"   ? CSpanLoad::Uniform
            : input.m_strLoad == "midspan" ? CSpanLoad::Midspan
                                           : CSpanLoad::None;
  if (m_nLoad == CSpanLoad::None && !input.m_strLoad.empty() && input.m_strLoad != "none") {
    return Refuse("load", {input.m_strLoad + " 不可用", input.m_strLoad + " is not possible"},
                  {"请给出 none、uniform 或 midspan", "give none, uniform or midspan"});
  }
  if (!ReadCourse("Mx", input.m_Mx, "Mqx", input.m_dMqx, m_loads.m_x)) return false;
  if (!ReadCourse("My", input.m_My, "Mqy", input.m_dMqy, m_loads.m_y)) return false;
  const bool bMoment = !m_loads.m_x.IsZero() || !m_loads.m_y.IsZero();
  const bool bLoad = m_loads.m_x.HasLoad() || m_loads.m_y.HasLoad();
  const CText leave = {"请删去", "leave it out"};
  if (m_nLoad != CSpanLoad::None && !bMoment)
    return Refuse("load", {"没有弯矩", "has no moment"},
                  {"请给出 Mx 或 My，或删去", "give Mx or My, or leave it out"});
  if (!input.m_strLoadFlange.empty() && !bLoad)
    return Refuse("loadFlange", {"没有荷载", "has no load"}, leave);
  if (!input.m_strLoadFlange.empty() && input.m_strLoadFlange != "upper" &&
      input.m_strLoadFlange != "lower") {
    return Refuse("loadFlange",
                  {input.m_strLoadFlange + " 不可用", input.m_strLoadFlange + " is not possible"},
                  {"请给出 upper 或 lower", "give upper or lower"});
  }
  m_loads.m_bUpper = input.m_strLoadFlange != "lower";
  m_loads.m_nSupports = 0;
  if (!std::isnan(input.m_dSupports)) {
    if (input.m_dSupports != 0 && input.m_dSupports != 1 && input.m_dSupports != 2) {
      return Refuse("supports",
                    {PlainNumber(input.m_dSupports) + " 不可用",
                     PlainNumber(input.m_dSupports) + " is not possible"},
                    {"请给出 0、1 或 2", "give 0, 1 or 2"});
    }
    if (!bMoment)
      return Refuse("supports", {"没有荷载也没有端弯矩", "has neither a load nor end moments"},
                    leave);
    m_loads.m_nSupports = static_cast<int>(input.m_dSupports);
  }
  m_loads.m_bSway = input.m_dSway == 1;
  m_loads.m_bDynamic = input.m_dDynamic == 1;
  if (m_loads.m_dN == 0 && !bMoment && m_loads.m_dVx == 0 && m_loads.m_dVy == 0)
    return Refuse("N", {"没有任何力", "stands with no force at all"},
                  {"请给出一个力", "give a force"});
  return true;
}

// Between lateral supports: by their number, and by lengths that are shorter than the member's in
// the plane of the moment.
void CMemberCheck::ReadParts() {
  const auto share = [](double part, double whole) {
    constexpr double kLastDigits = 1e-9;
    const double share = part / whole;  // nan without one of both
    return share < 1 - kLastDigits ? share : 1;
  };
  m_loads.m_dPartX =
      std::min(share(m_loads.m_dLy, m_loads.m_dLx), share(m_loads.m_dSpan, m_loads.m_dLx));
  m_loads.m_dPartY = share(m_loads.m_dLx, m_loads.m_dLy);
  m_loads.m_dPartX = std::min(m_loads.m_dPartX, 1.0 / (m_loads.m_nSupports + 1));
}

bool CMemberCheck::ReadLengths(const CMemberCase& input, const CMemberRow& section) {
  const auto positive = [this](const char* key, double value) {
    if (std::isfinite(value) && value > 0) return true;
    if (std::isnan(value)) {
      return Refuse(key, {"缺失", "is missing"},
                    {"请给出大于 0 的长度 mm", "give a length above 0 mm"});
    }
    return Refuse(key, {PlainNumber(value) + " 不可用", PlainNumber(value) + " is not possible"},
                  {"请给出大于 0 的长度 mm", "give a length above 0 mm"});
  };
  for (const auto& [key, value] : {std::pair{"lengths.x", input.m_dLx},
                                   {"lengths.y", input.m_dLy},
                                   {"lengths.z", input.m_dLz},
                                   {"lengths.span", input.m_dSpan}}) {
    if (!std::isnan(value) && !positive(key, value)) return false;
  }
  m_loads.m_dLx = input.m_dLx;
  m_loads.m_dLy = input.m_dLy;
  m_loads.m_dLz = std::isnan(input.m_dLz) ? input.m_dLy : input.m_dLz;
  m_loads.m_dSpan = std::isnan(input.m_dSpan) ? input.m_dLy : input.m_dSpan;
  if (m_loads.m_dN != 0 &&
      (!positive("lengths.x", input.m_dLx) || !positive("lengths.y", input.m_dLy)))
    return false;
  const CMemberShape shape = section.m_section.m_nShape;
  const bool bBox = shape == CMemberShape::Box;
  const bool bSpanX = !m_loads.m_x.IsZero() && shape != CMemberShape::Tube && !IsSolid(shape) &&
                      (!bBox || section.m_section.IsStrong(CMemberAxis::X));
  const bool bSpanY = !m_loads.m_y.IsZero() && bBox && section.m_section.IsStrong(CMemberAxis::Y);
  m_loads.m_dSpanY = std::isnan(input.m_dSpan) ? input.m_dLx : input.m_dSpan;
  if ((bSpanX && !positive("lengths.span", m_loads.m_dSpan)) ||
      (bSpanY && !positive("lengths.span", m_loads.m_dSpanY)))
    return false;
  ReadParts();
  m_loads.m_dLimit = 0;
  if (std::isnan(input.m_dLimit)) return true;
  constexpr double kMostLimit = 1000;  // 2.5 times the code's greatest, of bracing in tension
  if (!(input.m_dLimit > 0 && input.m_dLimit <= kMostLimit)) {
    return Refuse(
        "limit",
        {PlainNumber(input.m_dLimit) + " 不可用", PlainNumber(input.m_dLimit) + " is not possible"},
        {"请给出大于 0 且不大于 1000 的数", "give a number above 0 and at most 1000"});
  }
  m_loads.m_dLimit = input.m_dLimit;
  return true;
}

bool CMemberCheck::ReadNet(const CMemberCase& input) {
  const auto share = [this](const char* key, double value, double& to) {
    to = 1;
    if (std::isnan(value)) return true;
    if (!(value > 0 && value <= 1)) {
      const std::string is = ToUtf8(FormatShortest(value));  // 1.0000001 is not 1
      return Refuse(key, {is + " 不可用", is + " is not possible"},
                    {"请给出大于 0 且不大于 1 的比值", "give a share above 0 and at most 1"});
    }
    to = value;
    return true;
  };
  m_loads.m_bNet = !std::isnan(input.m_dNetA) || !std::isnan(input.m_dNetW);
  return share("net.A", input.m_dNetA, m_loads.m_dNetA) &&
         share("net.W", input.m_dNetW, m_loads.m_dNetW);
}

bool CMemberCheck::ReadStiffeners(const CMemberCase& input) {
  m_loads.m_bRestrained = input.m_dRestrained == 1;
  m_loads.m_dStiffeners = 0;
  if (std::isnan(input.m_dStiffeners)) return true;
  if (!(std::isfinite(input.m_dStiffeners) && input.m_dStiffeners > 0)) {
    return Refuse("stiffeners",
                  {PlainNumber(input.m_dStiffeners) + " 不可用",
                   PlainNumber(input.m_dStiffeners) + " is not possible"},
                  {"请给出大于 0 的间距 mm，没有时删去",
                   "give their distance above 0 mm, or leave it out where there are none"});
  }
  m_loads.m_dStiffeners = input.m_dStiffeners;
  return true;
}

namespace {

struct CJointName {
  const char* m_szName;
  CMemberJoint m_nJoint;
};
constexpr CJointName kJoints[] = {
    {"whole", CMemberJoint::Whole},      {"leg", CMemberJoint::Leg},
    {"long-leg", CMemberJoint::LongLeg}, {"short-leg", CMemberJoint::ShortLeg},
    {"flanges", CMemberJoint::Flanges},  {"web", CMemberJoint::Web},
};

// Whether a section has that part.
bool CanJoinBy(const CMemberSection& s, CMemberJoint joint) {
  const bool bUnequal = s.m_dLeg != s.m_dLegShort;
  switch (joint) {
    case CMemberJoint::Whole:
      return true;
    case CMemberJoint::Leg:
      return IsAnglePair(s.m_nShape) || (s.m_nShape == CMemberShape::Angle && !bUnequal);
    case CMemberJoint::LongLeg:
    case CMemberJoint::ShortLeg:
      return s.m_nShape == CMemberShape::Angle && bUnequal;
    default:
      return s.m_nShape == CMemberShape::I;
  }
}

}  // namespace

bool CMemberCheck::ReadJoint(const CMemberCase& input, const CMemberSection& section) {
  m_loads.m_nJoint = CMemberJoint::Whole;
  if (input.m_strJoined.empty()) return true;
  const auto* named =
      std::find_if(std::begin(kJoints), std::end(kJoints),
                   [&](const CJointName& each) { return input.m_strJoined == each.m_szName; });
  const CText right = {
      "请给出 whole；等边角钢和双角钢 leg；不等边角钢 long-leg 或 short-leg；工字形 flanges 或 web",
      "give whole; leg of an equal angle or a pair; long-leg or short-leg of an unequal angle; "
      "flanges or web of an I"};
  if (named == std::end(kJoints) || !CanJoinBy(section, named->m_nJoint)) {
    return Refuse("joined",
                  {input.m_strJoined + " 不可用于该截面",
                   input.m_strJoined + " is not possible of this section"},
                  right);
  }
  const CText leave = {"请删去", "leave it out"};
  if (named->m_nJoint != CMemberJoint::Whole) {
    if (!m_loads.m_x.IsZero() || !m_loads.m_y.IsZero() || m_loads.m_dN == 0)
      return Refuse("joined", {"只用于轴心受力", "is for axial force alone"}, leave);
    if (m_nEdition == CCodeEdition::Gb2003 && section.m_nShape != CMemberShape::Angle) {
      return Refuse("joined",
                    {"2003 版只规定了单面连接的单角钢（3.4.2）",
                     "the 2003 edition has this of single angles on one leg alone (3.4.2)"},
                    leave);
    }
  }
  m_loads.m_nJoint = named->m_nJoint;
  return true;
}

// A moment that changes along the member has its shear: where none is given, the greatest of the
// load and the end moments on a simple span of the effective length.
bool CMemberCheck::TakeShears() {
  struct CDirection {
    const char* m_szShear;
    const char* m_szLength;
    const CMomentCourse& m_course;
    double m_dLength;
    double& m_dShear;
    bool& m_bTaken;
  };
  m_bVyTaken = m_bVxTaken = false;
  for (const CDirection& each :
       {CDirection{"Vy", "lengths.x", m_loads.m_x, m_loads.m_dLx, m_loads.m_dVy, m_bVyTaken},
        CDirection{"Vx", "lengths.y", m_loads.m_y, m_loads.m_dLy, m_loads.m_dVx, m_bVxTaken}}) {
    const CMomentCourse& c = each.m_course;
    if ((!c.HasLoad() && c.m_dM1 == c.m_dM2) || each.m_dShear != 0) continue;
    if (!(each.m_dLength > 0) || m_loads.m_bSway) {
      const std::string length = each.m_szLength;
      return Refuse(
          each.m_szShear,
          {"缺失：沿构件变化的弯矩有其剪力",
           "is missing: a moment that changes along the member has its shear"},
          {m_loads.m_bSway ? "请给出剪力 kN" : "请给出剪力 kN，或给出跨度 " + length,
           m_loads.m_bSway ? "give it in kN" : "give it in kN, or the span as " + length});
    }
    const double share = c.m_nLoad == CSpanLoad::Uniform ? 4 : 2;
    each.m_dShear = (share * std::fabs(c.m_dMq) + std::fabs(c.m_dM1 - c.m_dM2)) / each.m_dLength;
    each.m_bTaken = true;
  }
  return true;
}

}  // namespace orv3
