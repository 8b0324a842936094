#include "sections/picture/dimension_rows.h"

#include <algorithm>
#include <numeric>

#include "drawing/drawing.h"

namespace orv3 {
namespace {

constexpr double kGap = 4;  // around a text and between two lines
constexpr double kTail = 2 * CDrawing::kArrow;

struct CSpan {
  double low;
  double high;
  bool Meets(const CSpan& other, double gap) const {
    return low < other.high + gap && other.low < high + gap;
  }
  bool Holds(double x, double gap) const { return low - gap < x && x < high + gap; }
};

class CRowPlacer {
 public:
  CRowPlacer(std::vector<CRowItem>& items, const CRowRange& range)
      : m_items(items), m_range(range), m_dEnd(range.m_dHigh), m_order(items.size()) {
    for (const CRowItem& item : items) m_dEnd = std::max(m_dEnd, item.m_dHigh);
    for (const double bar : range.m_arrBar) m_dEnd = std::max(m_dEnd, bar);
    std::iota(m_order.begin(), m_order.end(), std::size_t{0});
    std::stable_sort(m_order.begin(), m_order.end(), [&](std::size_t a, std::size_t b) {
      return Length(items[a]) < Length(items[b]);
    });
  }

  int Place() {
    int rows = 0;
    for (m_done = 0; m_done < m_order.size(); ++m_done) {
      CRowItem& item = m_items[m_order[m_done]];
      item.m_nRow = 0;
      while (!PlaceInRow(item)) ++item.m_nRow;
      rows = std::max(rows, item.m_nRow + 1);
    }
    return rows;
  }

 private:
  static double Length(const CRowItem& item) { return item.m_dHigh - item.m_dLow; }

  static CSpan TextSpan(const CRowItem& item) {
    return {item.m_dTextAt - item.m_dText / 2, item.m_dTextAt + item.m_dText / 2};
  }

  // Line, outside tails and text together.
  static CSpan WholeSpan(const CRowItem& item) {
    const double tail = Length(item) < kTail + 2 ? kTail : 0;
    const CSpan text = TextSpan(item);
    return {std::min(item.m_dLow - tail, text.low), std::max(item.m_dHigh + tail, text.high)};
  }

  // Places for the text's middle, best first; at the last only items of the same row can stand.
  std::vector<double> Candidates(const CRowItem& item) const {
    const double half = item.m_dText / 2;
    const double low = item.m_dLow;
    const double high = item.m_dHigh;
    std::vector<double> places;
    if (Length(item) >= item.m_dText + 2 * kGap) {
      for (const double part : {0.5, 0.3, 0.7, 0.15, 0.85}) {
        const double first = low + half + kGap;
        const double last = high - half - kGap;
        places.push_back(first + (last - first) * part);
      }
    }
    places.push_back(high + half + kGap);
    if (m_range.m_bBelow || low - item.m_dText - kGap >= m_range.m_dLow)
      places.push_back(low - half - kGap);
    places.push_back(m_dEnd + half + 2 * kGap);
    return places;
  }

  bool PlaceInRow(CRowItem& item) const {
    const std::vector<double> places = Candidates(item);
    return std::any_of(places.begin(), places.end(), [&](double place) {
      item.m_dTextAt = place;
      return RowIsFree(item) && TextIsClear(item);
    });
  }

  bool RowIsFree(const CRowItem& item) const {
    for (std::size_t i = 0; i < m_done; ++i) {
      const CRowItem& other = m_items[m_order[i]];
      if (other.m_nRow != item.m_nRow) continue;
      // Lines of a chain may touch; texts keep their distance.
      if (WholeSpan(item).Meets(WholeSpan(other), -0.01)) return false;
      if (TextSpan(item).Meets(TextSpan(other), kGap)) return false;
    }
    return true;
  }

  // No extension line of an item farther out and no other line passes the text.
  bool TextIsClear(const CRowItem& item) const {
    const CSpan text = TextSpan(item);
    for (std::size_t i = 0; i < m_order.size(); ++i) {
      const CRowItem& other = m_items[m_order[i]];
      const bool inside = i < m_done && other.m_nRow <= item.m_nRow;
      if (i == m_done || inside) continue;
      if (text.Holds(other.m_dLow, 1) || text.Holds(other.m_dHigh, 1)) return false;
    }
    return std::none_of(m_range.m_arrBar.begin(), m_range.m_arrBar.end(),
                        [&](double bar) { return text.Holds(bar, 2); });
  }

  std::vector<CRowItem>& m_items;
  const CRowRange& m_range;
  double m_dEnd;                     // beyond it nothing crosses the rows
  std::vector<std::size_t> m_order;  // shortest first
  std::size_t m_done = 0;            // number of m_order already placed
};

}  // namespace

int PlaceInRows(std::vector<CRowItem>& items, const CRowRange& range) {
  return CRowPlacer(items, range).Place();
}

}  // namespace orv3
