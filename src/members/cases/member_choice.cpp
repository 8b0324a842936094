#include "members/cases/member_choice.h"

#include <algorithm>
#include <cmath>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

double MassOf(const CDataItem& row, const CMemberRow& member) {
  const int cell = row.GetSignIndex(L"G(kg/m)");
  const double printed = cell < 0 ? 0 : ToDouble(row[cell].m_strValue);
  return printed > 0 ? printed : 7850e-6 * member.m_section.m_dA;
}

// The worst of all cases; nothing for a candidate that one of them refuses.
std::optional<CChosenMember> Worst(CMemberCheck& check, std::span<const CMemberCase> cases,
                                   CMemberCandidate& candidate, bool& bPass) {
  CChosenMember worst{0, -1, CMemberCheckKind::Strength, 0};
  bPass = true;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    if (!check.Run(cases[i], candidate.m_row)) return std::nullopt;
    bPass = bPass && check.Pass();
    const CMemberCheckPart& part = check.Answer().Worst();
    if (part.m_dRatio <= worst.m_dRatio) continue;
    worst = {0, part.m_dRatio, part.m_nKind, i};
  }
  return worst;
}

}  // namespace

std::vector<CMemberCandidate> MemberCandidates(const CString& table) {
  CStringArray numbers;
  std::vector<CMemberCandidate> candidates;
  if (CLoadDataTable::GetSysTemItemNo(table, numbers) == 0) return candidates;
  for (const CString& no : numbers) {
    const CDataItem row = CLoadDataTable::GetSysTemJMItem(table, no);
    CMemberCandidate candidate;
    candidate.m_strTable = ToUtf8(table);
    candidate.m_strNo = ToUtf8(no);
    candidate.m_fault = ReadMemberRow(row, candidate.m_row);
    candidate.m_bContradicts = candidate.m_fault && Contradicting(row);
    candidate.m_dMass = MassOf(row, candidate.m_row);
    candidates.push_back(std::move(candidate));
  }
  return candidates;
}

std::vector<CString> MemberTables() {
  using K = CSectionKind;
  std::vector<CString> tables;
  for (const K kind :
       {K::OrdinaryI,    K::LightI,       K::WeldedH,       K::LightWeldedH,    K::WideH,
        K::NarrowH,      K::SquareTube,   K::SplitT,        K::OrdinaryChannel, K::LightChannel,
        K::RoundTube,    K::EqualAngle,   K::UnequalAngle,  K::EqualAnglePair,  K::LongLegPair,
        K::ShortLegPair, K::PlateH,       K::PlateGeneralH, K::PlateBox,        K::PlateGeneralBox,
        K::PlateT,       K::PlateChannel, K::PlateTube,     K::SolidCircle,     K::SolidRectangle,
        K::SolidHexagon, K::SolidTriangle}) {
    tables.emplace_back(TableOf(kind).m_szName);
  }
  return tables;
}

CMemberChoice ChooseMember(std::span<const CMemberCase> cases,
                           std::span<CMemberCandidate> candidates, CCodeEdition edition) {
  CMemberChoice choice;
  std::vector<CRefusedMember> contradicting;
  CMemberCheck check;
  check.SetEdition(edition);
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    CMemberCandidate& candidate = candidates[i];
    bool bPass = false;
    auto worst = candidate.m_fault ? std::nullopt : Worst(check, cases, candidate, bPass);
    if (!worst) {
      ++choice.m_nRefused;
      auto& refused = candidate.m_bContradicts ? contradicting : choice.m_arrRefused;
      if (candidate.m_bContradicts || refused.empty() ||
          candidates[refused.back().m_nCandidate].m_strTable != candidate.m_strTable)
        refused.push_back({i, candidate.m_fault ? *candidate.m_fault : check.Fault(), 0});
      ++refused.back().m_nRows;
      continue;
    }
    ++choice.m_nTried;
    if (!bPass) continue;
    worst->m_nCandidate = i;
    choice.m_arrChosen.push_back(*worst);
  }
  choice.m_arrRefused.insert(choice.m_arrRefused.begin(), contradicting.begin(),
                             contradicting.end());
  std::stable_sort(choice.m_arrChosen.begin(), choice.m_arrChosen.end(),
                   [&](const CChosenMember& a, const CChosenMember& b) {
                     const double left = candidates[a.m_nCandidate].m_dMass;
                     const double right = candidates[b.m_nCandidate].m_dMass;
                     return left != right ? left < right : a.m_dRatio < b.m_dRatio;
                   });
  return choice;
}

}  // namespace orv3
