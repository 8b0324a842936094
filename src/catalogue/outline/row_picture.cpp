#include "catalogue/outline/row_picture.h"

#include <cmath>
#include <utility>

#include "catalogue/outline/row_dimensions.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/shapes.h"
#include "framework/elementary.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/geometric_figures.h"
#include "outlines/outline_moments.h"
#include "sections/geometry/row_values.h"
#include "sections/picture/outline_picture.h"
#include "sections/section_kind.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3 {
namespace {

// A style has a name in either language, other tables have one name.
CString TableTitle(const CString& table, CLanguage language) {
  const CSectionStyle* style = FindSectionStyle(table.View());
  return style && language == CLanguage::English ? FromUtf8(style->m_szShape) : table;
}

CString Title(const CDataItem& row, int quarters, CLanguage language) {
  CString title = TableTitle(row.GetTableName(), language);
  if (!row.IsEmpty()) title += L"  " + row[0].m_strValue;
  const wchar_t* turned = language == CLanguage::Chinese ? L"  转" : L"  turned ";
  if (quarters > 0) title += turned + FormatInt(90LL * quarters) + L"°";
  return title;
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
  return RowPictureDrawing(row, angle, nullptr);
}

std::string RowPictureSvg(const CDataItem& row, double angle) {
  return RowPictureSvg(row, angle, nullptr);
}

CDrawing RowPictureDrawing(const CDataItem& row, double angle, const CExactProperties* exact,
                           CLanguage language) {
  const int quarters = QuarterTurns(angle);
  const COutline upright = RowOutline(row);
  const CString title = Title(row, quarters, language);
  if (upright.m_arrLoop.empty()) {
    const CSentence none = Both(L"没有可画的截面", L"no section to draw");
    return TextPictureDrawing({title, none.In(language)});
  }
  const double width = upright.m_dWidth;
  const double height = upright.m_dHeight;
  COutlinePicture picture;
  picture.m_outline = QuarterTurned(upright, quarters);
  picture.m_arrSize = QuarterTurned(RowDimensions(row, upright), quarters, width, height);
  const COutlineMoments m = RowOutlineMoments(picture.m_outline.m_arrLoop);
  picture.m_centroid = {Hundredths(m.m_centroid.x), Hundredths(m.m_centroid.y)};
  picture.m_axes = AxisLetters(row.GetTableName().View());
  if (quarters % 2 == 1) {
    std::swap(picture.m_axes.m_szX, picture.m_axes.m_szY);
    std::swap(picture.m_baseAxes.m_szX, picture.m_baseAxes.m_szY);
  }
  picture.m_dStrongAngle = Atan2(-2 * m.m_dIxy, m.m_dIx - m.m_dIy) / 2;
  if (const auto base = BasePoint(row))
    picture.m_base = QuarterTurned(*base, quarters, width, height);
  if (exact != nullptr) {
    const auto turned = [&](double x, double y) -> std::optional<CPoint> {
      if (!std::isfinite(x) || !std::isfinite(y)) return std::nullopt;
      const CPoint p = QuarterTurned(CPoint{x, y}, quarters, width, height);
      return CPoint{Hundredths(p.x), Hundredths(p.y)};
    };
    picture.m_shearCenter = turned(exact->xs, exact->ys);
    picture.m_plastic = turned(exact->xp, exact->yp);
    if (HasSlantAxes(*exact) && picture.m_axes.m_szStrong == nullptr) {
      picture.m_axes.m_szStrong = L"1";
      picture.m_axes.m_szWeak = L"2";
    }
  }
  picture.m_strTitle = title;
  picture.m_nLanguage = language;
  return OutlinePictureDrawing(picture);
}

std::string RowPictureSvg(const CDataItem& row, double angle, const CExactProperties* exact,
                          CLanguage language) {
  return DrawingSvg(RowPictureDrawing(row, angle, exact, language),
                    Title(row, QuarterTurns(angle), language));
}

}  // namespace orv3
