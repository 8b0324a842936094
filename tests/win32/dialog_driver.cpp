#include "win32/dialog_driver.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include "framework/utf8.h"

namespace {

using namespace std::chrono_literals;

constexpr int kMessageText = 0xFFFF;

std::string Narrow(const std::wstring& text) { return orv3::ToUtf8(text); }

std::wstring WindowText(HWND window) {
  // WM_GETTEXT and not GetWindowText, which asks no control of another thread.
  const auto length = static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
  std::wstring text(length + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

std::wstring ClassOf(HWND window) {
  wchar_t name[32] = {};
  GetClassNameW(window, name, 32);
  return name;
}

BOOL CALLBACK AddDialog(HWND window, LPARAM list) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == GetCurrentProcessId() && IsWindowVisible(window) && ClassOf(window) == L"#32770") {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  }
  return TRUE;
}

// The dialogs of this process that are on the screen, the newest first.
std::vector<HWND> Dialogs() {
  std::vector<HWND> found;
  EnumWindows(AddDialog, reinterpret_cast<LPARAM>(&found));
  return found;
}

// What stands on the screen instead of what was waited for.
std::string OpenOnes() {
  std::string texts;
  for (const HWND window : Dialogs()) {
    texts += "; open: " + Narrow(WindowText(window));
    const HWND message = GetDlgItem(window, kMessageText);
    if (message != nullptr) texts += ": " + Narrow(WindowText(message));
  }
  return texts;
}

HWND FindDialog(const std::wstring& caption) {
  for (const HWND window : Dialogs()) {
    if (IsWindowEnabled(window) && WindowText(window) == caption) return window;
  }
  return nullptr;
}

LPARAM Pointer(const void* data) { return reinterpret_cast<LPARAM>(data); }

std::wstring NodeText(HWND tree, HTREEITEM item) {
  wchar_t text[128] = {};
  TVITEMW info{};
  info.mask = TVIF_TEXT;
  info.hItem = item;
  info.pszText = text;
  info.cchTextMax = 128;
  SendMessageW(tree, TVM_GETITEMW, 0, Pointer(&info));
  return text;
}

void Visit(HWND tree, HTREEITEM item, const std::function<void(HTREEITEM)>& visit) {
  for (; item != nullptr; item = TreeView_GetNextSibling(tree, item)) {
    visit(item);
    Visit(tree, TreeView_GetChild(tree, item), visit);
  }
}

// A question is answered with No, everything else cancelled.
void CloseEverything(const std::atomic<bool>& ended) {
  while (!ended) {
    for (const HWND window : Dialogs()) {
      const WPARAM answer = GetDlgItem(window, IDNO) != nullptr ? IDNO : IDCANCEL;
      if (IsWindowEnabled(window)) PostMessageW(window, WM_COMMAND, answer, 0);
    }
    std::this_thread::sleep_for(20ms);
  }
}

// The thread that plays the user in every test of the process. It never ends: threads of the
// compiler's library that come and go make handles of their own, now and then one that stays.
class CPlayer {
 public:
  static CPlayer& Instance() {
    static auto* const player = new CPlayer;
    return *player;
  }
  void Start(const std::function<void()>& script) {
    m_pScript = &script;
    SetEvent(m_hStart);
  }
  void WaitForEnd() { WaitForSingleObject(m_hEnd, INFINITE); }

 private:
  CPlayer() { CloseHandle(CreateThread(nullptr, 0, Play, this, 0, nullptr)); }

  static DWORD WINAPI Play(void* self) {
    auto* const player = static_cast<CPlayer*>(self);
    for (;;) {
      WaitForSingleObject(player->m_hStart, INFINITE);
      (*player->m_pScript)();
      SetEvent(player->m_hEnd);
    }
  }

  const HANDLE m_hStart = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  const HANDLE m_hEnd = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  const std::function<void()>* m_pScript = nullptr;
};

}  // namespace

void Eventually(const std::function<bool()>& condition, const std::string& what) {
  const auto end = std::chrono::steady_clock::now() + 20s;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error("not seen: " + what);
    std::this_thread::sleep_for(5ms);
  }
}

void Drive(const std::function<void()>& dialog, const std::function<void()>& script) {
  std::string failure;
  std::atomic<bool> ended = false;
  const std::function<void()> play = [&] {
    try {
      script();
    } catch (const std::exception& error) {
      failure = error.what();
      CloseEverything(ended);
    }
  };
  CPlayer& player = CPlayer::Instance();
  player.Start(play);
  dialog();
  ended = true;
  player.WaitForEnd();
  EXPECT_EQ(failure, "");
}

