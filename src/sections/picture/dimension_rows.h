// Placing dimensions in rows beside a section so that neither lines nor texts collide.
#pragma once

#include <vector>

namespace orv3 {

// One dimension, in page units along its row.
struct CRowItem {
  double m_dLow = 0;  // the measured points, m_dLow <= m_dHigh
  double m_dHigh = 0;
  double m_dText = 0;    // width of the text
  int m_nRow = 0;        // result: 0 is next to the section
  double m_dTextAt = 0;  // result: middle of the text
};

struct CRowRange {
  double m_dLow = 0;  // the section's extent along the row
  double m_dHigh = 0;
  bool m_bBelow = false;         // whether texts may stand before m_dLow
  std::vector<double> m_arrBar;  // lines across the rows that no text may meet
};

// Gives every item its row and the place of its text: short spans nearest to the section, each text
// within its span where it fits, else beside it, clear of the extension lines that pass.
// Returns the number of rows.
int PlaceInRows(std::vector<CRowItem>& items, const CRowRange& range);

}  // namespace orv3
