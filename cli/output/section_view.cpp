#include "output/section_view.h"

#include <cmath>
#include <numbers>

#include "catalogue/exact/row_exact.h"
#include "drawing/dxf.h"
#include "framework/utf8.h"
#include "outlines/geometric_figures.h"
#include "sections/outline.h"
#include "sections/section_picture.h"

namespace orv3::cli {

CSteelJMData SampleSection(const CSectionStyle& style) {
  CSteelJMData record;
  CArray<double, double> sizes;
  for (int i = 0; i < style.m_nSizes; ++i) sizes.Add(style.m_sample.m_arrSize[i]);
  record.SetSectSize(style.m_nStyle, sizes);
  record.m_dX = record.m_dY = style.m_sample.m_dBase;
  CSteelJMData::CalSectCharacterStyle(record);
  return record;
}

namespace {

// As precise as anyone draws.
double Hundredths(double mm) { return std::round(mm * 100) / 100; }

}  // namespace

CExactProperties ExactOf(const CSteelJMData& record) {
  return ExactProperties(SectionOutline(record.m_nStyle, record.m_dSize));
}

std::string SectionSvg(const CSectionStyle& style, const CSteelJMData& record,
                       const CExactProperties& exact, const std::string& name) {
  CSectionPicture picture;
  picture.m_nStyle = style.m_nStyle;
  for (int i = 0; i < style.m_nSizes; ++i) {
    picture.m_arrSize[static_cast<std::size_t>(i)] = record.m_dSize[i];
  }
  picture.m_base = {record.m_dX, record.m_dY};
  picture.m_centroid = {record.m_dXo, record.m_dYo};
  if (std::isfinite(exact.xs))
    picture.m_shearCenter = CPoint{Hundredths(exact.xs), Hundredths(exact.ys)};
  if (std::isfinite(exact.xp))
    picture.m_plastic = CPoint{Hundredths(exact.xp), Hundredths(exact.yp)};
  if (HasSlantAxes(exact)) picture.m_dStrongAngle = exact.theta * std::numbers::pi / 180;
  picture.m_nLanguage = MessageLanguage();
  picture.m_strTitle =
      MessageLanguage() == CLanguage::Chinese ? style.TableName() : FromUtf8(style.m_szShape);
  picture.m_strName = FromUtf8(name);
  return SectionPictureSvg(picture);
}

std::string SectionDxf(const CSteelJMData& record) {
  return PathsDxf(SectionOutline(record.m_nStyle, record.m_dSize).m_arrLoop);
}

}  // namespace orv3::cli
