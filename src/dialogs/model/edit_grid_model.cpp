#include "dialogs/model/edit_grid_model.h"

#include "framework/exception.h"

namespace orv3 {
namespace {

template <class ITEMS>
auto& At(ITEMS& items, int index, const char* what) {
  CheckIndex(what, index, static_cast<long long>(items.size()));
  return items[static_cast<std::size_t>(index)];
}

}  // namespace

CEditGridModel::CColumn& CEditGridModel::Column(int column) {
  return At(m_arrColumn, column, "grid columns");
}
const CEditGridModel::CColumn& CEditGridModel::Column(int column) const {
  return At(m_arrColumn, column, "grid columns");
}
CEditGridModel::CCell& CEditGridModel::Cell(int line, int column) {
  return At(At(m_arrLine, line, "grid lines"), column, "grid columns");
}
const CEditGridModel::CCell& CEditGridModel::Cell(int line, int column) const {
  return At(At(m_arrLine, line, "grid lines"), column, "grid columns");
}

void CEditGridModel::InsertColumn(int position, const CString& title, int width) {
  CheckIndex("grid columns", position, static_cast<long long>(m_arrColumn.size()) + 1);
  m_arrColumn.insert(m_arrColumn.begin() + position, {title, width, CModifyType::Fixed});
  for (auto& line : m_arrLine) line.insert(line.begin() + position, CCell());
}

void CEditGridModel::InsertLine(int position, const CStringArray& texts) {
  CheckIndex("grid lines", position, static_cast<long long>(m_arrLine.size()) + 1);
  std::vector<CCell> line(m_arrColumn.size());
  for (int i = 0; i < ColumnCount() && i < texts.GetSize(); ++i) {
    line[static_cast<std::size_t>(i)].m_strText = texts[i];
  }
  m_arrLine.insert(m_arrLine.begin() + position, std::move(line));
}

void CEditGridModel::RemoveLine(int line) {
  At(m_arrLine, line, "grid lines");
  m_arrLine.erase(m_arrLine.begin() + line);
}

void CEditGridModel::RemoveAllLines() { m_arrLine.clear(); }

CString CEditGridModel::ColumnTitle(int column) const { return Column(column).m_strTitle; }
int CEditGridModel::ColumnWidth(int column) const { return Column(column).m_nWidth; }

void CEditGridModel::SetColModifyType(int column, CModifyType type) {
  Column(column).m_nType = type;
}

void CEditGridModel::SetCellModifyType(int line, int column, CModifyType type) {
  SetCellModifyType(line, column, type, CStringArray());
}

void CEditGridModel::SetCellModifyType(int line, int column, CModifyType type,
                                       const CStringArray& choices) {
  CCell& cell = Cell(line, column);
  cell.m_bOwnType = true;
  cell.m_nType = type;
  cell.m_arrChoice = choices;
}

CModifyType CEditGridModel::ModifyType(int line, int column) const {
  const CCell& cell = Cell(line, column);
  return cell.m_bOwnType ? cell.m_nType : Column(column).m_nType;
}

const CStringArray& CEditGridModel::Choices(int line, int column) const {
  return Cell(line, column).m_arrChoice;
}

CString CEditGridModel::CellText(int line, int column) const {
  return Cell(line, column).m_strText;
}

void CEditGridModel::SetCellText(int line, int column, const CString& text) {
  Cell(line, column).m_strText = text;
}

}  // namespace orv3
