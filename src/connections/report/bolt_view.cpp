#include "connections/report/bolt_view.h"

namespace orv3 {
namespace {

std::vector<double> Each(const CSpacing& spacing, int count) {
  return spacing.m_arrEach.empty()
             ? std::vector<double>(static_cast<std::size_t>(count), spacing.m_dUniform)
             : spacing.m_arrEach;
}

}  // namespace

CBoltView::CBoltView(const CBoltCase& input, const CBoltCheck& check)
    : m_input(input),
      m_results(check.Results()),
      m_judged(check.Figures()),
      m_answer(check),
      m_arrCol(Each(input.m_colSpace, input.m_nCols - 1)),
      m_arrRow(Each(input.m_rowSpace, input.m_nRows - 1)) {
  PlaceBolts(input.m_nLayout == 1, m_arrCol, m_arrRow, m_shape);
}

CBoltView::CBoltView(const CBoltCase2017& input, const CBoltCheck2017& check)
    : m_input(input),
      m_results(check.Results()),
      m_judged(check.Figures()),
      m_answer(check),
      m_shape(check.Shape()),
      m_arrCol(Each(input.m_colSpace, input.m_nCols - 1)),
      m_arrRow(Each(input.m_rowSpace, input.m_nRows - 1)),
      m_pInput2017(&input),
      m_p2017(&check) {}

}  // namespace orv3
