#include "members/cases/member_case.h"

#include <algorithm>
#include <cmath>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_spacing.h"
#include "codes/edition.h"
#include "codes/steel_strength.h"
#include "framework/number_text.h"
#include "framework/plain_number.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "sections/section_check.h"
#include "sections/section_figures.h"
#include "sections/section_kind.h"
#include "sections/section_style.h"

namespace orv3 {

std::span<const CInputKey<CMemberCase>> MemberInputKeys() {
  using C = CMemberCase;
  static const CInputKey<C> kKeys[] = {
      {"id", &C::m_strId, "", {"编号", "name of the case"}},
      {"code", &C::m_strCode, "", {"规范版本", "edition of the code"}},
      {"section.table", &C::m_strTable, "", {"截面表", "table of the section"}},
      {"section.no", &C::m_strNo, "", {"截面型号", "number of the section"}},
      {"section.gap", &C::m_dGap, "mm", {"组合间距", "gap of a pair"}},
      {"section.style", &C::m_strStyle, "", {"截面类型", "style of the section"}},
      {"section.sizes", &C::m_sizes, "mm", {"截面尺寸", "sizes of the section"}},
      {"section.lattice.table", &C::m_strLattice, "", {"格构柱表", "table of the lattice column"}},
      {"section.lattice.k(mm)", &C::m_dK, "mm", {"肢距", "spacing of the limbs"}},
      {"section.lattice.kx(mm)", &C::m_dKx, "mm", {"x 向肢距", "spacing along x"}},
      {"section.lattice.ky(mm)", &C::m_dKy, "mm", {"y 向肢距", "spacing along y"}},
      {"section.lattice.P1Type", &C::m_strLimb1, "", {"分肢 1 的表", "table of limb 1"}},
      {"section.lattice.P1No.", &C::m_strNo1, "", {"分肢 1 的型号", "number of limb 1"}},
      {"section.lattice.P1θ°", &C::m_dTurn1, "°", {"分肢 1 的转角", "turn of limb 1"}},
      {"section.lattice.P2Type", &C::m_strLimb2, "", {"分肢 2 的表", "table of limb 2"}},
      {"section.lattice.P2No.", &C::m_strNo2, "", {"分肢 2 的型号", "number of limb 2"}},
      {"section.lattice.P2θ°", &C::m_dTurn2, "°", {"分肢 2 的转角", "turn of limb 2"}},
      {"section.lattice.P3Type", &C::m_strLimb3, "", {"分肢 3 的表", "table of limb 3"}},
      {"section.lattice.P3No.", &C::m_strNo3, "", {"分肢 3 的型号", "number of limb 3"}},
      {"section.lattice.P3θ°", &C::m_dTurn3, "°", {"分肢 3 的转角", "turn of limb 3"}},
      {"section.lattice.P4Type", &C::m_strLimb4, "", {"分肢 4 的表", "table of limb 4"}},
      {"section.lattice.P4No.", &C::m_strNo4, "", {"分肢 4 的型号", "number of limb 4"}},
      {"section.lattice.P4θ°", &C::m_dTurn4, "°", {"分肢 4 的转角", "turn of limb 4"}},
      {"section.lacing.type", &C::m_strBond, "", {"缀材", "bond of the limbs"}},
      {"section.lacing.table", &C::m_strBar, "", {"缀条的表", "table of a bar"}},
      {"section.lacing.no", &C::m_strBarNo, "", {"缀条型号", "number of a bar"}},
      {"section.lacing.angle", &C::m_dBarAngle, "°", {"缀条与柱轴线的夹角", "angle of a bar"}},
      {"section.lacing.width", &C::m_dBattenWidth, "mm", {"缀板宽度", "width of a batten"}},
      {"section.lacing.thick", &C::m_dBattenThick, "mm", {"缀板厚度", "thickness of a batten"}},
      {"section.lacing.pitch", &C::m_dBattenPitch, "mm", {"缀板中心距", "distance of battens"}},
      {"section.lacing.l1", &C::m_dLimbLength, "mm", {"分肢自由长度", "free length of a limb"}},
      {"steel", &C::m_strSteel, "", {"钢材", "steel"}},
      {"edges", &C::m_strEdges, "", {"翼缘边", "flange edges"}},
      {"N", &C::m_dN, "kN", {"轴力 N", "axial force N"}},
      {"Mx", &C::m_Mx, "kN·mm", {"弯矩 Mx", "moment Mx"}},
      {"My", &C::m_My, "kN·mm", {"弯矩 My", "moment My"}},
      {"Mqx", &C::m_dMqx, "kN·mm", {"荷载弯矩 Mqx", "moment of the load Mqx"}},
      {"Mqy", &C::m_dMqy, "kN·mm", {"荷载弯矩 Mqy", "moment of the load Mqy"}},
      {"Vx", &C::m_dVx, "kN", {"剪力 Vx", "shear Vx"}},
      {"Vy", &C::m_dVy, "kN", {"剪力 Vy", "shear Vy"}},
      {"load", &C::m_strLoad, "", {"横向荷载", "transverse load"}},
      {"loadFlange", &C::m_strLoadFlange, "", {"荷载作用翼缘", "flange of the load"}},
      {"supports", &C::m_dSupports, "", {"跨中侧向支承", "lateral supports in the span"}},
      {"sway", &C::m_dSway, "", {"有侧移", "sway"}},
      {"lengths.x", &C::m_dLx, "mm", {"计算长度 x", "effective length x"}},
      {"lengths.y", &C::m_dLy, "mm", {"计算长度 y", "effective length y"}},
      {"lengths.z", &C::m_dLz, "mm", {"扭转计算长度", "effective length of torsion"}},
      {"lengths.span", &C::m_dSpan, "mm", {"受压翼缘自由长度", "free span of the flange"}},
      {"net.A", &C::m_dNetA, "", {"净截面比", "net share of the area"}},
      {"net.W", &C::m_dNetW, "", {"净截面模量比", "net share of the modulus"}},
      {"dynamic", &C::m_dDynamic, "", {"直接动力荷载", "direct dynamic load"}},
      {"limit", &C::m_dLimit, "", {"容许长细比", "slenderness limit"}},
  };
  return kKeys;
}

bool CMemberCheck::Refuse(CCaseFault fault) {
  m_fault = std::move(fault);
  return false;
}

bool CMemberCheck::Refuse(const char* key, CText what, CText right) {
  return Refuse(CCaseFault{key, std::move(what), std::move(right)});
}

// --- The section ---------------------------------------------------------------------------------

namespace {

CDataItem TableRow(const CMemberCase& input, std::optional<CCaseFault>& fault) {
  const CString table = FromUtf8(input.m_strTable);
  CDataItem row = CLoadDataTable::GetSysTemJMItem(table, FromUtf8(input.m_strNo));
  if (row.IsEmpty()) {
    const std::string named = input.m_strTable + " " + input.m_strNo;
    fault = CCaseFault{"section",
                       {"库中没有 " + named, "the store has no " + named},
                       {"请给出库中的表和型号", "give a table and a number of the store"}};
    return row;
  }
  if (std::isnan(input.m_dGap)) return row;
  if (PairSpacingSign(row.GetTableName()).IsEmpty() || input.m_dGap < 0 ||
      input.m_dGap != std::floor(input.m_dGap) || input.m_dGap > 1000) {
    fault = CCaseFault{
        "section.gap",
        {"不可用", "is not possible"},
        {"请只给组合截面整数毫米的间距", "give the gap of a pair alone, in whole millimetres"}};
    return row;
  }
  return WithPairSpacing(row, static_cast<int>(input.m_dGap));
}

const CSectionStyle* StyleNamed(const std::string& name) {
  if (const auto* style = FindSectionAlias(name)) return style;
  const CString text = FromUtf8(name);
  if (const auto* style = FindSectionStyle(std::wstring_view(text.GetString()))) return style;
  return IsNumber(text) ? FindSectionStyle(ToInt(text)) : nullptr;
}

CDataItem StyleRow(const CMemberCase& input, std::optional<CCaseFault>& fault) {
  const CSectionStyle* style = StyleNamed(input.m_strStyle);
  if (style == nullptr) {
    fault = CCaseFault{"section.style",
                       {input.m_strStyle + " 不是截面类型", input.m_strStyle + " is no style"},
                       {"请给出类型号 0 至 14、表名或别名",
                        "give a style number 0 to 14, its table or its alias"}};
    return {};
  }
  std::vector<double> sizes = input.m_sizes.m_arrEach;
  if (sizes.empty() && input.m_sizes.m_dUniform != 0) sizes = {input.m_sizes.m_dUniform};
  if (static_cast<int>(sizes.size()) != style->m_nSizes) {
    const std::string count = std::to_string(style->m_nSizes);
    fault = CCaseFault{"section.sizes",
                       {"尺寸个数不对", "has another number of sizes"},
                       {"请给出 " + count + " 个尺寸", "give " + count + " sizes"}};
    return {};
  }
  if (const auto wrong = CheckSectionSizes(*style, sizes)) {
    fault = CCaseFault{"section.sizes",
                       {"围不成截面：" + wrong->m_strText, "bound no section: " + wrong->m_strText},
                       {"请改正尺寸", "give sizes that do"}};
    return {};
  }
  CSteelJMData record;
  CArray<double, double> values;
  for (const double size : sizes) values.Add(size);
  record.SetSectSize(style->m_nStyle, values);
  CSteelJMData::CalSectCharacterStyle(record);
  return ExactRow(record);
}

// The row of a lattice column as the case gives it.
CDataItem LatticeRow(const CMemberCase& input, std::optional<CCaseFault>& fault) {
  const int limbs = LatticeLimbCount(FromUtf8(input.m_strLattice).GetString());
  if (limbs == 0) {
    fault = CCaseFault{
        "section.lattice.table",
        {input.m_strLattice + " 不是格构柱表",
         input.m_strLattice + " is no table of lattice columns"},
        {"请给出双肢格构柱、三肢格构柱或四肢格构柱", "give 双肢格构柱, 三肢格构柱 or 四肢格构柱"}};
    return {};
  }
  CSteelItemGeGou row(limbs);
  const auto number = [](double value) {
    return std::isnan(value) ? CString() : FormatShortest(value);
  };
  const auto set = [&row](const wchar_t* sign, const CString& value) {
    const int at = row.GetSignIndex(sign);
    if (at >= 0) row.m_arrCell.Own(at).m_strValue = value;
  };
  set(L"k(mm)", number(input.m_dK));
  set(L"kx(mm)", number(input.m_dKx));
  set(L"ky(mm)", number(input.m_dKy));
  const std::string* types[] = {&input.m_strLimb1, &input.m_strLimb2, &input.m_strLimb3,
                                &input.m_strLimb4};
  const std::string* numbers[] = {&input.m_strNo1, &input.m_strNo2, &input.m_strNo3,
                                  &input.m_strNo4};
  const double turns[] = {input.m_dTurn1, input.m_dTurn2, input.m_dTurn3, input.m_dTurn4};
  for (std::size_t i = 0; i < static_cast<std::size_t>(limbs); ++i) {
    set(kLimbColumns[i].m_szType, FromUtf8(*types[i]));
    set(kLimbColumns[i].m_szNo, FromUtf8(*numbers[i]));
    set(kLimbColumns[i].m_szAngle, number(turns[i]));
  }
  return row;
}

CLacingInput LacingOf(const CMemberCase& input) {
  return {input.m_strBond,      input.m_strBar,       input.m_strBarNo,     input.m_dBarAngle,
          input.m_dBattenWidth, input.m_dBattenThick, input.m_dBattenPitch, input.m_dLimbLength};
}

// What names the section of a case, told apart from every other.
std::string SectionName(const CMemberCase& input) {
  std::string name;
  const auto add = [&name](const std::string& text) { name += text + '\n'; };
  const auto addNumber = [&name](double value) {
    name.append(reinterpret_cast<const char*>(&value), sizeof value);
  };
  add(input.m_strTable);
  add(input.m_strNo);
  addNumber(input.m_dGap);
  add(input.m_strStyle);
  addNumber(input.m_sizes.m_dUniform);
  for (const double size : input.m_sizes.m_arrEach) addNumber(size);
  if (input.m_strLattice.empty() && input.m_strBond.empty()) return name;
  for (const auto& key : MemberInputKeys()) {
    const std::string_view sign = key.m_szKey;
    if (!sign.starts_with("section.la")) continue;
    if (const auto* text = std::get_if<std::string CMemberCase::*>(&key.m_field)) {
      add(input.**text);
    } else if (const auto* number = std::get_if<double CMemberCase::*>(&key.m_field)) {
      addNumber(input.**number);
    }
  }
  return name;
}

}  // namespace

CMemberCheck::CFound* CMemberCheck::Section(const CMemberCase& input) {
  const bool bTable = !input.m_strTable.empty(), bSizes = !input.m_strStyle.empty();
  const bool bLattice = !input.m_strLattice.empty();
  const int ways = int{bTable} + int{bSizes} + int{bLattice};
  if (ways != 1) {
    Refuse("section",
           ways > 1 ? CText{"给了不止一种", "is given in more than one way"}
                    : CText{"缺失", "is missing"},
           {"请给出 table 与 no、style 与 sizes，或 lattice 与 lacing",
            "give table with no, style with sizes, or lattice with lacing"});
    return nullptr;
  }
  auto& found = m_mapSection[SectionName(input)];
  if (!found) {
    found = std::make_unique<CFound>();
    auto& fault = found->m_fault;
    found->m_item = bTable   ? TableRow(input, fault)
                    : bSizes ? StyleRow(input, fault)
                             : LatticeRow(input, fault);
    if (!fault && LatticeLimbCount(found->m_item.GetTableName().GetString()) > 0) {
      found->m_lattice.emplace();
      fault = ReadMemberLattice(found->m_item, LacingOf(input), *found->m_lattice);
    } else if (!fault) {
      fault = ReadMemberRow(found->m_item, found->m_row);
    }
    if (!fault && !found->m_lattice && !input.m_strBond.empty())
      fault = CCaseFault{"section.lacing",
                         {"只用于格构柱", "is for lattice columns alone"},
                         {"请删去", "leave it out"}};
  }
  if (found->m_fault) {
    Refuse(*found->m_fault);
    return nullptr;
  }
  m_pFound = found.get();
  return found.get();
}

// --- Edition and steel ---------------------------------------------------------------------------

bool CMemberCheck::ReadEdition(const CMemberCase& input) {
  m_nEdition = m_nDefault;
  if (input.m_strCode.empty()) return true;
  const auto edition = EditionByYear(input.m_strCode);
  if (!edition) return Refuse("code", edition.Refusal().m_what, edition.Refusal().m_right);
  m_nEdition = *edition;
  return true;
}

bool CMemberCheck::ReadSteel(const CMemberCase& input, const CMemberRow& section) {
  if (input.m_strSteel.empty()) {
    return Refuse("steel", {"缺失", "is missing"},
                  {"请给出钢材牌号", "give the grade of the steel"});
  }
  const auto grade = GradeByName(m_nEdition, input.m_strSteel);
  if (!grade) return Refuse("steel", grade.Refusal().m_what, grade.Refusal().m_right);
  const CSteelProduct product = section.m_bTube ? CSteelProduct::Tube : CSteelProduct::Plate;
  const auto thick = SteelStrengths(m_nEdition, *grade, section.m_dThickest, product);
  if (!thick) return Refuse("steel", thick.Refusal().m_what, thick.Refusal().m_right);
  const auto web = SteelStrengths(m_nEdition, *grade, section.m_dWebThick, product);
  if (!web) return Refuse("steel", web.Refusal().m_what, web.Refusal().m_right);
  const auto flange = SteelStrengths(m_nEdition, *grade, section.m_dFlangeThick, product);
  if (!flange) return Refuse("steel", flange.Refusal().m_what, flange.Refusal().m_right);
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
  m_loads.m_dLimit = 0;
  if (std::isnan(input.m_dLimit)) return true;
  if (!(std::isfinite(input.m_dLimit) && input.m_dLimit > 0)) {
    return Refuse("limit", {"不可用", "is not possible"},
                  {"请给出大于 0 的数", "give a number above 0"});
  }
  m_loads.m_dLimit = input.m_dLimit;
  return true;
}

bool CMemberCheck::ReadNet(const CMemberCase& input) {
  const auto share = [this](const char* key, double value, double& to) {
    to = 1;
    if (std::isnan(value)) return true;
    if (!(value > 0 && value <= 1)) {
      return Refuse(key, {PlainNumber(value) + " 不可用", PlainNumber(value) + " is not possible"},
                    {"请给出大于 0 且不大于 1 的比值", "give a share above 0 and at most 1"});
    }
    to = value;
    return true;
  };
  m_loads.m_bNet = !std::isnan(input.m_dNetA) || !std::isnan(input.m_dNetW);
  return share("net.A", input.m_dNetA, m_loads.m_dNetA) &&
         share("net.W", input.m_dNetW, m_loads.m_dNetW);
}

// --- The check -----------------------------------------------------------------------------------

bool NeedsTorsion(const CMemberSection& s, const CMemberSteel& steel,
                  const CMemberLoads& loads) noexcept {
  if (!(loads.m_dN < 0)) return false;
  switch (s.m_nShape) {
    case CMemberShape::T:
    case CMemberShape::Channel:
      return true;
    case CMemberShape::I:
      return !s.IsEqualFlanged() ||
             (steel.m_nEdition == CCodeEdition::Gb2017 && loads.m_x.IsZero() && loads.m_y.IsZero());
    default:
      return false;
  }
}

// A load in the span has its shear: where none is given, the greatest of the load and the end
// moments on a simple span of the effective length.
bool CMemberCheck::TakeShearOfLoad() {
  struct CDirection {
    const char* m_szShear;
    const char* m_szLength;
    const CMomentCourse& m_course;
    double m_dLength;
    double& m_dShear;
  };
  m_bShearTaken = false;
  for (const CDirection& each :
       {CDirection{"Vy", "lengths.x", m_loads.m_x, m_loads.m_dLx, m_loads.m_dVy},
        CDirection{"Vx", "lengths.y", m_loads.m_y, m_loads.m_dLy, m_loads.m_dVx}}) {
    const CMomentCourse& c = each.m_course;
    if (!c.HasLoad() || each.m_dShear != 0) continue;
    if (!(each.m_dLength > 0) || m_loads.m_bSway) {
      const std::string length = each.m_szLength;
      return Refuse(
          each.m_szShear, {"有横向荷载而未给其剪力", "is missing: a load has its shear"},
          {m_loads.m_bSway ? "请给出剪力 kN" : "请给出剪力 kN，或给出跨度 " + length,
           m_loads.m_bSway ? "give it in kN" : "give it in kN, or the span as " + length});
    }
    const double share = c.m_nLoad == CSpanLoad::Uniform ? 4 : 2;
    each.m_dShear = (share * std::fabs(c.m_dMq) + std::fabs(c.m_dM1 - c.m_dM2)) / each.m_dLength;
    m_bShearTaken = true;
  }
  return true;
}

// What was left out, and what was given for nothing.
void CMemberCheck::NoteGiven(const CMemberCase& input, const CMemberSection& s) {
  using N = CMemberNote;
  const CMemberLoads& q = m_loads;
  const bool bMoment = !q.m_x.IsZero() || !q.m_y.IsZero();
  const bool bSpan =
      (!q.m_x.IsZero() && s.m_nShape != CMemberShape::Tube && !IsSolid(s.m_nShape)) ||
      (!q.m_y.IsZero() && s.m_nShape == CMemberShape::Box);
  const std::pair<bool, N> notes[] = {
      {IsAnglePair(s.m_nShape) && std::isnan(input.m_dGap), N::PairWithoutGap},
      {m_bShearTaken, N::LoadWithoutShear},
      {!std::isnan(input.m_dLz) && !NeedsTorsion(s, m_steel, q), N::UnusedLengthZ},
      {!std::isnan(input.m_dSpan) && !bSpan, N::UnusedSpan},
      {q.m_bSway && !(q.m_dN < 0 && bMoment), N::UnusedSway},
      {!input.m_strLoadFlange.empty() && !q.m_x.HasLoad(), N::UnusedLoadFlange},
      {!std::isnan(input.m_dSupports) && q.m_x.IsZero(), N::UnusedSupports},
  };
  for (const auto& [bApplies, note] : notes) {
    if (bApplies) m_answer.Note(note);
  }
}

bool CMemberCheck::Run(const CMemberCase& input) {
  CFound* found = Section(input);
  if (found == nullptr) return false;
  return found->m_lattice ? RunLattice(input, *found->m_lattice) : Run(input, found->m_row);
}

bool CMemberCheck::RunLattice(const CMemberCase& input, const CMemberLattice& lattice) {
  m_fault.reset();
  CMemberRow row;  // what the steel asks of it
  row.m_dThickest = lattice.m_dThickest;
  row.m_dWebThick = row.m_dFlangeThick = lattice.m_dWebThick;
  row.m_bTube = lattice.m_bTubes;
  if (!ReadEdition(input) || !ReadSteel(input, row) || !ReadForces(input)) return false;
  const auto refuse = [this](const char* key) {
    return Refuse(key, {"格构柱不用", "has no place for a lattice column"},
                  {"请删去", "leave it out"});
  };
  if (!m_loads.m_y.IsZero()) return refuse("My");
  if (!input.m_strEdges.empty()) return refuse("edges");
  if (!std::isnan(input.m_dNetA)) return refuse("net.A");
  if (!std::isnan(input.m_dNetW)) return refuse("net.W");
  if (!std::isnan(input.m_dLz)) return refuse("lengths.z");
  if (!std::isnan(input.m_dSpan)) return refuse("lengths.span");
  if (!std::isnan(input.m_dSupports)) return refuse("supports");
  if (m_loads.m_bDynamic) return refuse("dynamic");
  if (lattice.m_section.m_nLimbs == 2 && m_loads.m_dVx != 0) return refuse("Vx");
  if (!ReadLengths(input, row)) return false;
  CLatticeLoads loads;
  loads.m_dN = m_loads.m_dN;
  loads.m_x = m_loads.m_x;
  loads.m_dV = std::max(std::fabs(m_loads.m_dVx), std::fabs(m_loads.m_dVy));
  loads.m_dLx = m_loads.m_dLx;
  loads.m_dLy = m_loads.m_dLy;
  loads.m_bSway = m_loads.m_bSway;
  loads.m_dLimit = m_loads.m_dLimit;
  m_steel.m_nClassX = m_steel.m_nClassY = CBucklingClass::B;
  CheckLatticeMember(lattice.m_section, m_steel, loads, m_answer);
  if (m_answer.IsRefused()) return Refuse(*m_answer.Fault());
  if (lattice.m_bL1Assumed) m_answer.Note(CMemberNote::LimbLength);
  m_answer.Note(CMemberNote::BondJoints);
  if (m_loads.m_x.HasLoad() && m_loads.m_dVy == 0) m_answer.Note(CMemberNote::LatticeShear);
  if (m_steel.m_nGrade == CSteelGrade::Q355) m_answer.Note(CMemberNote::Q355);
  return true;
}

bool CMemberCheck::Run(const CMemberCase& input, CMemberRow& section) {
  m_fault.reset();
  if (!ReadEdition(input) || !ReadSteel(input, section) || !ReadClasses(input, section) ||
      !ReadForces(input) || !ReadLengths(input, section) || !ReadNet(input) || !TakeShearOfLoad())
    return false;
  m_loads.m_bTapered = section.m_bTapered;
  m_loads.m_dRolledNumber = section.m_dRolledNumber;
  if (NeedsTorsion(section.m_section, m_steel, m_loads) && !AddTorsion(section)) {
    return Refuse(
        "section",
        {"扭转常数无法由轮廓算出", "has no torsion constant that follows from its outline"},
        {"请选用其他截面", "take another section"});
  }
  CheckSolidMember(section.m_section, m_steel, m_loads, m_answer);
  if (m_answer.IsRefused()) return Refuse(*m_answer.Fault());
  NoteGiven(input, section.m_section);
  if (m_steel.m_nGrade == CSteelGrade::Q355) m_answer.Note(CMemberNote::Q355);
  if (section.HasEdges() && input.m_strEdges.empty() && m_loads.m_dN < 0)
    m_answer.Note(CMemberNote::RolledEdges);
  return true;
}

}  // namespace orv3
