// Dialogs that are moved to a monitor of another resolution while they are open.
#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/resource.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"

namespace {

// As the system does, with a frame around a client area that is scaled.
void MoveToDpi(const CDialogProbe& probe, int from, int to) {
  constexpr UINT kDpiChanged = 0x02E0;
  RECT frame{};
  GetWindowRect(probe.Window(), &frame);
  RECT client{};
  GetClientRect(probe.Window(), &client);
  frame.right += MulDiv(client.right, to, from) - client.right;
  frame.bottom += MulDiv(client.bottom, to, from) - client.bottom;
  SendMessageW(probe.Window(), kDpiChanged, static_cast<WPARAM>(MAKELONG(to, to)),
               reinterpret_cast<LPARAM>(&frame));
}

int FontHeight(HWND window) {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
  return std::abs(static_cast<int>(font.lfHeight));
}

constexpr int kControls[] = {IDC_PROPERTY_GRID, IDC_PROPERTY_SKETCH, IDOK, IDCANCEL,
                             IDC_HELP_BUTTON};

std::vector<RECT> Places(const CDialogProbe& probe) {
  std::vector<RECT> places;
  for (const int id : kControls) {
    RECT& place = places.emplace_back();
    GetWindowRect(probe.Control(id), &place);
    MapWindowPoints(nullptr, probe.Window(), reinterpret_cast<POINT*>(&place), 2);
  }
  return places;
}

void ExpectScaled(const std::vector<RECT>& found, const std::vector<RECT>& before, int to) {
  constexpr long kPixels = 2;  // of rounding
  for (std::size_t i = 0; i < before.size(); ++i) {
    for (LONG RECT::*side : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom}) {
      const long wanted = MulDiv(static_cast<int>(before[i].*side), to, 96);
      if (std::abs(found[i].*side - wanted) > kPixels) {
        throw std::runtime_error("control " + std::to_string(kControls[i]) + " at " +
                                 std::to_string(found[i].*side) + " instead of " +
                                 std::to_string(wanted));
      }
    }
  }
}

TEST(Resolution, ControlsFontAndGridAreScaledAndComeBack) {
  CPropertyDlg dialog;
  dialog.m_strTableName = dialog.m_item.m_strTableName = L"自定义对称H型钢";
  CLoadDataTable::GetDefaultDataItem(dialog.m_item);
  dialog.m_nEditMode = 1;
  Drive([&] { dialog.DoModal(); },
        [] {
          const auto probe = CDialogProbe::WaitFor(L"截面特性参数设置");
          SetWindowPos(probe.Window(), nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);  // smallest
          const auto before = Places(probe);
          const int font = FontHeight(probe.Control(IDOK));
          const int column = ListView_GetColumnWidth(probe.Control(IDC_PROPERTY_GRID), 0);
          int last = 96;
          for (const int dpi : {144, 120, 96}) {
            MoveToDpi(probe, std::exchange(last, dpi), dpi);
            ExpectScaled(Places(probe), before, dpi);
            Expect(FontHeight(probe.Control(IDOK)), MulDiv(font, dpi, 96), "height of the font");
            const int wide = ListView_GetColumnWidth(probe.Control(IDC_PROPERTY_GRID), 0);
            Expect(std::abs(wide - MulDiv(column, dpi, 96)) <= column / 10, 1, "width of a column");
          }
          probe.Close();
        });
}

int IconSize(const CDialogProbe& probe) {
  int width = 0;
  int height = 0;
  ImageList_GetIconSize(TreeView_GetImageList(probe.Control(IDC_TREE), TVSIL_NORMAL), &width,
                        &height);
  return width;
}

TEST(Resolution, TheBrowsersIconsAndColumnsFollow) {
  CDataItem row;
  Drive([&] { CLoadDataTable::VisitDataBase(orv3::FromUtf8(ORV3CAL_CATALOGUE "/"), row, 0xFFF); },
        [] {
          const auto probe = CDialogProbe::WaitFor(L"钢结构截面特性数据库");
          const int rows = probe.Count(IDC_LIST);
          const int column = ListView_GetColumnWidth(probe.Control(IDC_LIST), 0);
          Expect(IconSize(probe), 16, "icon");
          MoveToDpi(probe, 96, 144);
          Expect(IconSize(probe), 24, "icon");
          Expect(ListView_GetColumnWidth(probe.Control(IDC_LIST), 0), column * 3 / 2, "column");
          Expect(probe.Count(IDC_LIST), rows, "rows");
          probe.Close();
        });
}

}  // namespace
