// CDrawing as pixels: the share of each pixel that a figure covers is found first, then its colour
// is laid over what is there by that share.
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "drawing/drawing.h"
#include "drawing/font.h"
#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr double kTolerance = 0.1;      // pixels that an arc's chords may stray
constexpr int kSubRows = 8;             // sample rows of a filled area in a pixel
constexpr double kLetterWidth = 0.105;  // line width of letters, in font sizes
constexpr double kThinnestLine = 1.0;   // pixels
constexpr double kMostDashes = 1e4;     // of one line; more lie beyond any bitmap
constexpr double kOnGrid = 1e-6;        // rounding of coordinates, pixels

using CPolyline = std::vector<CPoint>;

struct CCrossing {
  double x;
  int sense;
};

class CRaster {
 public:
  CRaster(const CDrawing& drawing, double scale)
      : m_dScale(scale),
        m_dHeight(drawing.Height()),
        m_bitmap(Pixels(drawing.Width() * scale), Pixels(drawing.Height() * scale)),
        m_arrCover(static_cast<std::size_t>(m_bitmap.GetWidth()) *
                   static_cast<std::size_t>(m_bitmap.GetHeight())) {}

  void Fill(const std::vector<CPath>& loops, std::uint32_t color) {
    const std::vector<CPolyline> polygons = ToPixels(loops);
    Begin(polygons, 1);
    for (int y = m_top; y < m_bottom; ++y)
      for (int i = 0; i < kSubRows; ++i) FillRow(polygons, y, y + (i + 0.5) / kSubRows);
    Blend(color);
  }

  void Stroke(const std::vector<CPath>& paths, double width, const double (&dash)[4],
              std::uint32_t color) {
    const std::vector<CPolyline> lines = ToPixels(paths);
    const double half = std::max(width * m_dScale, kThinnestLine) / 2;
    Begin(lines, half + 1);
    for (const CPolyline& line : lines) StrokeLine(line, half, dash);
    Blend(color);
  }

  // Whether upright and level lines are moved to the middle of a pixel, where they are sharp.
  void SetSharp(bool sharp) { m_bSharp = sharp; }
  CBitmap Take() { return std::move(m_bitmap); }

 private:
  // A page beyond any bitmap is left to the bitmap to refuse.
  static int Pixels(double side) {
    return side > 0 ? static_cast<int>(std::lround(std::min(side, 1e6))) : 0;
  }

  std::vector<CPolyline> ToPixels(const std::vector<CPath>& paths) const {
    std::vector<CPolyline> lines;
    lines.reserve(paths.size());
    for (const CPath& path : paths) {
      lines.push_back(Flattened(path, kTolerance / m_dScale));
      for (CPoint& p : lines.back()) p = {p.x * m_dScale, (m_dHeight - p.y) * m_dScale};
    }
    return lines;
  }

  // Clears the pixels that the lines may touch.
  void Begin(const std::vector<CPolyline>& lines, double margin) {
    CBox box{1e9, 1e9, -1e9, -1e9};
    for (const CPolyline& line : lines) {
      for (const CPoint& p : line) {
        box = {std::min(box.left, p.x), std::min(box.bottom, p.y), std::max(box.right, p.x),
               std::max(box.top, p.y)};
      }
    }
    m_left = Clip(std::floor(box.left - margin), m_bitmap.GetWidth());
    m_right = Clip(std::ceil(box.right + margin), m_bitmap.GetWidth());
    m_top = Clip(std::floor(box.bottom - margin), m_bitmap.GetHeight());
    m_bottom = Clip(std::ceil(box.top + margin), m_bitmap.GetHeight());
    for (int y = m_top; y < m_bottom; ++y)
      for (int x = m_left; x < m_right; ++x) Cover(x, y) = 0;
  }

  static int Clip(double value, int limit) {
    return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
  }

