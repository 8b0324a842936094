#include "connections/cases/case_rules.h"

#include "catalogue/code_tables/thickness_group.h"
#include "connections/check_math.h"

namespace orv3 {

const char* const kSteels[4] = {"Q235", "Q345", "Q390", "Q420"};

void TooThick(const char* key, double thickness, const std::string& table, CFaultList& faults) {
  const CComparedText text = Compared(thickness, kThickestPlate);
  const std::string is = text.m_strEffect + " mm";
  const std::string most = PlainNumber(kThickestPlate) + " mm";
  faults.Add(key, {is + " 超出表 " + table, is + " is beyond Table " + table},
             {"请给不大于 " + most, "give at most " + most});
}

void NoLoadFault(const char* key, CFaultList& faults) {
  faults.Add(key, {"没有荷载，无可验算", "no load is given: nothing to check"},
             {"请给至少一个不为 0 的荷载", "give at least one load that is not 0"});
}

void DroppedLoadFaults(int loadCase, double N, double M, double V, CFaultList& faults) {
  const auto dropped = [&](const std::string& key, double load, bool bTaken,
                           const std::string& cases) {
    if (bTaken || std::fabs(load) <= kCheckTolerance || !std::isfinite(load)) return;
    const std::string is = PlainNumber(load);
    const std::string number = std::to_string(loadCase);
    faults.Add(key,
               {is + " 不为工况 " + number + " 所计入", is + " is left out by load case " + number},
               {"请给 0，或选用计入 " + key + " 的工况：" + cases,
                "give 0, or a load case that takes " + key + ": " + cases});
  };
  if (IsZero(N) && IsZero(M) && IsZero(V)) return NoLoadFault(TakesN(loadCase) ? "N" : "V", faults);
  dropped("N", N, TakesN(loadCase), "0, 1, 2, 4, 5");
  dropped("M", M, TakesM(loadCase), "1, 2, 3, 4, 5");
  dropped("V", V, TakesV(loadCase), "3, 4, 5");
}

void WarnOfOther(const char* key, const CTextLiteral& what, double record, double judged,
                 const CTextLiteral& why, std::vector<CCaseWarning>& warnings) {
  if (std::fabs(record - judged) <= 1e-9 * std::fabs(judged)) return;
  const auto [was, is] = Apart(record, judged);
  warnings.push_back({key,
                      {std::string(what.m_szChinese) + "初算为 " + was + " N/mm²；按 " + is +
                           " N/mm² 验算：" + why.m_szChinese + "。",
                       std::string("The record's ") + what.m_szEnglish + " is " + was +
                           " N/mm²; judged by " + is + " N/mm²: " + why.m_szEnglish + "."}});
}

}  // namespace orv3
