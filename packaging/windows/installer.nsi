; The installer for Windows. tools/windows/installer.sh defines VERSION, FOLDER (what is installed), OUTPUT
; and ICON, and writes files.nsh, the list of the folder's files.
;
; For the user alone, without an administrator's rights, or with /ALLUSERS for everybody. /S asks nothing,
; /D=FOLDER (last, without quotes) names another folder. Exit codes: 0; 1 left by the user; 2 a program runs,
; or the rights are missing.
Unicode true
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh
!include FileFunc.nsh
!include "${FILES}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Mortane"
!define RUNNING "A program of Mortane is running. End it, and start this again."
!define RIGHTS "To install for all users takes an administrator's rights."

Name "Mortane"
OutFile "${OUTPUT}"
BrandingText "Mortane ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Mortane"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Mortane, installer"
VIAddVersionKey CompanyName "Mortane maintainers"
VIAddVersionKey LegalCopyright "Mortane maintainers, MIT License"

Var ForAll ; 1 for all users
Var ChoiceAll

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\mortane.exe"
Page custom AskForWhom AnswerForWhom
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; A box, or with /S a line of the exit code alone, and the end.
!macro EndWith text
  SetErrorLevel 2
  MessageBox MB_OK|MB_ICONEXCLAMATION "${text}" /SD IDOK
  Quit
!macroend

; The system lets nobody write the file of a program that runs.
!macro RequireNotRunning program
  ${If} ${FileExists} "$INSTDIR\${program}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${program}" a
    ${If} ${Errors}
      !insertmacro EndWith "${RUNNING}$\r$\n$INSTDIR\${program}"
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

; Whose list of programs, whose Start menu, and which folder unless another was given.
!macro UseContext
  ${If} $ForAll == 1
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
!macroend

; The folder of an installation for the same users, else the usual one.
!macro ChooseFolder
  !insertmacro UseContext
  ReadRegStr $INSTDIR SHCTX "${UNINSTALL_KEY}" InstallLocation
  ${If} $INSTDIR == ""
    ${If} $ForAll == 1
      StrCpy $INSTDIR "$PROGRAMFILES64\Mortane"
    ${Else}
      StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Mortane"
    ${EndIf}
  ${EndIf}
!macroend

!macro RequireRights
  ${If} $ForAll == 1
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "Admin"
      !insertmacro EndWith "${RIGHTS}"
    ${EndIf}
  ${EndIf}
!macroend

!macro ReadSwitches
  SetRegView 64
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/ALLUSERS" $1
  StrCpy $ForAll 0
  ${IfNot} ${Errors}
    StrCpy $ForAll 1
  ${EndIf}
!macroend

Function .onInit
  !insertmacro ReadSwitches
  !insertmacro RequireRights
  ; Empty but for /D.
  ${If} $INSTDIR == ""
    !insertmacro ChooseFolder
  ${EndIf}
  !insertmacro UseContext
FunctionEnd

Function AskForWhom
  !insertmacro MUI_HEADER_TEXT "Who uses Mortane?" "Mortane can be there for you or for everybody."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 10u 100% 12u "&Me alone"
  Pop $1
  ${NSD_CreateRadioButton} 0 28u 100% 12u "&All users of this computer (takes an administrator's rights)"
  Pop $ChoiceAll
  ${If} $ForAll == 1
    ${NSD_Check} $ChoiceAll
  ${Else}
    ${NSD_Check} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

; Without the rights the installer starts itself anew, and the system asks for them.
Function AnswerForWhom
  ${NSD_GetState} $ChoiceAll $0
  ${If} $0 == $ForAll
    Return
  ${EndIf}
  StrCpy $ForAll $0
  UserInfo::GetAccountType
  Pop $0
  ${If} $ForAll == 1
  ${AndIf} $0 != "Admin"
    ClearErrors
    ExecShell "runas" "$EXEPATH" "/ALLUSERS"
    ${If} ${Errors}
      StrCpy $ForAll 0
      MessageBox MB_OK|MB_ICONEXCLAMATION "${RIGHTS}"
      Abort
    ${EndIf}
    Quit
  ${EndIf}
  !insertmacro ChooseFolder
FunctionEnd

Section
  !insertmacro RequireRights
  !insertmacro UseContext
  !insertmacro ForEachProgram RequireNotRunning
  ; What an older version had and this one has not goes with its own uninstaller.
  ReadRegStr $1 SHCTX "${UNINSTALL_KEY}" InstallLocation
  ${If} $1 != ""
  ${AndIf} ${FileExists} "$1\uninstall.exe"
    ${If} $ForAll == 1
      ExecWait '"$1\uninstall.exe" /S /ALLUSERS _?=$1' $0
    ${Else}
      ExecWait '"$1\uninstall.exe" /S _?=$1' $0
    ${EndIf}
    ${If} $0 != 0
      !insertmacro EndWith "${RUNNING}"
    ${EndIf}
    Delete "$1\uninstall.exe"
    RMDir "$1"
  ${EndIf}

  ClearErrors
  !insertmacro InstallFiles
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    !insertmacro EndWith "Not all files could be written to $INSTDIR."
  ${EndIf}

  CreateDirectory "$SMPROGRAMS\Mortane"
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\Mortane\Mortane.lnk" "$INSTDIR\mortane.exe"
  CreateShortcut "$SMPROGRAMS\Mortane\Mortane Wizard.lnk" "$INSTDIR\sadrel.exe"
  CreateShortcut "$SMPROGRAMS\Mortane\Simulated Microscope.lnk" "$INSTDIR\mortane.exe" "/SIM"
  CreateShortcut "$SMPROGRAMS\Mortane\Mortane with a Journal.lnk" "$INSTDIR\mortane.exe" "--journal"
  ${If} ${FileExists} "$INSTDIR\manual\*.*"
    CreateShortcut "$SMPROGRAMS\Mortane\Manual.lnk" "$INSTDIR\manual\index.html"
  ${EndIf}
  CreateShortcut "$SMPROGRAMS\Mortane\Uninstall Mortane.lnk" "$INSTDIR\uninstall.exe"

  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "Mortane"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\mortane.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "Mortane maintainers"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  ${If} $ForAll == 1
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe" /ALLUSERS'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /ALLUSERS /S'
  ${Else}
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  ${EndIf}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize ${SIZE_KIB}
SectionEnd

; An installation for all users is known by its entry in the machine's list.
Function un.onInit
  !insertmacro ReadSwitches
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 == $INSTDIR
    StrCpy $ForAll 1
  ${EndIf}
  UserInfo::GetAccountType
  Pop $0
  ${If} $ForAll == 1
  ${AndIf} $0 != "Admin"
  ${AndIfNot} ${Silent}
    ExecShell "runas" "$INSTDIR\uninstall.exe" "/ALLUSERS"
    Quit
  ${EndIf}
  !insertmacro RequireRights
  !insertmacro UseContext
FunctionEnd

Section Uninstall
  !insertmacro ForEachProgram RequireNotRunning
  !insertmacro RemoveFiles
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  !insertmacro RemoveFolders
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Mortane\*.lnk"
  RMDir "$SMPROGRAMS\Mortane"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
