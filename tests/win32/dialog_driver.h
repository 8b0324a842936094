// Drives dialogs from outside as a person does: a second thread finds their windows and sends them
// the messages of mouse and keyboard, while the thread of the test runs the dialog.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// A dialog, or a message box, on the screen. What is not as a call expects throws
// std::runtime_error, which ends the script.
class CDialogProbe {
 public:
  // Waits for a dialog of this process with the caption; of several the newest.
  static CDialogProbe WaitFor(const std::wstring& caption);
  static bool IsOpen(const std::wstring& caption);
  // Waits as well until its owner has done what follows: the library, which belongs to the owner's
  // thread, may then be asked from here.
  void WaitUntilClosed() const;

  // Paints all of it now: what the system makes for painting, once a process, is there then.
  void Paint() const;

  HWND Window() const { return m_hWnd; }
  HWND Control(int id) const;
  std::wstring Text(int id) const;
  void SetText(int id, const std::wstring& text) const;
  bool IsEnabled(int id) const;
  void Click(int id) const;              // returns at once: a click may open a dialog
  void Press(int id, WPARAM key) const;  // a key into a control
  void Close() const;                    // as by Esc

  void Choose(int id, const std::wstring& text) const;  // in a drop-down list

  // Tree views: the first node with the text.
  void SelectNode(int id, const std::wstring& text) const;

  // List views
  int Count(int id) const;
  std::vector<std::wstring> Titles(int id) const;
  std::wstring Cell(int id, int item, int column) const;
  std::vector<std::wstring> Column(int id, int column) const;
  void SelectItem(int id, int item) const;
  void SelectItem(int id, const std::wstring& first) const;  // by its first text
  int SelectedItem(int id) const;
  void ClickHeader(int id, int column) const;
  void DoubleClick(int id, int item) const;
  void SetMark(int id, int item, bool marked) const;  // the box before an item
  // Changes a cell of an editable grid as with the keyboard: F2 or a click, the text, Enter.
  void EditCell(int id, int line, int column, const std::wstring& text) const;

  // Message boxes: the text, and an answer (IDOK, IDYES, IDNO).
  std::wstring Message() const;
  void Answer(int button) const;

 private:
  explicit CDialogProbe(HWND window) : m_hWnd(window) {}
  HWND m_hWnd;
  mutable std::map<std::wstring, HTREEITEM> m_mapNode;  // of the tree: asking takes its time
};

// While it lives, the thread of a window takes a key for pressed.
class CKeyDown {
 public:
  CKeyDown(HWND window, int key);
  CKeyDown(const CKeyDown&) = delete;
  CKeyDown& operator=(const CKeyDown&) = delete;
  ~CKeyDown();

 private:
  void Set(BYTE state) const;

  DWORD m_nThread;
  int m_nKey;
};

// Waits until `condition` holds; throws, naming `what`, after twenty seconds.
void Eventually(const std::function<bool()>& condition, const std::string& what);

// Runs `dialog` on this thread and `script` on another. A script that fails is a failure of the
// test; whatever is still open then is closed.
void Drive(const std::function<void()>& dialog, const std::function<void()>& script);

// Throws unless both are equal.
void Expect(const std::wstring& found, const std::wstring& wanted);
void Expect(long long found, long long wanted, const std::string& what);
