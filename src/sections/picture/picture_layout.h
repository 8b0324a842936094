// Where everything of a section's picture stands: the scale, the rows of dimensions about the
// section, the texts and the page.
#pragma once

#include <algorithm>
#include <vector>

#include "drawing/drawing.h"
#include "framework/cstring.h"
#include "sections/outline.h"
#include "sections/picture/dimension_rows.h"
#include "sections/picture/outline_picture.h"
#include "sections/section_dimensions.h"

namespace orv3 {

// Page units.
inline constexpr double kMargin = 18;
inline constexpr double kRow = 21;        // distance of dimension rows
inline constexpr double kFirstRow = 30;   // of the first row from the section
inline constexpr double kAxisReach = 12;  // of the axes beyond the section
inline constexpr double kTextSize = 12;
inline constexpr double kTitleSize = 17;
inline constexpr double kLineHeight = 20;
inline constexpr double kLabelRoom = 26;  // for an axis letter
inline constexpr double kRightLine = 16;  // of a dimension line beside the section's right edge

// The dimensions of one side with their places in rows, in page units from the section's origin.
struct CSideRows {
  std::vector<CSizeDimension> m_arrSize;
  std::vector<CRowItem> m_arrItem;
  int m_nRows = 0;

  // Depth that the rows take beside the section.
  double Depth(double without) const {
    return m_nRows == 0 ? without : kFirstRow + (m_nRows - 1) * kRow + kTextSize;
  }
  double LowestText() const {
    double low = 0;
    for (const CRowItem& item : m_arrItem) low = std::min(low, item.m_dTextAt - item.m_dText / 2);
    return low;
  }
  double HighestText() const {
    double high = 0;
    for (const CRowItem& item : m_arrItem) high = std::max(high, item.m_dTextAt + item.m_dText / 2);
    return high;
  }
};

// In page units from the section's origin, unless it says otherwise.
class CPictureLayout {
 public:
  explicit CPictureLayout(const COutlinePicture& picture);

  double Scale() const noexcept { return m_dScale; }
  // What the picture shows.
  const CBox& Frame() const noexcept { return m_frame; }
  // Whether the point is near enough to be drawn.
  bool ShowsBase() const noexcept { return m_bBase; }
  bool ShowsCentroid() const noexcept { return m_bCentroid; }
  bool ShowsShearCenter() const noexcept { return m_bShearCenter; }
  const CSideRows& Side(CDimensionSide side) const noexcept {
    return side == CDimensionSide::Top ? m_top : side == CDimensionSide::Left ? m_left : m_bottom;
  }
  double AxisTop() const { return m_frame.top + m_top.Depth(0) + kAxisReach + 4; }
  double AxisRight() const { return m_frame.right + kAxisReach; }
  // How far the texts of leaders reach out on the left.
  double LeaderRoom() const noexcept { return m_dLeaderRoom; }
  // Where a leader's text begins; clear of the axes.
  CPoint LeaderEnd(const CSizeDimension& size) const;

  int Footers() const {
    return 1 + (m_picture.m_base ? 1 : 0) + (m_picture.m_shearCenter ? 1 : 0) +
           (m_picture.m_plastic ? 1 : 0);
  }
  CString CentroidText() const;
  CString BaseText() const;
  CString ShearCenterText() const;
  CString PlasticText() const;

  double PageWidth() const noexcept { return m_dPageWidth; }
  double PageHeight() const noexcept { return m_dPageHeight; }
  // Of the section on the page.
  CPoint Origin() const noexcept { return m_origin; }

 private:
  void FindFrame();
  CSideRows Rows(CDimensionSide side) const;
  double RightEdge() const;
  double FindLeaderRoom() const;
  void FindPage();

  const COutlinePicture& m_picture;
  const std::vector<CSizeDimension>& m_sizes;
  CBox m_frame;
  double m_dScale = 1;
  bool m_bBase = false;
  bool m_bCentroid = false;
  bool m_bShearCenter = false;
  CSideRows m_top;
  CSideRows m_bottom;
  CSideRows m_left;
  double m_dLeaderRoom = 0;
  CPoint m_origin;
  double m_dPageWidth = 0;
  double m_dPageHeight = 0;
};

}  // namespace orv3
