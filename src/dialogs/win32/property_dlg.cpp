#include "dialogs/win32/property_dlg.h"

#include "dialogs/model/property_model.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/windows_user.h"

using namespace orv3;

CPropertyDlg::CPropertyDlg() : CKvbDlg(IDD_PROPERTY) {
  OnNotify(IDC_PROPERTY_GRID, NM_CUSTOMDRAW,
           [this](NMHDR& header) { return m_grid.OnCustomDraw(header); });
}

CPropertyDlg::CPropertyDlg(CPropertyModel& model) : CPropertyDlg() { m_pModel = &model; }

CPropertyDlg::~CPropertyDlg() = default;

void CPropertyDlg::OnInitDialog() {
  if (m_pModel == nullptr || m_pModel == m_pOwnModel.get()) {
    m_pOwnModel = std::make_unique<CPropertyModel>(m_item, m_strTableName, m_nEditMode);
    m_pModel = m_pOwnModel.get();
  }
  SetWindowTextW(Window(), m_pModel->Caption().GetString());
  SetText(IDCANCEL, m_pModel->CancelText());
  ShowWindow(Control(IDOK), m_pModel->HasOk() ? SW_SHOW : SW_HIDE);
  if (!m_pModel->HasOk()) SendMessageW(Window(), DM_SETDEFID, IDCANCEL, 0);
  m_grid.Attach(
      Control(IDC_PROPERTY_GRID), m_pModel->Grid(),
      [this](int line, int, const CString& text) { m_pModel->SetValue(line, text); }, Dpi());
  m_grid.ShadeFrom(m_pModel->HasOk() ? 1 : -1);
  m_sketch.Show(Control(IDC_PROPERTY_SKETCH), m_pModel->PictureResource(), Dpi());

  Hold(IDC_PROPERTY_GRID, HoldAll);
  Hold(IDC_PROPERTY_SKETCH, HoldTop | HoldRight);
  for (const int id : {IDOK, IDCANCEL, IDC_HELP_BUTTON}) Hold(id, HoldRight | HoldBottom);
  Remember(L"Property");
  Focus(IDC_PROPERTY_GRID);
}

// The line that is at fault is opened, so that typing mends it.
void CPropertyDlg::OnOK() {
  if (!m_pModel->HasOk()) return;
  m_grid.EndEdit(true);
  CWindowsUser user;
  if (!m_pModel->Ok(user)) {
    m_grid.Refresh();
    m_grid.GoTo(m_pModel->FaultLine());
    return;
  }
  m_item = CDataItem(m_pModel->Row());
  CKvbDlg::OnOK();
}

void CPropertyDlg::OnCancel() {
  m_grid.EndEdit(false);
  CKvbDlg::OnCancel();
}

void CPropertyDlg::OnDpiChanged() {
  m_grid.SetDpi(Dpi());
  m_sketch.Show(Control(IDC_PROPERTY_SKETCH), m_pModel->PictureResource(), Dpi());
}
