// Records of data files and the rows that they stand for.
#pragma once

#include "catalogue/rolled/rolled_style.h"
#include "framework/cstring.h"
#include "tables/data_item.h"

namespace orv3 {

// `record` is the memory of one record of the style, m_nSize bytes, at any address.

// The model number without the spaces around it.
CString RecordNumber(const CRolledStyle& style, const char* record);
// The record as a row's text: the model number, then each value behind a ",".
CString RecordRow(const CRolledStyle& style, const char* record);
// Fills the whole record from the row's cells, in column order. A text too long for its field is
// cut, a whole number beyond 16 bits becomes the nearest one, and what the row lacks is 0.
void FillRecord(const CRolledStyle& style, const CDataItem& row, char* record);

}  // namespace orv3
