// orv3cal rows: the rows of one table, searched and sorted.

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/import/section_rows.h"
#include "catalogue/rolled/angle_capacity.h"
#include "commands.h"
#include "error.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/exact_keys.h"
#include "output/csv_output.h"
#include "output/exact_columns.h"
#include "output/exact_view.h"
#include "output/figure_cells.h"
#include "output/output.h"
#include "output/table_json.h"
#include "output/text_table.h"
#include "store/store_place.h"
#include "store/store_table.h"
#include "tables/edit_state.h"
#include "tables/expression.h"

namespace orv3::cli {
namespace {

struct CRowsOptions {
  std::string table;
  std::string where;
  bool wildcard = false;
  std::vector<std::string> columns;
  std::string sort;
  bool json = false;
  bool csv = false;
  bool guard = false;
  bool exact = false;
  CStoreOptions store;
};

// --- Conditions ----------------------------------------------------------------------------------

// A search passes over what it does not understand; here it is refused.
void CheckPart(const CDataTable& table, const CSearchExpression::CPart& part, bool wildcard) {
  const CString sign = CString(part.m_strSign).Trim();
  const CDataTypeStruct& column =
      table.m_Title[ColumnOf(table, "--where", ToUtf8(sign), ExactSigns())];
  const CString value = CString(part.m_strValue).Trim();
  const bool star = value.Find(L'*') >= 0;
  const bool pattern =
      wildcard && star && (part.m_strOperator == L"==" || part.m_strOperator == L"!=");
  if (ValueClassOf(column.m_nType) == CValueClass::Text || pattern || IsNumber(value)) return;
  Refuse(Say("--where: {1} 为数值列，“{2}”不是数值；请给出数值",
             "--where: {1} holds numbers, \"{2}\" is none; right would be a number",
             {ToUtf8(sign), ToUtf8(value)}) +
         (star && !wildcard ? Say("，或用 --wildcard 使“*”通配", ", or --wildcard for the \"*\"")
                            : ""));
}

// The expression with the blanks around its signs and values taken away, which a search would take
// for parts of the values.
CString Checked(const CDataTable& table, const std::string& where, bool wildcard) {
  const CString given = FromUtf8(where);
  if (given.Find(L"VIEW") >= 0)
    Refuse(
        Say("--where: 这里不能用 VIEW；请用 --columns 给出要显示的列",
            "--where: VIEW has no place here; right would be --columns for the columns to show"));
  const CSearchExpression search(given);
  const CString joiner = search.m_bAnd ? L"&&" : L"||";
  CStringArray parts;
  CDataTable::TransStrToArray(given, joiner, parts);
  if (search.m_bAnd && given.Find(L"||") >= 0)
    Refuse(Say("--where: && 与 || 不能混用；请只用一种",
               "--where: && and || cannot be mixed; right would be one of them"));
  CString text;
  for (std::size_t i = 0; i < search.m_arrPart.size(); ++i) {
    const CSearchExpression::CPart& part = search.m_arrPart[i];
    if (part.m_strOperator.IsEmpty()) {
      Refuse(
          Say("--where: “{1}”不是条件；应为 标识 运算符 值，运算符为 ==、!=、>>、<<、>=、<= 之一",
              "--where: \"{1}\" is no condition; right would be SIGN OPERATOR VALUE with one of "
              "==, !=, >>, <<, >=, <=",
              {ToUtf8(parts[static_cast<int>(i)].Trim())}));
    }
    CheckPart(table, part, wildcard);
    if (i > 0) text += joiner;
    text += CString(part.m_strSign).Trim() + part.m_strOperator + CString(part.m_strValue).Trim();
  }
  return text;
}

// --- The rows ------------------------------------------------------------------------------------

void Sort(CDataTable& table, const std::string& sort) {
  const std::size_t colon = sort.rfind(':');
  const std::string order = colon == std::string::npos ? "asc" : sort.substr(colon + 1);
  if (order != "asc" && order != "desc") {
    Refuse(Say("--sort: “{1}”不是次序；应为 desc 或 asc",
               "--sort: \"{1}\" is no order; right would be desc, or asc", {order}));
  }
  const int column = ColumnOf(table, "--sort", sort.substr(0, colon), ExactSigns());
  table.OrderTable(column, order == "asc" ? 1 : 0);
  if (IsExactColumn(table.m_Title[column])) SortUnknownLast(table, column);
}

// The signs that the options ask for, wherever they stand.
std::vector<std::string> AskedSigns(const CRowsOptions& options) {
  std::vector<std::string> signs = options.columns;
  if (options.exact) signs.insert(signs.end(), ExactSigns().begin(), ExactSigns().end());
  signs.push_back(options.sort.substr(0, options.sort.rfind(':')));
  for (const CSearchExpression::CPart& part : CSearchExpression(FromUtf8(options.where)).m_arrPart)
    signs.push_back(ToUtf8(CString(part.m_strSign).Trim()));
  return signs;
}

CDataTable Selected(const CDataTable& all, const CRowsOptions& options) {
  CDataTable table(all);
  if (!options.where.empty()) {
    const CString expression = Checked(all, options.where, options.wildcard);
    table = table.SearchTable(expression.GetString(), options.wildcard ? 1 : 0);
    const CSearchExpression search(expression);
    if (!search.m_bEverything) RemoveUnknown(table, search, options.wildcard);
  }
  if (!options.sort.empty()) Sort(table, options.sort);
  CDataTableTitle known;  // elsewhere a large number is one, and no mark of a section's figures
  if (!options.json && KnownHeading(all.GetTableName(), known)) ShowFigures(table);
  if (options.columns.empty()) return table;
  CString signs;
  std::vector<std::string> shown = options.columns;
  if (options.exact) shown.insert(shown.end(), ExactSigns().begin(), ExactSigns().end());
  for (const std::string& sign : shown) {
    ColumnOf(all, "--columns", sign, ExactSigns());
    signs += (signs.IsEmpty() ? L"" : L"<<>>") + FromUtf8(sign);
  }
  return table.ViewTable(signs.GetString());
}

std::vector<std::string> Signs(const CDataTable& table) {
  std::vector<std::string> signs;
  signs.reserve(static_cast<std::size_t>(table.GetTableColNum()));
  for (int i = 0; i < table.GetTableColNum(); ++i)
    signs.push_back(ToUtf8(table.m_Title[i].m_strSign));
  return signs;
}

template <class USE>
void ForEachLive(const CDataTable& table, const USE& use) {
  for (const CDataItem& row : table.m_arrItem) {
    if (!IsDeleted(row.m_nModifyType)) use(row);
  }
}

// --- Output --------------------------------------------------------------------------------------

// The columns that say with what their figures were computed.
bool HasCapacities(const CDataTable& table) {
  const std::vector<std::string> signs = Signs(table);
  return HasAngleCapacities(table.GetTableName()) &&
         std::any_of(signs.begin(), signs.end(),
                     [](const std::string& sign) { return sign.ends_with("(kN)"); });
}

// The cells as they stand in the store, which is what programs and exports take; of rows with exact
// properties their accuracy.
void PrintRowsJson(const CRowsOptions& options, const CDataTable& table,
                   const std::map<int, CExactProperties>& exacts) {
  CJson json = TableJson(options.table, table);
  AddAccuracies(json, exacts);
  if (HasCapacities(table)) json["notes"] = {AngleCapacityBasis().In(MessageLanguage())};
  PrintJson(json);
}

void PrintRowsCsv(const CDataTable& table, bool guard) {
  std::string text = kCsvMark + CsvLine(Signs(table));
  ForEachLive(table, [&](const CDataItem& row) {
    std::vector<std::string> cells = RowCells(row);
    if (guard) GuardFormulas(cells);
    text += CsvLine(cells);
  });
  PrintCsv(text);
}

// Those of exact properties with their units, as the table's own have theirs.
std::vector<std::string> ShownSigns(const CDataTable& table) {
  std::vector<std::string> signs = Signs(table);
  for (std::string& sign : signs) {
    if (const CExactKey* key = FindExactKey(sign))
      sign += std::string("(") + key->m_szSignUnit + ")";
  }
  return signs;
}

// With the digits that a reader needs.
std::vector<std::string> ShownCells(const CDataTable& table, const CDataItem& row) {
  std::vector<std::string> cells = RowCells(row);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (!IsExactColumn(table.m_Title[static_cast<int>(i)])) continue;
    cells[i] = cells[i].empty() ? "-" : NumberText(ToDouble(FromUtf8(cells[i])));
  }
  return cells;
}

void PrintRows(const CRowsOptions& options, const CDataTable& table) {
  std::vector<CAlign> columns;
  for (int i = 0; i < table.GetTableColNum(); ++i) {
    const bool text = ValueClassOf(table.m_Title[i].m_nType) == CValueClass::Text;
    columns.push_back(text ? CAlign::Left : CAlign::Right);
  }
  CTextTable lines(columns);
  lines.AddRow(ShownSigns(table));
  int count = 0;
  ForEachLive(table, [&](const CDataItem& row) {
    lines.AddRow(ShownCells(table, row));
    ++count;
  });
  Print(lines.Text() + "\n" + options.table + ": " +
        Say("{1} 行\n", count == 1 ? "{1} row\n" : "{1} rows\n", {std::to_string(count)}));
  if (count > 0 && HasCapacities(table))
    Print(std::string(AngleCapacityBasis().In(MessageLanguage())) + "\n");
  const bool star = options.where.find('*') != std::string::npos;
  if (count == 0 && star && !options.wildcard)
    Print(Say("加 --wildcard 后 * 代表任意文字\n", "with --wildcard a * stands for any text\n"));
}

void RunRows(const CRowsOptions& options) {
  CDataTable all = StoreTable(StoreToRead(options.store), FromUtf8(options.table));
  const auto exacts = AddExactColumns(all, AskedSigns(options));
  const CDataTable table = Selected(all, options);
  if (options.json) return PrintRowsJson(options, table, exacts);
  if (options.csv) return PrintRowsCsv(table, options.guard);
  PrintRows(options, table);
}

}  // namespace

