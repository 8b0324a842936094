// What saves make of a row's edit state (CDataItem::m_nModifyType).
#pragma once

namespace orv3 {

// Whether a save writes a row of this state.
constexpr bool IsUnsaved(int state) { return state != 0 && state != 4 && state != -2; }

constexpr int StateAfterSave(int state) {
  switch (state) {
    case 1:
    case 2:
      return 0;
    case 3:
      return 4;
    case -1:
      return -2;
    default:
      return state;
  }
}

// The state with which a row is written even if it was not changed.
constexpr int StateToSave(int state) {
  return state == 0 ? 2 : state == 4 ? 3 : state == -2 ? -1 : state;
}

// What a row's slot says of its state: a deleted row stays on file as such.
constexpr int StateOnFile(int state) {
  return state < 0 && state >= -2 ? -1 : StateAfterSave(state);
}

}  // namespace orv3
