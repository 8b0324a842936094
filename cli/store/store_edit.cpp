// orv3cal store add, edit, delete: single rows of a store.

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/import/section_rows.h"
#include "error.h"
#include "framework/language.h"
#include "framework/message.h"
#include "framework/utf8.h"
#include "output/output.h"
#include "output/show_view.h"
#include "output/table_json.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "sections/load_data_table.h"
#include "store/store_commands.h"
#include "store/store_place.h"
#include "store/store_table.h"
#include "tables/aligned_indices.h"
#include "tables/edit_state.h"
#include "tables/file/check.h"
#include "tables/file/table_store.h"

namespace orv3::cli {
namespace {

struct CStoreEditOptions {
  std::string table;
  std::string no;
  std::vector<std::string> key;
  std::vector<std::string> set;
  bool json = false;
  CStoreOptions store;
};

constexpr long kPairs = TABLE_ROLLED | TABLE_FAMILY_ANGLE_PAIR | TABLE_FAMILY_CHANNEL_PAIR;

// --- Cells ---------------------------------------------------------------------------------------

// SIGN=VALUE of an option: the column and the value. Signs hold no "=", so that the first one parts
// them.
std::pair<int, CString> CellOf(const CDataTable& table, const char* option,
                               const std::string& given) {
  const std::size_t equals = given.find('=');
  if (equals == std::string::npos) {
    Refuse(Say("{1}: “{2}”中没有“=”；应为 SIGN=VALUE",
               "{1}: \"{2}\" has no \"=\"; right would be SIGN=VALUE", {option, given}));
  }
  return {ColumnOf(table, option, given.substr(0, equals)), FromUtf8(given.substr(equals + 1))};
}

// Puts a cell of --set into the row and returns its column.
int SetCell(const CDataTable& table, const std::string& set, CDataItem& row) {
  const auto [column, value] = CellOf(table, "--set", set);
  if (column >= GivenColumns(table.GetTableName(), table.m_Title)) {
    Refuse(Say("--set: “{1}”由它前面的列计算，不能给出",
               "--set: \"{1}\" is computed from the columns before it",
               {ToUtf8(table.m_Title[column].m_strSign)}));
  }
  row[column].m_strValue = value;
  return column;
}

// The columns that --set names.
std::set<int> SetCells(const CDataTable& table, const CStoreEditOptions& options, CDataItem& row) {
  std::set<int> columns;
  for (const std::string& set : options.set) {
    if (columns.insert(SetCell(table, set, row)).second) continue;
    Refuse(Say("--set: “{1}”给出了两次；每个单元格只能给一次",
               "--set: \"{1}\" is given twice; right would be one value for each cell",
               {set.substr(0, set.find('='))}));
  }
  return columns;
}

void Complete(const CStoreEditOptions& options, CDataItem& row) {
  const CString why = CompleteRow(row);
  if (!why.IsEmpty()) Refuse(options.table + ": " + ToUtf8(why));
}

// Completes a row of which these columns were changed. The number of a section that an import has
// brought in need not be one that can be typed, and stays; nothing is computed from it.
void CompleteChanged(const CStoreEditOptions& options, const std::set<int>& changed,
                     CDataItem& row) {
  CDataTableTitle known;
  if (changed.contains(0) || !KnownHeading(row.m_strTableName, known)) {
    return Complete(options, row);
  }
  const CString no = std::as_const(row)[0].m_strValue;
  row[0].m_strValue = L"x";
  Complete(options, row);
  row[0].m_strValue = no;
}

// --- The store -----------------------------------------------------------------------------------

// The column that rows are known by: the first of the key, without one the first of all.
int KeyColumn(const CDataTable& table) {
  CArray<int, int> keys;
  table.m_Title.GetDataTableKeyIndex(keys);
  return keys.IsEmpty() ? 0 : keys[0];
}

// What a table says instead of taking a row becomes the command's error.
class CRefusalCatcher {
 public:
  CRefusalCatcher()
      : m_previous(SetMessageHandler([this](const CMessage& message) {
          m_text = message.m_strText;
          return CMessageAnswer::Ok;
        })) {}
  ~CRefusalCatcher() { SetMessageHandler(m_previous); }
  CRefusalCatcher(const CRefusalCatcher&) = delete;
  CRefusalCatcher& operator=(const CRefusalCatcher&) = delete;

