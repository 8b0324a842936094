// What the answers of this folder tell besides their verdicts.
#pragma once

#include <vector>

#include "connections/gb2017/weld_case.h"
#include "reports/case_keys.h"

namespace orv3::gb2017 {

// What the legs of fillet welds, the smallest and the largest, are right for when the parts are not
// given.
struct CLegs {
  const char* m_szKey;  // of the case
  double m_dLeast;      // mm
  double m_dMost;
  bool m_bLap;
};
void NoteOfUnknownParts(const CLegs& legs, const CTextLiteral& remedy,
                        std::vector<CCaseWarning>& notes);

// Of the edge that decides where it is not the one that `sigma` is of.
void NoteOfEdge(const CWeldFigures& judged, std::vector<CCaseWarning>& notes);

}  // namespace orv3::gb2017
