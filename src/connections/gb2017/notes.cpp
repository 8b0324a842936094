#include "connections/gb2017/notes.h"

#include <cmath>
#include <string>

#include "connections/gb2017/fillet_size.h"
#include "framework/plain_number.h"

namespace orv3::gb2017 {

void NoteOfUnknownParts(const CLegs& legs, const CTextLiteral& remedy,
                        std::vector<CCaseWarning>& notes) {
  const auto note = [&](double hf, const CText& holds) {
    const std::string is = "hf = " + PlainNumber(hf) + " mm";
    notes.push_back(
        {legs.m_szKey,
         {is + " 适用于" + holds.m_strChinese + "；" + remedy.m_szChinese + "。",
          is + " is right for " + holds.m_strEnglish + "; " + remedy.m_szEnglish + "."}});
  };
  const double thickest = ThickestPart(legs.m_dLeast);
  if (thickest > 0 && std::isfinite(thickest)) {
    const std::string most = PlainNumber(thickest) + " mm";
    note(legs.m_dLeast, {"不厚于 " + most + " 的焊件（表 11.3.5）",
                         "parts up to " + most + " thick (Table 11.3.5)"});
  }
  if (!legs.m_bLap) return;
  const double hf = legs.m_dMost;
  const std::string least = PlainNumber(hf <= 6 ? hf : hf + 1) + " mm";
  note(hf, {"不薄于 " + least + " 的所沿棱边（11.3.6 条）",
            "an edge of at least " + least + " (11.3.6)"});
}

void NoteOfEdge(const CWeldFigures& judged, std::vector<CCaseWarning>& notes) {
  const double stress = judged.TensionGoverns() ? judged.m_dTension : -judged.m_dCompression;
  if (std::fabs(stress - judged.m_dSigma) <= 1e-9 * std::fabs(stress)) return;
  const std::string is = PlainNumber(stress) + " N/mm²";
  const std::string one = PlainNumber(judged.m_dSigma) + " N/mm²";
  notes.push_back(
      {"M",
       {"σ = N/A + M/W = " + one + " 之外的另一边缘起控制作用：N/A − M/W = " + is + "。",
        "The edge opposite to that of σ = N/A + M/W = " + one + " governs: N/A − M/W = " + is +
            "."}});
}

}  // namespace orv3::gb2017
