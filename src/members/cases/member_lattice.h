// The lattice column of a member: its limbs from a row of a lattice table, and what joins them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "members/cases/section_sources.h"
#include "members/lattice_member.h"
#include "tables/data_item.h"

namespace orv3 {

// mm, degrees. NaN: not given.
struct CLacingInput {
  std::string m_strType;                // "lacing" or "battens"
  std::string m_strBarTable, m_strNo;   // lacing: the bar, an equal angle
  double m_dAngle;                      // lacing: between a bar and the column's axis
  double m_dWidth, m_dThick, m_dPitch;  // battens
  double m_dL1;                         // free length of a limb
};

struct CMemberLattice {
  CLatticeSection m_section;
  double m_dThickest = 0, m_dWebThick = 0;  // of all limbs
  double m_dBondThick = 0;                  // of the bars or battens
  bool m_bTubes = false;                    // strengths by the table of tubes
  bool m_bL1Assumed = false;
  std::vector<CUsedProperty> m_arrUsed;
};

// The faults name "section", "section.lattice" or "section.lacing".
std::optional<CCaseFault> ReadMemberLattice(const CDataItem& row, const CLacingInput& lacing,
                                            CMemberLattice& lattice);

}  // namespace orv3
