#include "exact_view.h"

#include <cmath>

#include "framework/language.h"
#include "outlines/exact_keys.h"
#include "text_table.h"

namespace orv3::cli {
namespace {

// Why figures are missing, or less than they are elsewhere.
std::vector<std::string> ExactNotes(const CExactProperties& exact) {
  if (std::isnan(exact.It)) {
    return {Say("-：没有轮廓，或板件重叠、仅在一线相接，轮廓不能确定",
                "-: there is no outline, or its plates overlap or meet in an edge without width")};
  }
  if (!exact.m_bJoined) {
    return {Say("各部分沿长度方向不相连：It 为各部分之和，-：无此量",
                "The parts are not joined along their length: It is the sum of theirs, -: there is "
                "no such figure")};
  }
  if (!exact.m_bAccurate) {
    return {Say("求解未达到精度要求：It、Iw、剪心、受剪面积和 β 为所达到的值",
                "The solver's limits of error were not reached: It, Iw, shear centre, shear areas "
                "and β are what was reached")};
  }
  return {};
}

// Figures that rounding keeps from 0 are 0 to a reader.
double Shown(const CExactProperties& exact, const CExactKey& key) {
  const double value = exact.*key.m_pField;
  if (key.m_pField == &CExactProperties::Ixy && std::fabs(value) < 1e-9 * exact.I1) return 0;
  const bool beta =
      key.m_pField == &CExactProperties::betax || key.m_pField == &CExactProperties::betay;
  return beta && std::fabs(value) < 1e-9 * exact.i1 ? 0 : value;
}

}  // namespace

CJson ExactJson(const CExactProperties& exact) {
  CJson json = CJson::object();
  for (const CExactKey& key : ExactKeys()) json[key.m_szKey] = JsonNumber(exact.*key.m_pField);
  return json;
}

void PrintExact(const CExactProperties& exact) {
  Print(Say("\n由轮廓精确计算（原点为外接矩形左下角）\n\n",
            "\nExact, from the outline itself (origin at the lower left corner of its box)\n\n"));
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  for (const CExactKey& key : ExactKeys()) {
    table.AddRow({key.m_szTitle, key.m_szKey, NumberText(Shown(exact, key)), key.m_szUnit,
                  Say({"", key.m_szMeaning})});
  }
  Print(table.Text());
  for (const std::string& note : ExactNotes(exact)) Print("\n" + note + "\n");
}

}  // namespace orv3::cli
