// The texts that the dialogs show, all of them but those of the dialog templates
// (win32/dialogs.rc): captions, questions, refusals, help. Texts that end or begin with a space, a
// comma or a bracket stand around a number or a name.
#pragma once

namespace orv3::texts {

// --- Browser -------------------------------------------------------------------------------------
inline constexpr wchar_t kBrowserCaption[] = L"钢结构截面特性数据库";
inline constexpr wchar_t kCatalogueRoot[] = L"标准型钢库";
inline constexpr wchar_t kCustomRoot[] = L"自定义型钢库";
inline constexpr wchar_t kImportTitle[] = L"导入截面数据";
inline constexpr wchar_t kExportTitle[] = L"导出截面数据";
inline constexpr wchar_t kDataFileFilter[] = L"型钢数据文件 (*.Kvb)";
inline constexpr wchar_t kTableFileFilter[] = L"截面库文件 (*.KDB)";

// --- Families in the tree: rolled, then user-defined ---------------------------------------------
inline constexpr wchar_t kRolledI[] = L"工字钢、H型钢";
inline constexpr wchar_t kRolledBox[] = L"方钢管";
inline constexpr wchar_t kRolledT[] = L"T型钢";
inline constexpr wchar_t kRolledChannel[] = L"槽钢";
inline constexpr wchar_t kRolledZ[] = L"Z型钢";
inline constexpr wchar_t kRolledTube[] = L"圆钢管";
inline constexpr wchar_t kRolledAngle[] = L"角钢";
inline constexpr wchar_t kAnglePair[] = L"角钢组合";
inline constexpr wchar_t kChannelPair[] = L"槽钢组合";
inline constexpr wchar_t kOwnI[] = L"工字形截面";
inline constexpr wchar_t kOwnBox[] = L"箱形截面";
inline constexpr wchar_t kOwnCross[] = L"十字形截面";
inline constexpr wchar_t kOwnT[] = L"T形截面";
inline constexpr wchar_t kOwnChannel[] = L"槽形截面";
inline constexpr wchar_t kOwnZ[] = L"Z形截面";
inline constexpr wchar_t kOwnRound[] = L"圆形截面";
inline constexpr wchar_t kOwnL[] = L"L形截面";
inline constexpr wchar_t kOwnPolygon[] = L"多边形截面";
inline constexpr wchar_t kOwnLattice[] = L"格构柱";

// --- Counts and lists ----------------------------------------------------------------------------
inline constexpr wchar_t kAll[] = L"共 ";
inline constexpr wchar_t kFound[] = L"检索到 ";
inline constexpr wchar_t kChecked[] = L"已选 ";
inline constexpr wchar_t kColumnsChecked[] = L"已选择 ";
inline constexpr wchar_t kRecords[] = L" 条记录";
inline constexpr wchar_t kTables[] = L" 个";
inline constexpr wchar_t kColumns[] = L" 项";
inline constexpr wchar_t kComma[] = L"，";
inline constexpr wchar_t kAnd[] = L"、";
inline constexpr wchar_t kAndOthers[] = L"等";
inline constexpr wchar_t kColon[] = L"：";
inline constexpr wchar_t kOpenBracket[] = L"（";
inline constexpr wchar_t kCloseBracket[] = L"）";
inline constexpr wchar_t kOpenQuote[] = L"“";
inline constexpr wchar_t kCloseQuote[] = L"”";

// --- Titles of message boxes ---------------------------------------------------------------------
inline constexpr wchar_t kReminder[] = L"Orvo提醒您";
inline constexpr wchar_t kProtectedReminder[] = L"orvo提醒您";

// --- Refusals and questions of the browser -------------------------------------------------------
inline constexpr wchar_t kProtectedRow[] = L"本数据记录不能删除和编辑!";
inline constexpr wchar_t kNoCopyOfCombined[] = L"型钢组合不能进行复制";
inline constexpr wchar_t kOverwriteQuestion[] =
    L"选择确定将覆盖所有相同型号数据!\n是否覆盖已有型号数据？";
inline constexpr wchar_t kRowGone[] = L"该条数据记录已被其他程序修改或删除，请重新选择!";
inline constexpr wchar_t kNoDefaultRow[] = L"该截面类型没有默认数据，不能增加记录!";
inline constexpr wchar_t kNoSample[] = L"请先选择一条数据记录作为新记录的样本!";
inline constexpr wchar_t kOtherColumns[] = L"截面表的列与该截面类型不符，不能增加记录!";
// Behind the value in quotation marks.
inline constexpr wchar_t kNoNumber[] = L"不是数值。该列请输入数字，例如“200”；留空则显示全部记录。";
inline constexpr wchar_t kNothingToExport[] = L"没有可以导出的截面表!";
inline constexpr wchar_t kExportIntoItself[] = L"不能导出到正在使用的截面库文件，请另选文件名!";
inline constexpr wchar_t kExportNotPlaced[] =
    L"不能写入文件，请检查文件是否正被使用、文件夹是否可写：";
inline constexpr wchar_t kImportFailed[] = L"以下内容未能导入：";
inline constexpr wchar_t kImportDoubtful[] =
    L"以下记录已导入，但其特性与尺寸不符，不能用于验算，请核对：";
inline constexpr wchar_t kImportOtherKind[] =
    L"不是可以导入的文件，应为型钢数据文件（.Kvb）或截面库文件（.KDB）。";
inline constexpr wchar_t kImportOtherName[] = L"没有以此为名的型钢数据文件，应为例如DbData.kvb。";
inline constexpr wchar_t kImportDamaged[] = L"文件已损坏或不能读取。";
inline constexpr wchar_t kImportOtherColumns[] =
    L"列的名称、标识、类型或关键字与截面库中的同名截面表不同。";
inline constexpr wchar_t kImporting[] = L"正在导入截面数据";
inline constexpr wchar_t kExporting[] = L"正在导出截面数据";

// --- Failures of stores --------------------------------------------------------------------------
inline constexpr wchar_t kSaveFailed[] = L"数据保存失败：";
inline constexpr wchar_t kReadFailed[] = L"数据读取失败：";
inline constexpr wchar_t kNotFound[] = L"文件或文件夹不存在。";
inline constexpr wchar_t kBusy[] = L"文件正被其他程序使用，请稍后再试。";
inline constexpr wchar_t kDenied[] = L"文件只读，或没有访问权限。";
inline constexpr wchar_t kNotAStore[] = L"文件不是截面库文件。";
inline constexpr wchar_t kNoTable[] = L"截面库中没有该截面表。";
inline constexpr wchar_t kDamaged[] = L"文件已损坏。";
inline constexpr wchar_t kRefused[] = L"数据过长、过多，或含有不能保存的字符，没有保存。";
inline constexpr wchar_t kFailed[] = L"读写失败，原文件没有改变。请检查磁盘空间和文件夹权限。";
inline constexpr wchar_t kReasonUnknown[] = L"原因不明。";

// --- What goes wrong unforeseen ------------------------------------------------------------------
inline constexpr wchar_t kNoMemory[] = L"内存不足，操作没有完成。";
inline constexpr wchar_t kUnforeseen[] = L"程序内部错误，操作没有完成：\n";

// --- Property dialog -----------------------------------------------------------------------------
inline constexpr wchar_t kPropertyEdit[] = L"截面特性参数设置";
inline constexpr wchar_t kPropertyShow[] = L"截面特性参数查询";
inline constexpr wchar_t kCancel[] = L"取消";
inline constexpr wchar_t kLeave[] = L"退出";
inline constexpr wchar_t kParameterName[] = L"参数名称";
inline constexpr wchar_t kParameterValue[] = L"参数值";
inline constexpr wchar_t kExactHeading[] = L"由轮廓精确计算 (mm)";
inline constexpr wchar_t kNoResult[] =
    L"不能计算截面特性，请检查截面尺寸或各肢的类型、型号、角度和肢距!";
// Between and behind the names of values.
inline constexpr wchar_t kSizesChanged[] = L"已修改，而下列数值仍是原截面的，程序不重新计算：\n";
inline constexpr wchar_t kOldFigures[] = L"\n是否仍按现有数据保存？";

inline constexpr wchar_t kContradicts[] = L"特性与尺寸不符，不能用于验算：";

// --- Spacing and number --------------------------------------------------------------------------
inline constexpr wchar_t kSpacingCaption[] = L"型钢组合肢距输入";
inline constexpr wchar_t kSpacingA[] = L"肢距a(mm)";
inline constexpr wchar_t kSpacingDelta[] = L"肢距δ(mm)";
inline constexpr wchar_t kSpacingName[] = L"肢距";
inline constexpr wchar_t kSpacingSignA[] = L"a(mm)";
inline constexpr wchar_t kSpacingSignDelta[] = L"δ(mm)";
inline constexpr wchar_t kSignCaption[] = L"型钢型号输入";

// --- Columns and table names ---------------------------------------------------------------------
inline constexpr wchar_t kColumnCaption[] = L"选择显示项";
inline constexpr wchar_t kNoColumn[] = L"请至少选择一个显示项!";
inline constexpr wchar_t kTableNameCaption[] = L"选择截面表";
inline constexpr wchar_t kNoTableChosen[] = L"请至少选择一个截面表!";

// --- User tables ---------------------------------------------------------------------------------
inline constexpr wchar_t kUserTableCaption[] = L"用户截面库";
inline constexpr wchar_t kEmptyTable[] = L"空白表";
inline constexpr wchar_t kNewTable[] = L"新建截面表";
inline constexpr wchar_t kRenameTable[] = L"截面表改名";
inline constexpr wchar_t kDeleteTable[] = L"删除截面表";
inline constexpr wchar_t kAddRow[] = L"增加记录";
inline constexpr wchar_t kEditRow[] = L"修改记录";
inline constexpr wchar_t kDeleteRow[] = L"删除记录";
inline constexpr wchar_t kAddColumn[] = L"增加列";
inline constexpr wchar_t kEditColumn[] = L"修改列";
inline constexpr wchar_t kDeleteColumn[] = L"删除列";
inline constexpr wchar_t kTableNameLabel[] = L"截面表名称：";
inline constexpr wchar_t kTableNameMissing[] = L"请输入截面表名称!";
inline constexpr wchar_t kTableNameTooLong[] = L"截面表名称不能超过64个字符!";
inline constexpr wchar_t kTableNameTaken[] = L"该截面表名称已经存在!";
inline constexpr wchar_t kTableNameComma[] = L"截面表名称不能含有逗号或换行!";
inline constexpr wchar_t kTableNameNotHere[] = L"该名称的截面类型不在本命令的选择范围内!";
inline constexpr wchar_t kNameOfOtherColumns[] = L"该名称的截面类型要求其他的列，请另选名称!";
inline constexpr wchar_t kNoHeading[] = L"系统截面库中没有该截面表，不能新建!";
inline constexpr wchar_t kColumnName[] = L"列名称";
inline constexpr wchar_t kColumnSign[] = L"列标识";
inline constexpr wchar_t kColumnType[] = L"数据类型";
inline constexpr wchar_t kColumnKey[] = L"关键字";
inline constexpr wchar_t kYes[] = L"是";
inline constexpr wchar_t kNo[] = L"否";
inline constexpr wchar_t kSignMissing[] = L"请输入列标识!";
inline constexpr wchar_t kSignTooLong[] = L"列标识不能超过20个字符!";
inline constexpr wchar_t kSignTaken[] = L"该列标识已经存在!";
inline constexpr wchar_t kNameTooLong[] = L"列名称不能超过64个字符!";
inline constexpr wchar_t kColumnComma[] = L"列名称和列标识不能含有逗号或换行!";
inline constexpr wchar_t kLastColumn[] = L"截面表至少应有两列!";
inline constexpr wchar_t kNewColumnName[] = L"新列";
inline constexpr wchar_t kModelNumber[] = L"型号";
inline constexpr wchar_t kArea[] = L"截面面积";
inline constexpr wchar_t kTypeText[] = L"文本";
inline constexpr wchar_t kTypeInt[] = L"整数";
inline constexpr wchar_t kTypeLong[] = L"长整数";
inline constexpr wchar_t kTypeFloat[] = L"单精度数";
inline constexpr wchar_t kTypeDouble[] = L"双精度数";
inline constexpr wchar_t kTypeChar[] = L"字符";
inline constexpr wchar_t kTypeLong2[] = L"长整数2";
inline constexpr wchar_t kCopyRow[] = L"复制记录";
inline constexpr wchar_t kFixedColumns[] = L"本截面表的列由截面类型确定，不能修改!";
inline constexpr wchar_t kValuesDoNotFit[] = L"已有数据不符合新的数据类型：";
inline constexpr wchar_t kDuplicateKeys[] = L"已有数据在新的关键字下重复!";
inline constexpr wchar_t kDeleteTableQuestion[] = L"是否删除所选截面表？";
inline constexpr wchar_t kSaveQuestion[] = L"截面表已经修改，是否保存？";
inline constexpr wchar_t kChangedByOthers[] =
    L"下列截面表已被其他程序修改，原文件予以保留，本次修改另存为新文件：";

// --- Help ----------------------------------------------------------------------------------------
inline constexpr wchar_t kHelpCaption[] = L"帮助";
inline constexpr wchar_t kHelpMissing[] = L"当前程序没有提供帮助。";
inline constexpr wchar_t kHelpBrowser[] =
    L"左侧选截面表，右侧选一条记录，按“确定”选用；双击查看全部参数。\n\n"
    L"检索：选列、运算符，输入内容后按 Enter。文本列按“包含”检索，* 代表任意文字；勾选“完全匹配”则"
    L"要求完全相同。数值列输入数字，留空显示全部记录。\n"
    L"排序：单击列标题，再击反向。\n"
    L"增加、修改、删除：Insert、F2、Delete。删除后可“撤消删除”（Ctrl+Z），"
    L"关闭对话框前有效。随库提供的记录不能修改和删除。\n"
    L"Ctrl+C 复制所选记录。每次改动立即存入截面库。";
inline constexpr wchar_t kHelpProperty[] =
    L"单击数值、按 F2 或直接键入开始修改；Enter 保留，Esc 放弃，Tab 到下一个可改的值。\n\n"
    L"灰底的值由程序按尺寸计算，不能修改。标准型钢的特性不随尺寸重新计算。\n"
    L"内容有误时，确定后停在有误的一行。";
inline constexpr wchar_t kHelpSign[] = L"该型号已有记录。请输入表中没有的型号。";
inline constexpr wchar_t kHelpSpacing[] = L"选择两个型钢之间的净距，单位 mm。";
inline constexpr wchar_t kHelpColumns[] = L"勾选列表中要显示的列。列的次序同截面表。";
inline constexpr wchar_t kHelpTableNames[] =
    L"勾选截面表。“查找”只缩小列表，已勾选而暂不显示的表仍然有效。";
inline constexpr wchar_t kHelpUserTables[] =
    L"左侧是用户的截面表：先选样本（空白表或某种截面），再“新建”。右上是记录，右下是列。\n\n"
    L"记录：Insert 增加，F2 修改，Delete 删除，Ctrl+C 复制到剪贴板。\n"
    L"截面表的列由截面类型确定；空白表的列可以增加、删除和修改。\n"
    L"每一步都可“撤消”和“重做”；“保存”或“确定”后才写入文件，未保存的表名后有 *。";
inline constexpr wchar_t kHelpTextInput[] = L"输入名称后按“确定”。";

}  // namespace orv3::texts
