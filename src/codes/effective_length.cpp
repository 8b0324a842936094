#include "codes/effective_length.h"

#include <cmath>

#include "catalogue/code_tables/table_search.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

// Table E.0.N of 2017 is Table D-N of 2003.
CCodeSource TableSource(CCodeEdition edition, int number) noexcept {
  static constexpr CTextLiteral k2003[] = {{"表 D-1", "Table D-1"}, {"表 D-2", "Table D-2"},
                                           {"表 D-3", "Table D-3"}, {"表 D-4", "Table D-4"},
                                           {"表 D-5", "Table D-5"}, {"表 D-6", "Table D-6"}};
  static constexpr CTextLiteral k2017[] = {{"附录 E 表 E.0.1", "Appendix E, Table E.0.1"},
                                           {"附录 E 表 E.0.2", "Appendix E, Table E.0.2"},
                                           {"附录 E 表 E.0.3", "Appendix E, Table E.0.3"},
                                           {"附录 E 表 E.0.4", "Appendix E, Table E.0.4"},
                                           {"附录 E 表 E.0.5", "Appendix E, Table E.0.5"},
                                           {"附录 E 表 E.0.6", "Appendix E, Table E.0.6"}};
  return {edition, (edition == CCodeEdition::Gb2003 ? k2003 : k2017)[number - 1]};
}

}  // namespace

CCodeAnswer<double> FrameColumnMu(CCodeEdition edition, bool bSway, double k1, double k2) {
  static const CText kRight = {"请给出不小于 0 的数", "give a number not below 0"};
  if (!(k1 >= 0)) return NotPossible("k1", k1, kRight);
  if (!(k2 >= 0)) return NotPossible("k2", k2, kRight);
  double mu = 0;
  if (bSway) {
    CTableSearch::SearchSub17(k1, k2, mu);
    // The table's first cell is infinite, and so is every value between it and its neighbours.
    if (k1 < 0.05 && k2 < 0.05) mu = HUGE_VAL;
  } else {
    CTableSearch::SearchSub16(k1, k2, mu);
  }
  return {mu, TableSource(edition, bSway ? 2 : 1)};
}

CCodeAnswer<double> SingleSteppedMu2(CCodeEdition edition, CSteppedTop top, double eta1,
                                     double k1) {
  constexpr double kLargest = 1000;
  static constexpr CTextLiteral kByEquation = {
      "按表下公式；表中 η1 为 0.2 至 3.0，K1 为 0.06 至 0.8",
      "by the equation under the table, whose figures are for η1 0.2 to 3.0 and K1 0.06 to 0.8"};
  if (!(eta1 > 0 && eta1 <= kLargest)) return NotPossible("eta1", eta1, AboveZero(kLargest));
  if (!(k1 > 0 && k1 <= kLargest)) return NotPossible("k1", k1, AboveZero(kLargest));
  const bool bFree = top == CSteppedTop::Free;
  CCodeSource source = TableSource(edition, bFree ? 3 : 4);
  if (!IsWithinSingleStepped(eta1, k1)) {
    source.m_nStatus = CFigureStatus::Derived;
    source.m_pNote = &kByEquation;
    return {SingleSteppedMu(top, eta1, k1), source};
  }
  double mu = 0;
  bFree ? CTableSearch::SearchSub18(eta1, k1, mu) : CTableSearch::SearchSub19(eta1, k1, mu);
  return {mu, source};
}

CCodeAnswer<double> DoubleSteppedMu3(CCodeEdition edition, CSteppedTop top, double eta1,
                                     double eta2, double k1, double k2) {
  struct CRange {
    const char* m_szArgument;
    double m_dValue, m_dLeast, m_dMost;
  };
  const CRange ranges[] = {{"eta1", eta1, 0.2, 1.8},
                           {"eta2", eta2, 0.2, 1.2},
                           {"k1", k1, 0.05, 0.3},
                           {"k2", k2, 0.2, 1.2}};
  for (const CRange& range : ranges) {
    if (!(range.m_dValue >= range.m_dLeast && range.m_dValue <= range.m_dMost))
      return NotPossible(range.m_szArgument, range.m_dValue, FromTo(range.m_dLeast, range.m_dMost));
  }
  const bool bFree = top == CSteppedTop::Free;
  double mu = 0;
  bFree ? CTableSearch::SearchSub20(eta1, eta2, k1, k2, mu)
        : CTableSearch::SearchSub21(eta1, eta2, k1, k2, mu);
  return {mu, TableSource(edition, bFree ? 5 : 6)};
}

}  // namespace orv3
