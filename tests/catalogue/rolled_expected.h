// What a row of a rolled-section table must hold, from its outline.
#pragma once

#include <map>
#include <string>

#include "tables/data_item.h"

// By the column's symbol ("Ix" for "Ix(cm^4)"), in the column's unit.
using CValues = std::map<std::string, double>;

// What stands before the unit: "Ix" of "Ix(cm^4)", "P(0.6m)" of "P(0.6m)(kN)".
std::string SymbolOf(const CDataCell& cell);
CValues ValuesOf(const CDataItem& row);

// Every column of the table but its sizes, by integration of the outline that the row's sizes give
// (and an angle's capacities from the area and radius of gyration that stand in the row); symbols
// of other tables too. `file` is the data file's name without ".kvb".
CValues Expected(const std::string& file, const CDataItem& row);
