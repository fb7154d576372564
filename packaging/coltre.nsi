; The installer for Windows, for the user who runs it alone: the program writes its files beside itself, which nobody may
; in "Program Files". Made by tools/package_windows, which defines VERSION, FILES (the directory to be installed), ICON,
; INSTALLER and REMOVAL (the commands that delete what was installed).
Unicode true
Target amd64-unicode  ; it starts on a 64 bit system alone
SetCompressor /SOLID lzma
!include MUI2.nsh

Name "Coltre ${VERSION}"
OutFile "${INSTALLER}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Coltre"
InstallDirRegKey HKCU "Software\Coltre" "cartella"
BrandingText "Coltre ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Coltre"
VIAddVersionKey "FileDescription" "Installazione di Coltre"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\coltre.exe"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Coltre"

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

Section
    SetOutPath "$INSTDIR"
    File /r "${FILES}/*"
    ; The table without its two defects; a file that is there keeps its corrections.
    nsExec::ExecToLog '"$INSTDIR\coltre-calcolo.exe" altitudini ripara "$INSTDIR"'
    Pop $0
    StrCmp $0 0 +2
    MessageBox MB_OK|MB_ICONEXCLAMATION "Il file altitudini.txt non è stato riparato. Il manuale dice al capitolo 7 come farlo." /SD IDOK
    WriteUninstaller "$INSTDIR\disinstalla.exe"
    CreateShortcut "$SMPROGRAMS\Coltre.lnk" "$INSTDIR\coltre.exe"
    CreateShortcut "$SMPROGRAMS\Coltre, manuale.lnk" "$INSTDIR\manuale.html"
    WriteRegStr HKCU "Software\Coltre" "cartella" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Coltre"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\coltre.exe"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\disinstalla.exe"'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; The engineer's altitudes, reports and jobs stay.
Section Uninstall
    !include "${REMOVAL}"
    Delete "$INSTDIR\disinstalla.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Coltre.lnk"
    Delete "$SMPROGRAMS\Coltre, manuale.lnk"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Coltre"
SectionEnd
