// The section tables: every table that the program knows by name stands here, once. What else is
// known of a table is a member of its row here, or stands in an array by CSectionKind
// (kind_array.h) on the floor that needs it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "framework/export.h"

namespace orv3 {

// Rolled before user-defined; the pairs last of the rolled ones, the lattice columns last of all.
enum class CSectionKind : std::uint8_t {
  OrdinaryI,
  LightI,
  WeldedH,
  LightWeldedH,
  WideH,
  NarrowH,
  SquareTube,
  SplitT,
  OrdinaryChannel,
  LightChannel,
  ColdChannel,
  LippedChannel,
  LippedZ,
  SlantLippedZ,
  RoundTube,
  EqualAngle,
  UnequalAngle,
  ColdAngle,
  LippedAngle,

  EqualAnglePair,
  LongLegPair,
  ShortLegPair,
  AngleCross,
  OrdinaryBackToBack,
  OrdinaryToeToToe,
  LightBackToBack,
  LightToeToToe,

  PlateH,
  PlateGeneralH,
  PlateBox,
  PlateGeneralBox,
  PlateT,
  PlateChannel,
  PlateZ,
  SolidCircle,
  PlateTube,
  PlateL,
  PlateCross,
  FlangedCross,
  SolidRectangle,
  SolidHexagon,
  SolidTriangle,

  TwoLimbs,
  FourLimbs,
  ThreeLimbs,
};

// The style numbers, which records, files and callers hold as an int.
enum CStyleNumber : int {
  kStyleH,
  kStyleBox,
  kStyleFlangedCross,
  kStyleRectangle,
  kStyleHexagon,
  kStyleTriangle,
  kStyleCircle,
  kStyleTube,
  kStyleT,
  kStyleGeneralH,
  kStyleL,
  kStyleZ,
  kStyleChannel,
  kStyleCross,
  kStyleGeneralBox,
};
inline constexpr int kSectionStyles = 15;

inline constexpr std::size_t kSingleKinds = 19;  // rolled sections of one part
inline constexpr std::size_t kPairKinds = 8;
inline constexpr std::size_t kRolledKinds = kSingleKinds + kPairKinds;
inline constexpr std::size_t kPlateKinds = kSectionStyles;
inline constexpr std::size_t kLatticeKinds = 3;
inline constexpr std::size_t kSectionKinds = kRolledKinds + kPlateKinds + kLatticeKinds;

constexpr std::size_t IndexOf(CSectionKind kind) { return static_cast<std::size_t>(kind); }

// How two equal parts stand to each other. An angle has its heel at the lower left, a channel its
// back on the left.
enum class CPairForm : std::uint8_t {
  BackToBack,  // the part and its mirror image, backs facing
  LegsUp,      // the same of an angle turned so that its short leg stands
  ToeToToe,    // the part and its mirror image, open sides facing
  Cross,       // the part and the same turned by 180 degrees about the heel
};

// A pair of rolled sections.
struct CSectionPair {
  CSectionKind m_part;
  int m_nMarker;  // leading characters of "No." that mark the pair
  CPairForm m_form;
  const wchar_t*
      m_szGap;  // sign of the parts' clear distance, which a user chooses; "": they touch
};

// Letters of the upright axes through the centroid and of the principal ones, where these stand
// aslant and are not to be left out.
struct CAxisLetters {
  const wchar_t* m_szX = L"X";
  const wchar_t* m_szY = L"Y";
  const wchar_t* m_szStrong = nullptr;
  const wchar_t* m_szWeak = nullptr;
};

// How the steel of a section got its shape. Thin walls bent cold belong to a code of their own
// (GB 50018).
enum class CForming : std::uint8_t { Hot, Cold, Plates, Limbs };

inline constexpr int kNoSketch = 8076;  // the sketch of what has none of its own

struct CSectionTable {
  CSectionKind m_kind;
  const wchar_t* m_szName;
  CForming m_forming;
  std::int32_t m_nType;                   // one source bit and one family bit (table_types.h)
  int m_nImage;                           // its picture in CLoadDataTable::GetItemImageList
  int m_nSketch;                          // resource number of its sketch
  CAxisLetters m_letters = {};            // as its columns name its axes
  const CSectionPair* m_pPair = nullptr;  // null for what is no pair
  int m_nLimbs = 0;                       // of a lattice column

  constexpr std::wstring_view Name() const { return m_szName; }
};

// All of them, in the order of the kinds, which is the order in which people look them up within
// each family.
ORV3CAL_API std::span<const CSectionTable, kSectionKinds> SectionTables() noexcept;

ORV3CAL_API const CSectionTable& TableOf(CSectionKind kind) noexcept;
ORV3CAL_API std::wstring_view TableName(CSectionKind kind) noexcept;
// X and Y for a name of no table.
CAxisLetters AxisLetters(std::wstring_view tableName) noexcept;

// Null, or nothing, for a name of none of them; names are compared whole and case-sensitively.
ORV3CAL_API const CSectionTable* FindSectionTable(std::wstring_view name) noexcept;
ORV3CAL_API std::optional<CSectionKind> FindSectionKind(std::wstring_view name) noexcept;

}  // namespace orv3
