#include "members/cases/member_choice.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "catalogue/outline/row_spacing.h"
#include "codes/edition.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/default_row.h"
#include "sections/section_kind.h"
#include "sections/system_tables.h"
#include "tables/edit_state.h"

namespace orv3 {
namespace {

double MassOf(const CDataItem& row, const CMemberRow& member) {
  const int cell = row.GetSignIndex(L"G(kg/m)");
  const double printed = cell < 0 ? 0 : ToDouble(row[cell].m_strValue);
  return printed > 0 ? printed : 7850e-6 * member.m_section.m_dA;
}

// The row with which a table of own sections begins, untouched.
bool IsSample(const CDataItem& row) {
  CDataItem sample;
  sample.m_strTableName = row.m_strTableName;
  if (DefaultSectionRow(sample) == 0 || sample.GetItemLength() != row.GetItemLength()) return false;
  for (int i = 0; i < row.GetItemLength(); ++i) {
    if (!(row[i].m_strValue == std::as_const(sample)[i].m_strValue)) return false;
  }
  return true;
}

// The worst of all cases; nothing for a candidate that one of them refuses.
std::optional<CChosenMember> Worst(CMemberCheck& check, std::span<const CMemberCase> cases,
                                   CMemberCandidate& candidate, std::size_t& refusing) {
  CChosenMember worst{0, -1, CMemberCheckKind::Strength, 0, true, {}};
  for (std::size_t i = 0; i < cases.size(); ++i) {
    if (!check.Run(cases[i], candidate.m_row)) {
      refusing = i;
      return std::nullopt;
    }
    worst.m_bPass = worst.m_bPass && check.Pass();
    for (const CMemberNote note : check.Answer().Notes()) {
      if (std::find(worst.m_arrNote.begin(), worst.m_arrNote.end(), note) == worst.m_arrNote.end())
        worst.m_arrNote.push_back(note);
    }
    const CMemberCheckPart& part = check.Answer().Worst();
    if (part.m_dRatio <= worst.m_dRatio) continue;
    worst.m_dRatio = part.m_dRatio;
    worst.m_nGoverns = part.m_nKind;
    worst.m_nCase = i;
  }
  return worst;
}

// A section in front of its torsion: as stiff against it as can be, which lowers every ratio.
CMemberCandidate WithoutTorsion(const CMemberCandidate& candidate) {
  CMemberCandidate stiff = candidate;
  stiff.m_row.m_section.m_dIt = 1e30;
  stiff.m_row.m_section.m_dIw = stiff.m_row.m_section.m_dXs = stiff.m_row.m_section.m_dYs = 0;
  stiff.m_row.m_bExact = true;
  return stiff;
}

void AddRefused(std::vector<CRefusedMember>& refused, std::span<const CMemberCandidate> candidates,
                std::size_t index, const CMemberCheck& check, std::size_t refusing) {
  const CMemberCandidate& candidate = candidates[index];
  if (refused.empty() || candidate.m_bContradicts ||
      candidates[refused.back().m_nCandidate].m_strTable != candidate.m_strTable) {
    if (candidate.m_fault) {
      refused.push_back({index, std::nullopt, *candidate.m_fault, 0});
    } else {
      refused.push_back({index, refusing, check.Fault(), 0});
    }
  }
  ++refused.back().m_nRows;
}

}  // namespace

std::vector<CMemberCandidate> MemberCandidates(const CString& table, double gap) {
  std::vector<CMemberCandidate> candidates;
  const auto read = SystemTable(ServingStore(), table);
  if (!read) return candidates;
  const bool bGap = !std::isnan(gap) && !PairSpacingSign(table).IsEmpty();
  for (const CDataItem& row : read->Table().m_arrItem) {
    const int no = row.GetSignIndex(L"No.");
    if (IsDeleted(row.m_nModifyType) || no < 0) continue;
    CMemberCandidate& candidate = candidates.emplace_back();
    candidate.m_strTable = ToUtf8(table);
    candidate.m_strNo = ToUtf8(row[no].m_strValue);
    const CDataItem pair = bGap ? WithPairSpacing(row, static_cast<int>(gap)) : CDataItem();
    candidate.m_fault = ReadMemberRow(bGap ? pair : row, candidate.m_row);
    candidate.m_bContradicts = candidate.m_fault && Contradicting(row);
    candidate.m_dMass = MassOf(row, candidate.m_row);
  }
  return candidates;
}

CMemberCandidate StyleCandidate(const CSectionStyle& style, const std::vector<double>& sizes) {
  CMemberCandidate candidate;
  candidate.m_strTable = style.m_szAlias;
  candidate.m_arrSize = sizes;
  for (const double size : sizes)
    candidate.m_strNo += (candidate.m_strNo.empty() ? "" : " ") + ToUtf8(FormatShortest(size));
  const CDataItem row = SizesRow(style, sizes, candidate.m_fault);
  if (!candidate.m_fault) candidate.m_fault = ReadMemberRow(row, candidate.m_row);
  if (!candidate.m_fault) candidate.m_dMass = MassOf(row, candidate.m_row);
  return candidate;
}

std::vector<CString> MemberTables() {
  std::vector<CString> tables;
  for (const CSectionTable& table : SectionTables()) {
    if (IsMemberKind(table.m_kind)) tables.emplace_back(table.m_szName);
  }
  return tables;
}

std::vector<CMemberCandidate> AllMemberCandidates(double gap) {
  std::vector<CMemberCandidate> candidates;
  for (const CString& table : MemberTables()) {
    std::vector<CMemberCandidate> rows = MemberCandidates(table, gap);
    std::erase_if(rows, [](const CMemberCandidate& each) { return IsSample(each.m_row.m_row); });
    std::move(rows.begin(), rows.end(), std::back_inserter(candidates));
  }
  return candidates;
}

std::optional<CCaseFault> ReadChoiceEdition(std::span<const CMemberCase> cases,
                                            CCodeEdition otherwise, CCodeEdition& edition) {
  for (std::size_t i = 0; i < cases.size(); ++i) {
    CCodeEdition own = otherwise;
    if (!cases[i].m_strCode.empty()) {
      const auto named = EditionByYear(cases[i].m_strCode);
      if (!named) return CCaseFault{"code", named.Refusal().m_what, named.Refusal().m_right};
      own = *named;
    }
    if (i > 0 && own != edition) {
      return CCaseFault{"code",
                        {"各算例的版本不同", "is not the same of all cases"},
                        {"请用一个版本选取", "choose by one edition"}};
    }
    edition = own;
  }
  return std::nullopt;
}

std::optional<CCaseFault> ReadChoiceGap(std::span<const CMemberCase> cases, double& gap) {
  gap = CMemberCase::kNone;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    const double own = cases[i].m_dGap;
    if (!std::isnan(own) && !IsPairGap(own)) return PairGapFault();
    if (i > 0 && own != gap && !(std::isnan(own) && std::isnan(gap))) {
      return CCaseFault{"section.gap",
                        {"各算例的间距不同", "is not the same of all cases"},
                        {"请给出一个间距", "give one gap"}};
    }
    gap = own;
  }
  return std::nullopt;
}

CMemberChoice ChooseMember(std::span<const CMemberCase> cases,
                           std::span<CMemberCandidate> candidates, CCodeEdition edition,
                           CFailingRatio failing) {
  CMemberChoice choice;
  std::vector<CRefusedMember> contradicting;
  CMemberCheck check;
  check.SetEdition(edition);
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    CMemberCandidate& candidate = candidates[i];
    std::size_t refusing = 0;
    std::optional<CChosenMember> worst;
    if (!candidate.m_fault && !candidate.m_arrSize.empty() &&
        failing == CFailingRatio::AnyAboveOne) {
      CMemberCandidate stiff = WithoutTorsion(candidate);
      worst = Worst(check, cases, stiff, refusing);
      if (worst && worst->m_bPass) worst.reset();
    }
    if (!candidate.m_fault && !worst) worst = Worst(check, cases, candidate, refusing);
    if (!worst) {
      ++choice.m_nRefused;
      AddRefused(candidate.m_bContradicts ? contradicting : choice.m_arrRefused, candidates, i,
                 check, refusing);
      continue;
    }
    ++choice.m_nTried;
    worst->m_nCandidate = i;
    (worst->m_bPass ? choice.m_arrChosen : choice.m_arrFailing).push_back(*std::move(worst));
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
