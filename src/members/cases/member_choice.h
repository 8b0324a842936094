// The lightest of many sections that pass one case or every case of several.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "members/cases/member_case.h"

namespace orv3 {

// A row of the store that is tried; one that cannot be such a member keeps its fault.
struct CMemberCandidate {
  std::string m_strTable, m_strNo;
  double m_dMass = 0;  // kg/m, as printed, else 7850 kg/m3 times the area
  CMemberRow m_row;
  std::optional<CCaseFault> m_fault;
  bool m_bContradicts = false;  // the fault is that the row's figures are not those of its sizes
};

// Every row of a table of the store; none when there is no such table.
ORV3CAL_API std::vector<CMemberCandidate> MemberCandidates(const CString& table);
// The tables whose rows can be members, for "all".
ORV3CAL_API std::vector<CString> MemberTables();

struct CChosenMember {
  std::size_t m_nCandidate;
  double m_dRatio;  // the greatest over the cases
  CMemberCheckKind m_nGoverns;
  std::size_t m_nCase;  // that has it
};

// The first row of a table that could not be checked, and how many there are of it; or a row that
// contradicts itself, by itself.
struct CRefusedMember {
  std::size_t m_nCandidate;
  CCaseFault m_fault;
  std::size_t m_nRows;
};

struct CMemberChoice {
  std::size_t m_nTried = 0;    // candidates that could be checked for every case
  std::size_t m_nRefused = 0;  // those that could not
  // Those that pass, lightest first, the smaller ratio first among equals.
  std::vector<CChosenMember> m_arrChosen;
  // Those that contradict themselves, then one of each table.
  std::vector<CRefusedMember> m_arrRefused;
};

ORV3CAL_API CMemberChoice ChooseMember(std::span<const CMemberCase> cases,
                                       std::span<CMemberCandidate> candidates,
                                       CCodeEdition edition);

}  // namespace orv3
