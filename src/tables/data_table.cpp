#include "tables/data_table.h"

#include <algorithm>

#include "framework/message.h"
#include "tables/edit_state.h"
#include "tables/row_index.h"

CDataTable::CDataTable() = default;
CDataTable::~CDataTable() = default;

CDataTable::CDataTable(const CDataTable& other)
    : m_strSavePath(other.m_strSavePath),
      m_strTableName(other.m_strTableName),
      m_Title(other.m_Title),
      m_arrItem(other.m_arrItem),
      m_pParentTable(other.m_pParentTable) {
  CopyImages(other);
}

CDataTable& CDataTable::operator=(const CDataTable& other) {
  if (this == &other) throw CInvalidArgException("CDataTable: a table was assigned to itself");
  m_strSavePath = other.m_strSavePath;
  m_strTableName = other.m_strTableName;
  m_Title = other.m_Title;
  m_arrItem = other.m_arrItem;
  m_pParentTable = other.m_pParentTable;
  CopyImages(other);
  return *this;
}

// --- Counts and look-up -------------------------------------------------------------------------

int CDataTable::GetRealTableRowNum() const noexcept {
  return static_cast<int>(std::count_if(m_arrItem.begin(), m_arrItem.end(), [](const auto& row) {
    return !orv3::IsDeleted(row.m_nModifyType);
  }));
}

const CDataTable& CDataTable::Root() const noexcept {
  const CDataTable* table = this;
  while (table->m_pParentTable) table = table->m_pParentTable;
  return *table;
}

orv3::CRowIndex& CDataTable::Index() const {
  if (!m_pIndex) m_pIndex = std::make_unique<orv3::CRowIndex>();
  m_pIndex->Update(m_arrItem, m_Title);
  return *m_pIndex;
}

int CDataTable::GetTableIndex(int index) const {
  if (index < 0) return -1;
  for (const int position : Index().IndexCandidates(index)) {
    if (m_arrItem[position].m_nIndex == index) return position;
  }
  return -1;
}

// --- Name, parent, file -------------------------------------------------------------------------

void CDataTable::SetTableName(const CString& name) {
  m_strTableName = name.Left(kMaxTableName);
  for (int i = 0; i < GetTableRowNum(); ++i) m_arrItem.Own(i).m_strTableName = m_strTableName;
}

int CDataTable::SetParentTable(CDataTable* parent) {
  if (parent && (parent->GetTableColNum() < GetTableColNum() ||
                 parent->GetTableRowNum() < GetTableRowNum())) {
    return 0;
  }
  m_pParentTable = parent;
  return 1;
}

void CDataTable::SetTableFileInfo(const CString& info) {
  if (m_strFileInfo != info) m_strFileInfo = info;  // else rows keep the text that they share
  m_arrItem.Walk([this](CDataItem& row) {
    CString& line = row.m_strFileInfo;
    if (line.GetString() != m_strFileInfo.GetString()) line = m_strFileInfo;
  });
}

void CDataTable::ClearTable() {
  m_strTableName.Empty();
  m_pParentTable = nullptr;
  m_arrItem.RemoveAll();
  m_Title.Clear();
}

// --- Columns ------------------------------------------------------------------------------------

int CDataTable::InsertTableCol(int position, const CDataTypeStruct& column) {
  return m_Title.InsertColumn(position, column);
}

int CDataTable::InsertTableCol(int position, const CString& name, const CString& sign,
                               KVBT_Value_Type type, int bKey) {
  return InsertTableCol(position, CDataTypeStruct(name, sign, type, bKey));
}

void CDataTable::AddTableCol(const CDataTypeStruct& column) {
  m_Title.InsertColumn(GetTableColNum(), column);
}

void CDataTable::AddTableCol(const CString& name, const CString& sign, KVBT_Value_Type type,
                             int bKey) {
  AddTableCol(CDataTypeStruct(name, sign, type, bKey));
}

int CDataTable::SetTableCol(int position, const CDataTypeStruct& column) {
  return m_Title.SetColumn(position, column);
}

