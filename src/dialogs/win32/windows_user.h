// CWindowsUser: what a dialog's model asks for, answered by message boxes, file dialogs and the
// dialogs of the library, each above the active window.
#pragma once

#include <memory>
#include <vector>

#include "dialogs/model/dialog_user.h"

namespace orv3 {

class CProgressDlg;

class CWindowsUser : public CDialogUser {
 public:
  CWindowsUser();
  ~CWindowsUser() override;

  CMessageAnswer Message(const CMessage& message) override;
  bool AskText(const CString& title, const CString& label, CString& text) override;
  bool OpenFiles(const CString& title, const std::vector<CFileFilter>& filters,
                 std::vector<CString>& paths) override;
  bool SaveFile(const CString& title, const std::vector<CFileFilter>& filters,
                CString& path) override;
  bool Run(CPropertyModel& model) override;
  bool Run(CSignModel& model) override;
  bool Run(CSpacingModel& model) override;
  bool Run(CColumnModel& model) override;
  bool Run(CTableNameModel& model) override;
  void Progress(const CString& what, int done, int total) override;

 private:
  std::unique_ptr<CProgressDlg> m_pProgress;
};

}  // namespace orv3
