#include "dialogs/win32/tree_images.h"

#include "dialogs/win32/dpi.h"
#include "sections/table_icons.h"

namespace orv3 {

CImages TreeImages(int dpi) {
  constexpr int kSize = 16;  // pixels at 96 dpi
  const int size = ScaleToDpi(kSize, dpi);
  const auto pictures = TableIcons(size);
  CImages images(ImageList_Create(size, size, ILC_COLOR24, pictures.GetSize(), 0));
  for (const CBitmap& picture : pictures) {
    ImageList_Add(images.Get(), ToGdiBitmap(picture).Get(), nullptr);
  }
  return images;
}

}  // namespace orv3
