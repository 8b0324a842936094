// CDrawing: a small vector drawing without any toolkit, and its two writers.
//
// Lengths are page units (one pixel at a scale of 1), x to the right, y upwards from the page's
// lower-left corner. What is drawn belongs to a layer; the layer gives colour, line width and dash
// style, and the layers are painted one above the other in the order of the enumeration. A figure
// with a coordinate that is no finite number is left out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/bitmap.h"
#include "drawing/path.h"
#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

enum class CLayer { Section, Outline, BaseAxis, CentroidAxis, Dimension, Text };
inline constexpr int kLayerCount = 6;

// How a layer is drawn.
struct CPen {
  const char* m_szName;        // group name in the SVG
  std::uint32_t m_nLineColor;  // 0x00RRGGBB, also of texts
  std::uint32_t m_nFillColor;  // of areas
  double m_dWidth;             // of lines
  double m_arrDash[4];         // lengths of dash, gap, dash, gap; all 0 for a full line
};
ORV3CAL_API const CPen& LayerPen(CLayer layer) noexcept;

enum class CAnchor { Left, Middle, Right };

// One text. Its anchor is at mid-height of the capitals.
struct CLabel {
  CLayer m_nLayer = CLayer::Text;
  CPoint m_at;
  CString m_strText;
  double m_dSize = 12;  // font size
  CAnchor m_nAnchor = CAnchor::Left;
  bool m_bUpward = false;  // turned to be read from the right
};

// Lines along paths, or areas that the paths bound (by the sense of the loops: what is wound round
// at least once is filled).
struct CFigure {
  CLayer m_nLayer = CLayer::Outline;
  bool m_bFilled = false;
  std::vector<CPath> m_arrPath;
  // A colour of its own for thick lines, as a scale of colours has them; only SVG shows it.
  std::optional<std::uint32_t> m_nTint = std::nullopt;
};

// A dimension line measured along x, or along y when vertical.
struct CDimension {
  bool m_bVertical = false;
  CPoint m_from;  // the measured points, in either order
  CPoint m_to;
  double m_dLine = 0;  // y of the dimension line (x when vertical)
  CString m_strText;
  double m_dTextAt = 0;       // middle of the text along the line; the line is drawn out to it
  bool m_bTextBelow = false;  // text below (right of) the line rather than above (left of) it
  bool m_bUpright = false;    // text of a vertical dimension level instead of along the line
  double m_dTextSize = 11;
};

class ORV3CAL_API CDrawing {
 public:
  static constexpr double kArrow = 6;  // length of an arrow head

  CDrawing(double width, double height) : m_dWidth(width), m_dHeight(height) {}

  double Width() const noexcept { return m_dWidth; }
  double Height() const noexcept { return m_dHeight; }
  const std::vector<CFigure>& Figures() const noexcept { return m_arrFigure; }
  const std::vector<CLabel>& Labels() const noexcept { return m_arrLabel; }

  // Filled in the layer's fill colour, without an outline.
  void AddArea(CLayer layer, std::vector<CPath> loops);
  // Lines along the paths.
  void AddPath(CLayer layer, CPath path);
  void AddTinted(CLayer layer, std::uint32_t color, std::vector<CPath> paths);
  void AddLine(CLayer layer, CPoint from, CPoint to);
  void AddCircle(CLayer layer, CPoint center, double radius);
  // The steel of a section: filled in layer Section, its edges in layer Outline.
  void AddSection(const std::vector<CPath>& loops);
  // A filled arrow head at `tip` for a line that comes from the side of `tail`.
  void AddArrowHead(CLayer layer, CPoint tail, CPoint tip);
  void AddArrow(CLayer layer, CPoint tail, CPoint tip);
  // Extension lines, dimension line, arrow heads (from outside when the span is too short) and
  // text.
  void AddDimension(const CDimension& dimension);
  void AddLabel(CLabel label);

 private:
  void AddFigure(CFigure figure);

  double m_dWidth;
  double m_dHeight;
  std::vector<CFigure> m_arrFigure;
  std::vector<CLabel> m_arrLabel;
};

// The width that a text of a font size needs, estimated from above for common sans-serif fonts.
ORV3CAL_API double TextWidth(std::wstring_view text, double size) noexcept;

// The drawing as an SVG document: UTF-8, white ground, nothing fetched from elsewhere.
ORV3CAL_API std::string DrawingSvg(const CDrawing& drawing, std::wstring_view title = {});

// The drawing as pixels, edges smoothed, each page unit `scale` pixels wide. Texts are drawn with
// the stroke alphabet (drawing_font.h). CInvalidArgException when a side is not 1..4096 pixels.
ORV3CAL_API CBitmap DrawingBitmap(const CDrawing& drawing, double scale = 1);

}  // namespace orv3
