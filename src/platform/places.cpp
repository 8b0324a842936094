#include "platform/places.h"

#include <algorithm>

#include "platform/file_system.h"

namespace orv3 {

bool MakeFolders(const CString& folder) {
  if (folder.IsEmpty() || Files().IsFolder(folder)) return true;
  const int slash = std::max(folder.ReverseFind(L'/'), folder.ReverseFind(L'\\'));
  return MakeFolders(folder.Left(std::max(slash, 0))) && Files().MakeFolder(folder);
}

}  // namespace orv3
