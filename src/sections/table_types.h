// Table-type masks: a table's name alone tells whether its rows are rolled, user-defined or lattice
// columns, and of which family. A name is of a mask when its source bit and its family bit are both
// set there.
#pragma once

#include <cstdint>

enum CTableType : std::int32_t {
  TABLE_ROLLED = 0x01000000,  // catalogue sections
  TABLE_CUSTOM = 0x02000000,  // user-defined sections and lattice columns

  TABLE_FAMILY_I = 0x001,
  TABLE_FAMILY_BOX = 0x002,
  TABLE_FAMILY_T = 0x004,
  TABLE_FAMILY_CHANNEL = 0x008,
  TABLE_FAMILY_Z = 0x010,
  TABLE_FAMILY_ROUND = 0x020,
  TABLE_FAMILY_ANGLE = 0x040,
  TABLE_FAMILY_ANGLE_PAIR = 0x080,
  TABLE_FAMILY_CHANNEL_PAIR = 0x100,
  TABLE_FAMILY_CROSS = 0x200,
  TABLE_FAMILY_SOLID = 0x400,
  TABLE_FAMILY_LATTICE = 0x800,
};

namespace orv3 {

using enum ::CTableType;

// Every bit but TABLE_ROLLED: user-defined sections and lattice columns.
inline constexpr std::int32_t kUserTables = static_cast<std::int32_t>(0xFEFFFFFFU);
// Every bit but TABLE_CUSTOM: the catalogue.
inline constexpr std::int32_t kCatalogueTables = static_cast<std::int32_t>(0xFDFFFFFFU);

}  // namespace orv3
