// What the answers of this folder tell besides their verdicts.
#pragma once

#include <span>
#include <vector>

#include "connections/gb2017/detail.h"
#include "connections/gb2017/weld_case.h"
#include "reports/case_keys.h"

namespace orv3::gb2017 {

// Of each rule that is not kept, with its numbers.
void NoteOfDetails(std::span<const CDetail> details, std::vector<CCaseWarning>& notes);

// What the leg of a fillet weld is enough for when the parts are not given.
void NoteOfUnknownParts(const CFilletCase2017& input, std::vector<CCaseWarning>& notes);

// Of the edge that decides where it is not the one that `sigma` is of.
void NoteOfEdge(const CWeldFigures& judged, std::vector<CCaseWarning>& notes);

// As NoteOfUnknownParts, for a group of welds by its smallest leg.
void NoteOfThickParts(const char* key, double hf, std::vector<CCaseWarning>& notes);

}  // namespace orv3::gb2017
