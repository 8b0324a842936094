/* Numbers of the dialogs' resources. Read by the C++ and the resource compiler. */
#ifndef ORV3CAL_DIALOGS_RESOURCE_H
#define ORV3CAL_DIALOGS_RESOURCE_H

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

/* Shared with other dialogs of the library. */
#define IDI_ORV3CAL 8003
#define IDC_HELP_BUTTON 8036
#define IDB_SKETCH 8047
#define IDM_MANIFEST 2 /* of the library; a program has its own, number 1 */

/* CPropertyDlg */
#define IDD_PROPERTY 8006
#define IDC_PROPERTY_GRID 8033
#define IDC_PROPERTY_SKETCH 8034

/* CSectSignSet */
#define IDD_SECT_SIGN 8031
#define IDC_SECT_SIGN 8043

/* CSteelZHZJDlg */
#define IDD_SPACING 8084
#define IDC_SPACING_LABEL 8045
#define IDC_SPACING 8044

/* CSteelDataBaseDlg */
#define IDD_DATABASE 8090
#define IDC_LIST 8012
#define IDC_TREE 8013
#define IDC_SEARCH_COLUMN 8015
#define IDC_SEARCH_VALUE 8016
#define IDC_SEARCH 8017
#define IDC_SKETCH 8018
#define IDC_VIEW_COLUMNS 8021
#define IDC_ADD 8022
#define IDC_DELETE 8023
#define IDC_EDIT 8024
#define IDC_IMPORT 8031
#define IDC_EXPORT 8032
#define IDC_SEARCH_OPERATOR 8037
#define IDC_WHOLE_MATCH 8038
#define IDC_SEARCH_GROUP 8100
#define IDC_SEARCH_LABEL 8101
#define IDC_STATUS 8102
#define IDC_TAKE_BACK 8103

/* CViewColDlg */
#define IDD_VIEW_COLUMNS 8091
#define IDC_COLUMN_LIST 8110
#define IDC_ALL 8111
#define IDC_NONE 8112
#define IDC_COUNT 8113

/* CSelTableNameDlg */
#define IDD_TABLE_NAMES 8092
#define IDC_FILTER_LABEL 8120
#define IDC_FILTER 8121
#define IDC_NAME_LIST 8122

/* CUserTableDlg */
#define IDD_USER_TABLES 8093
#define IDC_TABLE_LIST 8130
#define IDC_ROW_LIST 8131
#define IDC_TABLE_NEW 8132
#define IDC_TABLE_RENAME 8133
#define IDC_TABLE_DELETE 8134
#define IDC_TEMPLATE 8135
#define IDC_ROW_ADD 8136
#define IDC_ROW_COPY 8137
#define IDC_ROW_EDIT 8138
#define IDC_ROW_DELETE 8139
#define IDC_COLUMN_GRID 8140
#define IDC_COLUMN_ADD 8141
#define IDC_COLUMN_REMOVE 8142
#define IDC_UNDO 8143
#define IDC_REDO 8144
#define IDC_SAVE 8145
#define IDC_TABLE_LABEL 8146
#define IDC_ROW_LABEL 8147
#define IDC_COLUMN_LABEL 8148

/* CTextInputDlg */
#define IDD_TEXT_INPUT 8094
#define IDC_INPUT_LABEL 8160
#define IDC_INPUT 8161

/* CProgressDlg */
#define IDD_PROGRESS 8095
#define IDC_PROGRESS_TEXT 8170
#define IDC_PROGRESS_BAR 8171

#endif
