// The lightest of many sections that pass one case or every case of several.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "members/cases/member_case.h"
#include "sections/section_style.h"

namespace orv3 {

// A row of the store, or a section of a style, that is tried; one that cannot be such a member
// keeps its fault.
struct CMemberCandidate {
  std::string m_strTable, m_strNo;  // of a style its alias, and its sizes with spaces between
  std::vector<double> m_arrSize;    // mm, of a style
  double m_dMass = 0;               // kg/m, as printed, else 7850 kg/m3 times the area
  CMemberRow m_row;
  std::optional<CCaseFault> m_fault;
  bool m_bContradicts = false;  // the fault is that the row's figures are not those of its sizes
};

// Every row of a table of the store; none when there is no such table. Pairs stand `gap` mm apart,
// NaN: as the table has them.
ORV3CAL_API std::vector<CMemberCandidate> MemberCandidates(const CString& table, double gap);
// A section of a style by its sizes, mm.
ORV3CAL_API CMemberCandidate StyleCandidate(const CSectionStyle& style,
                                            const std::vector<double>& sizes);
// The tables whose rows can be members; a store need not have each.
ORV3CAL_API std::vector<CString> MemberTables();
// Every row of them but the samples with which tables of own sections begin.
ORV3CAL_API std::vector<CMemberCandidate> AllMemberCandidates(double gap);

struct CChosenMember {
  std::size_t m_nCandidate;
  double m_dRatio;  // the greatest over the cases
  CMemberCheckKind m_nGoverns;
  std::size_t m_nCase;  // that has it
  bool m_bPass;
  std::vector<CMemberNote> m_arrNote;  // of all cases, each once
};

// The first row of a table that could not be checked, and how many there are of it; or a row that
// contradicts itself, by itself.
struct CRefusedMember {
  std::size_t m_nCandidate;
  std::optional<std::size_t> m_case;  // that refused it; none for a row that is no member
  CCaseFault m_fault;
  std::size_t m_nRows;
};

struct CMemberChoice {
  std::size_t m_nTried = 0;    // candidates that could be checked for every case
  std::size_t m_nRefused = 0;  // those that could not
  // Those that pass, lightest first, the smaller ratio first among equals.
  std::vector<CChosenMember> m_arrChosen;
  std::vector<CChosenMember> m_arrFailing;  // those that do not, as they were tried
  // Those that contradict themselves, then one of each table.
  std::vector<CRefusedMember> m_arrRefused;
};

// The edition by which all cases are checked, `otherwise` where they name none. A choice is by one:
// the fault names "code".
ORV3CAL_API std::optional<CCaseFault> ReadChoiceEdition(std::span<const CMemberCase> cases,
                                                        CCodeEdition otherwise,
                                                        CCodeEdition& edition);
// The gap of pairs, mm, that all cases give, NaN for none. It is one: the fault names
// "section.gap".
ORV3CAL_API std::optional<CCaseFault> ReadChoiceGap(std::span<const CMemberCase> cases,
                                                    double& gap);

// What to know of those that fail: their whole ratio, or but that one check is above 1. Torsion
// takes milliseconds of a section of a style, and adds to no ratio that fails without it.
enum class CFailingRatio { Whole, AnyAboveOne };

ORV3CAL_API CMemberChoice ChooseMember(std::span<const CMemberCase> cases,
                                       std::span<CMemberCandidate> candidates, CCodeEdition edition,
                                       CFailingRatio failing = CFailingRatio::Whole);

}  // namespace orv3
