// What every picture to scale must be: legible.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drawing/drawing.h"

inline orv3::CBox LabelBox(const orv3::CLabel& label) {
  using orv3::CAnchor;
  const double width = orv3::TextWidth(label.m_strText, label.m_dSize);
  const double before = label.m_nAnchor == CAnchor::Left     ? 0
                        : label.m_nAnchor == CAnchor::Middle ? width / 2
                                                             : width;
  const double half = label.m_dSize * 0.36;
  const orv3::CPoint at = label.m_at;
  return label.m_bUpward
             ? orv3::CBox{at.x - half, at.y - before, at.x + half, at.y - before + width}
             : orv3::CBox{at.x - before, at.y - half, at.x - before + width, at.y + half};
}

inline bool Meet(const orv3::CBox& a, const orv3::CBox& b) {
  return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

// No text touches another, leaves the page or is crossed by a line of a dimension or an axis.
inline void CheckLegible(const orv3::CDrawing& drawing, const std::string& what) {
  const orv3::CBox page{0, 0, drawing.Width(), drawing.Height()};
  std::vector<orv3::CBox> boxes;
  for (const orv3::CLabel& label : drawing.Labels()) {
    const orv3::CBox box = LabelBox(label);
    EXPECT_TRUE(box.left >= 2 && box.bottom >= 2 && box.right <= page.right - 2 &&
                box.top <= page.top - 2)
        << what << ": " << testing::PrintToString(label.m_strText.GetString());
    for (const orv3::CBox& other : boxes)
      EXPECT_FALSE(Meet(box, other))
          << what << ": " << testing::PrintToString(label.m_strText.GetString());
    boxes.push_back(box);
  }
  for (const orv3::CFigure& figure : drawing.Figures()) {
    if (figure.m_bFilled || figure.m_nLayer == orv3::CLayer::Outline) continue;
    const orv3::CBox line = orv3::PathBounds(figure.m_arrPath);
    if (line.Width() > 0 && line.Height() > 0) continue;  // a radius: placed by its angle
    for (const orv3::CBox& box : boxes)
      EXPECT_FALSE(line.left <= box.right && box.left <= line.right && line.bottom <= box.top &&
                   box.bottom <= line.top)
          << what << ": line " << line.left << " " << line.bottom << " " << line.right << " "
          << line.top << " meets text at " << box.left << " " << box.bottom;
  }
}
