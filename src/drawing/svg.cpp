// CDrawing as SVG: one group per layer, page coordinates turned to y downwards.
#include <cmath>
#include <string>
#include <utility>

#include "drawing/drawing.h"
#include "framework/elementary.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr const char* kFonts =
    "Arial, Helvetica, 'Noto Sans CJK SC', 'Source Han Sans SC', 'Microsoft YaHei', "
    "'WenQuanYi Micro Hei', sans-serif";
constexpr double kBaseline = 0.36;  // half the height of the capitals, in font sizes

// Hundredths are finer than any screen or printer shows at page scale.
std::string Number(double value) {
  std::string text = ToUtf8(FormatFixed(value, 2));
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Color(std::uint32_t color) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += digits[(color >> shift) & 15];
  return text;
}

bool IsXmlChar(wchar_t ch) {
  return ch >= 0x20 && (ch < 0x7F || ch > 0x9F) && ch != 0xFFFE && ch != 0xFFFF;
}

std::string Escaped(std::wstring_view text) {
  std::wstring out;
  for (const wchar_t ch : text) {
    switch (ch) {
      case L'&':
        out += L"&amp;";
        break;
      case L'<':
        out += L"&lt;";
        break;
      case L'>':
        out += L"&gt;";
        break;
      case L'"':
        out += L"&quot;";
        break;
      default:
        out += IsXmlChar(ch) ? ch : L' ';
    }
  }
  return ToUtf8(out);
}

class CSvgWriter {
 public:
  explicit CSvgWriter(const CDrawing& drawing) : m_drawing(drawing) {}

  std::string Write(std::wstring_view title) {
    const std::string width = Number(m_drawing.Width());
    const std::string height = Number(m_drawing.Height());
    Put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
        "width=\"",
        width, "\" height=\"", height, "\" viewBox=\"0 0 ", width, " ", height, "\" font-family=\"",
        kFonts, "\">\n");
    if (!title.empty()) Put("<title>", Escaped(title), "</title>\n");
    Put("<rect width=\"", width, "\" height=\"", height, "\" fill=\"#FFFFFF\"/>\n");
    for (int i = 0; i < kLayerCount; ++i) WriteLayer(static_cast<CLayer>(i));
    Put("</svg>\n");
    return std::move(m_out);
  }

 private:
  template <class... Parts>
  void Put(const Parts&... parts) {
    ((m_out += parts), ...);
  }

  void WriteLayer(CLayer layer) {
    const std::size_t start = m_out.size();
    OpenGroup(LayerPen(layer));
    const std::size_t opened = m_out.size();
    for (const CFigure& figure : m_drawing.Figures())
      if (figure.m_nLayer == layer) WriteFigure(figure);
    for (const CLabel& label : m_drawing.Labels())
      if (label.m_nLayer == layer) WriteLabel(label);
    if (m_out.size() == opened) {
      m_out.resize(start);
    } else {
      Put("</g>\n");
    }
  }

  void OpenGroup(const CPen& pen) {
    Put("<g id=\"", pen.m_szName, "\" fill=\"none\" stroke=\"", Color(pen.m_nLineColor),
        "\" stroke-width=\"", Number(pen.m_dWidth), "\" stroke-linejoin=\"round\">\n");
  }

  void WriteFigure(const CFigure& figure) {
    Put("<path d=\"");
    for (const CPath& path : figure.m_arrPath) WritePath(path);
    const CPen& pen = LayerPen(figure.m_nLayer);
    if (figure.m_nTint) {
      Put("\" stroke-width=\"5\" stroke=\"", Color(*figure.m_nTint));
    } else if (figure.m_bFilled) {
      Put("\" fill=\"", Color(pen.m_nFillColor), "\" stroke=\"none");
    } else if (pen.m_arrDash[0] > 0) {
      Put("\" stroke-dasharray=\"");
      for (int i = 0; i < 4 && pen.m_arrDash[i] > 0; ++i)
        Put(i > 0 ? " " : "", Number(pen.m_arrDash[i]));
    }
    Put("\"/>\n");
  }

  void WritePath(const CPath& path) {
    const auto& vertices = path.m_arrVertex;
    if (vertices.empty()) return;
    Put("M", At(vertices[0].x, vertices[0].y));
    for (std::size_t i = 1; i < vertices.size(); ++i) WriteEdge(vertices[i - 1], vertices[i]);
    if (!path.m_bClosed) return;
    if (vertices.back().bulge != 0) WriteEdge(vertices.back(), vertices[0]);
    Put("Z");
  }

  void WriteEdge(const CVertex& from, const CVertex& to) {
    if (from.bulge == 0) {
      Put("L", At(to.x, to.y));
      return;
    }
    const double b = std::fabs(from.bulge);
    const std::string radius = Number(Hypot(to.x - from.x, to.y - from.y) * (1 + b * b) / (4 * b));
    // Counter-clockwise on the page is the negative sense of SVG, whose y runs downwards.
    Put("A", radius, " ", radius, " 0 ", b > 1 ? "1 " : "0 ", from.bulge > 0 ? "0 " : "1 ",
        At(to.x, to.y));
  }

  void WriteLabel(const CLabel& label) {
    const double shift = kBaseline * label.m_dSize;
    const CPoint base = label.m_bUpward ? CPoint{label.m_at.x + shift, label.m_at.y}
                                        : CPoint{label.m_at.x, label.m_at.y - shift};
    const std::string x = Number(base.x);
    const std::string y = Number(m_drawing.Height() - base.y);
    Put("<text x=\"", x, "\" y=\"", y, "\" font-size=\"", Number(label.m_dSize), "\"");
    if (label.m_nAnchor == CAnchor::Middle) Put(" text-anchor=\"middle\"");
    if (label.m_nAnchor == CAnchor::Right) Put(" text-anchor=\"end\"");
    if (label.m_bUpward) Put(" transform=\"rotate(-90 ", x, " ", y, ")\"");
    Put(" stroke=\"none\" fill=\"", Color(LayerPen(label.m_nLayer).m_nLineColor), "\">",
        Escaped(label.m_strText), "</text>\n");
  }

  std::string At(double x, double y) const {
    std::string text = Number(x);
    text += ' ';
    text += Number(m_drawing.Height() - y);
    return text;
  }

  const CDrawing& m_drawing;
  std::string m_out;
};

}  // namespace

std::string DrawingSvg(const CDrawing& drawing, std::wstring_view title) {
  return CSvgWriter(drawing).Write(title);
}

}  // namespace orv3
