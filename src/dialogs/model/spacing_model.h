// CSpacingModel: asks for the spacing of the components of a combined section (CSteelZHZJDlg), and
// what the families of combined sections have to do with a spacing.
#pragma once

#include "dialogs/model/dialog_user.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "tables/data_item.h"

namespace orv3 {

// How a table's sections are put together from components. Pairs of channels that face each other
// ("[]") touch, so they have no spacing.
enum class CSpacingKind {
  None,   // not combined, or without spacing
  A,      // two angles, or two channels back to back: a(mm)
  Delta,  // two angles as a cross: δ(mm)
};

CSpacingKind SpacingKindOf(const CString& tableName);
// Any combined section, with a spacing or without.
bool IsCombinedTable(const CString& tableName);
// What the rolled tables have figures for, mm: up to 20, up to 10 for the cross.
CStringArray SpacingChoices(CSpacingKind kind);
// The sign of the spacing's cell; empty for None.
CString SpacingSign(CSpacingKind kind);
// The row with its spacing as an integer cell behind the first one; a spacing that is there is
// replaced. A row of None is left as it is.
CDataItem WithSpacing(const CDataItem& row, const CString& spacing);
// The spacing that a row carries; empty without one.
CString SpacingOf(const CDataItem& row);
// Asks for the spacing of a row that needs one, `spacing` offered, and puts it into both. False
// when cancelled.
bool AskSpacing(CDialogUser& user, CDataItem& row, CString& spacing);

class CSpacingModel {
 public:
  // `kind` not 0: a cross.
  CSpacingModel(int kind, const CString& spacing);

  int Kind() const noexcept { return m_nKind; }
  CString Label() const;
  const CStringArray& Choices() const noexcept { return m_arrChoice; }
  int Selected() const noexcept { return m_nSelected; }  // the choice to start with
  // Takes the list's text; false, and the dialog stays open, when it is empty.
  bool Ok(const CString& text);
  CString Spacing() const { return m_strSpacing; }

 private:
  int m_nKind;
  CString m_strSpacing;
  CStringArray m_arrChoice;
  int m_nSelected = 0;
};

}  // namespace orv3