int CDataTable::SetTableColTitle(int position, const CString& name, const CString& sign,
                                 KVBT_Value_Type type, int bKey) {
  return SetTableCol(position, CDataTypeStruct(name.Left(CDataTypeStruct::kMaxName),
                                               sign.Left(CDataTypeStruct::kMaxSign), type, bKey));
}

int CDataTable::SetTableColSign(int position, const CString& sign) {
  return m_Title.SetDataTableSign(position, sign);
}

int CDataTable::SetTableColKey(int position, int bKey) {
  return m_Title.SetDataTableKeyIndex(position, bKey);
}

int CDataTable::SetTableColType(int position, KVBT_Value_Type type) {
  return m_Title.SetDataTableType(position, type);
}

CString CDataTable::GetTableColName(int position) const { return m_Title.GetColName(position); }
CString CDataTable::GetTableColSign(int position) const { return m_Title.GetColSign(position); }

int CDataTable::GetTableColKey(int position) const {
  return position >= 0 && position < GetTableColNum() ? m_Title[position].m_bKey : 0;
}

CDataTable::KVBT_Value_Type CDataTable::GetDataTableColType(int position) const {
  return position >= 0 && position < GetTableColNum() ? m_Title[position].m_nType
                                                      : CDataTypeStruct::KVBT_STRING;
}

CDataTypeStruct CDataTable::GetTableColTitle(int position) const {
  return position >= 0 && position < GetTableRowNum() ? m_Title[position] : CDataTypeStruct();
}

int CDataTable::setTableTitle(const CDataItem& row) {
  if (row.IsEmpty() || GetTableRowNum() > 0) return 0;
  m_Title.Clear();
  for (const CDataCell& cell : row.m_arrCell) {
    AddTableCol(cell.m_strName, cell.m_strSign, cell.m_nType, cell.m_bKey);
  }
  return 1;
}

// --- Rows ---------------------------------------------------------------------------------------

CDataItem CDataTable::RowOf(const CStringArray& values) const {
  CDataItem row;
  row.m_strTableName = m_strTableName;
  row.m_arrCell.Reserve(values.GetSize());
  for (int i = 0; i < values.GetSize(); ++i) row.m_arrCell.Add(CDataCell(m_Title[i], values[i]));
  return row;
}

std::vector<int> CDataTable::FindByKey(const CDataItem& row) const {
  std::vector<int> found;
  const orv3::CRowIndex& index = Index();
  if (index.Key().empty()) return found;
  for (const int position : index.KeyCandidates(row)) {
    if (orv3::IsDeleted(m_arrItem[position].m_nModifyType)) continue;
    const bool same =
        std::all_of(index.Key().begin(), index.Key().end(), [&](const orv3::CKeyColumn& column) {
          return IsSelected(position, column.m_nCompare, row[column.m_nKey].m_strValue, 0) != 0;
        });
    if (same) found.push_back(position);
  }
  return found;
}

bool CDataTable::RefuseDuplicate(const CDataItem& row, int ownPosition) const {
  const std::vector<int> found = FindByKey(row);
  if (std::count(found.begin(), found.end(), ownPosition) == std::ssize(found)) return false;
  CString text;
  for (int i = 0; i < GetTableColNum(); ++i) {
    if (m_Title[i].m_bKey == 0) continue;
    if (!text.IsEmpty()) text += L"、";
    text += m_Title[i].m_strName + L"=" + row[i].m_strValue;
  }
  orv3::ShowMessage(CString(), text + L"，该条数据记录已经存在!");
  return true;
}

void CDataTable::ReplaceRow(int position, const CDataItem& row) {
  CDataItem& stored = m_arrItem.Own(position);
  orv3::CRowIndex& index = Index();
  index.Forget(position);
  stored = row;
  index.Remember(m_arrItem, position);
}

