// Opens, uses and closes the browser many times: what the process holds at the end is what it held
// after the first time. ORV3CAL_SOAK: how many times.
#include <gtest/gtest.h>

#include <cstdlib>

#include "dialogs/win32/resource.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"

namespace {

constexpr long kRolled = 0x01000FFF;

// Windows counts for us; Wine 8 answers 0, and there the objects are tried one by one.
int GdiObjects() {
  if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) {
    return static_cast<int>(told);
  }
  int count = 0;
  for (UINT_PTR handle = 1; handle < 0x10000; ++handle) {
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
  }
  return count;
}

int UserObjects() {
  if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) {
    return static_cast<int>(told);
  }
  int count = 0;
  for (UINT_PTR handle = 0x20; handle < 0x10000; handle += 2) {
    const HWND window = reinterpret_cast<HWND>(handle);
    DWORD process = 0;
    if (IsWindow(window)) GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() || IsMenu(reinterpret_cast<HMENU>(handle))) ++count;
  }
  return count;
}

int Handles() {
  int count = 0;
  for (UINT_PTR handle = 4; handle < 0x8000; handle += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
  }
  return count;
}

void UseOnce() {
  CDataItem row;
  const CString path = orv3::FromUtf8(ORV3CAL_CATALOGUE "/");
  Drive([&] { CLoadDataTable::VisitDataBase(path, row, kRolled); },
        [] {
          const auto probe = CDialogProbe::WaitFor(L"钢结构截面特性数据库");
          CStringArray names;
          CLoadDataTable::GetTableNameArray(kRolled, names);
          for (const CString& name : names) {
            probe.SelectNode(IDC_TREE, std::wstring(name.View()));
            probe.Choose(IDC_SEARCH_COLUMN, L"No.");
            probe.SetText(IDC_SEARCH_VALUE, L"2");
            SendMessageW(probe.Control(IDC_SEARCH), BM_CLICK, 0, 0);
          }
          probe.DoubleClick(IDC_LIST, 0);
          const auto properties = CDialogProbe::WaitFor(L"截面特性参数查询");
          properties.Close();
          properties.WaitUntilClosed();
          probe.Close();
        });
}

TEST(Soak, NothingIsLeftBehind) {
  const char* const wanted = std::getenv("ORV3CAL_SOAK");
  const int times = wanted != nullptr ? std::atoi(wanted) : 5;
  UseOnce();
  const int gdi = GdiObjects();
  const int user = UserObjects();
  const int handles = Handles();
  ASSERT_GT(gdi, 0);
  ASSERT_GT(handles, 0);
  for (int i = 0; i < times; ++i) UseOnce();
  EXPECT_EQ(GdiObjects(), gdi);
  EXPECT_EQ(UserObjects(), user);
  EXPECT_EQ(Handles(), handles);
  // The counts tell a leak when there is one.
  const HPEN pen = CreatePen(PS_SOLID, 1, 0);
  const HWND window =
      CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  EXPECT_GT(GdiObjects(), gdi);
  EXPECT_GT(UserObjects(), user);
  EXPECT_GT(Handles(), handles);
  DeleteObject(pen);
  DestroyWindow(window);
  CloseHandle(event);
}

}  // namespace
