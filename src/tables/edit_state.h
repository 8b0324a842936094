// The edit states of rows (CDataItem::m_nModifyType) and what edits and saves make of them. The
// numbers are those of the files; a row read from one may bear others, which are let stand.
#pragma once

namespace orv3 {

enum EditState : int {
  kDeletedSaved = -2,  // deleted, and on file as such
  kDeleted = -1,
  kUnchanged = 0,
  kAdded = 1,
  kChanged = 2,
  kCatalogueAdded = 3,  // added, or changed, by the catalogue
  kCatalogueSaved = 4,
};

// Rows with a negative state are deleted: no view, look-up or search shows them.
constexpr bool IsDeleted(int state) noexcept { return state < kUnchanged; }

// Of a row that no file has yet.
constexpr bool IsAdded(int state) noexcept { return state == kAdded || state == kCatalogueAdded; }

// Rows of the catalogue are neither edited nor deleted by hand.
constexpr bool IsProtected(int state) noexcept { return state >= kCatalogueAdded; }

// Whether a save writes a row of this state.
constexpr bool IsUnsaved(int state) noexcept {
  return state != kUnchanged && state != kCatalogueSaved && state != kDeletedSaved;
}

// Of a row whose cells have been replaced.
constexpr int StateAfterChange(int state) noexcept {
  return IsProtected(state) ? kCatalogueAdded : kChanged;
}

constexpr int StateAfterSave(int state) noexcept {
  switch (state) {
    case kAdded:
    case kChanged:
      return kUnchanged;
    case kCatalogueAdded:
      return kCatalogueSaved;
    case kDeleted:
      return kDeletedSaved;
    default:
      return state;
  }
}

// The state with which a row is written even if it was not changed.
constexpr int StateToSave(int state) noexcept {
  switch (state) {
    case kUnchanged:
      return kChanged;
    case kCatalogueSaved:
      return kCatalogueAdded;
    case kDeletedSaved:
      return kDeleted;
    default:
      return state;
  }
}

// What a row's slot says of its state: a deleted row stays on file as such.
constexpr int StateOnFile(int state) noexcept {
  return state == kDeleted || state == kDeletedSaved ? kDeleted : StateAfterSave(state);
}

}  // namespace orv3