void Expect(const std::wstring& found, const std::wstring& wanted) {
  if (found != wanted) {
    throw std::runtime_error("found \"" + Narrow(found) + "\" instead of \"" + Narrow(wanted) +
                             "\"");
  }
}

void Expect(long long found, long long wanted, const std::string& what) {
  if (found != wanted) {
    throw std::runtime_error(what + ": " + std::to_string(found) + " instead of " +
                             std::to_string(wanted));
  }
}

// The threads share one keyboard state while they are attached.
CKeyDown::CKeyDown(HWND window, int key)
    : m_nThread(GetWindowThreadProcessId(window, nullptr)), m_nKey(key) {
  AttachThreadInput(GetCurrentThreadId(), m_nThread, TRUE);
  Set(0x80);
}

CKeyDown::~CKeyDown() {
  Set(0);
  AttachThreadInput(GetCurrentThreadId(), m_nThread, FALSE);
}

void CKeyDown::Set(BYTE state) const {
  BYTE keys[256] = {};
  GetKeyboardState(keys);
  keys[m_nKey] = state;
  SetKeyboardState(keys);
}

// --- Dialogs ------------------------------------------------------------------------------------

CDialogProbe CDialogProbe::WaitFor(const std::wstring& caption) {
  HWND found = nullptr;
  try {
    Eventually([&] { return (found = FindDialog(caption)) != nullptr; }, Narrow(caption));
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(error.what() + OpenOnes());
  }
  return CDialogProbe(found);
}

bool CDialogProbe::IsOpen(const std::wstring& caption) { return FindDialog(caption) != nullptr; }

void CDialogProbe::WaitUntilClosed() const {
  const HWND owner = GetWindow(m_hWnd, GW_OWNER);
  Eventually([this] { return !IsWindow(m_hWnd); }, "end of a dialog");
  if (owner != nullptr) SendMessageW(owner, WM_NULL, 0, 0);
}

void CDialogProbe::Paint() const {
  RedrawWindow(m_hWnd, nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

HWND CDialogProbe::Control(int id) const {
  const HWND control = GetDlgItem(m_hWnd, id);
  if (control == nullptr) throw std::runtime_error("no control " + std::to_string(id));
  return control;
}

std::wstring CDialogProbe::Text(int id) const { return WindowText(Control(id)); }

void CDialogProbe::SetText(int id, const std::wstring& text) const {
  SendMessageW(Control(id), WM_SETTEXT, 0, Pointer(text.c_str()));
}

bool CDialogProbe::IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }

void CDialogProbe::Click(int id) const { PostMessageW(Control(id), BM_CLICK, 0, 0); }

void CDialogProbe::Press(int id, WPARAM key) const {
  PostMessageW(Control(id), WM_KEYDOWN, key, 1);
  PostMessageW(Control(id), WM_KEYUP, key, 1);
}

void CDialogProbe::Close() const { PostMessageW(m_hWnd, WM_COMMAND, IDCANCEL, 0); }

// --- Drop-down lists and boxes ------------------------------------------------------------------

void CDialogProbe::Choose(int id, const std::wstring& text) const {
  const HWND list = Control(id);
  const LRESULT entry = text.empty() ? 0
                                     : SendMessageW(list, CB_FINDSTRINGEXACT,
                                                    static_cast<WPARAM>(-1), Pointer(text.c_str()));
  if (entry < 0) throw std::runtime_error("no choice \"" + Narrow(text) + "\"");
  SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
  SendMessageW(m_hWnd, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

// --- Trees --------------------------------------------------------------------------------------

void CDialogProbe::SelectNode(int id, const std::wstring& text) const {
  const HWND tree = Control(id);
  if (m_mapNode.empty()) {
    Visit(tree, TreeView_GetRoot(tree),
          [&](HTREEITEM item) { m_mapNode.emplace(NodeText(tree, item), item); });
  }
  const auto found = m_mapNode.find(text);
  if (found == m_mapNode.end()) throw std::runtime_error("no node \"" + Narrow(text) + "\"");
  SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(found->second));
}

// --- Lists --------------------------------------------------------------------------------------

int CDialogProbe::Count(int id) const { return ListView_GetItemCount(Control(id)); }

std::vector<std::wstring> CDialogProbe::Titles(int id) const {
  std::vector<std::wstring> titles;
  wchar_t text[128] = {};
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT;
  column.pszText = text;
  column.cchTextMax = 128;
  while (SendMessageW(Control(id), LVM_GETCOLUMNW, titles.size(), Pointer(&column))) {
    titles.emplace_back(text);
  }
  return titles;
}

std::wstring CDialogProbe::Cell(int id, int item, int column) const {
  wchar_t text[256] = {};
  LVITEMW info{};
  info.iSubItem = column;
  info.pszText = text;
  info.cchTextMax = 256;
  SendMessageW(Control(id), LVM_GETITEMTEXTW, static_cast<WPARAM>(item), Pointer(&info));
  return text;
}

std::vector<std::wstring> CDialogProbe::Column(int id, int column) const {
  std::vector<std::wstring> texts;
  for (int item = 0; item < Count(id); ++item) texts.push_back(Cell(id, item, column));
  return texts;
}

void CDialogProbe::SelectItem(int id, int item) const {
  ListView_SetItemState(Control(id), item, LVIS_SELECTED | LVIS_FOCUSED,
                        LVIS_SELECTED | LVIS_FOCUSED);
  Expect(SelectedItem(id), item, "selected item");
}

void CDialogProbe::SelectItem(int id, const std::wstring& first) const {
  for (int item = 0; item < Count(id); ++item) {
    if (Cell(id, item, 0) == first) return SelectItem(id, item);
  }
  throw std::runtime_error("no item \"" + Narrow(first) + "\"");
}

int CDialogProbe::SelectedItem(int id) const {
  return ListView_GetNextItem(Control(id), -1, LVNI_SELECTED);
}

void CDialogProbe::ClickHeader(int id, int column) const {
  RECT rect{};
  const HWND header = ListView_GetHeader(Control(id));
  SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), Pointer(&rect));
  const LPARAM place = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
  SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, place);
  SendMessageW(header, WM_LBUTTONUP, 0, place);
}

