#include "dialogs/win32/windows_user.h"

#include "dialogs/model/sign_model.h"
#include "dialogs/model/spacing_model.h"
#include "dialogs/win32/file_dialog.h"
#include "dialogs/win32/host_services.h"
#include "dialogs/win32/message_box.h"
#include "dialogs/win32/progress_dlg.h"
#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/sect_sign_set.h"
#include "dialogs/win32/sel_table_name_dlg.h"
#include "dialogs/win32/steel_zhzj_dlg.h"
#include "dialogs/win32/text_input_dlg.h"
#include "dialogs/win32/view_col_dlg.h"

namespace orv3 {

CWindowsUser::CWindowsUser() = default;
CWindowsUser::~CWindowsUser() = default;

CMessageAnswer CWindowsUser::Message(const CMessage& message) { return ShowMessageBox(message); }

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
