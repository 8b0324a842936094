// A row with its geometry, as JSON and as a table for people.
#pragma once

#include <string>
#include <vector>

#include "catalogue/outline/row_figures.h"
#include "output/output.h"
#include "output/text_table.h"
#include "tables/data_item.h"

namespace orv3::cli {

CJson RowJson(const CDataItem& row, const CRowFigures& figures);
void PrintRow(const CDataItem& row, const CRowFigures& figures);

// The figures alone, as `geometry` of RowJson has them.
CJson FiguresJson(const CRowFigures& figures);
// Those that the properties of a user-defined section do not tell: the enclosing rectangle,
// thicknesses, shear centre, warping, least radius, symmetry.
void AddFurtherFigures(CTextTable& table, const CRowFigures& figures);

// Where a row contradicts itself: figures that are not those of its sizes or limbs.
std::vector<std::string> RowDoubtNotes(const CDataItem& row);
// These and what else a reader of the row's figures should know.
std::vector<std::string> RowNotes(const CDataItem& row);
void PrintNotes(const std::vector<std::string>& notes);

}  // namespace orv3::cli
