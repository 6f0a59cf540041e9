; What bench/install-windows compares with: the same files, the entry in the list of programs and the
; same shortcuts. Defines: PAYLOAD, the folder of the files; OUTPUT, the program to write.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
Name "Vorlan Quillax"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$APPDATA\Vorlan Quillax"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vorlan Quillax"

Page instfiles
UninstPage instfiles

Section
    SetOutPath "$INSTDIR"
    File /r "${PAYLOAD}/*"
    WriteUninstaller "$INSTDIR\uninst.exe"
    WriteRegStr HKCU "Software\Vorlan\Quillax24" "Path" "$INSTDIR\"
    WriteRegStr HKCU "${ENTRY}" "DisplayName" "Vorlan Quillax"
    WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "24.5.1"
    WriteRegStr HKCU "${ENTRY}" "Publisher" "Vorlan"
    WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR\"
    WriteRegStr HKCU "${ENTRY}" "DisplayIcon" '"$INSTDIR\quill.exe",0'
    WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\uninst.exe"'
    CreateDirectory "$SMPROGRAMS\Vorlan Quillax"
    CreateShortcut "$SMPROGRAMS\Vorlan Quillax\Vorlan Quillax.lnk" "$INSTDIR\quill.exe"
    CreateShortcut "$SMPROGRAMS\Vorlan Quillax\Uninstall Vorlan Quillax.lnk" "$INSTDIR\uninst.exe"
    CreateShortcut "$DESKTOP\Vorlan Quillax.lnk" "$INSTDIR\quill.exe"
SectionEnd

Section Uninstall
    DeleteRegKey HKCU "${ENTRY}"
    RMDir /r "$INSTDIR"
SectionEnd
