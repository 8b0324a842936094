// One member as a file, a table or a form gives it.
#pragma once

#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "members/cases/member_lattice.h"
#include "members/cases/member_row.h"
#include "members/cases/section_sources.h"
#include "members/solid_member.h"
#include "reports/case_keys.h"

namespace orv3 {

// mm, kN, kN mm. NaN: not given.
struct CMemberCase {
  static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  std::string m_strId = {};
  std::string m_strCode = {};  // "2017", "2003", or empty
  std::string m_strTable = {}, m_strNo = {};
  double m_dGap = kNone;        // of a pair
  std::string m_strStyle = {};  // number, table or alias of a user-defined style
  CSpacing m_sizes = {};
  // A lattice column by the signs of its table's columns, and what joins its limbs.
  std::string m_strLattice = {};  // its table
  double m_dK = kNone, m_dKx = kNone, m_dKy = kNone;
  std::string m_strLimb1 = {}, m_strLimb2 = {}, m_strLimb3 = {}, m_strLimb4 = {};  // tables
  std::string m_strNo1 = {}, m_strNo2 = {}, m_strNo3 = {}, m_strNo4 = {};
  double m_dTurn1 = kNone, m_dTurn2 = kNone, m_dTurn3 = kNone, m_dTurn4 = kNone;
  std::string m_strBond = {}, m_strBar = {}, m_strBarNo = {};
  double m_dBarAngle = kNone, m_dBattenWidth = kNone, m_dBattenThick = kNone;
  double m_dBattenPitch = kNone, m_dLimbLength = kNone;
  std::string m_strSteel = {};
  std::string m_strEdges = {};  // "flame-cut", "rolled", or empty
  double m_dN = kNone;
  CSpacing m_Mx = {0, {}}, m_My = {0, {}};  // one moment, or those of both ends
  double m_dMqx = kNone, m_dMqy = kNone;
  double m_dVx = 0, m_dVy = 0;
  std::string m_strLoad = {};        // "none", "uniform", "midspan", or empty
  std::string m_strLoadFlange = {};  // "upper", "lower", or empty
  double m_dSupports = kNone;
  double m_dSway = kNone;
  double m_dLx = kNone, m_dLy = kNone, m_dLz = kNone, m_dSpan = kNone;
  double m_dNetA = kNone, m_dNetW = kNone;
  double m_dStiffeners = kNone;  // distance of the web's transverse stiffeners
  double m_dRestrained = kNone;  // the compression flange against twist
  std::string m_strJoined =
      {};  // "whole", "leg", "long-leg", "short-leg", "flanges", "web", or empty
  double m_dDynamic = kNone;
  double m_dLimit = kNone;
};

ORV3CAL_API std::span<const CInputKey<CMemberCase>> MemberInputKeys();

// Checks cases one after another; sections are looked up once.
class ORV3CAL_API CMemberCheck {
 public:
  using CCase = CMemberCase;

  // The edition of cases that name none.
  void SetEdition(CCodeEdition edition) noexcept { m_nDefault = m_nEdition = edition; }
  // False when the case is refused.
  bool Run(const CMemberCase& input);
  // The same with a section that is at hand, whatever the case names.
  bool Run(const CMemberCase& input, CMemberRow& section);

  const CCaseFault& Fault() const noexcept { return *m_fault; }
  CCodeEdition Edition() const noexcept { return m_nEdition; }
  const CMemberAnswer& Answer() const noexcept { return m_answer; }
  // The section of the last case that named its own: its row, and what the checks take of it.
  const CDataItem& SectionRow() const noexcept { return m_pFound->m_item; }
  std::vector<CUsedProperty> UsedProperties() const {
    if (m_pFound->m_lattice) return m_pFound->m_lattice->m_arrUsed;
    return SectionSources(SectionRow(), m_pFound->m_row);
  }
  bool Pass() const noexcept { return m_answer.Pass(); }

 private:
  // By what names them; a fault in place of a section that cannot be.
  struct CFound {
    CDataItem m_item;
    CMemberRow m_row;
    std::optional<CMemberLattice> m_lattice;
    std::optional<CCaseFault> m_fault;
  };

  bool Refuse(CCaseFault fault);
  bool Refuse(const char* key, CText what, CText right);
  CFound* Section(const CMemberCase& input);
  bool RunLattice(const CMemberCase& input, const CMemberLattice& lattice);
  bool ReadEdition(const CMemberCase& input);
  bool ReadSteel(const CMemberCase& input, const CMemberRow& section);
  bool ReadClasses(const CMemberCase& input, const CMemberRow& section);
  bool IsPossible(const char* key, std::span<const double> values);
  bool ReadForces(const CMemberCase& input);
  bool ReadCourse(const char* key, const CSpacing& moment, const char* loadKey, double Mq,
                  CMomentCourse& course);
  void ReadParts();
  bool ReadLengths(const CMemberCase& input, const CMemberRow& section);
  void NoteGiven(const CMemberCase& input, const CMemberSection& s);
  bool ReadNet(const CMemberCase& input);
  bool ReadStiffeners(const CMemberCase& input);
  bool ReadJoint(const CMemberCase& input, const CMemberSection& section);
  bool TakeShears();

  CCodeEdition m_nDefault = CCodeEdition::Gb2017;
  CCodeEdition m_nEdition = CCodeEdition::Gb2017;
  CMemberSteel m_steel;
  CMemberLoads m_loads;
  CMemberAnswer m_answer;
  std::optional<CCaseFault> m_fault;
  CSpanLoad m_nLoad = CSpanLoad::None;
  bool m_bVxTaken = false, m_bVyTaken = false;  // from the moments, where none is given
  const CFound* m_pFound = nullptr;
  std::map<std::string, std::unique_ptr<CFound>> m_mapSection;
};

// Whether torsion has a say: the answer needs It, Iw and the shear centre.
ORV3CAL_API bool NeedsTorsion(const CMemberSection& section, const CMemberSteel& steel,
                              const CMemberLoads& loads) noexcept;

}  // namespace orv3
