// orv3cal store add, edit, delete: single rows of a store.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/import/section_rows.h"
#include "error.h"
#include "framework/message.h"
#include "framework/utf8.h"
#include "output.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "sections/load_data_table.h"
#include "show_view.h"
#include "store_commands.h"
#include "store_place.h"
#include "store_table.h"
#include "table_json.h"
#include "tables/aligned_indices.h"
#include "tables/edit_state.h"
#include "tables/file/check.h"
#include "tables/file/table_store.h"

namespace orv3::cli {
namespace {

struct COptions {
  std::string table;
  std::string no;
  std::vector<std::string> set;
  bool json = false;
  CStoreOptions store;
};

constexpr long kPairs = TABLE_ROLLED | TABLE_FAMILY_ANGLE_PAIR | TABLE_FAMILY_CHANNEL_PAIR;

// --- Cells ---------------------------------------------------------------------------------------

// Puts SIGN=VALUE into the row. Signs hold no "=", so that the first one parts them.
void SetCell(const CDataTable& table, const std::string& set, CDataItem& row) {
  const std::size_t equals = set.find('=');
  if (equals == std::string::npos) {
    Refuse("--set: \"" + set + "\" has no \"=\"; right would be SIGN=VALUE");
  }
  const int column = ColumnOf(table, "--set", set.substr(0, equals));
  if (column >= GivenColumns(table.GetTableName(), table.m_Title)) {
    Refuse("--set: \"" + set.substr(0, equals) + "\" is computed from the columns before it");
  }
  row[column].m_strValue = FromUtf8(set.substr(equals + 1)).Trim(L" \t");
}

void SetCells(const CDataTable& table, const COptions& options, CDataItem& row) {
  for (const std::string& set : options.set) SetCell(table, set, row);
  const CString why = CompleteRow(row);
  if (!why.IsEmpty()) Refuse(options.table + ": " + ToUtf8(why));
}

// --- The store -----------------------------------------------------------------------------------

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

  [[noreturn]] void Throw() const { Refuse(ToUtf8(m_text)); }

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

void Tell(const COptions& options, const CDataItem& row, const char* done,
          const std::vector<std::string>& notes = {}) {
  const std::string no = ToUtf8(row.m_arrCell.GetAt(0).m_strValue);
  NoteSaved(options.table + " \"" + no + "\" " + done);
  if (!options.json) {
    Print(options.table + " \"" + no + "\": " + done + "\n");
    return PrintNotes(notes);
  }
  CJson json = {{"table", options.table}, {"no", no}, {"done", done}, {"cells", RowCells(row)}};
  if (!notes.empty()) json["notes"] = notes;
  PrintJson(json);
}

// The store's table; one that it lacks but people know is started.
CDataTable TableToAddTo(const CString& store, const CString& name) {
  CDataTable table;
  table.SetTableName(name);
  CString line;
  if (table.GetTable(store, line)) return table;
  const bool isNew = LastStoreError().m_nTrouble == CStoreTrouble::NoTable ||
                     CStoreFile::OpenToRead(store)->Size() == 0;
  if (isNew && KnownHeading(name, table.m_Title)) return table;
  return StoreTable(store, name);  // which says why not
}

// The position of a live row that may be changed.
int RowToChange(const CDataTable& table, const COptions& options) {
  const int position = table.IsHaveValue(0, FromUtf8(options.no), -1);
  if (position < 0) {
    Refuse("NO: table " + options.table + " has no \"" + options.no +
           "\"; right would be a number that orv3cal rows lists");
  }
  if (IsProtected(table[position].m_nModifyType)) {
    Refuse(options.table + " \"" + options.no + "\": 本数据记录不能删除和编辑!");
  }
  return position;
}

// --- Commands ------------------------------------------------------------------------------------

void RunAdd(const COptions& options) {
  CStoreToWrite store(options.store);
  const CString name = FromUtf8(options.table);
  if (CLoadDataTable::IsTableNameType(name, kPairs)) Refuse("型钢组合不能进行复制");
  CDataTable table = TableToAddTo(store.Path(), name);
  AlignIndices(table);
  CDataItem row = EmptyRow(name, table.m_Title);
  SetCells(table, options, row);
  const CRefusalCatcher caught;
  if (!table.AddTableItem(row, 1)) caught.Throw();
  Save(table, store);
  Tell(options, row, "added", RowDoubtNotes(row));
}

void RunEdit(const COptions& options) {
  CStoreToWrite store(options.store);
  CDataTable table = StoreTable(store.Path(), FromUtf8(options.table));
  CDataItem row = std::as_const(table)[RowToChange(table, options)];
  SetCells(table, options, row);
  const CRefusalCatcher caught;
  if (!table.ModifyTableItem(row.m_nIndex, row)) caught.Throw();
  Save(table, store);
  Tell(options, row, "changed", RowDoubtNotes(row));
}

void RunDelete(const COptions& options) {
  CStoreToWrite store(options.store);
  CDataTable table = StoreTable(store.Path(), FromUtf8(options.table));
  const CDataItem row = std::as_const(table)[RowToChange(table, options)];
  table.DeleteTableItem(row.m_nIndex);
  Save(table, store);
  Tell(options, row, "deleted");
}

CLI::App* Add(CLI::App& store, const char* name, const char* what, bool takesNo,
              void (*run)(const COptions&)) {
  auto options = std::make_shared<COptions>();
  CLI::App* command = store.add_subcommand(name, what);
  command->add_option("TABLE", options->table, "The table's name, as tables lists it")->required();
  if (takesNo) command->add_option("NO", options->no, "The section's number")->required();
  if (run != RunDelete) {
    command
        ->add_option("--set", options->set,
                     "A cell's value; once for each cell. What is computed follows from them")
        ->type_name("SIGN=VALUE")
        ->allow_extra_args(false)
        ->required();
  }
  command->add_flag("--json", options->json, "As JSON");
  AddStoreOptions(*command, options->store);
  command->callback([options, run] { run(*options); });
  return command;
}

}  // namespace

void AddStoreEditCommands(CLI::App& store) {
  Add(store, "add", "Add a row to a table", false, RunAdd);
  Add(store, "edit", "Change cells of a row", true, RunEdit);
  Add(store, "delete", "Delete a row", true, RunDelete);
}

}  // namespace orv3::cli
