// orv3cal show: one section of a store with its cells, geometry, picture and outline.

#include <memory>
#include <string>

#include "catalogue/exact/row_exact.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_picture.h"
#include "catalogue/outline/row_spacing.h"
#include "commands.h"
#include "drawing/dxf.h"
#include "error.h"
#include "exact_view.h"
#include "framework/utf8.h"
#include "nearest.h"
#include "output.h"
#include "sections/load_data_table.h"
#include "show_view.h"
#include "store_place.h"
#include "tables/data_table.h"

namespace orv3::cli {
namespace {

struct COptions {
  std::string table;
  std::string no;
  int turn = 0;
  int gap = 0;
  bool json = false;
  std::string svg;
  std::string dxf;
  CStoreOptions store;
};

[[noreturn]] void RefuseTable(const COptions& options, const CString& file) {
  CStringArray names;
  CDataTable::GetTableNameFromFile(file, names);
  Refuse("TABLE: " + ToUtf8(file) + " has no table \"" + options.table +
         "\"; the nearest are: " + Nearest(options.table, names));
}

CDataItem RowOf(const COptions& options) {
  const CString file = StoreToRead(options.store);
  const CString table = FromUtf8(options.table);
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(table, FromUtf8(options.no));
  if (!row.IsEmpty()) return row;
  CStringArray numbers;
  if (CLoadDataTable::GetSysTemItemNo(table, numbers) == 0) RefuseTable(options, file);
  const std::string nearest = Nearest(options.no, numbers);
  Refuse("NO: " + options.table + " has no \"" + options.no + "\"" +
         (nearest.empty() ? ", it has no sections" : "; the nearest are: " + nearest));
}

CDataItem WithGap(const CDataItem& row, const COptions& options) {
  if (!IsPairTable(row.GetTableName())) Refuse("--gap: " + options.table + " is no table of pairs");
  if (PairSpacingSign(row.GetTableName()).IsEmpty()) {
    Refuse("--gap: the channels of " + options.table +
           " touch; right for channels apart would be a lattice column, 双肢格构柱");
  }
  return WithPairSpacing(row, options.gap);
}

void WriteDxf(const COptions& options, const CDataItem& row) {
  const COutline outline = RowOutline(row, options.turn);
  if (outline.m_arrLoop.empty())
    Refuse("--dxf: the sizes of " + options.table + " " + options.no + " bound no section");
  WriteFile(options.dxf, PathsDxf(outline.m_arrLoop));
}

void RunShow(const COptions& options, bool spaced) {
  CDataItem row = RowOf(options);
  if (spaced) row = WithGap(row, options);
  if (!options.svg.empty()) WriteFile(options.svg, RowPictureSvg(row, options.turn));
  if (!options.dxf.empty()) WriteDxf(options, row);
  const CRowFigures figures = RowFigures(row, options.turn);
  const CExactProperties exact = ExactProperties(row);
  if (options.json) {
    CJson json = RowJson(row, figures);
    json["exact"] = ExactJson(exact);
    PrintJson(json);
  } else {
    PrintRow(row, figures);
    PrintExact(exact);
  }
}

}  // namespace

void AddShowCommand(CLI::App& program) {
  auto options = std::make_shared<COptions>();
  CLI::App* command = program.add_subcommand(
      "show", "Show a section of the catalogue or a store with its geometry in mm");
  command->add_option("TABLE", options->table, "The section table, such as 热轧普通工字钢")
      ->required();
  command->add_option("NO", options->no, "The section's number, such as I20a")->required();
  command->add_option("--turn", options->turn, "Turn the section counter-clockwise, degrees")
      ->check(CLI::IsMember({0, 90, 180, 270}));
  CLI::Option* gap =
      command
          ->add_option("--gap", options->gap,
                       "Clear distance of a pair's two sections in whole mm, 0 if not given")
          ->check(CLI::Range(0, 1000))
          ->type_name("MM");
  AddStoreOptions(*command, options->store);
  command->add_flag("--json", options->json, "As JSON, numbers with all their digits");
  command->add_option("--svg", options->svg, "Write a picture drawn to scale")->type_name("FILE");
  command
      ->add_option("--dxf", options->dxf,
                   "Write the outline for a drawing program: polylines with arcs, in mm")
      ->type_name("FILE");
  command->callback([options, gap] { RunShow(*options, gap->count() > 0); });
}

}  // namespace orv3::cli
