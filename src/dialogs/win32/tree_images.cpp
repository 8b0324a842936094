#include "dialogs/win32/tree_images.h"

#include "dialogs/win32/dpi.h"
#include "framework/array.h"
#include "sections/load_data_table.h"

namespace orv3 {
namespace {

constexpr int kSize = 16;  // pixels at 96 dpi

// The bitmap drawn anew at another size, its pixels averaged.
CGdiBitmap Resized(const CGdiBitmap& bitmap, int from, int to) {
  const CWindowDc screen(nullptr);
  const HDC source = CreateCompatibleDC(screen.Get());
  const HDC target = CreateCompatibleDC(screen.Get());
  CGdiBitmap result(CreateCompatibleBitmap(screen.Get(), to, to));
  const HGDIOBJ sourceBefore = SelectObject(source, bitmap.Get());
  const HGDIOBJ targetBefore = SelectObject(target, result.Get());
  SetStretchBltMode(target, HALFTONE);
  SetBrushOrgEx(target, 0, 0, nullptr);
  StretchBlt(target, 0, 0, to, to, source, 0, 0, from, from, SRCCOPY);
  SelectObject(source, sourceBefore);
  SelectObject(target, targetBefore);
  DeleteDC(source);
  DeleteDC(target);
  return result;
}

}  // namespace

CImages TreeImages(int dpi) {
  CArray<CBitmap, const CBitmap&> pictures;
  CLoadDataTable::GetItemImageList(pictures);
  if (pictures.IsEmpty()) return {};
  const int size = ScaleToDpi(kSize, dpi);
  CImages images(ImageList_Create(size, size, ILC_COLOR24, pictures.GetSize(), 0));
  for (const CBitmap& picture : pictures) {
    const CGdiBitmap bitmap = ToGdiBitmap(picture);
    ImageList_Add(images.Get(), Resized(bitmap, picture.GetWidth(), size).Get(), nullptr);
  }
  return images;
}

}  // namespace orv3
