#include "catalogue/import/table_import.h"

#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

#include "catalogue/import/section_rows.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/rolled/rolled_style.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/aligned_indices.h"
#include "tables/edit_state.h"
#include "tables/file/check.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

CString FirstCell(const CDataItem& row) {
  return row.IsEmpty() ? CString() : row.m_arrCell.GetAt(0).m_strValue;
}

// All values of a row, as one text.
std::wstring Values(const CDataItem& row) {
  std::wstring values;
  for (const CDataCell& cell : std::as_const(row.m_arrCell)) {
    values.append(cell.m_strValue.View()).push_back(L'\n');
  }
  return values;
}

// --- One table -----------------------------------------------------------------------------------

class CTableMerger {
 public:
  CTableMerger(const CImportTable& source, const CString& store, bool stored, bool overwrite)
      : m_source(source.m_table),
        m_arrLine(source.m_arrLine),
        m_store(store),
        m_overwrite(overwrite),
        m_stored(stored) {
    m_result.m_strTable = m_source.GetTableName();
    m_result.m_arrRefused = source.m_arrRefused;
    m_target.SetTableName(m_source.GetTableName());
  }

  // False, with LastStoreError set, when the store fails.
  bool Run() {
    if (m_source.GetRealTableRowNum() > kMostTableRows) m_result.m_strWhy = TooManyRows();
    if (!m_result.m_strWhy.IsEmpty()) return true;
    if (!Open()) return false;
    if (!m_result.m_strWhy.IsEmpty() || !Check()) return true;
    const CDataItemArray& rows = std::as_const(m_source).m_arrItem;
    for (int i = 0; i < rows.GetSize(); ++i) {
      if (!IsDeleted(rows[i].m_nModifyType)) Row(i, rows[i]);
    }
    // A table without rows is one; one whose rows are all refused is none.
    const bool bare = !m_stored && m_result.m_arrRefused.empty();
    if (m_result.m_nAdded + m_result.m_nReplaced == 0 && !bare) return true;
    const auto faults = SaveFaults(m_target, m_store);
    if (!faults.empty()) {
      const CString name = m_result.m_strTable;
      m_result = {};
      m_result.m_strTable = name;
      m_result.m_strWhy = faults.front().m_strText + Crowd(m_target);
      return true;
    }
    m_changed = m_target.WriteTable(m_store, kSystemKind, 0) != 0;
    return m_changed;
  }

  bool HasChanged() const noexcept { return m_changed; }
  CTableImport Take() { return std::move(m_result); }

 private:
  bool Open() {
    CString line;
    if (m_stored && !m_target.GetTable(m_store, line)) return false;
    if (!m_stored) {
      m_target.m_Title = m_source.m_Title;
    } else if (!m_target.m_Title.IsEqualOf(m_source.m_Title)) {
      m_result.m_strWhy = OtherHeading();
      m_result.m_bOtherColumns = true;
    }
    AlignIndices(m_target);
    m_hasKey = HasKey();
    if (!m_hasKey) {
      for (const CDataItem& row : std::as_const(m_target).m_arrItem) {
        if (!IsDeleted(row.m_nModifyType)) ++m_known[Values(row)];
      }
    }
    return true;
  }

  bool HasKey() const {
    CArray<int, int> keys;
    m_target.m_Title.GetDataTableKeyIndex(keys);
    return !keys.IsEmpty();
  }

  // The usual reason why the record of a table does not fit its place.
  static CString Crowd(const CDataTable& table) {
    constexpr int kUsual = 1600;
    const int rows = table.GetTableRowNum();
    return rows < kUsual
               ? CString()
               : Say(L"；它将有 {1} 行，一个表约可放 1,700 行",
                     L"; it would have {1} rows, a table takes some 1,700", {FormatInt(rows)});
  }

