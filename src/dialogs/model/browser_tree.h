// The browser's tree: two roots, their families, and the tables of each family.
#pragma once

#include <vector>

#include "framework/array.h"
#include "framework/cstring.h"

namespace orv3 {

struct CTreeNode {
  CString m_strText;
  int m_nImage = 0;    // of the pictures that CLoadDataTable::GetItemImageList gives
  int m_nParent = -1;  // -1 for a root
  bool m_bTable = false;
};

// All nodes, each parent before its children, children in display order. A table is there when it
// is among `tableNames`.
std::vector<CTreeNode> BrowserTree(const CStringArray& tableNames);

}  // namespace orv3
