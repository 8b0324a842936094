// What the report of a bolt group shows, of either edition.
#pragma once

#include <span>
#include <vector>

#include "connections/bolt_shape.h"
#include "connections/cases/bolt_case.h"
#include "connections/gb2017/bolt_case.h"

namespace orv3 {

struct CBoltView {
  explicit CBoltView(const CBoltCase& input, const CBoltCheck& check);
  explicit CBoltView(const CBoltCase2017& input, const CBoltCheck2017& check);

  bool Is2017() const noexcept { return m_p2017 != nullptr; }

  const CBoltCase& m_input;
  const CBoltResults& m_results;
  const CBoltFigures& m_judged;
  const CCaseAnswer& m_answer;
  CBoltShape m_shape;
  std::vector<double> m_arrCol;  // spacings, each
  std::vector<double> m_arrRow;
  const CBoltCase2017* m_pInput2017 = nullptr;  // null by 2003
  const CBoltCheck2017* m_p2017 = nullptr;
};

}  // namespace orv3
