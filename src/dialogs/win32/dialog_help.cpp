#include "dialogs/win32/dialog_help.h"

#include <algorithm>
#include <iterator>

#include "dialogs/model/dialog_texts.h"
#include "dialogs/win32/resource.h"

namespace orv3 {
namespace {

constexpr CDialogHelp kHelp[] = {
    {IDD_DATABASE, L"CSteelDataBaseDlg", texts::kHelpBrowser},
    {IDD_PROPERTY, L"CPropertyDlg", texts::kHelpProperty},
    {IDD_SECT_SIGN, L"CSectSignSet", texts::kHelpSign},
    {IDD_SPACING, L"CSteelZHZJDlg", texts::kHelpSpacing},
    {IDD_VIEW_COLUMNS, L"CViewColDlg", texts::kHelpColumns},
    {IDD_TABLE_NAMES, L"CSelTableNameDlg", texts::kHelpTableNames},
    {IDD_USER_TABLES, L"CUserTableDlg", texts::kHelpUserTables},
    {IDD_TEXT_INPUT, L"CTextInputDlg", texts::kHelpTextInput},
};
constexpr CDialogHelp kNone{0, L"", L""};

}  // namespace

const CDialogHelp& HelpOf(int templateId) noexcept {
  const auto* found =
      std::find_if(std::begin(kHelp), std::end(kHelp),
                   [=](const CDialogHelp& help) { return help.m_nTemplate == templateId; });
  return found == std::end(kHelp) ? kNone : *found;
}

}  // namespace orv3
