#include "dialogs/win32/dialog_help.h"

#include <algorithm>
#include <iterator>

#include "dialogs/win32/resource.h"

namespace orv3 {
namespace {

constexpr CDialogHelp kHelp[] = {
    {IDD_DATABASE, L"CSteelDataBaseDlg",
     L"左侧选截面表，右侧选一条记录，按“确定”选用；双击查看全部参数。\n\n"
     L"检索：选列、运算符，输入内容后按 Enter。文本列按“包含”检索，* 代表任意文字；勾选“完全匹配”则"
     L"要求完全相同。数值列输入数字，留空显示全部记录。\n"
     L"排序：单击列标题，再击反向。\n"
     L"增加、修改、删除：Insert、F2、Delete。删除后可“撤消删除”（Ctrl+"
     L"Z），关闭对话框前有效。随库提供的"
     L"记录不能修改和删除。\n"
     L"Ctrl+C 复制所选记录。每次改动立即存入截面库。"},
    {IDD_PROPERTY, L"CPropertyDlg",
     L"单击数值、按 F2 或直接键入开始修改；Enter 保留，Esc 放弃，Tab 到下一个可改的值。\n\n"
     L"灰底的值由程序按尺寸计算，不能修改。标准型钢的特性不随尺寸重新计算。\n"
     L"内容有误时，确定后停在有误的一行。"},
    {IDD_SECT_SIGN, L"CSectSignSet", L"该型号已有记录。请输入表中没有的型号。"},
    {IDD_SPACING, L"CSteelZHZJDlg", L"选择两个型钢之间的净距，单位 mm。"},
    {IDD_VIEW_COLUMNS, L"CViewColDlg", L"勾选列表中要显示的列。列的次序同截面表。"},
    {IDD_TABLE_NAMES, L"CSelTableNameDlg",
     L"勾选截面表。“查找”只缩小列表，已勾选而暂不显示的表仍然有效。"},
    {IDD_USER_TABLES, L"CUserTableDlg",
     L"左侧是用户的截面表：先选样本（空白表或某种截面），再“新建”。右上是记录，右下是列。\n\n"
     L"记录：Insert 增加，F2 修改，Delete 删除，Ctrl+C 复制到剪贴板。\n"
     L"截面表的列由截面类型确定；空白表的列可以增加、删除和修改。\n"
     L"每一步都可“撤消”和“重做”；“保存”或“确定”后才写入文件，未保存的表名后有 *。"},
    {IDD_TEXT_INPUT, L"CTextInputDlg", L"输入名称后按“确定”。"},
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
