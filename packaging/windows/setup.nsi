; The setup program, in Chinese and English, for the user who runs it: no administrator is needed.
; It registers its uninstaller and nothing else; the search path is changed when that is asked for.
; The user's own store, %APPDATA%\Orv3Cal, is never touched.
;
;   setup.exe /S [/PATH] [/D=FOLDER]     without questions; /PATH: with the search path
;
; Given by makensis -D: VERSION, FOLDER (what is installed), LIST (file_list.py), OUTPUT.
Unicode true
SetCompressor /SOLID lzma
SetDateSave off
RequestExecutionLevel user
ManifestDPIAware true
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinMessages.nsh
!include Sections.nsh
!include WordFunc.nsh
!include "${LIST}"

!define UNINSTALLER "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orv3Cal"

Name "Orv3Cal ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Orv3Cal"

!define MUI_LICENSEPAGE_CHECKBOX
!insertmacro MUI_PAGE_LICENSE "${FOLDER}/LICENSE"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "English"

LangString PROGRAM ${LANG_SIMPCHINESE} "程序和截面库（必需）"
LangString PROGRAM ${LANG_ENGLISH} "Program and catalogue (required)"
LangString PATH ${LANG_SIMPCHINESE} "加入搜索路径（PATH），在命令行中直接使用 orv3cal"
LangString PATH ${LANG_ENGLISH} "Add to PATH, so that the command line knows orv3cal"
LangString LONG_PATH ${LANG_SIMPCHINESE} \
  "搜索路径（PATH）太长，安装程序不能安全修改；请自行加入 $INSTDIR\bin。"
LangString LONG_PATH ${LANG_ENGLISH} \
  "PATH is too long for the setup program to change it safely; please add $INSTDIR\bin yourself."

; --- The user's search path --------------------------------------------------------------------

; Reads the user's PATH into $0, or "" with $1 = 1 when it is longer than this program's texts: what
; was read in part must never be written.
!macro ReadPath
  StrCpy $1 0
  StrCpy $2 0
  System::Call 'advapi32::RegOpenKeyExW(p 0x80000001, w "Environment", i 0, i 1, *p .r3) i.r4'
  ${If} $4 == 0
    System::Call 'advapi32::RegQueryValueExW(p r3, w "Path", p 0, p 0, p 0, *i .r2) i.r4'
    System::Call 'advapi32::RegCloseKey(p r3)'
  ${EndIf}
  StrLen $4 "$INSTDIR\bin;"
  IntOp $2 $2 / 2
  IntOp $2 $2 + $4
  ReadRegStr $0 HKCU "Environment" "Path"
  ${If} $2 >= ${NSIS_MAX_STRLEN}
    StrCpy $0 ""
    StrCpy $1 1
  ${EndIf}
!macroend

!macro TellOfPath
  SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=2000
!macroend

; --- Installing --------------------------------------------------------------------------------

Section "$(PROGRAM)" SectionProgram
  SectionIn RO
  !insertmacro InstallFiles
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALLER}" "DisplayName" "Orv3Cal"
  WriteRegStr HKCU "${UNINSTALLER}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALLER}" "Publisher" "The Orv3Cal developers"
  WriteRegStr HKCU "${UNINSTALLER}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALLER}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALLER}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALLER}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALLER}" "NoRepair" 1
SectionEnd

Section /o "$(PATH)" SectionPath
  !insertmacro ReadPath
  ${If} $1 == 1
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(LONG_PATH)" /SD IDOK
  ${Else}
    ${WordFind} ";$0;" ";$INSTDIR\bin;" "E+1{" $2
    IfErrors 0 there  ; an error: not found
    ${If} $0 == ""
      WriteRegExpandStr HKCU "Environment" "Path" "$INSTDIR\bin"
    ${Else}
      WriteRegExpandStr HKCU "Environment" "Path" "$0;$INSTDIR\bin"
    ${EndIf}
    !insertmacro TellOfPath
    there:
  ${EndIf}
SectionEnd

Function .onInit
  !insertmacro MUI_LANGDLL_DISPLAY
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/PATH" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SectionPath}
  ${EndIf}
FunctionEnd

; --- Removing ----------------------------------------------------------------------------------

Section "un.Remove"
  !insertmacro RemoveFiles
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALLER}"
  !insertmacro ReadPath
  ${If} $0 != ""
    ${un.WordReplace} ";$0;" ";$INSTDIR\bin;" ";" "+" $2
    StrLen $3 $2
    IntOp $3 $3 - 2
    StrCpy $2 $2 $3 1  ; without the semicolons around it
    ${If} $2 == ""
      DeleteRegValue HKCU "Environment" "Path"
      !insertmacro TellOfPath
    ${ElseIf} $2 != $0
      WriteRegExpandStr HKCU "Environment" "Path" $2
      !insertmacro TellOfPath
    ${EndIf}
  ${EndIf}
SectionEnd

Function un.onInit
  !insertmacro MUI_UNGETLANGUAGE
FunctionEnd
