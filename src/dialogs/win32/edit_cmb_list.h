// CEditCmbList: the editable grid, on a list view in report style. It shows a CEditGridModel and
// lets cells be changed in place: in an edit field, or in a drop-down list where the cell has
// choices.
//
// A click on a cell, F2, or typing starts; Enter and the loss of the focus keep the text, Esc drops
// it; Tab and Shift+Tab go on to the next cell that can be changed.
#pragma once

#include <functional>

#include "dialogs/model/edit_grid_model.h"
#include "dialogs/win32/win32_api.h"
#include "framework/cstring.h"

class CEditCmbList {
 public:
  // Takes a cell's new text to where it belongs; the grid shows the model anew afterwards.
  using CSetText = std::function<void(int line, int column, const CString& text)>;

  CEditCmbList() = default;
  CEditCmbList(const CEditCmbList&) = delete;
  CEditCmbList& operator=(const CEditCmbList&) = delete;

  // `grid` must outlive the list view's use; lines and columns are the model's from here on.
  void Attach(HWND list, const orv3::CEditGridModel& grid, CSetText setText, int dpi);
  // Shows what has changed in the model.
  void Refresh();
  void SetDpi(int dpi);  // column widths anew
  // Starts changing a cell; false for one that is fixed. `typed`: the character that started it.
  bool EditCell(int line, int column, wchar_t typed = 0);
  // Selects a line and starts changing its first cell that can be.
  void GoTo(int line);
  bool IsEditing() const noexcept { return m_hEditor != nullptr; }
  void EndEdit(bool keep);
  // Shades the cells that cannot be changed, from a column on.
  void ShadeFrom(int column) noexcept { m_nShadeFrom = column; }
  // For the dialog's NM_CUSTOMDRAW.
  LRESULT OnCustomDraw(NMHDR& header) const;

 private:
  static LRESULT CALLBACK ListProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR id, DWORD_PTR self);
  static LRESULT CALLBACK EditorProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR id, DWORD_PTR self);
  bool OnListKey(WPARAM key);
  bool OnEditorKey(WPARAM key);
  int FittingWidth(int column, int most) const;
  void FitColumns();
  void SetLineHeight() const;
  void OnListClick(LPARAM place);
  void OnChosen(HWND editor);
  bool MakeEditor(const RECT& cell, wchar_t typed);
  void FillChoices() const;
  RECT CellRect(int line, int column) const;
  CString EditorText() const;
  bool CanEdit(int line, int column) const;
  bool EditNext(int step);
  int FirstEditable(int line) const;  // the column; -1 when there is none

  HWND m_hList = nullptr;
  const orv3::CEditGridModel* m_pGrid = nullptr;
  CSetText m_fnSetText;
  int m_nDpi = 96;
  HWND m_hEditor = nullptr;
  bool m_bList = false;   // the editor is a drop-down list
  int m_nShadeFrom = -1;  // -1: no cell is shaded
  int m_nLine = -1;
  int m_nColumn = -1;
};
