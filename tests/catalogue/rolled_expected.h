// What a row of a rolled-section table must hold, from its sizes alone.
#pragma once

#include <map>
#include <string>

// By the column's symbol ("Ix" for "Ix(cm^4)"), in the column's unit.
using CValues = std::map<std::string, double>;

// Every column of the table but its sizes, from the row's sizes (and an angle's capacities from the
// area and radius of gyration that stand in the row). `name` is the data file's without ".kvb".
CValues Expected(const std::string& name, const CValues& row);
