#include "dialogs/win32/windows_user.h"

#include "dialogs/model/sign_model.h"
#include "dialogs/model/spacing_model.h"
#include "dialogs/win32/file_dialog.h"
#include "dialogs/win32/progress_dlg.h"
#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/sect_sign_set.h"
#include "dialogs/win32/sel_table_name_dlg.h"
#include "dialogs/win32/steel_zhzj_dlg.h"
#include "dialogs/win32/text_input_dlg.h"
#include "dialogs/win32/view_col_dlg.h"
#include "module/host_services.h"

namespace orv3 {
namespace {

UINT BoxStyle(CMessageButtons buttons) {
  switch (buttons) {
    case CMessageButtons::OkCancel:
      return MB_OKCANCEL | MB_ICONQUESTION;
    case CMessageButtons::YesNo:
      return MB_YESNO | MB_ICONQUESTION;
    case CMessageButtons::YesNoCancel:
      return MB_YESNOCANCEL | MB_ICONQUESTION;
    default:
      return MB_OK | MB_ICONINFORMATION;
  }
}

CMessageAnswer AnswerOf(int button) {
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

}  // namespace

CWindowsUser::CWindowsUser() = default;
CWindowsUser::~CWindowsUser() = default;

// A box without a title carries the caption of the window it belongs to.
CMessageAnswer CWindowsUser::Message(const CMessage& message) {
  const HWND owner = OwnerWindow();
  wchar_t caption[128] = L"Orv3Cal";
  if (owner != nullptr) GetWindowTextW(owner, caption, 128);
  const wchar_t* title = message.m_strTitle.IsEmpty() ? caption : message.m_strTitle.GetString();
  return AnswerOf(
      MessageBoxW(owner, message.m_strText.GetString(), title, BoxStyle(message.m_nButtons)));
}

bool CWindowsUser::AskText(const CString& title, const CString& label, CString& text) {
  CTextInputDlg dialog(title, label, text);
  if (dialog.DoModal() != IDOK) return false;
  text = dialog.m_strText;
  return true;
}

bool CWindowsUser::OpenFiles(const CString& title, const std::vector<CFileFilter>& filters,
                             std::vector<CString>& paths) {
  return AskOpenFiles(OwnerWindow(), title, filters, paths);
}

bool CWindowsUser::SaveFile(const CString& title, const std::vector<CFileFilter>& filters,
                            CString& path) {
  return AskSaveFile(OwnerWindow(), title, filters, path);
}

bool CWindowsUser::Run(CPropertyModel& model) { return CPropertyDlg(model).DoModal() == IDOK; }

bool CWindowsUser::Run(CSignModel& model) {
  CSectSignSet dialog;
  dialog.m_strSign = model.Number();
  if (dialog.DoModal() != IDOK) return false;
  model.Ok(dialog.m_strSign);
  return true;
}

bool CWindowsUser::Run(CSpacingModel& model) {
  CSteelZHZJDlg dialog;
  dialog.m_nKind = model.Kind();
  dialog.m_strSpacing = model.Spacing();
  return dialog.DoModal() == IDOK && model.Ok(dialog.m_strSpacing);
}

bool CWindowsUser::Run(CColumnModel& model) { return CViewColDlg(model).DoModal() == IDOK; }

bool CWindowsUser::Run(CTableNameModel& model) { return CSelTableNameDlg(model).DoModal() == IDOK; }

void CWindowsUser::Progress(const CString& what, int done, int total) {
  if (done >= total) {
    m_pProgress.reset();
    return;
  }
  if (!m_pProgress) m_pProgress = std::make_unique<CProgressDlg>(OwnerWindow());
  m_pProgress->Show(what, done, total);
}

}  // namespace orv3
