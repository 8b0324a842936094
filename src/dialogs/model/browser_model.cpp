#include "dialogs/model/browser_model.h"

#include <algorithm>
#include <utility>

#include "dialogs/model/column_model.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/spacing_model.h"
#include "dialogs/model/text_match.h"
#include "framework/exception.h"
#include "framework/number_text.h"
#include "sections/load_data_table.h"
#include "sections/sketch/sketch.h"
#include "tables/edit_state.h"

namespace orv3 {
namespace {

constexpr int kColumnWidth = 80;
constexpr wchar_t kView[] = L" VIEW ";

// The operators that a user sees, and those of search expressions.
struct COperatorName {
  const wchar_t* m_szShown;
  const wchar_t* m_szExpression;
};

constexpr COperatorName kOperators[] = {{L"＝", L"=="}, {L"≠", L"!="}, {L">", L">>"},
                                        {L"≥", L">="},  {L"<", L"<<"}, {L"≤", L"<="}};
constexpr int kEqualityOperators = 2;  // of them, the first ones

bool IsNumeric(CDataTypeStruct::KVBT_Value_Type type) {
  return ValueClassOf(type) != CValueClass::Text;
}

CString WithStars(const CString& value) {
  const bool starred =
      !value.IsEmpty() && (value[0] == L'*' || value[value.GetLength() - 1] == L'*');
  return starred ? value : L"*" + value + L"*";
}

}  // namespace

CBrowserModel::CBrowserModel(const CString& path, const CStringArray& tableNames,
                             const CDataItem& initial, CDialogUser& user)
    : m_user(user),
      m_route(user),
      m_path(path),
      m_initial(initial),
      m_arrNode(BrowserTree(tableNames)),
      m_session(m_path.Path()),
      m_strSpacing(SpacingOf(initial)) {}

CListChange CBrowserModel::Open() {
  LoadNode(InitialNode());
  if (m_arrNode[static_cast<std::size_t>(m_nNode)].m_strText != m_initial.m_strTableName ||
      m_initial.IsEmpty()) {
    return CListChange::Columns;
  }
  const CString& number = std::as_const(m_initial)[0].m_strValue;
  for (int item = 0; item < ItemCount(); ++item) {
    if (number == ItemText(item, 0)) {
      SelectItem(item);
      break;
    }
  }
  return CListChange::Columns;
}

// --- Tree ---------------------------------------------------------------------------------------

int CBrowserModel::DeepestNode(int node) const {
  for (int i = node + 1; i < static_cast<int>(m_arrNode.size()); ++i) {
    if (m_arrNode[static_cast<std::size_t>(i)].m_nParent == node) node = i;
  }
  return node;
}

int CBrowserModel::InitialNode() const {
  const auto table = [](const CTreeNode& node) { return node.m_bTable; };
  const auto initial = [&](const CTreeNode& node) {
    return node.m_bTable && node.m_strText == m_initial.m_strTableName;
  };
  auto found = std::find_if(m_arrNode.begin(), m_arrNode.end(), initial);
  if (found == m_arrNode.end()) found = std::find_if(m_arrNode.begin(), m_arrNode.end(), table);
  return found == m_arrNode.end() ? DeepestNode(0) : static_cast<int>(found - m_arrNode.begin());
}

CListChange CBrowserModel::SelectNode(int node) {
  CheckIndex("tree nodes", node, std::ssize(m_arrNode));
  const int deepest = DeepestNode(node);
  if (deepest == m_nNode) return CListChange::None;
  LoadNode(deepest);
  return CListChange::Columns;
}

void CBrowserModel::LoadNode(int node) {
  m_session.WriteBack(m_user);
  m_nNode = node;
  m_session.Clear();
  if (HasTable()) {
    const bool read = m_session.Load(m_arrNode[static_cast<std::size_t>(node)].m_strText, m_user);
    if (read && Full().GetTableColNum() < 2) m_session.MakeLatticeTable(m_user);
  }
  m_strFilter.Empty();
  m_strView.Empty();
  m_nSortColumn = -1;
  FillSearchColumns();
  ApplySearch();
  FillList();
}

bool CBrowserModel::HasTable() const {
  return m_nNode >= 0 && m_arrNode[static_cast<std::size_t>(m_nNode)].m_bTable;
}

int CBrowserModel::PreviewResource() const {
  return HasTable() ? SketchResource(Full().GetTableName()) : 0;
}

// --- Search -------------------------------------------------------------------------------------

const CStringArray& CBrowserModel::Operators() {
  static const CStringArray operators = [] {
    CStringArray texts;
    for (const COperatorName& op : kOperators) texts.Add(op.m_szShown);
    return texts;
  }();
  return operators;
}

void CBrowserModel::FillSearchColumns() {
  m_nSearchColumn = 0;
  m_arrSearchColumn.RemoveAll();
  m_arrSearchColumn.Add(CString());
  for (int i = 0; i < Full().GetTableColNum(); ++i) {
    m_arrSearchColumn.Add(Full().GetTableColSign(i));
  }
}

bool CBrowserModel::IsWholeMatchEnabled() const {
  return m_nSearchColumn > 0 && m_nOperator >= 0 && m_nOperator < kEqualityOperators &&
         !IsNumeric(Full().GetDataTableColType(m_nSearchColumn - 1));
}

CListChange CBrowserModel::Search() {
  const bool column = m_nSearchColumn > 0 && m_nSearchColumn < m_arrSearchColumn.GetSize();
  if (column && !MakeFilter()) return CListChange::None;
  return Refresh(CListChange::Rows);
}

bool CBrowserModel::MakeFilter() {
  const CString value = CString(m_strValue).Trim();
  const bool number = IsNumeric(Full().GetDataTableColType(m_nSearchColumn - 1));
  if (number && !value.IsEmpty() && !IsNumber(value)) {
    m_user.Tell(texts::kOpenQuote + value + texts::kCloseQuote + texts::kNoNumber);
    return false;
  }
  m_nWildcard = IsWholeMatchEnabled() && !m_bWholeMatch ? 1 : 0;
  m_strFilter.Empty();
  if (number && value.IsEmpty()) return true;
  m_strFilter = m_arrSearchColumn[m_nSearchColumn];
  if (m_nOperator >= 0 && m_nOperator < std::ssize(kOperators)) {
    m_strFilter += kOperators[m_nOperator].m_szExpression;
  }
  m_strFilter += m_nWildcard ? WithStars(m_strValue) : m_strValue;
  return true;
}

void CBrowserModel::ApplySearch() {
  if (Full().GetTableColNum() == 0) {
    m_shown = CDataTable();
    return;
  }
  CString expression = m_strFilter;
  if (!m_strView.IsEmpty()) expression += kView + m_strView;
  m_shown = m_session.Table().SearchTable(expression.GetString(), m_nWildcard);
  if (m_nSortColumn >= 0) m_shown.OrderTable(m_nSortColumn, m_bAscending ? 1 : 0);
}

CListChange CBrowserModel::Refresh(CListChange change) {
  if (change == CListChange::Columns) m_nSortColumn = -1;
  ApplySearch();
  FillList();
  return change;
}

// --- List ---------------------------------------------------------------------------------------

void CBrowserModel::FillList() {
  m_arrItemRow.clear();
  const CDataItemArray& rows = m_shown.m_arrItem;
  for (int i = 0; i < rows.GetSize(); ++i) {
    if (IsDeleted(rows[i].m_nModifyType)) continue;
    if (rows[i].IsEmpty()) break;
    m_arrItemRow.push_back(i);
  }
  m_nItem = m_arrItemRow.empty() ? -1 : 0;
}

CListColumn CBrowserModel::Column(int column) const {
  CListColumn result;
  result.m_strSign = m_shown.GetTableColSign(column);
  result.m_nWidth = kColumnWidth;
  result.m_bRight = IsNumeric(m_shown.GetDataTableColType(column));
  if (column == m_nSortColumn) result.m_nSorted = m_bAscending ? 1 : -1;
  return result;
}

const wchar_t* CBrowserModel::ItemText(int item, int column) const {
  if (item < 0 || item >= ItemCount() || column < 0) return L"";
  const CDataItem& row = m_shown[m_arrItemRow[static_cast<std::size_t>(item)]];
  return column < row.GetItemLength() ? row[column].m_strValue.GetString() : L"";
}

CString CBrowserModel::CountText() const {
  CString total = texts::kAll + FormatInt(Full().GetRealTableRowNum()) + texts::kRecords;
  if (m_strFilter.IsEmpty()) return total;
  return texts::kFound + FormatInt(ItemCount()) + texts::kRecords + texts::kComma + total;
}

void CBrowserModel::SelectItem(int item) { m_nItem = item >= 0 && item < ItemCount() ? item : -1; }

int CBrowserModel::SelectedIndex() const {
  return HasItem()
             ? std::as_const(m_shown)[m_arrItemRow[static_cast<std::size_t>(m_nItem)]].m_nIndex
             : -1;
}

// False when the list does not show the row.
bool CBrowserModel::SelectByIndex(int index) {
  for (int item = 0; item < ItemCount(); ++item) {
    const int row = m_arrItemRow[static_cast<std::size_t>(item)];
    if (std::as_const(m_shown)[row].m_nIndex != index) continue;
    SelectItem(item);
    return true;
  }
  return false;
}

int CBrowserModel::FindItem(const CString& text, int start) const {
  const int count = ItemCount();
  for (int i = 0; i < count; ++i) {
    const int item = (std::max(start, 0) + i) % count;
    if (BeginsWithText(ItemText(item, 0), text)) return item;
  }
  return -1;
}

CListChange CBrowserModel::SortBy(int column) {
  if (column < 0 || column >= ColumnCount() || m_shown.GetTableRowNum() == 0) {
    return CListChange::None;
  }
  m_bAscending = column != m_nSortColumn || !m_bAscending;
  m_nSortColumn = column;
  const int selected = SelectedIndex();
  m_shown.OrderTable(column, m_bAscending ? 1 : 0);
  FillList();
  SelectByIndex(selected);
  return CListChange::Order;
}

CListChange CBrowserModel::ChooseColumns() {
  if (Full().GetTableColNum() == 0) return CListChange::None;
  CColumnModel columns(Full().m_Title, m_strView);
  if (!m_user.Run(columns)) return CListChange::None;
  m_strView = columns.View();
  return Refresh(CListChange::Columns);
}

CString CBrowserModel::CopyText() const {
  CString text;
  for (int i = 0; HasItem() && i < ColumnCount(); ++i) {
    if (i > 0) text += L'\t';
    text += ItemText(m_nItem, i);
  }
  return text;
}

}  // namespace orv3
