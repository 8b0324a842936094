// A host loads the library by its name, uses it through the entries that it looks up, and unloads
// it.
#include <gtest/gtest.h>

#include <windows.h>

#include <array>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "dialogs/win32/host_services.h"
#include "dialogs/win32/resource.h"
#include "framework/message.h"
#include "framework/utf8.h"
#include "module/orv3cal_c.h"
#include "platform/temp_folder.h"
#include "sections/sketch/sketch.h"
#include "tables/data_table.h"
#include "tables/file/table_store.h"
#include "win32/dialog_driver.h"
#include "win32/holdings.h"

// A host's help, which the library finds among the program's exports.
namespace {
std::wstring g_topic;
bool g_bHelps = true;
}  // namespace
extern "C" __declspec(dllexport) int acedHelp(const wchar_t*, const wchar_t* topic, int) {
  g_topic = topic;
  return g_bHelps ? 5100 : -5001;
}

namespace {

constexpr wchar_t kLibrary[] = L"Orv3CalDll.dll";

template <class FUNCTION>
FUNCTION* Entry(HMODULE library, const char* name) {
  return reinterpret_cast<FUNCTION*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// The loaded library, unloaded at the end.
class CLibrary {
 public:
  CLibrary() : m_hModule(LoadLibraryW(kLibrary)) {}
  CLibrary(const CLibrary&) = delete;
  CLibrary& operator=(const CLibrary&) = delete;
  ~CLibrary() {
    if (m_hModule != nullptr) FreeLibrary(m_hModule);
  }
  HMODULE Get() const { return m_hModule; }

 private:
  HMODULE m_hModule;
};

class CHost : public testing::Test {
 protected:
  void SetUp() override {
    CDataTable table;
    table.SetTableName(L"热轧普通工字钢");
    table.SetSaveTablePath(m_folder.Path());
    table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
    table.AddTableCol(L"面积", L"A(cm^2)", CDataTypeStruct::KVBT_DOUBLE, 0);
    ASSERT_EQ(table.AddTableItem(L"I20a,35.5", 1), 1);
    ASSERT_EQ(table.WriteSystemJmTable(), 1);

    // The dialogs write into their store.
    m_catalogue = m_folder.Path(L"catalogue/");
    ASSERT_TRUE(orv3::SystemFiles().MakeFolder(m_catalogue));
    const CString shipped = orv3::FromUtf8(ORV3CAL_CATALOGUE "/") + orv3::kSystemStore;
    PutBytes(m_catalogue + orv3::kSystemStore, Bytes(shipped));
  }

  // One day of a host's life: everything but a dialog.
  void UseLibrary() {
    const CLibrary library;
    ASSERT_NE(library.Get(), nullptr);
    const auto version = Entry<int()>(library.Get(), "acrxGetApiVersion");
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version(), 1);

    const auto open = Entry<decltype(orv3_open_data)>(library.Get(), "orv3_open_data");
    const auto cell = Entry<decltype(orv3_cell_value)>(library.Get(), "orv3_cell_value");
    const auto weld = Entry<decltype(orv3_check_butt)>(library.Get(), "orv3_check_butt");
    ASSERT_TRUE(open != nullptr && cell != nullptr && weld != nullptr);
    ASSERT_EQ(open(Units(m_folder.Path())), 0);
    double area = 0;
    EXPECT_EQ(cell(u"热轧普通工字钢", u"I20a", u"A(cm^2)", &area), 0);
    EXPECT_EQ(area, 35.5);
    EXPECT_EQ(cell(u"热轧普通工字钢", u"I20b", u"A(cm^2)", &area), -1);

    std::array<char16_t, 400> results{};
    EXPECT_GT(weld(u"case=0\nsteel=Q235\nquality=1\nlw=200\nt=10\nN=100\nM=0\nV=0", results.data(),
                   results.size()),
              0);
    EXPECT_EQ(std::u16string(results.data(), 7), u"pass=1\n");
  }

  // Opens the browser and from it the dialogs that it opens, and chooses a row.
  void UseDialogs() {
    const CLibrary library;
    ASSERT_NE(library.Get(), nullptr);
    const auto open = Entry<decltype(orv3_open_data)>(library.Get(), "orv3_open_data");
    const auto browse = Entry<decltype(orv3_browse)>(library.Get(), "orv3_browse");
    ASSERT_TRUE(open != nullptr && browse != nullptr);
    ASSERT_EQ(open(Units(m_catalogue)), 0);
    std::array<char16_t, 4096> row{};
    int length = -1;
    Drive([&] { length = browse(0x03000FFF, row.data(), row.size()); },
          [] {
            const auto browser = CDialogProbe::WaitFor(L"钢结构截面特性数据库");
            browser.SelectNode(IDC_TREE, L"热轧等边角钢组合");
            const std::wstring number = browser.Column(IDC_LIST, 0).at(1);
            browser.SelectItem(IDC_LIST, number);
            browser.DoubleClick(IDC_LIST, browser.SelectedItem(IDC_LIST));
            CloseDialog(L"截面特性参数查询");
            browser.Click(IDC_VIEW_COLUMNS);
            CloseDialog(L"选择显示项");
            browser.Click(IDC_EXPORT);
            CloseDialog(L"选择截面表");
            browser.SelectItem(IDC_LIST, number);
            browser.Click(IDOK);
            const auto spacing = CDialogProbe::WaitFor(L"型钢组合肢距输入");
            spacing.Click(IDOK);
          });
    const std::u16string text(row.data());
    EXPECT_EQ(length, static_cast<int>(text.size()));
    EXPECT_TRUE(text.starts_with(u"table=热轧等边角钢组合\nNo.="));

    const auto edit =
        Entry<decltype(orv3_edit_user_tables)>(library.Get(), "orv3_edit_user_tables");
    ASSERT_NE(edit, nullptr);
    Drive([&] { length = edit(0x03000FFF, row.data(), row.size()); },
          [] { CloseDialog(L"用户截面库"); });
    EXPECT_EQ(length, 0);
  }

  static void CloseDialog(const wchar_t* caption) {
    const auto dialog = CDialogProbe::WaitFor(caption);
    dialog.Paint();
    dialog.Close();
    dialog.WaitUntilClosed();
  }

  static const char16_t* Units(const CString& text) {
    return reinterpret_cast<const char16_t*>(text.GetString());
  }

  CTempFolder m_folder;
  CString m_catalogue;
};

// Rounds after the first two must leave nothing: those let the system and the C library set
// themselves up. Two files stay loaded meanwhile: the compiler's runtime of 32-bit Windows, which
// never frees the memory that it keeps for exceptions, and Wine's file dialogs, which leave a
// handle behind whenever they are unloaded.
void ExpectNoLeak(int rounds, const std::function<void()>& round) {
  for (const wchar_t* file : {L"libstdc++-6.dll", L"comdlg32.dll"}) LoadLibraryW(file);
  FillStockOfDrawingContexts();
  round();
  round();
  ExpectCountsSeeNewObjects();
  const CHoldings before = Holdings();
  for (int i = 0; i < rounds; ++i) round();
  const CHoldings after = Holdings();
  EXPECT_EQ(GetModuleHandleW(kLibrary), nullptr) << "still loaded";
  EXPECT_EQ(after.windows, before.windows);
  EXPECT_EQ(after.drawing, before.drawing);
  EXPECT_EQ(after.handles, before.handles);
  EXPECT_LE(after.heap, before.heap + 1024) << "bytes";
}

TEST_F(CHost, LoadsUsesAndUnloadsTheLibraryWithoutALeak) {
  ExpectNoLeak(20, [this] { UseLibrary(); });
}

TEST_F(CHost, OpensAndClosesTheDialogsWithoutALeak) {
  ExpectNoLeak(3, [this] { UseDialogs(); });
}

// What a thread keeps for the library goes with the library, not with the thread.
TEST_F(CHost, ThreadsMayOutliveTheLibrary) {
  std::thread([this] { UseLibrary(); }).join();
}

TEST(CHostServices, AskTheHostForHelpAndElseShowTheirOwn) {
  std::vector<CString> shown;
  const auto before = orv3::SetMessageHandler([&](const orv3::CMessage& message) {
    shown.push_back(message.m_strText);
    return orv3::CMessageAnswer::Ok;
  });
  orv3::ShowHostHelp(L"CPropertyDlg", L"截面特性");
  EXPECT_EQ(g_topic, L"CPropertyDlg");
  EXPECT_TRUE(shown.empty());
  g_bHelps = false;
  orv3::ShowHostHelp(L"CPropertyDlg", L"截面特性");
  g_bHelps = true;
  orv3::SetMessageHandler(before);
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0], L"截面特性");
}

