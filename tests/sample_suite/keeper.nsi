; Uninst.exe of the applications whose uninstaller runs until the removal has ended. A plain NSIS
; uninstaller copies itself to the temporary folder and its first process ends at once. This program
; runs it in place, waits, and passes its exit code on.
;
; Compile-time values: ID_STRING, OUTPUT.

Unicode true
Target amd64-unicode
SetCompressor zlib
RequestExecutionLevel user
ManifestSupportedOS all

Name "${ID_STRING} uninstall"
OutFile "${OUTPUT}"
SilentInstall silent

!include LogicLib.nsh
!include FileFunc.nsh
!include "records.nsh"

Function .onInit
  ${recordCommandLine} "${ID_STRING}"
FunctionEnd

Section
  ${GetParameters} $R0
  ClearErrors
  ExecWait '"$EXEDIR\Uninst_core.exe" $R0 _?=$EXEDIR' $R1
  ${If} ${Errors}
    StrCpy $R1 1
  ${EndIf}
  ${If} $R1 == 0
    Delete "$EXEDIR\Uninst_core.exe"
    ; A running program cannot delete itself. For administrators the system does so at its next
    ; start.
    Delete /REBOOTOK "$EXEPATH"
    RMDir /REBOOTOK "$EXEDIR"
  ${EndIf}
  ${recordEnd} "${ID_STRING}" $R1
  SetErrorLevel $R1
SectionEnd