void AddRowsCommand(CLI::App& program) {
  auto options = std::make_shared<CRowsOptions>();
  CLI::App* command = program.add_subcommand(
      "rows", Say("列出表中各行，可检索和排序", "List a table's rows, searched and sorted"));
  command
      ->add_option("TABLE", options->table,
                   Say("表名，见 tables", "The table's name, as tables lists it"))
      ->required();
  command
      ->add_option("--where", options->where,
                   Say("条件 标识 运算符 值，用 && 或 || 连接；运算符为 ==、!=、>>、<<、>=、<=",
                       "Conditions SIGN OPERATOR VALUE joined by && or by ||; operators ==, !=, "
                       ">>, <<, >=, <="))
      ->type_name("EXPR");
  command->add_flag(
      "--wildcard", options->wildcard,
      Say("值首尾的 * 代表任意文字", "Let * at an end of a value stand for any text"));
  command
      ->add_option("--columns", options->columns,
                   Say("要显示的列，按表中次序", "The columns to show, in the table's order"))
      ->type_name("SIGN,SIGN...")
      ->delimiter(',');
  command->add_flag("--exact", options->exact,
                    Say("另列由轮廓精确计算的各量",
                        "Show the exact properties, computed from the outlines, as columns too"));
  command
      ->add_option(
          "--sort", options->sort,
          Say("排序的列，升序；:desc 为降序", "The column to sort by, ascending unless :desc"))
      ->type_name("SIGN[:desc]");
  CLI::Option* json = command->add_flag(
      "--json", options->json, Say("以 JSON 输出，单元格为文字", "As JSON, cells as text"));
  CLI::Option* csv =
      command->add_flag("--csv", options->csv,
                        Say("以 CSV 输出，可用电子表格打开", "As CSV that a spreadsheet opens"));
  csv->excludes(json);
  command
      ->add_flag("--guard", options->guard,
                 Say("CSV 的单元格不会被电子表格当作公式",
                     "No cell of the CSV is a formula to a spreadsheet"))
      ->needs(csv);
  command->footer(
      "orv3cal rows 热轧普通工字钢 --where 'h(mm)>=200 && h(mm)<<300' --sort 'A(cm^2):desc'\n"
      "orv3cal rows 热轧普通工字钢 --where 'No.==I20*' --wildcard --columns 'No.,A(cm^2)' --csv\n"
      "orv3cal rows 热轧普通工字钢 --where 'It>=1e6' --columns 'No.,It,Iw,Wpx' --sort It");
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunRows(*options); });
}

}  // namespace orv3::cli
