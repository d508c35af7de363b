; The setup for Windows, made by packaging/windows/make, which hands in VERSION, TREE (the folder with what is to be
; installed), LISTS (the folder with what goes in and out by name), SIZE (in KiB) and OUT.
;   setup.exe /S [/AllUsers | /CurrentUser] [/STANDIN] [/D=folder]      silently; /D comes last and without quotes
; Its exit code, and the uninstaller's: 0 done, 2 a file could not be written, 5 one that is to go is in use.
; The program goes where the library of the I/O Workshop is. A library that is not of this program's making is never
; written over nor removed.
Unicode true
SetCompressor /SOLID lzma
; A file that cannot be written ends the setup; silently, too, where each would be left out without a word.
AllowSkipFiles off
!define NAME "Gas Flow Computer Configurator"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\gfc-configurator"
!define LIBRARY "kdaddon_VBwrapper.dll"
!define STANDIN_TEXT "Stand-in for the library of the I/O Workshop"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include Sections.nsh

Name "${NAME}"
OutFile "${OUT}"
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey FileDescription "Setup of the ${NAME}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "MIT licence; see LICENSE"

!define MUI_ICON "${TREE}\gfc-configurator.ico"
!define MUI_UNICON "${TREE}\gfc-configurator.ico"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_DIRECTORYPAGE_TEXT_TOP "The program loads the library ${LIBRARY} from its own folder. Choose the folder \
of the I/O Workshop, where that library is; the setup leaves the library as it is. To look at the program without the \
I/O Workshop, take any folder and the stand-in."
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Folder of the I/O Workshop"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartAsThePerson
!define MUI_FINISHPAGE_RUN_TEXT "Start the ${NAME}"

!insertmacro MUI_PAGE_LICENSE "${TREE}\LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE CheckFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; By the shell, with the person's own rights: with those of an administrator, which the setup may have, the program
; would see neither the person's network drives nor, for the library, the I/O Workshop that runs without them.
Function StartAsThePerson
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\gfc-configurator.exe"'
FunctionEnd

; Ends the setup, or the uninstaller, before it has done anything where the file runs or must not be written.
!macro MustBeFree file
    ${If} ${FileExists} "$INSTDIR\${file}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${file}" a
        ${If} ${Errors}
            MessageBox MB_ICONSTOP|MB_OK "${file} is in use, or must not be written. Close the program, on all screens \
of this machine; for a folder of all users start this as an administrator. Nothing has been changed." /SD IDOK
            SetErrorLevel 5
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

; Leaves in $0 what the version of the file at $0 says that it is; empty if it says nothing.
!macro DescriptionOf un
Function ${un}DescriptionOf
    Push $1
    Push $2
    Push $3
    Push $4
    System::Call 'version::GetFileVersionInfoSizeW(w r0, *i .r1) i .r2'
    StrCpy $4 ""
    ${If} $2 <> 0
        System::Alloc $2
        Pop $3
        System::Call 'version::GetFileVersionInfoW(w r0, i 0, i r2, i r3) i .r1'
        ${If} $1 <> 0
            System::Call 'version::VerQueryValueW(i r3, w "\StringFileInfo\040904B0\FileDescription", *i .r1, *i .r2) i .r4'
            ${If} $4 <> 0
                System::Call '*$1(&w128 .r4)'
            ${Else}
                StrCpy $4 ""
            ${EndIf}
        ${EndIf}
        System::Free $3
    ${EndIf}
    StrCpy $0 $4
    Pop $4
    Pop $3
    Pop $2
    Pop $1
FunctionEnd
!macroend
!insertmacro DescriptionOf ""
!insertmacro DescriptionOf "un."

; Leaves in $0 whose library stands in $INSTDIR: "none", "ours" or "foreign".
!macro WhoseLibrary un
Function ${un}WhoseLibrary
    ${IfNot} ${FileExists} "$INSTDIR\${LIBRARY}"
        StrCpy $0 none
        Return
    ${EndIf}
    StrCpy $0 "$INSTDIR\${LIBRARY}"
    Call ${un}DescriptionOf
    ${If} $0 == "${STANDIN_TEXT}"
        StrCpy $0 ours
    ${Else}
        StrCpy $0 foreign
    ${EndIf}
FunctionEnd
!macroend
!insertmacro WhoseLibrary ""
!insertmacro WhoseLibrary "un."

; Leaves in $0 the machine that the library in $INSTDIR is for, as its header has it: 332 is 32-bit, 34404 is 64-bit.
Function MachineOfLibrary
    Push $1
    Push $2
    Push $3
    StrCpy $0 0
    ClearErrors
    FileOpen $1 "$INSTDIR\${LIBRARY}" r
    ${IfNot} ${Errors}
        FileSeek $1 60
        FileReadByte $1 $2
        FileReadByte $1 $3
        IntOp $3 $3 << 8
        IntOp $2 $2 + $3
        IntOp $2 $2 + 4
        FileSeek $1 $2
        FileReadByte $1 $0
        FileReadByte $1 $3
        IntOp $3 $3 << 8
        IntOp $0 $0 + $3
        FileClose $1
    ${EndIf}
    Pop $3
    Pop $2
    Pop $1
FunctionEnd

