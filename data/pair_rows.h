// The tables of two angles or two channels side by side, computed from the component's table by the
// parallel-axis theorem. docs/catalogue.md shows how the components stand.
#pragma once

#include <span>

#include "tables/data_table.h"

namespace orv3::catalogue {

struct CPairTable {
  int m_nStyle;
  int m_nComponent;            // style of the component's table
  const wchar_t* m_strMarker;  // stands before the component's model number
  int m_nDecimals;             // of moments of inertia and moduli, as in the component's table
  CStringArray (*m_pRow)(const CDataItem& component, int decimals);  // the values behind "No."
};

std::span<const CPairTable> PairTables();
CDataTable MakePairTable(const CPairTable& pair, const CDataTable& components);

}  // namespace orv3::catalogue
