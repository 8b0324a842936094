#include "members/slenderness_steps.h"

#include <algorithm>

namespace orv3 {

void GiveSlendernesses(CMemberAnswer& answer, double lx, double ly, double rx, double ry) {
  CMemberResults& r = answer.m_results;
  r.m_dLambdaX = lx / rx;
  r.m_dLambdaY = ly / ry;
  answer.Step("l0x", nullptr, lx, "mm");
  answer.Step("l0y", nullptr, ly, "mm");
  answer.Step("ix", nullptr, rx, "mm");
  answer.Step("iy", nullptr, ry, "mm");
  answer.Step("λx", "{l0x}/{ix}", r.m_dLambdaX);
  answer.Step("λy", "{l0y}/{iy}", r.m_dLambdaY);
}

double TakenLimit(CMemberAnswer& answer, double given, double ofCode, double greatest) {
  if (given == 0) return ofCode;
  if (given > greatest) answer.Note(CMemberNote::LimitBeyond);
  return std::min(given, greatest);
}

}  // namespace orv3