  CString OtherHeading() const {
    const CDataTableTitle& have = m_target.m_Title;
    const CDataTableTitle& come = m_source.m_Title;
    for (int i = 0; i < have.GetTableTitleNum() && i < come.GetTableTitleNum(); ++i) {
      if (have[i].m_strSign == come[i].m_strSign && have[i].m_nType == come[i].m_nType &&
          have[i].m_strName == come[i].m_strName && have[i].m_bKey == come[i].m_bKey) {
        continue;
      }
      return Say(
          L"第 {1} 列是“{2}”（{3}），库中是“{4}”（{5}）；名称、标识、类型和关键字应相同",
          L"column {1} is \"{2}\" ({3}), in the store \"{4}\" ({5}); names, signs, types and "
          L"keys must agree",
          {FormatInt(i + 1), come[i].m_strSign, come[i].m_strName, have[i].m_strSign,
           have[i].m_strName});
    }
    return Say(L"它有 {1} 列，库中有 {2} 列", L"it has {1} columns, in the store {2}",
               {FormatInt(come.GetTableTitleNum()), FormatInt(have.GetTableTitleNum())});
  }

  // What no table file holds: of the heading, which refuses the table, and of rows.
  bool Check() {
    for (const CSaveFault& fault : SaveFaults(m_source, CString(), true)) {
      if (fault.m_nRow < 0) {
        m_result.m_strWhy = fault.m_strText + Crowd(m_source);
        return false;
      }
      m_mapFault.try_emplace(fault.m_nRow, m_arrLine.empty()
                                               ? fault.m_strText
                                               : Place(fault.m_nRow) + fault.m_strInRow);
    }
    return true;
  }

  void Refuse(const CDataItem& row, const CString& why) {
    m_result.m_arrRefused.push_back({FirstCell(row), why});
  }

  // A table of that name with fewer columns is none of the catalogue: nothing computes from it.
  static bool HasRolledColumns(const CDataItem& row) {
    const int style = FindRolledStyle(row.GetTableName().View());
    return style >= 0 &&
           row.GetItemLength() > RolledStyles()[static_cast<std::size_t>(style)].Columns();
  }

  void Row(int position, const CDataItem& row) {
    const auto fault = m_mapFault.find(position);
    if (fault != m_mapFault.end()) return Refuse(row, fault->second);
    CString misfit = RowMisfit(row);
    if (misfit.IsEmpty() && HasRolledColumns(row)) {
      if (const auto lack = CheckRolledRow(row)) misfit = lack->m_text.In(MessageLanguage());
    }
    if (!misfit.IsEmpty()) return Refuse(row, Place(position) + misfit);
    const int present = m_hasKey ? m_target.IsHaveValue(row, -1) : -1;
    if (present >= 0) return Present(std::as_const(m_target).m_arrItem[present], row);
    if (!m_hasKey && IsKnown(row)) {
      ++m_result.m_nUnchanged;
      return;
    }
    ++m_result.m_nAdded;
    Bring(row);
  }

  // Of a row in its source, before what is wrong with it.
  CString Place(int position) const {
    if (!m_arrLine.empty())
      return Say(L"第 {1} 行：", L"line {1}: ",
                 {FormatInt(m_arrLine[static_cast<std::size_t>(position)])});
    return Say(L"表“{1}”第 {2} 行：", L"table \"{1}\", row {2}: ",
               {m_source.GetTableName(), FormatInt(position + 1)});
  }

  // Without a key rows may be equal: each of the source stands for one of the store.
  bool IsKnown(const CDataItem& row) {
    const auto known = m_known.find(Values(row));
    return known != m_known.end() && known->second-- > 0;
  }

  void Present(const CDataItem& present, const CDataItem& row) {
    if (Values(present) == Values(row)) {
      ++m_result.m_nUnchanged;
    } else if (!m_overwrite) {
      Refuse(row, Say(L"库中已有，但值不同，只有覆盖才能替换",
                      L"the store has it with other values, which only overwriting replaces"));
    } else if (IsProtected(present.m_nModifyType) && !IsProtected(row.m_nModifyType)) {
      Refuse(row, Say(L"本数据记录不能删除和编辑!",
                      L"it is a row of the catalogue, which nobody changes"));
    } else {
      ++m_result.m_nReplaced;
      Bring(row);
    }
  }

