#include "connections/cases/case_rules.h"

#include <cstdlib>

#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {

const char* const kSteels[4] = {"Q235", "Q345", "Q390", "Q420"};

std::string PlainNumber(double value) {
  const double size = std::fabs(value);
  if (!std::isfinite(value) || size >= 1e9 || (size != 0 && size < 1e-4))
    return ToUtf8(FormatG(value));
  const int decimals = size >= 1000 ? 0 : size >= 100 ? 1 : size >= 10 ? 2 : size >= 1 ? 3 : 4;
  std::string text = ToUtf8(FormatFixed(value, decimals));
  if (text.find('.') != std::string::npos) {
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

const CCasePart& WorstPart(std::span<const CCasePart> parts) {
  const CCasePart* worst = &parts.front();
  for (const CCasePart& part : parts) {
    if (std::isnan(worst->m_dUtilisation)) break;
    if (!(part.m_dUtilisation <= worst->m_dUtilisation)) worst = &part;
  }
  return *worst;
}

void CFaultList::Positive(const char* key, double value, const char* unit) {
  if (!std::isfinite(value)) {
    Finite(key, value);
  } else if (value <= 0) {
    NotPossible(
        key, PlainNumber(value),
        {std::string("请给出大于 0 的数值 ") + unit, std::string("give more than 0 ") + unit});
  }
}

void CFaultList::Within(const char* key, int value, int first, int last) {
  if (value >= first && value <= last) return;
  const std::string from = std::to_string(first);
  const std::string to = std::to_string(last);
  NotPossible(key, std::to_string(value),
              {"请给出 " + from + " 至 " + to + " 的整数",
               "give a whole number from " + from + " to " + to});
}

void WarnOfWeldLoads(int loadCase, double N, double M, double V,
                     std::vector<CCaseWarning>& warnings) {
  const auto leftOut = [&](const char* key, double load, bool bTaken) {
    if (bTaken || load == 0) return;
    const std::string number = std::to_string(loadCase);
    warnings.push_back(
        {key,
         {std::string(key) + " 不为 0，但工况 " + number + " 的验算不计入它；请选用计入它的工况。",
          std::string(key) + " is not 0, but load case " + number +
              " leaves it out; choose a load case that takes it."}});
  };
  leftOut("N", N, TakesN(loadCase));
  leftOut("M", M, TakesM(loadCase));
  leftOut("V", V, TakesV(loadCase));
  if (TakesN(loadCase) && TakesM(loadCase) && ((N < 0 && M > 0) || (N > 0 && M < 0))) {
    warnings.push_back({"M",
                        {"N 与 M 异号：应力按代数和计算，未验算另一边缘的 |N/A| + |M/W|；"
                         "请以同号的 M 再算一次。",
                         "N and M have opposite signs: their stresses are added with signs, and "
                         "|N/A| + |M/W| at the other edge is not checked; run it again with M of "
                         "the sign of N."}});
  }
}

}  // namespace orv3
