#include "connections/cases/case_rules.h"

#include "catalogue/code_tables/thickness_group.h"
#include "connections/check_math.h"
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

std::string PercentNumber(double utilisation) {
  const double percent = 100 * std::fabs(utilisation);
  std::string text = PlainNumber(std::round(10 * percent) / 10);
  for (int digits = 2; percent > 100 && text == "100" && digits < 16; ++digits) {
    const std::string longer = ToUtf8(FormatFixed(percent, digits));
    if (longer.find_first_not_of("0", 4) != std::string::npos) text = longer;
  }
  return text;
}

CComparedText Compared(double effect, double limit) {
  return effect > limit ? Apart(effect, limit)
                        : CComparedText{PlainNumber(effect), PlainNumber(limit)};
}

CComparedText Apart(double one, double other) {
  CComparedText text = {PlainNumber(one), PlainNumber(other)};
  for (int digits = 1; one != other && text.m_strEffect == text.m_strLimit && digits < 16;
       ++digits) {
    text = {ToUtf8(FormatFixed(one, digits)), ToUtf8(FormatFixed(other, digits))};
  }
  return text;
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

void TooThick(const char* key, double thickness, const std::string& table, CFaultList& faults) {
  const CComparedText text = Compared(thickness, kThickestPlate);
  const std::string is = text.m_strEffect + " mm";
  const std::string most = PlainNumber(kThickestPlate) + " mm";
  faults.Add(key, {is + " 超出表 " + table, is + " is beyond Table " + table},
             {"请给不大于 " + most, "give at most " + most});
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
  dropped("N", N, TakesN(loadCase), "0, 1, 2, 4, 5");
  dropped("M", M, TakesM(loadCase), "1, 2, 3, 4, 5");
  dropped("V", V, TakesV(loadCase), "3, 4, 5");
}

void WarnOfOther(const char* key, const CTextLiteral& what, double record, double judged,
                 const CTextLiteral& why, std::vector<CCaseWarning>& warnings) {
  if (std::fabs(record - judged) <= 1e-9 * std::fabs(judged)) return;
  const auto [was, is] = Apart(record, judged);
  warnings.push_back({key,
                      {std::string("记录的") + what.m_szChinese + "为 " + was + " N/mm²；按 " + is +
                           " N/mm² 验算：" + why.m_szChinese + "。",
                       std::string("The record's ") + what.m_szEnglish + " is " + was +
                           " N/mm²; judged by " + is + " N/mm²: " + why.m_szEnglish + "."}});
}

}  // namespace orv3