  void Bring(const CDataItem& row) {
    CDataItem copy = row;
    copy.m_strTableName = m_target.GetTableName();
    m_target.ImportTableItem(copy, 1);
    if (const auto what = Contradiction(copy))
      m_result.m_arrDoubtful.push_back({FirstCell(row), FromUtf8(what->In(MessageLanguage()))});
  }

  const CDataTable& m_source;
  const std::vector<int>& m_arrLine;
  const CString m_store;
  const bool m_overwrite;
  const bool m_stored;  // the store has the table
  CDataTable m_target;
  bool m_hasKey = false;
  bool m_changed = false;
  std::unordered_map<std::wstring, int> m_known;  // rows without a key that are left to be met
  std::map<int, CString> m_mapFault;
  CTableImport m_result;
};

// --- The store -----------------------------------------------------------------------------------

// The names of the store's tables; false when the file is neither a table file nor new.
bool NamesOf(const CString& store, std::set<CString>& names) {
  const auto file = CStoreFile::OpenToRead(store);
  if (!file) return false;
  if (file->Size() == 0) return true;
  CStringArray found;
  CDataTable::GetTableNameFromFile(store, found);
  names.insert(found.begin(), found.end());
  return LastStoreError().m_nTrouble == CStoreTrouble::None;
}

// `changed` tells whether there is anything to commit.
bool MergeAll(const std::vector<CImportTable>& tables, const CString& store,
              const CImportOptions& options, CImportReport& report, bool& changed) {
  std::set<CString> names;
  if (!NamesOf(store, names)) return false;
  const auto tell = [&options](std::size_t done, std::size_t of) {
    if (options.m_progress) options.m_progress(static_cast<double>(done) / static_cast<double>(of));
  };
  for (std::size_t i = 0; i < tables.size(); ++i) {
    tell(i, tables.size() + 1);
    const CString name = tables[i].m_table.GetTableName();
    if (!options.m_strTable.IsEmpty() && options.m_strTable != name) continue;
    CTableMerger merger(tables[i], store, names.contains(name), options.m_bOverwrite);
    if (!merger.Run()) return false;
    report.m_arrTable.push_back(merger.Take());
    changed = changed || merger.HasChanged();
    if (merger.HasChanged()) names.insert(name);
  }
  tell(tables.size(), tables.size() + 1);
  return true;
}

}  // namespace

CString TooManyRows() {
  return Say(L"行数超过 {1}；一个表约可放 1,700 行，请分为几个表",
             L"it has more than {1} rows; a table takes some 1,700, right would be several tables",
             {FormatInt(kMostTableRows)});
}

CImportReport ImportTables(const std::vector<CImportTable>& tables, const CString& store,
                           const CImportOptions& options) {
  CImportReport report;
  CStoreBatch batch(store);
  bool done = false;
  bool changed = false;
  try {
    done = batch.IsHeld() && MergeAll(tables, store, options, report, changed) &&
           (!changed || batch.Commit());
  } catch (const CInvalidArgException&) {  // a row on file with more values than columns
    SetStoreError(
        CStoreTrouble::Damaged, store,
        Say(L"{1}: 有一行的值多于列", L"{1}: a row has more values than columns", {store}));
  }
  if (done && !options.m_strTable.IsEmpty() && report.m_arrTable.empty()) {
    report.m_strWhy =
        Say(L"文件中没有表“{1}”", L"the source has no table \"{1}\"", {options.m_strTable});
    return report;
  }
  report.m_bDone = done;
  if (!done) {
    report.m_arrTable.clear();
    report.m_strWhy = LastStoreError().m_strText;
  }
  if (done && options.m_progress) options.m_progress(1);
  return report;
}

}  // namespace orv3
