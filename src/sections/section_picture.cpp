#include "sections/section_picture.h"

#include "sections/picture/outline_picture.h"

namespace orv3 {

CDrawing SectionPictureDrawing(const CSectionPicture& picture) {
  const COutline outline = SectionOutline(picture.m_nStyle, picture.m_arrSize);
  const auto sizes = SizeDimensions(picture.m_nStyle, picture.m_arrSize);
  const CString gap = picture.m_strName.IsEmpty() ? L"" : L"  ";
  const CString title = picture.m_strTitle + gap + picture.m_strName;
  if (!outline.m_arrLoop.empty()) {
    COutlinePicture drawn{outline, sizes, picture.m_centroid, picture.m_base, title};
    drawn.m_shearCenter = picture.m_shearCenter;
    drawn.m_plastic = picture.m_plastic;
    drawn.m_nLanguage = picture.m_nLanguage;
    if (picture.m_dStrongAngle) {
      drawn.m_axes.m_szStrong = L"1";
      drawn.m_axes.m_szWeak = L"2";
      drawn.m_dStrongAngle = *picture.m_dStrongAngle;
    }
    return OutlinePictureDrawing(drawn);
  }
  const CSentence fault = Both(L"这些尺寸不能构成截面", L"these sizes bound no section");
  std::vector<CString> lines{title, fault.In(picture.m_nLanguage)};
  for (const CSizeDimension& size : sizes) lines.push_back(SizeText(size));
  return TextPictureDrawing(lines);
}

std::string SectionPictureSvg(const CSectionPicture& picture) {
  return DrawingSvg(SectionPictureDrawing(picture), picture.m_strTitle + L" " + picture.m_strName);
}

}  // namespace orv3
