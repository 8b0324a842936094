// The keys of a case, as files, tables and reports name them.
#include "members/cases/member_case.h"

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
      {"stiffeners", &C::m_dStiffeners, "mm", {"横向加劲肋间距", "distance of stiffeners"}},
      {"restrained", &C::m_dRestrained, "", {"受压翼缘扭转受约束", "flange held against twist"}},
      {"joined", &C::m_strJoined, "", {"节点连接", "joined by"}},
      {"dynamic", &C::m_dDynamic, "", {"直接动力荷载", "direct dynamic load"}},
      {"limit", &C::m_dLimit, "", {"容许长细比", "slenderness limit"}},
  };
  return kKeys;
}

}  // namespace orv3
