// A calculation report as one file: a sheet for each case, and a summary of them all.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "framework/export.h"
#include "framework/language.h"

namespace orv3 {

// What the head of a sheet tells besides the case; what is empty leaves room to write by hand.
struct CReportSheet {
  std::string m_strProject = {};
  std::string m_strDate = {};
  std::string m_strCalculated = {};  // by whom
  std::string m_strChecked = {};
  std::string m_strApproved = {};
};

// The keys of a case file that fill the head.
struct CSheetKey {
  const char* m_szKey;
  std::string CReportSheet::*m_pField;
};
inline constexpr CSheetKey kSheetKeys[] = {{"project", &CReportSheet::m_strProject},
                                           {"date", &CReportSheet::m_strDate},
                                           {"calculated", &CReportSheet::m_strCalculated},
                                           {"checked", &CReportSheet::m_strChecked},
                                           {"approved", &CReportSheet::m_strApproved}};

// One case of a report.
struct CReportCase {
  int m_nCase = 1;  // its place in the file, from 1
  std::string m_strId = {};
  CReportSheet m_sheet = {};
  std::string m_strRefused = {};  // why it was not computed; empty when it was
  bool m_bPass = false;
  double m_dUtilisation = 0;
  std::string m_strGoverns = {};
  std::size_t m_nWarnings = 0;
  std::string m_strBody = {};  // HTML of CReportBody, UTF-8; empty for a refused case
};

struct CReportTitle {
  std::string m_strTitle;
  std::string m_strVersion;  // of the program
};

// One self-contained file, printed on A4: of more than one case, or of a refused one, a summary of
// all verdicts, then a sheet for each that was computed. Every page bears its number and the case.
ORV3CAL_API std::string ReportDocument(const CReportTitle& title,
                                       std::span<const CReportCase> cases, CLanguage language);

}  // namespace orv3
