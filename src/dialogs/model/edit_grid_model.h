// CEditGridModel: the contents of an editable grid (CEditCmbList), lines and columns counted from
// 0.
#pragma once

#include <vector>

#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

enum class CModifyType {
  Edit = 0,   // plain text
  List = 1,   // one of a list of choices
  Fixed = 2,  // not to be changed
};

class ORV3CAL_API CEditGridModel {
 public:
  void InsertColumn(int position, const CString& title, int width);  // pixels at 96 dpi
  // One text per column; missing ones are empty.
  void InsertLine(int position, const CStringArray& texts);
  void RemoveLine(int line);
  void RemoveAllLines();

  int ColumnCount() const noexcept { return static_cast<int>(m_arrColumn.size()); }
  int LineCount() const noexcept { return static_cast<int>(m_arrLine.size()); }
  CString ColumnTitle(int column) const;
  int ColumnWidth(int column) const;

  // A cell without a type of its own has its column's; a column starts Fixed.
  void SetColModifyType(int column, CModifyType type);
  void SetCellModifyType(int line, int column, CModifyType type);
  void SetCellModifyType(int line, int column, CModifyType type, const CStringArray& choices);
  CModifyType ModifyType(int line, int column) const;
  const CStringArray& Choices(int line, int column) const;  // of a List cell

  CString CellText(int line, int column) const;
  void SetCellText(int line, int column, const CString& text);

 private:
  struct CColumn {
    CString m_strTitle;
    int m_nWidth = 0;
    CModifyType m_nType = CModifyType::Fixed;
  };
  struct CCell {
    CString m_strText;
    bool m_bOwnType = false;
    CModifyType m_nType = CModifyType::Fixed;
    CStringArray m_arrChoice;
  };

  CColumn& Column(int column);
  const CColumn& Column(int column) const;
  CCell& Cell(int line, int column);
  const CCell& Cell(int line, int column) const;

  std::vector<CColumn> m_arrColumn;
  std::vector<std::vector<CCell>> m_arrLine;
};

}  // namespace orv3