int CDataTable::AddTableItem(CDataItem& row, int bNew, int bNoCheck) {
  if (bNoCheck) {
    m_arrItem.Add(row);
    return 1;
  }
  if (RefuseDuplicate(row, -1)) return 0;
  const int deleted = m_pIndex->FirstDeleted();  // as the key check has just found it
  row.m_nIndex = deleted < 0 ? GetTableRowNum() : m_arrItem.Own(deleted).m_nIndex;
  row.m_nModifyType = bNew ? orv3::kAdded : orv3::kCatalogueAdded;
  if (deleted < 0) {
    m_arrItem.Add(row);
  } else {
    ReplaceRow(row.m_nIndex, row);
  }
  return 1;
}

int CDataTable::AddTableItem(const CStringArray& values, int bNew) {
  if (values.GetSize() != GetTableColNum()) return 0;
  CDataItem row = RowOf(values);
  return AddTableItem(row, bNew, 0);
}

int CDataTable::AddTableItem(const CString& text, int bNew) {
  CStringArray values;
  TransStrToArray(text, L",", values);
  return AddTableItem(values, bNew);
}

int CDataTable::ModifyTableItem(int index, CDataItem& row) {
  const int position = GetTableIndex(index);
  if (position < 0) return 0;
  row.m_nIndex = index;
  row.m_nModifyType = orv3::StateAfterChange(row.m_nModifyType);
  if (RefuseDuplicate(row, position)) return 0;
  ReplaceRow(position, row);
  return 1;
}

int CDataTable::ModifyTableItem(int index, const CStringArray& values) {
  if (values.GetSize() != GetTableColNum()) return 0;
  CDataItem row = RowOf(values);
  return ModifyTableItem(index, row);
}

int CDataTable::ModifyTableItem(int index, const CString& text) {
  CStringArray values;
  TransStrToArray(text, L",", values);
  return ModifyTableItem(index, values);
}

int CDataTable::DeleteTableItem(int index) {
  const int position = GetTableIndex(index);
  if (position < 0) return 0;
  CDataItem& row = m_arrItem.Own(position);
  if (orv3::IsDeleted(row.m_nModifyType)) return 1;
  m_pIndex->Forget(position);
  if (orv3::IsAdded(row.m_nModifyType)) {
    m_arrItem.RemoveAt(position);
    m_pIndex->CloseGap(m_arrItem, position);
  } else {
    row.m_nModifyType = orv3::kDeleted;
    m_pIndex->Remember(m_arrItem, position);
  }
  return 1;
}

int CDataTable::ImportTableItem(CDataItem& row, int bOverwrite) {
  if (row.GetItemLength() != GetTableColNum()) return 0;
  if (orv3::IsDeleted(row.m_nModifyType)) return 1;
  if (row.m_nModifyType == orv3::kUnchanged) row.m_nModifyType = orv3::kAdded;
  if (row.m_nModifyType == orv3::kCatalogueSaved) row.m_nModifyType = orv3::kCatalogueAdded;
  const int present = IsHaveValue(row, -1);
  if (present < 0) {
    row.m_nIndex = GetTableRowNum();
    m_arrItem.Add(row);
    return 1;
  }
  if (!bOverwrite) return 0;
  row.m_nIndex = m_arrItem.Own(present).m_nIndex;
  ReplaceRow(present, row);
  return 1;
}

int CDataTable::ImporDatatTable(CDataTable& other, int bOverwrite) {
  if (other.m_strTableName != m_strTableName) return 0;
  if (!m_Title.IsEqualOf(other.m_Title)) {
    if (GetTableColNum() > 0) return 0;
    m_Title = other.m_Title;
  }
  if (&other == this) return 1;  // every row is here already
  other.m_pIndex.reset();        // its rows are about to change their indices and states
  for (int i = 0; i < other.GetTableRowNum(); ++i) {
    ImportTableItem(other.m_arrItem.Own(i), bOverwrite);
  }
  return 1;
}

int CDataTable::IsHaveValue(const CDataItem& row, int skipIndex) const {
  if (row.GetItemLength() != GetTableColNum()) return -1;
  const int skip = skipIndex >= 0 ? GetTableIndex(skipIndex) : -1;
  for (const int position : FindByKey(row)) {
    if (position != skip) return position;
  }
  return -1;
}
