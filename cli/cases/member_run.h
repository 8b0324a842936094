// A member checked by one edition of the design code, and its answers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cases/member_reader.h"
#include "members/cases/member_envelope.h"
#include "output/output.h"

namespace orv3::cli {

class CMemberRun {
 public:
  CMemberRun(CCodeEdition edition, CLanguage language) : m_nLanguage(language) {
    m_check.SetEdition(edition);
  }

  // `read`: why the member could not be read, if so.
  void Run(const CReadMember& member, const std::optional<CCaseFault>& read);
  // Of a member that names no edition, or one of both.
  const CCaseFault* Fault() const noexcept { return m_fault ? &*m_fault : nullptr; }
  bool Pass() const noexcept { return !m_fault && m_envelope.Pass(); }
  double Worst() const;  // the greatest ratio; infinite for a refused member

  static std::string CsvHead();
  void AppendCsv(int number, std::string& lines) const;
  CJson Json() const;
  std::string Text() const;
  std::vector<std::string> Row(int number) const;
  CReportCase Report(int number, CLanguage language) const;

 private:
  const CMemberAnswer& Answer() const { return m_envelope.Worst(); }
  const char* Year() const;
  std::string CaseName(std::size_t index) const { return m_pMember->m_arrCase[index].m_strId; }
  std::string CaseNames(const std::vector<std::size_t>& indices) const;
  std::string NoteText(const CMemberEnvelope::CNoted& noted) const;
  std::string NoteLine() const;
  std::string Combinations() const;
  std::string Governs(const char* name) const;
  CJson CasesJson() const;

  const CLanguage m_nLanguage;
  CMemberCheck m_check;
  CMemberEnvelope m_envelope;
  const CReadMember* m_pMember = nullptr;
  std::optional<CCaseFault> m_fault;
};

}  // namespace orv3::cli
