// The user table editor's tables, its undo and its end.
#include "dialogs/model/user_table_model.h"

#include <algorithm>
#include <utility>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/lattice/steel_ge_gou.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/spacing_model.h"
#include "sections/load_data_table.h"
#include "sections/section_style.h"
#include "sections/sketch/sketch.h"
#include "sections/steel_jm_data.h"

namespace orv3 {
namespace {

bool HasName(const CStringArray& names, const CString& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// The heading of a section table; without columns for a table that nothing is known of.
CDataTable SectionTable(const CString& name) {
  if (const int limbs = LatticeLimbCount(name)) return CSteelJMGeGou(limbs);
  CDataTable table;
  table.SetTableName(name);
  if (const CSectionStyle* style = FindSectionStyle(name.View())) {
    CSteelJMData::GetJMTableTitle(table, style->m_nStyle);
    return table;
  }
  CDataTable stored = table;
  if (stored.GetSystemJmTable()) table.m_Title = stored.m_Title;
  return table;
}

CDataTable EmptyTable(const CString& name) {
  CDataTable table;
  table.SetTableName(name);
  table.AddTableCol(texts::kModelNumber, L"No.", CDataTypeStruct::KVBT_STRING, 1);
  table.AddTableCol(texts::kArea, L"A(mm^2)", CDataTypeStruct::KVBT_DOUBLE, 0);
  return table;
}

}  // namespace

CUserTableModel::CUserTableModel(const CString& path, const CStringArray& tableNames,
                                 const CDataItem& initial, CDialogUser& user)
    : m_user(user),
      m_route(user),
      m_path(path),
      m_store(m_path.Path()),
      m_arrName(tableNames),
      m_initial(initial),
      m_arrState(1),
      m_strSpacing(SpacingOf(initial)) {
  FillTemplates();
  ShowTable();
}

void CUserTableModel::FillTemplates() {
  m_arrTemplate.Add(texts::kEmptyTable);
  for (const CString& name : m_arrName) {
    if (!IsCombinedTable(name)) m_arrTemplate.Add(name);
  }
}

// A name of the user's own says nothing of the section's style, so it is offered for every command.
bool CUserTableModel::Offers(const CString& tableName) const {
  return HasName(m_arrName, tableName) || !CLoadDataTable::IsTableNameType(tableName, kAllTables);
}

void CUserTableModel::Open() {
  bool failed = false;
  for (const CUserFile& file : m_store.Read(failed)) {
    if (!Offers(file.m_table->GetTableName())) continue;
    const auto table = std::make_shared<const CDataTable>(LiveRows(*file.m_table));
    m_mapSaved[m_nNextId] = {file, table};
    State().m_arrTable.push_back({m_nNextId++, table});
  }
  if (failed) TellReadFailed(m_user);
  SelectInitial();
}

void CUserTableModel::SelectInitial() {
  const auto& tables = State().m_arrTable;
  const CString number = m_initial.IsEmpty() ? CString() : std::as_const(m_initial)[0].m_strValue;
  SelectTable(tables.empty() ? -1 : 0);
  for (int i = 0; i < TableCount(); ++i) {
    const CDataTable& table = *tables[static_cast<std::size_t>(i)].m_table;
    if (table.GetTableName() != m_initial.m_strTableName) continue;
    SelectTable(i);
    for (int item = 0; item < RowCount(); ++item) {
      if (number == RowText(item, 0)) return SelectRow(item);
    }
  }
}

// --- Tables -------------------------------------------------------------------------------------

int CUserTableModel::TableCount() const noexcept {
  return static_cast<int>(State().m_arrTable.size());
}

int CUserTableModel::SelectedTable() const noexcept { return State().m_nTable; }

const CDataTable* CUserTableModel::Selected() const {
  const int table = State().m_nTable;
  return table < 0 ? nullptr : State().m_arrTable[static_cast<std::size_t>(table)].m_table.get();
}

bool CUserTableModel::IsSaved(const CTable& table) const {
  const auto saved = m_mapSaved.find(table.m_nId);
  return saved != m_mapSaved.end() && saved->second.m_table == table.m_table;
}

CString CUserTableModel::TableText(int table) const {
  CheckIndex("user tables", table, TableCount());
  const auto& tables = State().m_arrTable;
  const CTable& shown = tables[static_cast<std::size_t>(table)];
  CString text = shown.m_table->GetTableName();
  const auto same = std::count_if(tables.begin(), tables.end(), [&](const CTable& other) {
    return other.m_table->GetTableName() == shown.m_table->GetTableName();
  });
  const auto saved = m_mapSaved.find(shown.m_nId);
  if (same > 1 && saved != m_mapSaved.end()) {
    text += L" (" + saved->second.m_file.m_strName + L")";
  }
  return IsSaved(shown) ? text : text + L" *";
}

void CUserTableModel::SelectTable(int table) {
  State().m_nTable = table >= 0 && table < TableCount() ? table : -1;
  m_nItem = -1;
  ShowTable();
}

int CUserTableModel::PictureResource() const {
  return SketchResource(Selected() ? Selected()->GetTableName() : CString());
}
CBitmap CUserTableModel::Picture() const { return SketchBitmap(PictureResource()); }

bool CUserTableModel::IsNameTaken(const CString& name) const {
  const auto& tables = State().m_arrTable;
  return std::any_of(tables.begin(), tables.end(),
                     [&](const CTable& table) { return table.m_table->GetTableName() == name; });
}

bool CUserTableModel::AskName(const wchar_t* title, CString& name) {
  const CString before = name;
  while (m_user.AskText(title, texts::kTableNameLabel, name)) {
    name.Trim();
    if (name == before && !name.IsEmpty()) return false;
    const wchar_t* fault = name.IsEmpty()                                 ? texts::kTableNameMissing
                           : name.GetLength() > CDataTable::kMaxTableName ? texts::kTableNameTooLong
                           : name.Find(L',') >= 0 || name.Find(L'\n') >= 0 ? texts::kTableNameComma
                           : IsNameTaken(name)                             ? texts::kTableNameTaken
                           : !Offers(name) ? texts::kTableNameNotHere
                                           : nullptr;
    if (!fault) return true;
    m_user.Tell(fault);
  }
  return false;
}

bool CUserTableModel::MakeTable(int templateIndex, CDataTable& table) {
  if (templateIndex == 0) {
    CString name;
    if (!AskName(texts::kNewTable, name)) return false;
    table = EmptyTable(name);
    return true;
  }
  if (IsNameTaken(m_arrTemplate[templateIndex])) {
    m_user.Tell(texts::kTableNameTaken);
    return false;
  }
  table = SectionTable(m_arrTemplate[templateIndex]);
  if (table.GetTableColNum() > 0) return true;
  m_user.Tell(texts::kNoHeading);
  return false;
}

bool CUserTableModel::NewTable(int templateIndex) {
  CDataTable table;
  if (!MakeTable(templateIndex, table)) return false;
  CState state = State();
  state.m_arrTable.push_back({m_nNextId++, std::make_shared<CDataTable>(table)});
  state.m_nTable = static_cast<int>(state.m_arrTable.size()) - 1;
  Push(texts::kNewTable, std::move(state));
  return true;
}

bool CUserTableModel::RenameTable() {
  if (!Selected()) return false;
  CString name = Selected()->GetTableName();
  if (!AskName(texts::kRenameTable, name)) return false;
  CDataTable table = *Selected();
  const CDataTable known = SectionTable(name);
  if (known.GetTableColNum() > 0 && !known.m_Title.IsEqualOf(table.m_Title)) {
    m_user.Tell(texts::kNameOfOtherColumns);
    return false;
  }
  table.SetTableName(name);
  return Replace(texts::kRenameTable, table);
}

bool CUserTableModel::DeleteTable() {
  if (!Selected() || !m_user.AskYesNo(texts::kReminder, texts::kDeleteTableQuestion)) return false;
  CState state = State();
  state.m_arrTable.erase(state.m_arrTable.begin() + state.m_nTable);
  state.m_nTable = std::min(state.m_nTable, static_cast<int>(state.m_arrTable.size()) - 1);
  Push(texts::kDeleteTable, std::move(state));
  return true;
}

// --- Undo ---------------------------------------------------------------------------------------

void CUserTableModel::Push(const wchar_t* step, CState state) {
  state.m_strStep = step;
  m_arrState.resize(static_cast<std::size_t>(m_nState) + 1);
  m_arrState.push_back(std::move(state));
  ++m_nState;
  ShowTable();
}

bool CUserTableModel::Replace(const wchar_t* step, const CDataTable& table) {
  CState state = State();
  state.m_arrTable[static_cast<std::size_t>(state.m_nTable)].m_table =
      std::make_shared<CDataTable>(table);
  Push(step, std::move(state));
  return true;
}

CString CUserTableModel::UndoText() const { return CanUndo() ? State().m_strStep : CString(); }

CString CUserTableModel::RedoText() const {
  return CanRedo() ? m_arrState[static_cast<std::size_t>(m_nState) + 1].m_strStep : CString();
}

void CUserTableModel::Undo() {
  if (!CanUndo()) return;
  --m_nState;
  ShowTable();
}

void CUserTableModel::Redo() {
  if (!CanRedo()) return;
  ++m_nState;
  ShowTable();
}

// --- End ----------------------------------------------------------------------------------------

bool CUserTableModel::IsChanged() const {
  const auto& tables = State().m_arrTable;
  return tables.size() != m_mapSaved.size() ||
         !std::all_of(tables.begin(), tables.end(),
                      [&](const CTable& table) { return IsSaved(table); });
}

bool CUserTableModel::Save() {
  if (!IsChanged()) return true;
  bool others = false;
  CString kept;
  bool saved = true;
  for (CTable& table : State().m_arrTable) saved = SaveTable(table, others, kept) && saved;
  saved = RemoveMissing(kept) && saved;
  if (others) {  // steps before this one know nothing of the rows that came in
    m_arrState = {State()};
    m_nState = 0;
  }
  if (!kept.IsEmpty()) m_user.Tell(texts::kChangedByOthers + kept);
  ShowTable();
  return saved;
}

bool CUserTableModel::SaveTable(CTable& table, bool& others, CString& kept) {
  if (IsSaved(table)) return true;
  const auto saved = m_mapSaved.find(table.m_nId);
  CUserFile file;
  bool written = false;
  if (saved == m_mapSaved.end()) {
    written = m_store.WriteNew(*table.m_table, file);
  } else {
    const CUserFile before = file = saved->second.m_file;
    const bool sameKind = before.m_table->GetTableName() == table.m_table->GetTableName() &&
                          before.m_table->m_Title.IsEqualOf(table.m_table->m_Title);
    written = sameKind ? m_store.WriteRows(*table.m_table, file, others)
                       : m_store.WriteNew(*table.m_table, file);
    if (written && !sameKind && !RemoveFile(before, kept)) TellSaveFailed(m_user);
  }
  if (!written) {
    TellSaveFailed(m_user);
    return false;
  }
  table.m_table = std::make_shared<const CDataTable>(LiveRows(*file.m_table));
  m_mapSaved[table.m_nId] = {file, table.m_table};
  return true;
}

bool CUserTableModel::RemoveFile(const CUserFile& file, CString& kept) {
  const CRemoval removal = file.m_bSingle ? m_store.Remove(file) : CRemoval::Changed;
  if (removal == CRemoval::Changed) kept += L"\n" + file.m_table->GetTableName();
  return removal != CRemoval::Failed;
}

bool CUserTableModel::RemoveMissing(CString& kept) {
  const auto& tables = State().m_arrTable;
  bool removed = true;
  for (auto saved = m_mapSaved.begin(); saved != m_mapSaved.end();) {
    const bool there = std::any_of(tables.begin(), tables.end(), [&](const CTable& table) {
      return table.m_nId == saved->first;
    });
    if (there) {
      ++saved;
    } else if (RemoveFile(saved->second.m_file, kept)) {
      saved = m_mapSaved.erase(saved);
    } else {
      TellSaveFailed(m_user);
      removed = false;
      ++saved;
    }
  }
  return removed;
}

bool CUserTableModel::Ok() {
  const CDataItem before = Row(m_nItem);
  if (!Save()) return false;
  for (int item = 0; item < RowCount() && !before.IsEmpty(); ++item) {
    const CDataItem row = Row(item);
    const bool same =
        std::equal(row.m_arrCell.begin(), row.m_arrCell.end(), before.m_arrCell.begin(),
                   before.m_arrCell.end(),
                   [](const auto& a, const auto& b) { return a.m_strValue == b.m_strValue; });
    if (!same) continue;
    SelectRow(item);
    break;
  }
  CDataItem row = Row(m_nItem);
  if (!AskSpacing(m_user, row, m_strSpacing)) return false;
  m_chosen = row;
  return true;
}

bool CUserTableModel::Cancel() {
  if (!IsChanged()) return true;
  const CMessageAnswer answer =
      m_user.Message({texts::kReminder, texts::kSaveQuestion, CMessageButtons::YesNoCancel});
  if (answer == CMessageAnswer::Yes) return Save();
  return answer == CMessageAnswer::No;
}

}  // namespace orv3
