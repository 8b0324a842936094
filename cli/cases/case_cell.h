// What a cell stands for, by the key of its column.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cases/case_schema.h"

namespace orv3::cli {

// The text of a cell: a text where the key takes one, true, false, 1 or 0 where it takes yes or no,
// a list where semicolons stand, else a number;
// what is none of them stays a text, which the schema then refuses. A list is kept in `list`, which
// the value points into.
CKeyValue CellValue(std::string_view cell, const CCaseSchema::CRule& rule,
                    std::vector<double>& list);

// The number of a cell, which is its text where the key takes texts alone: 2017 is "2017". It is
// kept in `text` then, which the value points into.
CKeyValue CellValue(double cell, const CCaseSchema::CRule& rule, std::string& text);

}  // namespace orv3::cli
