#include "catalogue/outline/row_axes.h"

#include <iterator>

#include "sections/kind_array.h"

namespace orv3 {
namespace {

using K = CSectionKind;

constexpr CAxisLetters kPlain{};
constexpr CAxisLetters kPlates{L"X0", L"Y0"};
constexpr CAxisLetters kColdAngle{L"Xo", L"Yo", L"X", L"Y"};
constexpr CAxisLetters kColdZ{L"X1", L"Y1", L"X", L"Y"};

constexpr struct {
  CSectionKind m_kind;
  CAxisLetters m_letters;
} kRolled[] = {
    {K::OrdinaryI, kPlain},
    {K::LightI, kPlain},
    {K::WeldedH, kPlain},
    {K::LightWeldedH, kPlain},
    {K::WideH, kPlain},
    {K::NarrowH, kPlain},
    {K::SquareTube, kPlain},
    {K::SplitT, kPlain},
    {K::OrdinaryChannel, kPlain},
    {K::LightChannel, kPlain},
    {K::ColdChannel, kPlain},
    {K::LippedChannel, kPlain},
    {K::LippedZ, kColdZ},
    {K::SlantLippedZ, kColdZ},
    {K::RoundTube, kPlain},
    {K::EqualAngle, {L"X", L"Y", L"Xo", L"Yo"}},
    {K::UnequalAngle, {L"X", L"Y", L"V", L"U"}},
    {K::ColdAngle, kColdAngle},
    {K::LippedAngle, kColdAngle},
    {K::EqualAnglePair, kPlain},
    {K::LongLegPair, kPlain},
    {K::ShortLegPair, kPlain},
    {K::AngleCross, {L"X", L"Y", L"X1", L"Y1"}},
    {K::OrdinaryBackToBack, kPlain},
    {K::OrdinaryToeToToe, kPlain},
    {K::LightBackToBack, kPlain},
    {K::LightToeToToe, kPlain},
};
static_assert(std::size(kRolled) == kRolledKinds && InKindOrder(kRolled));

}  // namespace

CAxisLetters RowAxisLetters(const CString& tableName) {
  const auto kind = FindSectionKind(tableName);
  if (!kind) return kPlain;
  if (IndexOf(*kind) < kRolledKinds) return kRolled[IndexOf(*kind)].m_letters;
  return TableOf(*kind).m_nLimbs > 0 ? kPlain : kPlates;
}

}  // namespace orv3
