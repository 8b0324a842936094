#include "sections/section_style.h"

#include <algorithm>
#include <iterator>

namespace orv3 {

// styles/
extern const CStyleForm kHForm, kBoxForm, kFlangedCrossForm, kRectangleForm, kHexagonForm,
    kTriangleForm, kCircleForm, kTubeForm, kTForm, kGeneralHForm, kLForm, kZForm, kChannelForm,
    kCrossForm, kGeneralBoxForm;

namespace {

// In the order of the style numbers. Titles repeat where two plates are named alike; the signs tell
// the columns apart. The names of the samples are kept as users know them, though not all match the
// sizes.
constexpr CSectionStyle kStyles[] = {
    {kStyleH,
     CSectionKind::PlateH,
     "h",
     "doubly symmetric welded H",
     4,
     2,
     true,
     {{L"b(mm)", L"截面宽度", "section width"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"tf(mm)", L"翼缘厚度", "flange thickness"},
      {L"tw(mm)", L"腹板厚度", "web thickness"}},
     {L"H400X300", 100, {300, 400, 10, 10}},
     &kHForm},
    {kStyleBox,
     CSectionKind::PlateBox,
     "box",
     "symmetric box",
     3,
     2,
     true,
     {{L"b(mm)", L"截面宽度", "section width"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"t(mm)", L"边厚度", "wall thickness"}},
     {L"400X300X20", 100, {300, 400, 20}},
     &kBoxForm},
    {kStyleFlangedCross,
     CSectionKind::FlangedCross,
     "flanged-cross",
     "cross with flanges at all four arm ends",
     6,
     2,
     false,
     {{L"b(mm)", L"截面宽度", "section width"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bf1(mm)", L"翼缘宽度", "width of the top and bottom flange"},
      {L"bf2(mm)", L"翼缘宽度", "height of the left and right flange"},
      {L"tw(mm)", L"腹板厚度", "web thickness"},
      {L"tf(mm)", L"翼缘厚度", "flange thickness"}},
     {L"YS400X300X100", 100, {300, 400, 100, 100, 20, 20}},
     &kFlangedCrossForm},
    {kStyleRectangle,
     CSectionKind::SolidRectangle,
     "rect",
     "solid rectangle",
     2,
     2,
     true,
     {{L"b(mm)", L"截面宽度", "section width"}, {L"h(mm)", L"截面高度", "section height"}},
     {L"400X300", 100, {300, 400}},
     &kRectangleForm},
    {kStyleHexagon,
     CSectionKind::SolidHexagon,
     "hexagon",
     "regular hexagon",
     1,
     1,
     false,
     {{L"a(mm)", L"截面边长", "side length"}},
     {L"200", 100, {200}},
     &kHexagonForm},
    {kStyleTriangle,
     CSectionKind::SolidTriangle,
     "triangle",
     "isosceles triangle, base at the bottom",
     2,
     2,
     false,
     {{L"b(mm)", L"截面宽度", "base width"}, {L"h(mm)", L"截面高度", "section height"}},
     {L"400X300", 100, {300, 400}},
     &kTriangleForm},
    {kStyleCircle,
     CSectionKind::SolidCircle,
     "circle",
     "solid circle",
     1,
     1,
     true,
     {{L"R(mm)", L"截面半径", "radius"}},
     {L"R100", 50, {100}},
     &kCircleForm},
    {kStyleTube,
     CSectionKind::PlateTube,
     "tube",
     "circular tube",
     2,
     1,
     true,
     {{L"R(mm)", L"截面半径", "outer radius"}, {L"r(mm)", L"内圆半径", "inner radius"}},
     {L"RH100X10", 50, {100, 20}},
     &kTubeForm},
    {kStyleT,
     CSectionKind::PlateT,
     "t",
     "T, flange at the top",
     5,
     2,
     true,
     {{L"b(mm)", L"腹板宽度", "web thickness"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bh(mm)", L"翼缘厚度", "flange thickness"},
      {L"bf1(mm)", L"翼缘宽度", "flange overhang left of the web"},
      {L"bf2(mm)", L"翼缘宽度", "flange overhang right of the web"}},
     {L"T400X320X20", 100, {20, 400, 20, 150, 150}},
     &kTForm},
    {kStyleGeneralH,
     CSectionKind::PlateGeneralH,
     "general-h",
     "general (unsymmetric) H",
     8,
     2,
     true,
     {{L"b(mm)", L"腹板宽度", "web thickness"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bh1(mm)", L"下翼缘厚度", "bottom flange thickness"},
      {L"bh2(mm)", L"上翼缘厚度", "top flange thickness"},
      {L"bf1(mm)", L"上翼缘宽度", "top flange overhang left of the web"},
      {L"bf2(mm)", L"上翼缘宽度", "top flange overhang right of the web"},
      {L"bf3(mm)", L"下翼缘宽度", "bottom flange overhang left of the web"},
      {L"bf4(mm)", L"下翼缘宽度", "bottom flange overhang right of the web"}},
     {L"H400X320X20", 100, {20, 400, 20, 20, 150, 150, 150, 150}},
     &kGeneralHForm},
    {kStyleL,
     CSectionKind::PlateL,
     "l",
     "L (angle), leg at the bottom pointing right",
     4,
     2,
     true,
     {{L"b(mm)", L"腹板宽度", "web thickness"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bh(mm)", L"翼缘厚度", "leg thickness"},
      {L"bf(mm)", L"翼缘宽度", "leg overhang right of the web"}},
     {L"L200X200X20", 100, {20, 200, 20, 180}},
     &kLForm},
    {kStyleZ,
     CSectionKind::PlateZ,
     "z",
     "Z, top flange to the left, bottom flange to the right",
     6,
     2,
     true,
     {{L"b(mm)", L"腹板宽度", "web thickness"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bh1(mm)", L"下翼缘厚度", "bottom flange thickness"},
      {L"bh2(mm)", L"上翼缘厚度", "top flange thickness"},
      {L"bf1(mm)", L"上翼缘宽度", "top flange overhang left of the web"},
      {L"bf2(mm)", L"下翼缘宽度", "bottom flange overhang right of the web"}},
     {L"Z180X70X20", 50, {20, 400, 20, 20, 50, 50}},
     &kZForm},
    {kStyleChannel,
     CSectionKind::PlateChannel,
     "channel",
     "channel, open to the right",
     6,
     2,
     true,
     {{L"b(mm)", L"腹板宽度", "web thickness"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bh1(mm)", L"下翼缘厚度", "bottom flange thickness"},
      {L"bh2(mm)", L"上翼缘厚度", "top flange thickness"},
      {L"bf1(mm)", L"下翼缘宽度", "bottom flange overhang right of the web"},
      {L"bf2(mm)", L"上翼缘宽度", "top flange overhang right of the web"}},
     {L"[400X100X20", 50, {20, 400, 20, 20, 80, 80}},
     &kChannelForm},
    {kStyleCross,
     CSectionKind::PlateCross,
     "cross",
     "plain cross",
     6,
     2,
     true,
     {{L"b(mm)", L"腹板宽度", "width of the vertical arms"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"bh1(mm)", L"下腹板高度", "height of the lower arm"},
      {L"bh2(mm)", L"上腹板高度", "height of the upper arm"},
      {L"bf1(mm)", L"左翼缘宽度", "length of the left arm"},
      {L"bf2(mm)", L"右翼缘宽度", "length of the right arm"}},
     {L"S400X320X20", 100, {20, 400, 190, 190, 150, 150}},
     &kCrossForm},
    {kStyleGeneralBox,
     CSectionKind::PlateGeneralBox,
     "general-box",
     "unsymmetric box",
     6,
     2,
     true,
     {{L"b(mm)", L"截面宽度", "section width"},
      {L"h(mm)", L"截面高度", "section height"},
      {L"t1(mm)", L"上腹板宽度", "top plate thickness"},
      {L"t2(mm)", L"下腹板宽度", "bottom plate thickness"},
      {L"t3(mm)", L"左腹板宽度", "left plate thickness"},
      {L"t4(mm)", L"右腹板宽度", "right plate thickness"}},
     {L"400X300X20", 100, {300, 400, 20, 20, 20, 20}},
     &kGeneralBoxForm},
};

constexpr bool InOrderWithAllSizes() {
  for (int i = 0; i < std::ssize(kStyles); ++i) {
    if (kStyles[i].m_nStyle != i) return false;
    for (int s = 0; s < kSectionSizes; ++s) {
      if ((kStyles[i].m_arrSize[s].m_szSign != nullptr) != (s < kStyles[i].m_nSizes)) return false;
    }
  }
  return true;
}
static_assert(std::size(kStyles) == kSectionStyles && InOrderWithAllSizes());

// Whether the text is the alias, in capitals or not.
bool IsAlias(std::string_view text, std::string_view alias) noexcept {
  const auto lower = [](char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
  };
  return std::equal(text.begin(), text.end(), alias.begin(), alias.end(),
                    [&](char one, char other) { return lower(one) == other; });
}

}  // namespace

std::span<const CSectionStyle> SectionStyles() noexcept { return kStyles; }

const CSectionStyle* FindSectionStyle(int style) noexcept {
  return style >= 0 && style < std::ssize(kStyles) ? &kStyles[style] : nullptr;
}

const CSectionStyle* FindSectionStyle(std::wstring_view tableName) noexcept {
  for (const CSectionStyle& style : kStyles) {
    if (tableName == std::wstring_view(style.TableName())) return &style;
  }
  return nullptr;
}

const CSectionStyle* FindSectionAlias(std::string_view alias) noexcept {
  for (const CSectionStyle& style : kStyles) {
    if (IsAlias(alias, style.m_szAlias)) return &style;
  }
  return nullptr;
}

}  // namespace orv3
