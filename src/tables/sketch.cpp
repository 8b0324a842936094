#include "tables/sketch.h"
namespace orv3 {
int SketchResource(std::wstring_view) noexcept { return 8076; }
CBitmap SketchBitmap(int) { return CBitmap(180, 150); }
std::string SketchSvg(int) { return {}; }
}  // namespace orv3
