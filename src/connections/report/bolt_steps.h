// What the parts of a bolt group's report share, and the steps that they are made of.
#pragma once

#include <vector>

#include "codes/slip.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/report/bolt_view.h"
#include "framework/plain_number.h"
#include "reports/report_page.h"

namespace orv3 {

// Where an edition has what the report cites.
struct CBoltClauses {
  const char* m_szHole;
  const char* m_szSteel;
  const char* m_szBolt;
  const char* m_szSlip;
  const char* m_szPreload;
  const char* m_arrType[3];  // by bolt type
  const char* m_szLong;
  const char* m_szSection;
};

struct CBoltFacts {
  explicit CBoltFacts(const CBoltView& view);

  CHoleKind Hole() const;  // by 2017
  const char* SteelClause() const;

  const CBoltView& m_view;
  const CBoltCase& m_input;
  const CBoltShape& m_shape;
  const CBoltResults& m_r;
  const CBoltFigures& m_judged;
  const CBoltClauses& m_clauses;
  bool m_bFriction;
  bool m_bTorque;
};

std::vector<CReportStep> BoltGeometry(const CBoltFacts& b);
std::vector<CReportStep> BoltStrengths(const CBoltFacts& b);
std::vector<CReportStep> BoltResistances(const CBoltFacts& b);
std::vector<CReportStep> BoltForces(const CBoltFacts& b);
std::vector<CReportStep> BoltLongJoint(const CBoltFacts& b);

// Empty where no shear meets a hole.
std::vector<CReportStep> BoltSections(const CBoltFacts& b);
CReportVerdict BoltSectionVerdict(const CBoltFacts& b, bool bX);

}  // namespace orv3
