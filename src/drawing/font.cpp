#include "drawing/font.h"

#include <algorithm>
#include <utility>

namespace orv3 {
namespace {

// Drawn on a grid whose baseline is y = 0, small letters 7 high and capitals 10 high.
struct CGlyph {
  wchar_t m_ch;
  double m_dWidth;
  std::vector<CPath> m_arrStroke;
};

constexpr double kCapitals = 10;
constexpr double kSpacing = 2.4;
constexpr double kUnit = 0.072;          // of the font size
constexpr double kQuarter = 0.41421356;  // bulge of a quarter circle

CPath Open(std::vector<CVertex> vertices) { return {std::move(vertices), false}; }
CPath Loop(std::vector<CVertex> vertices) { return {std::move(vertices), true}; }

// The round body of a, b, d and o.
CPath Bowl() { return Loop({{6, 3, 0}, {6, 4, 1}, {0, 4, 0}, {0, 3, 1}}); }
CPath Stem(double x, double top) { return Open({{x, 0, 0}, {x, top, 0}}); }
CPath Bar(double y, double from, double to) { return Open({{from, y, 0}, {to, y, 0}}); }

std::vector<CGlyph> Digits() {
  return {
      {L'0', 6, {Loop({{6, 3, 0}, {6, 7, 1}, {0, 7, 0}, {0, 3, 1}})}},
      {L'1', 4, {Open({{0.6, 8, 0}, {3, 10, 0}, {3, 0, 0}})}},
      {L'2', 6, {Open({{0, 7, -1}, {6, 7, -0.15}, {0, 0, 0}, {6, 0, 0}})}},
      {L'3', 6, {Open({{0.4, 10, 0}, {5.4, 10, 0}, {2.8, 6, -1.57}, {0.5, 1.07, 0}})}},
      {L'4', 6, {Open({{4.5, 0, 0}, {4.5, 10, 0}, {0, 3, 0}, {6.2, 3, 0}})}},
      {L'5', 6, {Open({{5.4, 10, 0}, {1, 10, 0}, {0.6, 5.6, -2.3}, {0.1, 1.2, 0}})}},
      {L'6', 6, {Loop({{0, 3, 1}, {6, 3, 1}}), Open({{0, 3, -0.22}, {4.6, 10, 0}})}},
      {L'7', 6, {Open({{0, 10, 0}, {6, 10, 0}, {2, 0, 0}})}},
      {L'8', 6, {Loop({{0.6, 7.6, 1}, {5.4, 7.6, 1}}), Loop({{0.4, 2.6, 1}, {5.6, 2.6, 1}})}},
      {L'9', 6, {Loop({{0, 7, 1}, {6, 7, 1}}), Open({{6, 7, -0.22}, {1.4, 0, 0}})}},
  };
}

std::vector<CGlyph> SmallLetters() {
  return {
      {L'a', 6, {Bowl(), Stem(6, 7)}},
      {L'b', 6, {Bowl(), Stem(0, 10)}},
      {L'd', 6, {Bowl(), Stem(6, 10)}},
      {L'e',
       6,
       {Open({{0, 3.7, 0}, {6, 3.7, 0}, {6, 4, 1}, {0, 4, 0}, {0, 3, 0.72}, {5.4, 1.2, 0}})}},
      {L'f', 4, {Open({{4.2, 10, kQuarter}, {1.8, 7.6, 0}, {1.8, 0, 0}}), Bar(7, 0, 4)}},
      {L'h', 6, {Stem(0, 10), Open({{0, 4, -1}, {6, 4, 0}, {6, 0, 0}})}},
      {L'k',
       5.4,
       {Stem(0, 10), Open({{5, 7, 0}, {0, 2.6, 0}}), Open({{1.9, 4.3, 0}, {5.4, 0, 0}})}},
      {L'm',
       9,
       {Stem(0, 7), Open({{0, 4.75, -1}, {4.5, 4.75, 0}, {4.5, 0, 0}}),
        Open({{4.5, 4.75, -1}, {9, 4.75, 0}, {9, 0, 0}})}},
      {L'n', 6, {Stem(0, 7), Open({{0, 4, -1}, {6, 4, 0}, {6, 0, 0}})}},
      {L'o', 6, {Bowl()}},
      {L'r', 3.8, {Stem(0, 7), Open({{0, 3.6, -0.35}, {3.8, 6.8, 0}})}},
      {L't', 4, {Open({{1.8, 9.6, 0}, {1.8, 2, kQuarter}, {3.8, 0, 0}}), Bar(7, 0, 4)}},
      {L'w', 8, {Open({{0, 7, 0}, {2, 0, 0}, {4, 7, 0}, {6, 0, 0}, {8, 7, 0}})}},
      {L'x', 5.4, {Open({{0, 0, 0}, {5.4, 7, 0}}), Open({{0, 7, 0}, {5.4, 0, 0}})}},
      {L'y', 5.6, {Open({{0, 7, 0}, {2.8, 0, 0}}), Open({{5.6, 7, 0}, {1.6, -3, 0}})}},
      {L'z', 5, {Open({{0, 7, 0}, {5, 7, 0}, {0, 0, 0}, {5, 0, 0}})}},
      {L'θ', 5.4, {Loop({{5.4, 2.7, 0}, {5.4, 7.3, 1}, {0, 7.3, 0}, {0, 2.7, 1}}), Bar(5, 0, 5.4)}},
      {L'δ',
       6,
       {Loop({{0, 3, 1}, {6, 3, 1}}), Open({{4.6, 9.4, 0.55}, {2, 8, 0.1}, {5.6, 4.4, 0}})}},
  };
}

std::vector<CGlyph> CapitalsAndSigns() {
  return {
      {L'A', 7, {Open({{0, 0, 0}, {3.5, 10, 0}, {7, 0, 0}}), Bar(3.4, 1.2, 5.8)}},
      {L'B',
       6.1,
       {Loop({{0, 0, 0}, {0, 10, 0}, {3.4, 10, -1}, {3.4, 5.4, 0}, {0, 5.4, 0}}),
        Open({{3.4, 5.4, -1}, {3.4, 0, 0}, {0, 0, 0}})}},
      {L'C', 6.2, {Open({{6.1, 8, 0.75}, {0, 6.6, 0}, {0, 3.4, 0.75}, {6.1, 2, 0}})}},
      {L'H', 6.4, {Stem(0, 10), Stem(6.4, 10), Bar(5.2, 0, 6.4)}},
      {L'R',
       6.2,
       {Stem(0, 10), Open({{0, 10, 0}, {3.4, 10, -1}, {3.4, 4.8, 0}, {0, 4.8, 0}}),
        Open({{3.2, 4.8, 0}, {6.2, 0, 0}})}},
      {L'X', 6.4, {Open({{0, 0, 0}, {6.4, 10, 0}}), Open({{0, 10, 0}, {6.4, 0, 0}})}},
      {L'Y', 6.4, {Open({{0, 10, 0}, {3.2, 5, 0}, {6.4, 10, 0}}), Stem(3.2, 5)}},
      {L'=', 5, {Bar(3, 0, 5), Bar(6, 0, 5)}},
      {L'-', 4.5, {Bar(4, 0, 4.5)}},
      {L'.', 1, {Open({{0.5, 0, 0}, {0.5, 0.5, 0}})}},
      {L' ', 3, {}},
  };
}

const CGlyph& GlyphOf(wchar_t ch) {
  static const std::vector<CGlyph> alphabet = [] {
    std::vector<CGlyph> all = Digits();
    for (const auto& part : {SmallLetters(), CapitalsAndSigns()})
      all.insert(all.end(), part.begin(), part.end());
    return all;
  }();
  static const CGlyph unknown{0, 6, {RectPath(0, 0, 6, kCapitals)}};
  const auto found = std::find_if(alphabet.begin(), alphabet.end(),
                                  [ch](const CGlyph& glyph) { return glyph.m_ch == ch; });
  return found == alphabet.end() ? unknown : *found;
}

}  // namespace

std::vector<CPath> LabelStrokes(const CLabel& label) {
  std::vector<CPath> strokes;
  double at = 0;
  for (const wchar_t ch : label.m_strText.View()) {
    const CGlyph& glyph = GlyphOf(ch);
    for (const CPath& stroke : glyph.m_arrStroke) strokes.push_back(Moved(stroke, at, 0));
    at += glyph.m_dWidth + kSpacing;
  }
  const double width = at - kSpacing;
  const double start = label.m_nAnchor == CAnchor::Left     ? 0
                       : label.m_nAnchor == CAnchor::Middle ? -width / 2
                                                            : -width;
  const double unit = kUnit * label.m_dSize;
  for (CPath& stroke : strokes) {
    for (CVertex& v : stroke.m_arrVertex) {
      const double x = (v.x + start) * unit;
      const double y = (v.y - kCapitals / 2) * unit;
      v.x = label.m_at.x + (label.m_bUpward ? -y : x);
      v.y = label.m_at.y + (label.m_bUpward ? x : y);
    }
  }
  return strokes;
}

}  // namespace orv3
