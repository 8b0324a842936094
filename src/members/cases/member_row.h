// The section of a member from a row of a section table: plates from its sizes, figures as they are
// printed, and what the row does not tell from its outline.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "codes/buckling.h"
#include "members/member_section.h"
#include "reports/case_keys.h"
#include "sections/section_kind.h"
#include "sections/section_style.h"
#include "tables/data_item.h"

namespace orv3 {

struct CMemberRow {
  CMemberSection m_section;
  CBucklingShape m_nFlameCut = CBucklingShape::Solid;  // the shape in the tables of classes
  CBucklingShape m_nRolled = CBucklingShape::Solid;    // with rolled or sheared edges
  double m_dThickest = 0, m_dWebThick = 0;             // mm
  double m_dFlangeThick = 0;                           // of the flange that Vx is held by
  bool m_bTube = false;                                // strengths by the table of tubes
  bool m_bTapered = false;                             // I with tapered flanges
  double m_dRolledNumber = 0;                          // of an ordinary rolled I
  bool m_bExact = false;                               // It, Iw and the shear centre are there
  CDataItem m_row;                                     // as it was read

  bool HasEdges() const noexcept { return m_nFlameCut != m_nRolled; }
};

// By number, table name or alias; null when there is none.
ORV3CAL_API const CSectionStyle* StyleNamed(const std::string& name);
// The row of a style's sizes, computed; the fault names "section.sizes".
ORV3CAL_API CDataItem SizesRow(const CSectionStyle& style, std::span<const double> sizes,
                               std::optional<CCaseFault>& fault);

// Whether a gap of a pair can be: whole millimetres, 0 to 60.
ORV3CAL_API bool IsPairGap(double gap) noexcept;
ORV3CAL_API CCaseFault PairGapFault();

// Why a look-up has found no row: `missing`, or that the store cannot be read, which may have it.
CCaseFault NoRowFault(CCaseFault missing);

// Whether rows of the table can be members.
bool IsMemberKind(CSectionKind kind) noexcept;

// The fault names "section".
ORV3CAL_API std::optional<CCaseFault> ReadMemberRow(const CDataItem& row, CMemberRow& member);

// Refuses a cold-formed section with walls under 6 mm, as a member or as a limb of one.
std::optional<CCaseFault> ThinWalled(const CDataItem& row);

// Refuses a row whose figures are not those of its sizes, as a member or as a part of one:
// whichever is wrong, a check by it would be.
std::optional<CCaseFault> Contradicting(const CDataItem& row);

// Adds what torsion asks: It, Iw and the shear centre of the row's outline, once. False when they
// cannot be computed.
ORV3CAL_API bool AddTorsion(CMemberRow& member);

}  // namespace orv3
