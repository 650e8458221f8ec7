; The Windows installer, for the user who starts it. Made by tools/windows_package.sh, which gives:
;   TARGET                processor of the program, and of the installer
;   ID VERSION PUBLISHER  what the program says of itself
;   LISTS                 folder with install.nsh and uninstall.nsh, which name each file
;   OUTPUT                file to write
;   SIZE_K                size of the files, KiB
Target ${TARGET}
SetCompressor /SOLID lzma
SetDateSave off ; times of the machine that builds
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh
!include Win\COM.nsh
!include Win\Propkey.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${ID}"
!define SHORTCUT "$SMPROGRAMS\Tervalis.lnk"

Name "Tervalis"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tervalis"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Tervalis ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tervalis"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Tervalis"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "LegalCopyright" "MIT licence"

!define MUI_ICON "tervalis.ico"
!define MUI_UNICON "tervalis.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tervalis.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Its files cannot be replaced while it runs. Nobody is asked in a silent run, which fails.
!macro RefuseWhileRunning
    FindWindow $0 "Tervalis"
    ${If} $0 P<> 0
        MessageBox MB_ICONEXCLAMATION "Tervalis is running. Close it first." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
!macroend

; The task bar takes the shortcut and the running program, which says the same id of itself, for one.
Function MarkShortcut
    !insertmacro ComHlpr_CreateInProcInstance ${CLSID_ShellLink} ${IID_IShellLink} r0 ""
    ${If} $0 P<> 0
        ${IUnknown::QueryInterface} $0 '("${IID_IPersistFile}",.r1)'
        ${IPersistFile::Load} $1 '("${SHORTCUT}",${STGM_READWRITE})'
        ${IUnknown::QueryInterface} $0 '("${IID_IPropertyStore}",.r2)'
        ${If} $2 P<> 0
            System::Call 'Oleaut32::SysAllocString(w "${ID}")p.r3'
            System::Call '*${SYSSTRUCT_PROPERTYKEY}(${PKEY_AppUserModel_ID})p.r4'
            System::Call '*${SYSSTRUCT_PROPVARIANT}(${VT_BSTR},,&i${NSIS_PTR_SIZE} $3)p.r5'
            ${IPropertyStore::SetValue} $2 '($4,$5)'
            ${IPropertyStore::Commit} $2 ""
            System::Call 'Oleaut32::SysFreeString(p r3)'
            System::Free $4
            System::Free $5
            ${IUnknown::Release} $2 ""
            ${IPersistFile::Save} $1 '("${SHORTCUT}",1)'
        ${EndIf}
        ${IUnknown::Release} $1 ""
        ${IUnknown::Release} $0 ""
    ${EndIf}
FunctionEnd

Function .onInit
    !insertmacro RefuseWhileRunning
FunctionEnd

Function un.onInit
    !insertmacro RefuseWhileRunning
FunctionEnd

Section
    !include "${LISTS}/install.nsh"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "${SHORTCUT}" "$INSTDIR\tervalis.exe"
    Call MarkShortcut
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tervalis"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tervalis.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE_K}
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Only what was installed, and the log: the folder may hold more of the player's.
Section Uninstall
    Delete "${SHORTCUT}"
    Delete "$INSTDIR\Log.txt"
    Delete "$INSTDIR\uninstall.exe"
    !include "${LISTS}/uninstall.nsh"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    MessageBox MB_YESNO|MB_DEFBUTTON2|MB_ICONQUESTION \
        "Remove the settings and the ranking of Tervalis too?" /SD IDNO IDNO keep
    DeleteRegKey HKCU "Software\Tervalis"
    keep:
SectionEnd
