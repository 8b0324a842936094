#include "catalogue/outline/row_picture.h"

#include <cmath>

#include "catalogue/outline/outline_moments.h"
#include "catalogue/outline/row_dimensions.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/shapes.h"
#include "framework/number_text.h"
#include "sections/outline_picture.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3 {
namespace {

CString Title(const CDataItem& row, int quarters) {
  CString title = row.GetTableName();
  if (!row.IsEmpty()) title += L"  " + row[0].m_strValue;
  if (quarters > 0) title += L"  转" + FormatInt(90LL * quarters) + L"°";
  return title;
}

// The axes as the columns of the tables name them.
CAxisLetters AxisLetters(const CString& tableName) {
  static constexpr struct {
    const wchar_t* m_szTable;
    CAxisLetters m_letters;
  } kTables[] = {
      {L"热轧等边角钢", {L"X", L"Y", L"Xo", L"Yo"}},
      {L"热轧不等边角钢", {L"X", L"Y", L"V", L"U"}},
      {L"热轧等边角钢十字组合", {L"X", L"Y", L"X1", L"Y1"}},
      {L"冷弯薄壁等边角钢", {L"Xo", L"Yo", L"X", L"Y"}},
      {L"冷弯卷边等边角钢", {L"Xo", L"Yo", L"X", L"Y"}},
      {L"冷弯薄壁卷边Z型钢", {L"X1", L"Y1", L"X", L"Y"}},
      {L"冷弯薄壁斜卷边Z型钢", {L"X1", L"Y1", L"X", L"Y"}},
  };
  for (const auto& table : kTables) {
    if (tableName == table.m_szTable) return table.m_letters;
  }
  const bool custom = FindSectionStyle(tableName.View()) != nullptr;
  return custom ? CAxisLetters{L"X0", L"Y0"} : CAxisLetters{};
}

// As precise as anyone draws.
double Hundredths(double mm) { return std::round(mm * 100) / 100; }

// The base point of a user-defined row, unturned.
std::optional<CPoint> BasePoint(const CDataItem& row) {
  if (FindSectionStyle(row.GetTableName().View()) == nullptr) return std::nullopt;
  CSteelJMData record;
  if (record.TransItemToJMData(row) == 0) return std::nullopt;
  return CPoint{record.m_dX, record.m_dY};
}

}  // namespace

CDrawing RowPictureDrawing(const CDataItem& row, double angle) {
  const int quarters = QuarterTurns(angle);
  const COutline upright = RowOutline(row);
  const CString title = Title(row, quarters);
  if (upright.m_arrLoop.empty()) return TextPictureDrawing({title, L"没有可画的截面"});
  const double width = upright.m_dWidth;
  const double height = upright.m_dHeight;
  COutlinePicture picture;
  picture.m_outline = QuarterTurned(upright, quarters);
  picture.m_arrSize = QuarterTurned(RowDimensions(row, upright), quarters, width, height);
  const COutlineMoments m = RowOutlineMoments(picture.m_outline.m_arrLoop);
  picture.m_centroid = {Hundredths(m.m_centroid.x), Hundredths(m.m_centroid.y)};
  picture.m_axes = AxisLetters(row.GetTableName());
  picture.m_dStrongAngle = std::atan2(-2 * m.m_dIxy, m.m_dIx - m.m_dIy) / 2;
  if (const auto base = BasePoint(row))
    picture.m_base = QuarterTurned(*base, quarters, width, height);
  picture.m_strTitle = title;
  return OutlinePictureDrawing(picture);
}

std::string RowPictureSvg(const CDataItem& row, double angle) {
  return DrawingSvg(RowPictureDrawing(row, angle), Title(row, QuarterTurns(angle)));
}

}  // namespace orv3
