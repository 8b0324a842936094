// CPropertyModel: the parameters of one section row, shown or edited (CPropertyDlg).
//
// One grid line per cell of the row, and below them the exact properties of the row's outline,
// which nobody changes: a heading and a line each. A row without an outline has none of these. In
// edit mode a change recomputes what follows from it at once: the properties of a user-defined
// section from its sizes, those of a lattice column from its limbs.
#pragma once

#include <functional>

#include "dialogs/model/dialog_user.h"
#include "dialogs/model/edit_grid_model.h"
#include "drawing/bitmap.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {

class ORV3CAL_API CPropertyModel {
 public:
  // What is to become of the edited row when OK is pressed; false, after a message of its own,
  // keeps the dialog open. It may change the row.
  using CAccept = std::function<bool(CDataItem& row, CDialogUser& user)>;

  // `editMode` 0 shows the row, any other value lets it be edited.
  CPropertyModel(const CDataItem& row, const CString& tableName, int editMode);
  void SetAccept(CAccept accept) { m_fnAccept = std::move(accept); }

  CString Caption() const;
  CString CancelText() const;
  bool HasOk() const noexcept { return m_nEditMode != 0; }
  const CEditGridModel& Grid() const noexcept { return m_grid; }
  CBitmap Picture() const;  // the sketch of the table's sections
  int PictureResource() const;

  // The user's text for the value of a line; every line may have changed afterwards. A text that
  // the line cannot hold stays there until OK refuses it.
  void SetValue(int line, const CString& text);

  // True when the dialog ends. After false, and a message, the line to go to is FaultLine. Asks
  // first when sizes were changed of a row whose other figures nobody computes from them.
  bool Ok(CDialogUser& user);
  int FaultLine() const noexcept { return m_nFaultLine; }  // -1 when no line is at fault
  const CDataItem& Row() const noexcept { return m_row; }

 private:
  enum class CSource { Plain, Custom, Lattice };

  int LineCount() const noexcept { return m_row.GetItemLength(); }
  void FillGrid();
  void AddExact();
  void ShowExact();
  void ShowValues();
  void SetModifyTypes();
  void OfferSpacings();
  void OfferLimbs();
  void OfferNumbers(int limb);
  void ChooseNumber(int limb);
  void SetCell(int line, const CString& text);
  bool IsComputed(int line) const;
  void Recompute();
  bool Compute();
  bool Refuse(CDialogUser& user);
  bool IsChanged(int line) const;
  bool AcceptOldFigures(CDialogUser& user);
  bool AcceptContradiction(CDialogUser& user);

  CDataItem m_row;
  const CDataItem m_before;
  CString m_strTable;
  int m_nEditMode;
  CSource m_nSource;
  CEditGridModel m_grid;
  CAccept m_fnAccept;
  int m_nFaultLine = -1;
};

}  // namespace orv3
