// Enclosing rectangles and centroids.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "framework/number_text.h"
#include "sections/geometry/formulas.h"

namespace orv3 {

std::optional<double> HalfWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(&CFamily::m_width) / 2);
}

std::optional<double> HalfHeight(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(&CFamily::m_height) / 2);
}

std::optional<double> BelowTop(const CDataItem& row, const CFamily& family, const CCell& cell) {
  CReader read(row, family);
  return read.Give(read(&CFamily::m_height) - read(cell));
}

std::optional<double> Twice(const CDataItem& row, const CFamily& family, const CCell& cell) {
  CReader read(row, family);
  return read.Give(2 * read(cell));
}

std::optional<double> TextNumber(const CDataItem& row, const CFamily&, const CCell& cell) {
  if (const auto number = Read(row, cell)) return number;
  const CString text = ReadText(row, cell.Sign());
  return IsNumber(text) ? std::optional(ToDouble(text)) : std::nullopt;
}

std::optional<double> ZWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(2 * read(L"b(mm)") - read(L"t(mm)"));
}

std::optional<double> SlantLipZWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double flange = read(L"b(mm)") + read(L"a(mm)") * std::numbers::sqrt2 / 2;
  return read.Give(2 * flange - read(L"t(mm)"));
}

std::optional<double> HexagonWidth(const CDataItem& row, const CFamily& family, const CCell& cell) {
  CReader read(row, family);
  return read.Give(std::numbers::sqrt3 * read(cell));
}

// --- User-defined sections: the web and the overhangs that reach beyond it -----------------------

std::optional<double> TWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(L"b(mm)") + std::max(0.0, read(L"bf1(mm)")) +
                   std::max(0.0, read(L"bf2(mm)")));
}

std::optional<double> GeneralHWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(L"b(mm)") + std::max({0.0, read(L"bf1(mm)"), read(L"bf3(mm)")}) +
                   std::max({0.0, read(L"bf2(mm)"), read(L"bf4(mm)")}));
}

std::optional<double> LWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(L"b(mm)") + std::max(0.0, read(L"bf(mm)")));
}

// The top flange reaches to the left, the bottom one to the right.
std::optional<double> ZPlateWidth(const CDataItem& row, const CFamily& family, const CCell& cell) {
  return TWidth(row, family, cell);
}

std::optional<double> ChannelPlateWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(L"b(mm)") + std::max({0.0, read(L"bf1(mm)"), read(L"bf2(mm)")}));
}

std::optional<double> CrossWidth(const CDataItem& row, const CFamily& family, const CCell& cell) {
  return TWidth(row, family, cell);
}

}  // namespace orv3
