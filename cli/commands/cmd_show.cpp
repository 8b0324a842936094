// orv3cal show: one section of a store with its cells, geometry, picture and outline.

#include <memory>
#include <string>
#include <vector>

#include "catalogue/exact/row_exact.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_picture.h"
#include "catalogue/outline/row_spacing.h"
#include "commands.h"
#include "drawing/dxf.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "options/nearest.h"
#include "options/output_options.h"
#include "options/value_checks.h"
#include "outlines/geometric_figures.h"
#include "output/exact_view.h"
#include "output/ifc_output.h"
#include "output/output.h"
#include "output/show_view.h"
#include "sections/load_data_table.h"
#include "store/store_place.h"
#include "store/store_table.h"
#include "tables/data_table.h"

namespace orv3::cli {
namespace {

struct CShowOptions {
  std::string table;
  std::string no;
  int turn = 0;
  int gap = 0;
  bool json = false;
  std::string svg;
  std::string dxf;
  std::string ifc;
  CStoreOptions store;
};

CDataItem RowOf(const CShowOptions& options) {
  const CString file = StoreToRead(options.store);
  const CString table = FromUtf8(options.table);
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(table, FromUtf8(options.no));
  if (!row.IsEmpty()) return row;
  FailUnread();
  CStringArray numbers;
  if (CLoadDataTable::GetSysTemItemNo(table, numbers) == 0) StoreTable(file, table);
  const std::string nearest = Nearest(options.no, numbers);
  Refuse(Say("NO: {1} 中没有“{2}”", "NO: {1} has no \"{2}\"", {options.table, options.no}) +
         (nearest.empty() ? Say("，它没有截面", ", it has no sections")
                          : Say("；相近的有：{1}", "; the nearest are: {1}", {nearest})));
}

CDataItem WithGap(const CDataItem& row, const CShowOptions& options) {
  if (!IsPairTable(row.GetTableName()))
    Refuse(Say("--gap: {1} 不是组合截面表", "--gap: {1} is no table of pairs", {options.table}));
  if (PairSpacingSign(row.GetTableName()).IsEmpty()) {
    Refuse(Say("--gap: {1} 的两槽钢相接；分开的槽钢请用 双肢格构柱",
               "--gap: the channels of {1} touch; right for channels apart would be a lattice "
               "column, 双肢格构柱",
               {options.table}));
  }
  return WithPairSpacing(row, options.gap);
}

void WriteDxf(const CShowOptions& options, const CDataItem& row) {
  const COutline outline = RowOutline(row, options.turn);
  if (outline.m_arrLoop.empty())
    Refuse(Say("--dxf: {1} {2} 的尺寸不能构成截面", "--dxf: the sizes of {1} {2} bound no section",
               {options.table, options.no}));
  WriteFile(options.dxf, PathsDxf(outline.m_arrLoop));
}

// A model turns the profile where it is used.
void WriteIfc(const CShowOptions& options, const CDataItem& row) {
  if (options.turn != 0) {
    Refuse(Say("--ifc：型材由模型转动；请不写 --turn",
               "--ifc: a profile is turned by the model that uses it; right would be without "
               "--turn"));
  }
  WriteFile(options.ifc, IfcText(std::vector<CDataItem>{row}, "Orv3Cal"));
}

CExactProperties Turned(const CExactProperties& exact, const CDataItem& row, int turn) {
  if (turn == 0) return exact;
  const COutline outline = RowOutline(row);
  return QuarterTurned(exact, turn / 90, outline.m_dWidth, outline.m_dHeight);
}

void RunShow(const CShowOptions& options, bool spaced) {
  CDataItem row = RowOf(options);
  if (spaced) row = WithGap(row, options);
  const CExactProperties exact = ExactProperties(row);
  if (!options.svg.empty())
    WriteFile(options.svg, RowPictureSvg(row, options.turn, &exact, MessageLanguage()));
  if (!options.dxf.empty()) WriteDxf(options, row);
  if (!options.ifc.empty()) WriteIfc(options, row);
  const CRowFigures figures = RowFigures(row, options.turn);
  if (options.json) {
    CJson json = RowJson(row, figures);
    AddExactJson(json, Turned(exact, row, options.turn));
    PrintJson(json);
  } else {
    PrintRow(row, figures);
    PrintExact(Turned(exact, row, options.turn));
  }
}

}  // namespace

void AddShowCommand(CLI::App& program) {
  auto options = std::make_shared<CShowOptions>();
  CLI::App* command = program.add_subcommand(
      "show", Say("显示库中的截面及其几何特性（mm）",
                  "Show a section of the catalogue or a store with its geometry in mm"));
  command
      ->add_option("TABLE", options->table,
                   Say("截面表，例如 热轧普通工字钢", "The section table, such as 热轧普通工字钢"))
      ->required();
  command
      ->add_option("NO", options->no, Say("型号，例如 I20a", "The section's number, such as I20a"))
      ->required();
  command
      ->add_option("--turn", options->turn,
                   Say("截面逆时针转动的角度", "Turn the section counter-clockwise, degrees"))
      ->check(OneOf({"0", "90", "180", "270"}));
  CLI::Option* gap =
      command
          ->add_option("--gap", options->gap,
                       Say("组合截面两肢的净距，整数 mm，不给时为 0",
                           "Clear distance of a pair's two sections in whole mm, 0 if not given"))
          ->check(Within(0, 1000))
          ->type_name("MM");
  AddStoreOptions(*command, options->store);
  AddJsonOption(*command, options->json);
  AddSvgOption(*command, options->svg);
  AddDxfOption(*command, options->dxf);
  command
      ->add_option(
          "--ifc", options->ifc,
          Say("为建筑信息模型写入 IFC4 型材库", "Write the profile for building models, IFC4"))
      ->type_name("FILE");
  command->callback([options, gap] { RunShow(*options, gap->count() > 0); });
}

}  // namespace orv3::cli