  // The library has its words in Chinese.
  [[noreturn]] void Throw(const CDataItem& row) const {
    Refuse(Say(
        "{1}", "{2}: the table has a row \"{3}\" already; right would be another key",
        {ToUtf8(m_text), ToUtf8(row.m_strTableName), ToUtf8(row.m_arrCell.GetAt(0).m_strValue)}));
  }

 private:
  CMessageHandler m_previous;
  CString m_text;
};

void Save(CDataTable& table, CStoreToWrite& store) {
  const auto faults = SaveFaults(table, store.Path());
  if (!faults.empty()) Refuse(ToUtf8(faults.front().m_strText));
  if (!table.WriteTable(store.Path(), kSystemKind, 0)) {
    throw CCommandError(CExit::FileTrouble, ToUtf8(LastStoreError().m_strText));
  }
  store.Commit();
}

void Tell(const CStoreEditOptions& options, const CDataTable& table, const CDataItem& row,
          CTextLiteral done, const std::vector<std::string>& notes = {}) {
  const std::string no = ToUtf8(row[KeyColumn(table)].m_strValue);
  const std::string told = done.In(MessageLanguage());
  NoteSaved(options.table + " \"" + no + "\" " + told);
  if (!options.json) {
    Print(options.table + " \"" + no + "\": " + told + "\n");
    return PrintNotes(notes);
  }
  CJson json = {
      {"table", options.table}, {"no", no}, {"done", done.m_szEnglish}, {"cells", RowCells(row)}};
  if (!notes.empty()) json["notes"] = notes;
  PrintJson(json);
}

// The store's table; one that it lacks but people know is started.
CDataTable TableToAddTo(const CString& store, const CString& name) {
  CDataTable table;
  table.SetTableName(name);
  CString line;
  if (table.GetTable(store, line)) return table;
  const bool empty = CStoreFile::OpenToRead(store)->Size() == 0;
  const bool isNew = empty || LastStoreError().m_nTrouble == CStoreTrouble::NoTable;
  if (isNew && KnownHeading(name, table.m_Title)) return table;
  if (empty) {
    Refuse(Say("TABLE: “{1}”不是截面表；新库中的其他表由 store import 建立",
               "TABLE: \"{1}\" is no section table; other tables of a new store are made by store "
               "import",
               {ToUtf8(name)}));
  }
  return StoreTable(store, name);  // which says why not
}

// The positions of the live rows that NO names by the key column, and --key by further ones.
std::vector<int> RowsNamed(const CDataTable& table, const CStoreEditOptions& options) {
  std::vector<std::pair<int, CString>> wanted = {{KeyColumn(table), FromUtf8(options.no)}};
  for (const std::string& key : options.key) wanted.push_back(CellOf(table, "--key", key));
  std::vector<int> positions;
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    const CDataItem& row = table[i];
    const bool named = std::all_of(wanted.begin(), wanted.end(), [&row](const auto& cell) {
      return row[cell.first].m_strValue == cell.second;
    });
    if (named && !IsDeleted(row.m_nModifyType)) positions.push_back(i);
  }
  return positions;
}

// The first column in which rows differ, -1 when they are equal.
int DifferentColumn(const CDataTable& table, const std::vector<int>& positions) {
  for (int column = 0; column < table.GetTableColNum(); ++column) {
    const CString& first = table[positions.front()][column].m_strValue;
    for (const int position : positions) {
      if (table[position][column].m_strValue != first) return column;
    }
  }
  return -1;
}

// The position of the one row that is named; of rows that are equal, of the first.
int PositionOf(const CDataTable& table, const CStoreEditOptions& options) {
  const std::vector<int> positions = RowsNamed(table, options);
  std::string named = options.no;
  for (const std::string& key : options.key) named += ", " + key;
  if (positions.empty()) {
    Refuse(Say("NO: 表 {1} 中没有“{2}”；应为 orv3cal rows 列出的型号",
               "NO: table {1} has no \"{2}\"; right would be a number that orv3cal rows lists",
               {options.table, named}));
  }
  const int different = DifferentColumn(table, positions);
  if (different < 0) return positions.front();
  const CDataItem& row = table[positions.front()];
  Refuse(
      Say("NO: 表 {1} 中有 {2} 行“{3}”；请用 --key 再给出其中一行的单元格，例如 --key \"{4}={5}\"",
          "NO: table {1} has {2} rows \"{3}\"; right would be a cell of one of them as well, "
          "such as --key \"{4}={5}\"",
          {options.table, std::to_string(positions.size()), named,
           ToUtf8(table.m_Title[different].m_strSign), ToUtf8(row[different].m_strValue)}));
}

// The position of a live row that may be changed.
int RowToChange(const CDataTable& table, const CStoreEditOptions& options) {
  const int position = PositionOf(table, options);
  if (IsProtected(table[position].m_nModifyType)) {
    Refuse(Say("{1}“{2}”：本数据记录不能删除和编辑!",
               "{1} \"{2}\": is a row of the catalogue, which nobody changes; right would be a row "
               "of your own",
               {options.table, options.no}));
  }
  return position;
}

// The row at a position, under a stable index that leads to it: files may hold an index twice.
CDataItem RowAt(CDataTable& table, int position) {
  if (table.GetTableIndex(std::as_const(table)[position].m_nIndex) != position) AlignIndices(table);
  return std::as_const(table)[position];
}

// --- Commands ------------------------------------------------------------------------------------

void RunAdd(const CStoreEditOptions& options) {
  CStoreToWrite store(options.store);
  const CString name = FromUtf8(options.table);
  if (CLoadDataTable::IsTableNameType(name, kPairs))
    Refuse(Say("型钢组合不能进行复制",
               "TABLE: pairs are made of single sections and take no rows of their own"));
  CDataTable table = TableToAddTo(store.Path(), name);
  AlignIndices(table);
  CDataItem row = EmptyRow(name, table.m_Title);
  SetCells(table, options, row);
  Complete(options, row);
  const CRefusalCatcher caught;
  if (!table.AddTableItem(row, 1)) caught.Throw(row);
  Save(table, store);
  Tell(options, table, row, {"已增加", "added"}, RowDoubtNotes(row));
}

void RunEdit(const CStoreEditOptions& options) {
  CStoreToWrite store(options.store, true);
  CDataTable table = StoreTable(store.Path(), FromUtf8(options.table));
  CDataItem row = RowAt(table, RowToChange(table, options));
  CompleteChanged(options, SetCells(table, options, row), row);
  const CRefusalCatcher caught;
  if (!table.ModifyTableItem(row.m_nIndex, row)) caught.Throw(row);
  Save(table, store);
  Tell(options, table, row, {"已修改", "changed"}, RowDoubtNotes(row));
}

void RunDelete(const CStoreEditOptions& options) {
  CStoreToWrite store(options.store, true);
  CDataTable table = StoreTable(store.Path(), FromUtf8(options.table));
  const CDataItem row = RowAt(table, RowToChange(table, options));
  table.DeleteTableItem(row.m_nIndex);
  Save(table, store);
  Tell(options, table, row, {"已删除", "deleted"});
}

CLI::App* Add(CLI::App& store, const char* name, const std::string& what, bool takesNo,
              void (*run)(const CStoreEditOptions&)) {
  auto options = std::make_shared<CStoreEditOptions>();
  CLI::App* command = store.add_subcommand(name, what);
  command
      ->add_option("TABLE", options->table,
                   Say("表名，见 tables", "The table's name, as tables lists it"))
      ->required();
  if (takesNo) {
    command
        ->add_option("NO", options->no,
                     Say("型号：关键字列的值，没有关键字时为第一列的值",
                         "The section's number: the cell of the key column, without a key of the "
                         "first"))
        ->required();
    command
        ->add_option("--key", options->key,
                     Say("有几行为此型号时，所指一行的另一单元格；可给几次",
                         "Another cell of the row that is meant, where several have that number; "
                         "once for each cell"))
        ->type_name("SIGN=VALUE")
        ->allow_extra_args(false);
  }
  if (run != RunDelete) {
    command
        ->add_option("--set", options->set,
                     Say("单元格的值，每格给一次；计算所得的列由此得出",
                         "A cell's value; once for each cell. What is computed follows from them"))
        ->type_name("SIGN=VALUE")
        ->allow_extra_args(false)
        ->required();
  }
  command->add_flag("--json", options->json, Say("以 JSON 输出", "As JSON"));
  AddStoreOptions(*command, options->store);
  command->callback([options, run] { run(*options); });
  return command;
}

}  // namespace

void AddStoreEditCommands(CLI::App& store) {
  Add(store, "add", Say("在表中增加一行", "Add a row to a table"), false, RunAdd);
  Add(store, "edit", Say("修改一行的单元格", "Change cells of a row"), true, RunEdit);
  Add(store, "delete", Say("删除一行", "Delete a row"), true, RunDelete);
}

}  // namespace orv3::cli
