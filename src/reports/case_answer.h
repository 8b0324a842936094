// What every check of a case hands out: why the case is refused, or the parts of its verdict and
// what to look at. The verdict is made here and nowhere else: commands, tables, reports and
// interfaces ask it.
#pragma once

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "framework/export.h"
#include "reports/case_keys.h"

namespace orv3 {

// One part of a verdict.
struct CCasePart {
  CTextLiteral m_name;
  const char* m_szKey;    // names it in answers for programs: "bearing"
  double m_dUtilisation;  // effect over resistance
  bool m_bPass;
  bool m_bDetail = false;  // a rule of detailing, which governs only where it is not kept
};

// The worst of the parts: the greatest utilisation, a NaN before all. A rule of detailing that is
// kept is left out.
ORV3CAL_API const CCasePart& WorstPart(std::span<const CCasePart> parts);

class ORV3CAL_API CCaseAnswer {
 public:
  const std::vector<CCaseFault>& Faults() const noexcept { return m_arrFault; }
  const std::vector<CCaseWarning>& Warnings() const noexcept { return m_arrWarning; }
  const std::vector<CCasePart>& Parts() const noexcept { return m_arrPart; }
  // What the caller has to add to look at.
  void AddWarning(CCaseWarning warning) { m_arrWarning.push_back(std::move(warning)); }
  // Every part passes; false also of a refused case.
  bool Pass() const noexcept {
    return !m_arrPart.empty() && std::all_of(m_arrPart.begin(), m_arrPart.end(),
                                             [](const CCasePart& part) { return part.m_bPass; });
  }
  // The part with the greatest utilisation, which a NaN counts as. Only of a case that stands.
  const CCasePart& Worst() const { return WorstPart(m_arrPart); }

 protected:
  // Begins a case: true when `faults` refuse it.
  bool Refused(std::vector<CCaseFault> faults) {
    m_arrWarning.clear();
    m_arrPart.clear();
    m_arrFault = std::move(faults);
    return !m_arrFault.empty();
  }

  // A part passes when its effect is at most its resistance, but for the last digits of a double;
  // `bRecord` false fails it besides. Of a part that passes the utilisation is at most 1, of one
  // that fails above 1.
  void Judge(CTextLiteral name, const char* key, double utilisation, bool bRecord = true) {
    constexpr double kLastDigits = 1e-9;
    const bool bPass = bRecord && utilisation <= 1 + kLastDigits;
    if (bPass) utilisation = std::min(utilisation, 1.0);
    if (!bPass && utilisation <= 1) utilisation = std::nextafter(1.0, 2.0);
    m_arrPart.push_back({name, key, utilisation, bPass});
  }

  // A rule of detailing: the verdict needs it, the utilisation leaves it out while it is kept.
  void JudgeDetail(CTextLiteral name, const char* key, double utilisation) {
    Judge(name, key, utilisation);
    m_arrPart.back().m_bDetail = true;
  }

  void Warn(std::vector<CCaseWarning> warnings) { m_arrWarning = std::move(warnings); }

 private:
  std::vector<CCaseFault> m_arrFault;
  std::vector<CCaseWarning> m_arrWarning;
  std::vector<CCasePart> m_arrPart;
};

}  // namespace orv3
