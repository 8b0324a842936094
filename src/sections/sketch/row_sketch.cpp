// The sketch of a row's section, for which the table engine has the members and this floor the
// drawings.
#include "sections/sketch/sketch.h"
#include "tables/data_table.h"

void CDataItem::GetItemBitmap(CBitmap*& out) const {
  out = new CBitmap(orv3::SketchBitmap(orv3::SketchResource(m_strTableName)));
}

void CDataTable::GetItemBitmap(CBitmap*& out) const {
  CDataItem named;
  named.m_strTableName = m_strTableName;
  (m_arrItem.IsEmpty() ? named : m_arrItem[0]).GetItemBitmap(out);
}
