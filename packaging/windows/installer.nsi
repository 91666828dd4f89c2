; makensis -DVERSION=14.0 -DFOLDER=what-to-install -DICON=program.ico -DOUT=setup.exe installer.nsi
;
; For the user alone, without an administrator: the databases lie beside the program, in a folder where
; the user may write. Removing the program leaves them.
Target amd64-unicode
Unicode true
!include MUI2.nsh
!define NAME "Corvale Annual Survey 2012"
!define PROGRAM "corvale-survey.exe"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\CorvaleSurvey2012"
Name "${NAME}"
OutFile "${OUT}"
RequestExecutionLevel user
ManifestDPIAware true
SetCompressor /SOLID lzma
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Ostrel"
VIAddVersionKey "LegalCopyright" "Ostrel"

; The program's own files, by kind: a folder that the user chose may hold others.
!macro REMOVE_PROGRAM
  Delete "$INSTDIR\${PROGRAM}"
  Delete "$INSTDIR\Qt6*.dll"
  Delete "$INSTDIR\lib*.dll"
  Delete "$INSTDIR\platforms\q*.dll"
  RMDir "$INSTDIR\platforms"
  RMDir /r "$INSTDIR\licences"
  Delete "$INSTDIR\CorvaleAnnualOstrel2012.mdb"
  Delete "$INSTDIR\README.txt"
  Delete "$INSTDIR\qt.conf"
!macroend

Section
  SetOutPath "$INSTDIR"
  ; A program that runs cannot be replaced, and half of a newer one would not start.
  IfFileExists "$INSTDIR\${PROGRAM}" 0 free
  try:
  ClearErrors
  FileOpen $0 "$INSTDIR\${PROGRAM}" a
  IfErrors 0 close
  MessageBox MB_RETRYCANCEL "${NAME} is running. End it first." /SD IDCANCEL IDRETRY try
  Abort
  close:
  FileClose $0
  !insertmacro REMOVE_PROGRAM
  free:
  File /r "${FOLDER}/*"
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${PROGRAM}"
  CreateShortcut "$DESKTOP\${NAME}.lnk" "$INSTDIR\${PROGRAM}"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM}"
  WriteRegStr HKCU "${KEY}" "Publisher" "Ostrel"
  WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

Section Uninstall
  !insertmacro REMOVE_PROGRAM
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"  ; stays where Data2012 lies in it
  Delete "$SMPROGRAMS\${NAME}.lnk"
  Delete "$DESKTOP\${NAME}.lnk"
  DeleteRegKey HKCU "${KEY}"
SectionEnd