  float& Cover(int x, int y) {
    return m_arrCover[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_bitmap.GetWidth()) +
                      static_cast<std::size_t>(x)];
  }

  // One sample row: what the polygons wind round at least once.
  void FillRow(const std::vector<CPolyline>& polygons, int y, double sample) {
    std::vector<CCrossing> crossings;
    for (const CPolyline& polygon : polygons) {
      for (std::size_t i = 1; i < polygon.size(); ++i) {
        const CPoint& a = polygon[i - 1];
        const CPoint& b = polygon[i];
        if ((a.y <= sample) == (b.y <= sample)) continue;
        crossings.push_back({a.x + (sample - a.y) / (b.y - a.y) * (b.x - a.x), a.y < b.y ? 1 : -1});
      }
    }
    std::sort(crossings.begin(), crossings.end(),
              [](const CCrossing& a, const CCrossing& b) { return a.x < b.x; });
    int winding = 0;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
      winding += crossings[i].sense;
      if (winding != 0) FillSpan(y, crossings[i].x, crossings[i + 1].x);
    }
  }

  void FillSpan(int y, double from, double to) {
    const int first = Clip(std::floor(from), m_right);
    const int last = Clip(std::ceil(to), m_right);
    for (int x = first; x < last; ++x) {
      const double part = std::min<double>(to, x + 1) - std::max<double>(from, x);
      Cover(x, y) += static_cast<float>(part / kSubRows);
    }
  }

  void StrokeLine(const CPolyline& line, double half, const double (&dash)[4]) {
    double done = 0;  // length of the line so far
    for (std::size_t i = 1; i < line.size(); ++i) {
      const double length = Hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y);
      if (dash[0] > 0) {
        StrokeDashes(line[i - 1], line[i], length, done, half, dash);
      } else {
        StrokeSegment(line[i - 1], line[i], half);
      }
      done += length;
    }
  }

  void StrokeDashes(CPoint a, CPoint b, double length, double done, double half,
                    const double (&dash)[4]) {
    const double period = (dash[0] + dash[1] + dash[2] + dash[3]) * m_dScale;
    const auto at = [&](double s) {
      const double part = std::clamp(s / length, 0.0, 1.0);
      return CPoint{a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part};
    };
    const int count = static_cast<int>(std::min(length / period + 2, kMostDashes));
    for (int i = 0; i < count; ++i) {
      const double start = i * period - std::fmod(done, period);
      const double second = start + (dash[0] + dash[1]) * m_dScale;
      for (const auto& [from, size] : {std::pair{start, dash[0]}, std::pair{second, dash[2]}}) {
        const double to = from + size * m_dScale;
        if (size > 0 && to > 0 && from < length) StrokeSegment(at(from), at(to), half);
      }
    }
  }

  static double PixelMiddle(double at) { return std::floor(at + kOnGrid) + 0.5; }

  // A pixel is covered by how far its middle lies inside the line's edge.
  void StrokeSegment(CPoint a, CPoint b, double half) {
    if (m_bSharp) {
      if (std::fabs(a.x - b.x) < kOnGrid) a.x = b.x = PixelMiddle(a.x);
      if (std::fabs(a.y - b.y) < kOnGrid) a.y = b.y = PixelMiddle(a.y);
    }
    const double reach = half + 1;
    const int left = Clip(std::floor(std::min(a.x, b.x) - reach), m_bitmap.GetWidth());
    const int right = Clip(std::ceil(std::max(a.x, b.x) + reach), m_bitmap.GetWidth());
    const int top = Clip(std::floor(std::min(a.y, b.y) - reach), m_bitmap.GetHeight());
    const int bottom = Clip(std::ceil(std::max(a.y, b.y) + reach), m_bitmap.GetHeight());
    const CPoint d{b.x - a.x, b.y - a.y};
    const double square = d.x * d.x + d.y * d.y;
    for (int y = top; y < bottom; ++y) {
      for (int x = left; x < right; ++x) {
        const CPoint p{x + 0.5 - a.x, y + 0.5 - a.y};
        const double part =
            square > 0 ? std::clamp((p.x * d.x + p.y * d.y) / square, 0.0, 1.0) : 0.0;
        const double distance = Hypot(p.x - part * d.x, p.y - part * d.y);
        const double cover = std::clamp(half + 0.5 - distance, 0.0, 1.0);
        Cover(x, y) = std::max(Cover(x, y), static_cast<float>(cover));
      }
    }
  }

  void Blend(std::uint32_t color) {
    for (int y = m_top; y < m_bottom; ++y) {
      for (int x = m_left; x < m_right; ++x) {
        const double cover = std::min(1.0, static_cast<double>(Cover(x, y)));
        if (cover > 0) m_bitmap.SetPixel(x, y, Mixed(m_bitmap.GetPixel(x, y), color, cover));
      }
    }
  }

  static std::uint32_t Mixed(std::uint32_t below, std::uint32_t above, double share) {
    std::uint32_t mixed = 0;
    for (int shift = 0; shift < 24; shift += 8) {
      const double a = (below >> shift) & 0xFF;
      const double b = (above >> shift) & 0xFF;
      mixed |= static_cast<std::uint32_t>(std::lround(a + (b - a) * share)) << shift;
    }
    return mixed;
  }

  double m_dScale;
  double m_dHeight;
  CBitmap m_bitmap;
  std::vector<float> m_arrCover;
  bool m_bSharp = true;
  int m_left = 0;
  int m_right = 0;
  int m_top = 0;
  int m_bottom = 0;
};

void DrawLayer(CRaster& raster, const CDrawing& drawing, CLayer layer) {
  const CPen& pen = LayerPen(layer);
  raster.SetSharp(true);
  for (const CFigure& figure : drawing.Figures()) {
    if (figure.m_nLayer != layer) continue;
    if (figure.m_bFilled) {
      raster.Fill(figure.m_arrPath, pen.m_nFillColor);
    } else {
      raster.Stroke(figure.m_arrPath, pen.m_dWidth, pen.m_arrDash, pen.m_nLineColor);
    }
  }
  raster.SetSharp(false);
  for (const CLabel& label : drawing.Labels()) {
    if (label.m_nLayer != layer) continue;
    raster.Stroke(LabelStrokes(label), label.m_dSize * kLetterWidth, {}, pen.m_nLineColor);
  }
}

}  // namespace

CBitmap DrawingBitmap(const CDrawing& drawing, double scale) {
  CRaster raster(drawing, scale);
  for (int i = 0; i < kLayerCount; ++i) DrawLayer(raster, drawing, static_cast<CLayer>(i));
  return raster.Take();
}

}  // namespace orv3