void CDialogProbe::DoubleClick(int id, int item) const {
  RECT rect{};
  ListView_GetItemRect(Control(id), item, &rect, LVIR_LABEL);
  const LPARAM place = MAKELPARAM(rect.left + 5, (rect.top + rect.bottom) / 2);
  PostMessageW(Control(id), WM_LBUTTONDBLCLK, MK_LBUTTON, place);
  PostMessageW(Control(id), WM_LBUTTONUP, 0, place);
}

void CDialogProbe::SetMark(int id, int item, bool marked) const {
  ListView_SetCheckState(Control(id), item, marked);
}

void CDialogProbe::EditCell(int id, int line, int column, const std::wstring& text) const {
  const HWND list = Control(id);
  ListView_EnsureVisible(list, line, FALSE);
  RECT cell{};
  ListView_GetSubItemRect(list, line, column, LVIR_LABEL, &cell);
  const LPARAM place = MAKELPARAM(cell.left + 5, (cell.top + cell.bottom) / 2);
  PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
  PostMessageW(list, WM_LBUTTONUP, 0, place);
  HWND editor = nullptr;
  const auto opened = [&] {
    for (const wchar_t* name : {WC_EDITW, WC_COMBOBOXW}) {
      if (editor == nullptr) editor = FindWindowExW(list, nullptr, name, nullptr);
    }
    return editor != nullptr;
  };
  Eventually(opened, "cell editor");
  if (lstrcmpiW(ClassOf(editor).c_str(), WC_COMBOBOXW) == 0) {
    const LRESULT entry =
        SendMessageW(editor, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), Pointer(text.c_str()));
    if (entry < 0) throw std::runtime_error("no choice \"" + Narrow(text) + "\"");
    SendMessageW(editor, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
  } else {
    SendMessageW(editor, WM_SETTEXT, 0, Pointer(text.c_str()));
  }
  PostMessageW(editor, WM_KEYDOWN, VK_RETURN, 1);
  Eventually([&] { return !IsWindow(editor); }, "end of the cell editor");
}

// --- Message boxes ------------------------------------------------------------------------------

std::wstring CDialogProbe::Message() const { return Text(kMessageText); }

void CDialogProbe::Answer(int button) const {
  PostMessageW(m_hWnd, WM_COMMAND, static_cast<WPARAM>(button), 0);
  WaitUntilClosed();
}
