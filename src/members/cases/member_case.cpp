#include "members/cases/member_case.h"

#include <algorithm>
#include <cmath>

#include "codes/steel_strength.h"

namespace orv3 {

bool CMemberCheck::Refuse(CCaseFault fault) {
  m_fault = std::move(fault);
  return false;
}

bool CMemberCheck::Refuse(const char* key, CText what, CText right) {
  return Refuse(CCaseFault{key, std::move(what), std::move(right)});
}

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

// What was left out, and what was given for nothing.
void CMemberCheck::NoteGiven(const CMemberCase& input, const CMemberSection& s) {
  using N = CMemberNote;
  const CMemberLoads& q = m_loads;
  const bool bMoment = !q.m_x.IsZero() || !q.m_y.IsZero();
  const bool bSpan =
      (!q.m_x.IsZero() && s.m_nShape != CMemberShape::Tube && !IsSolid(s.m_nShape)) ||
      (!q.m_y.IsZero() && s.m_nShape == CMemberShape::Box);
  const bool bPanel = m_answer.Find(CMemberCheckKind::Panel) != nullptr;
  // Whose lateral buckling asks where the load acts and what supports it.
  const bool bLoadFlange = s.m_nShape == CMemberShape::I;
  const bool bLateral = m_answer.Find(CMemberCheckKind::Lateral) != nullptr;
  const std::pair<bool, N> notes[] = {
      {std::isnan(input.m_dLz) && NeedsTorsion(s, m_steel, q), N::AssumedLengthZ},
      {std::isnan(input.m_dSpan) && bLateral, N::AssumedSpan},
      {input.m_strLoadFlange.empty() && q.m_x.HasLoad() && bLateral && bLoadFlange,
       N::AssumedLoadFlange},
      {IsAnglePair(s.m_nShape) && std::isnan(input.m_dGap), N::PairWithoutGap},
      {IsAnglePair(s.m_nShape), N::PackingPlates},
      {!std::isnan(input.m_dNetA) && q.m_dN == 0, N::UnusedNetA},
      {!std::isnan(input.m_dNetW) && !bMoment, N::UnusedNetW},
      {m_bVxTaken, N::AssumedVx},
      {m_bVyTaken, N::AssumedVy},
      {!std::isnan(input.m_dLz) && !NeedsTorsion(s, m_steel, q), N::UnusedLengthZ},
      {!std::isnan(input.m_dSpan) && !bSpan, N::UnusedSpan},
      {q.m_bSway && !(q.m_dN < 0 && bMoment), N::UnusedSway},
      {!input.m_strLoadFlange.empty() && !q.m_x.HasLoad(), N::UnusedLoadFlange},
      {!std::isnan(input.m_dSupports) && q.m_x.IsZero(), N::UnusedSupports},
      {std::isnan(input.m_dSupports) && q.m_x.HasLoad() && bLateral && bLoadFlange,
       N::AssumedSupports},
      {q.m_x.HasLoad() && q.m_x.m_nLoad == CSpanLoad::Midspan && s.m_dTw > 0, N::LocalPressure},
      {q.m_dStiffeners > 0 && !bPanel, N::UnusedStiffeners},
      {q.m_bRestrained && !bPanel, N::UnusedRestrained},
      {s.m_nShape == CMemberShape::Angle && input.m_strJoined.empty(), N::AssumedJoint},
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
  const auto bond =
      SteelStrengths(m_nEdition, m_steel.m_nGrade, lattice.m_dBondThick, CSteelProduct::Plate);
  if (!bond) return Refuse("section.lacing", bond.Refusal().m_what, bond.Refusal().m_right);
  m_steel.m_dBondF = bond->m_dF;
  m_steel.m_dBondFv = bond->m_dFv;
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
  if (!std::isnan(input.m_dStiffeners)) return refuse("stiffeners");
  if (input.m_dRestrained == 1) return refuse("restrained");
  if (!input.m_strJoined.empty()) return refuse("joined");
  if (lattice.m_section.Limbs() == 2 && m_loads.m_dVx != 0) return refuse("Vx");
  if (!ReadLengths(input, row) || !TakeShears()) return false;
  CLatticeLoads loads;
  loads.m_dN = m_loads.m_dN;
  loads.m_x = m_loads.m_x;
  loads.m_dVx = m_loads.m_dVx;
  loads.m_dVy = m_loads.m_dVy;
  loads.m_dLx = m_loads.m_dLx;
  loads.m_dLy = m_loads.m_dLy;
  loads.m_bSway = m_loads.m_bSway;
  loads.m_dLimit = m_loads.m_dLimit;
  m_steel.m_nClassX = m_steel.m_nClassY = CBucklingClass::B;
  CheckLatticeMember(lattice.m_section, m_steel, loads, m_answer);
  if (m_answer.IsRefused()) return Refuse(*m_answer.Fault());
  if (lattice.m_bL1Assumed) m_answer.Note(CMemberNote::LimbLength);
  if (lattice.m_section.m_nBond == CLatticeBond::Lacing && std::isnan(input.m_dBarAngle))
    m_answer.Note(CMemberNote::AssumedAngle);
  m_answer.Note(CMemberNote::BondJoints);
  if (m_bVyTaken) m_answer.Note(CMemberNote::AssumedVy);
  if (m_steel.m_nGrade == CSteelGrade::Q355) m_answer.Note(CMemberNote::Q355);
  return true;
}

bool CMemberCheck::Run(const CMemberCase& input, CMemberRow& section) {
  m_fault.reset();
  if (!ReadEdition(input) || !ReadSteel(input, section) || !ReadClasses(input, section) ||
      !ReadForces(input) || !ReadLengths(input, section) || !ReadNet(input) ||
      !ReadStiffeners(input) || !ReadJoint(input, section.m_section) || !TakeShears())
    return false;
  m_loads.m_bTapered = section.m_bTapered;
  m_loads.m_dRolledNumber = section.m_dRolledNumber;
  if (NeedsTorsion(section.m_section, m_steel, m_loads) && !AddTorsion(section)) {
    return Refuse(
        "section",
        {"自由扭转常数无法由轮廓算出", "has no torsion constant that follows from its outline"},
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
