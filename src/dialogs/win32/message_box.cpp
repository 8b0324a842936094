#include "dialogs/win32/message_box.h"

#include <array>

#include "dialogs/win32/host_services.h"
#include "dialogs/win32/win32_api.h"

namespace orv3 {
namespace {

constexpr wchar_t kOwnTitle[] = L"Orv3Cal";

UINT StyleOf(CMessageButtons buttons) noexcept {
  switch (buttons) {
    case CMessageButtons::OkCancel:
      return MB_OKCANCEL | MB_ICONQUESTION;
    case CMessageButtons::YesNo:
      return MB_YESNO | MB_ICONQUESTION;
    case CMessageButtons::YesNoCancel:
      return MB_YESNOCANCEL | MB_ICONQUESTION;
    case CMessageButtons::Ok:
      break;
  }
  return MB_OK | MB_ICONINFORMATION;
}

CMessageAnswer AnswerOf(int button) noexcept {
  switch (button) {
    case IDOK:
      return CMessageAnswer::Ok;
    case IDYES:
      return CMessageAnswer::Yes;
    case IDNO:
      return CMessageAnswer::No;
    default:
      return CMessageAnswer::Cancel;
  }
}

CString TitleOf(const CMessage& message, HWND owner) {
  if (!message.m_strTitle.IsEmpty()) return message.m_strTitle;
  std::array<wchar_t, 256> title{};
  const int length =
      owner == nullptr ? 0 : GetWindowTextW(owner, title.data(), static_cast<int>(title.size()));
  return length > 0 ? CString(title.data()) : CString(kOwnTitle);
}

}  // namespace

CMessageAnswer ShowMessageBox(const CMessage& message) {
  const HWND owner = OwnerWindow();
  const CString title = TitleOf(message, owner);
  const UINT style = StyleOf(message.m_nButtons) | (owner == nullptr ? MB_TASKMODAL : 0);
  return AnswerOf(MessageBoxW(owner, message.m_strText.GetString(), title.GetString(), style));
}

}  // namespace orv3