Section "!Configurator" SecProgram
    SectionIn RO
    !include "${LISTS}\programs-free.nsh"
    Call WhoseLibrary
    ${If} $0 != foreign
        !include "${LISTS}\stand-in-free.nsh"
    ${EndIf}
    SetOutPath "$INSTDIR"
    !include "${LISTS}\programs-in.nsh"
    ; The folder is another program's: names that it may have itself are not taken.
    File "/oname=gfc-configurator LICENSE.txt" "${TREE}\LICENSE.txt"
    File "/oname=gfc-configurator LICENCES-OF-OTHERS.txt" "${TREE}\LICENCES-OF-OTHERS.txt"
    File "/oname=gfc-configurator README.txt" "${TREE}\README.txt"
    SetOutPath "$INSTDIR\gfc-manual"
    File "${TREE}\gfc-manual\*"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\gfc-configurator-uninstall.exe"
    WriteRegStr SHCTX "${KEY}" DisplayName "${NAME}"
    WriteRegStr SHCTX "${KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${KEY}" DisplayIcon "$INSTDIR\gfc-configurator.exe"
    WriteRegStr SHCTX "${KEY}" Publisher "The gfc-configurator authors"
    WriteRegStr SHCTX "${KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${KEY}" UninstallString '"$INSTDIR\gfc-configurator-uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${KEY}" QuietUninstallString \
        '"$INSTDIR\gfc-configurator-uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${KEY}" EstimatedSize ${SIZE}
    WriteRegDWORD SHCTX "${KEY}" NoModify 1
    WriteRegDWORD SHCTX "${KEY}" NoRepair 1
SectionEnd

Section "Entry in the start menu" SecMenu
    CreateShortCut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\gfc-configurator.exe"
SectionEnd

Section /o "Icon on the desktop" SecDesktop
    CreateShortCut "$DESKTOP\${NAME}.lnk" "$INSTDIR\gfc-configurator.exe"
SectionEnd

Section /o "Stand-in for the I/O Workshop" SecStandIn
    SetOutPath "$INSTDIR"
    Call WhoseLibrary
    ${If} $0 == foreign
        DetailPrint "${LIBRARY} is the I/O Workshop's and stays as it is; the stand-in is left out."
    ${Else}
        !include "${LISTS}\stand-in-in.nsh"
    ${EndIf}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
!insertmacro MUI_DESCRIPTION_TEXT ${SecProgram} "The program, its manual, and two commands for many stations: \
gfc-audit and gfc-configure."
!insertmacro MUI_DESCRIPTION_TEXT ${SecStandIn} "A library and a command that take the place of the I/O Workshop, \
to try the program without it. Never put over the library of the I/O Workshop."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Says what would keep the setup from writing or the program from starting, before anything is written.
Function CheckFolder
    ${If} ${FileExists} "$INSTDIR\*.*"
        ClearErrors
        FileOpen $0 "$INSTDIR\gfc-setup-tries.tmp" w
        ${If} ${Errors}
            MessageBox MB_ICONEXCLAMATION|MB_OK "This folder takes no file from you. Start the setup as an \
administrator, or choose another folder."
            Abort
        ${EndIf}
        FileClose $0
        Delete "$INSTDIR\gfc-setup-tries.tmp"
    ${EndIf}
    Call WhoseLibrary
    ${If} $0 == foreign
        Call MachineOfLibrary
        ${If} $0 = 34404
            MessageBox MB_ICONEXCLAMATION|MB_YESNO|MB_DEFBUTTON2 "The library ${LIBRARY} in this folder is a 64-bit \
one, and this is the 32-bit program: the one cannot load the other. The zip for 64 bits holds the program that can.$\r$\n\
$\r$\nInstall here all the same?" IDYES +2
            Abort
        ${EndIf}
        ${If} ${SectionIsSelected} ${SecStandIn}
            MessageBox MB_ICONINFORMATION|MB_OK "The library of the I/O Workshop is in this folder and stays as it is. \
The stand-in is left out."
            !insertmacro UnselectSection ${SecStandIn}
        ${EndIf}
    ${ElseIf} $0 == none
        ${IfNot} ${SectionIsSelected} ${SecStandIn}
            MessageBox MB_ICONEXCLAMATION|MB_YESNO|MB_DEFBUTTON2 "There is no ${LIBRARY} in this folder. Without it \
beside the program, the program does not start.$\r$\n$\r$\nGo back and choose the folder of the I/O Workshop, or take \
the stand-in. Install here all the same?" IDYES +2
            Abort
        ${EndIf}
    ${EndIf}
FunctionEnd

Function .onInit
    ; What is chosen by default would go over the folder that /D has named.
    StrCpy $R9 $INSTDIR
    !insertmacro MULTIUSER_INIT
    ${If} $R9 != ""
        StrCpy $INSTDIR $R9
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/STANDIN" $1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${SecStandIn}
    ${EndIf}
FunctionEnd

Function un.onInit
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

; What was installed, by name. Whatever else is in the folder is the I/O Workshop's or the user's.
Section Uninstall
    !include "${LISTS}\programs-free.nsh"
    Call un.WhoseLibrary
    ${If} $0 == ours
        !include "${LISTS}\stand-in-free.nsh"
        !include "${LISTS}\stand-in-out.nsh"
    ${EndIf}
    !include "${LISTS}\programs-out.nsh"
    Delete "$INSTDIR\gfc-configurator LICENSE.txt"
    Delete "$INSTDIR\gfc-configurator LICENCES-OF-OTHERS.txt"
    Delete "$INSTDIR\gfc-configurator README.txt"
    !include "${LISTS}\manual-out.nsh"
    RMDir "$INSTDIR\gfc-manual"
    Delete "$INSTDIR\gfc-configurator-uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$DESKTOP\${NAME}.lnk"
    DeleteRegKey SHCTX "${KEY}"
SectionEnd