TEST_F(CHost, CarriesThePicturesTheIconAndItsVersion) {
  const CLibrary library;
  ASSERT_NE(library.Get(), nullptr);
  for (int number = 8008; number <= 8078; ++number) {
    if ((number > 8029 && number < 8035) || (number > 8049 && number < 8076)) continue;
    const CBitmap drawn = orv3::SketchBitmap(number);
    auto* picture = static_cast<HBITMAP>(LoadImageW(library.Get(), MAKEINTRESOURCEW(number),
                                                    IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    ASSERT_NE(picture, nullptr) << number;
    DIBSECTION section{};
    GetObjectW(picture, sizeof section, &section);
    ASSERT_EQ(section.dsBm.bmWidth, drawn.GetWidth()) << number;
    ASSERT_EQ(section.dsBm.bmHeight, drawn.GetHeight()) << number;
    const int y = drawn.GetHeight() / 2;
    const auto* row = static_cast<const unsigned char*>(section.dsBm.bmBits) +
                      section.dsBm.bmWidthBytes * (drawn.GetHeight() - 1 - y);  // from the bottom
    for (int x = 0; x < drawn.GetWidth(); ++x) {
      const unsigned char* pixel = row + x * 3;
      ASSERT_EQ(static_cast<unsigned>(pixel[0] | pixel[1] << 8 | pixel[2] << 16),
                drawn.GetPixel(x, y))
          << number;
    }
    DeleteObject(picture);
  }
  for (const int side : {16, 32, 48}) {
    auto* icon = static_cast<HICON>(
        LoadImageW(library.Get(), MAKEINTRESOURCEW(8003), IMAGE_ICON, side, side, 0));
    EXPECT_NE(icon, nullptr) << side;
    DestroyIcon(icon);
  }
  EXPECT_NE(FindResourceW(library.Get(), MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24)), nullptr);

  DWORD ignored = 0;
  std::vector<char> info(GetFileVersionInfoSizeW(kLibrary, &ignored));
  ASSERT_TRUE(GetFileVersionInfoW(kLibrary, 0, static_cast<DWORD>(info.size()), info.data()));
  void* text = nullptr;
  UINT length = 0;
  ASSERT_TRUE(
      VerQueryValueW(info.data(), L"\\StringFileInfo\\080404b0\\FileDescription", &text, &length));
  EXPECT_STREQ(static_cast<const wchar_t*>(text), L"钢结构截面与连接计算库");
}

}  // namespace
