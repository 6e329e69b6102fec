; One application of the sample suite: a 64-bit installer, and the uninstaller that it writes.
;
; Compile-time values (build.py passes them):
;   ID_STRING       the name under which the suite registers the application
;   DISPLAY_NAME    the name in the uninstall list
;   FOLDER_NAME     the folder below the brand's folder
;   VERSION         goes to the application's own .cfg
;   PROGRAM         the executable installed as <ID_STRING>.exe
;   OUTPUT          the installer to make
;   KEEPER          when defined: the program installed as Uninst.exe, which runs the NSIS
;                   uninstaller (Uninst_core.exe) and stays until that has ended
;   REMOVAL         "works", "fails" (ends with code 5 and removes nothing) or "holds" (waits until
;                   C:\records\<ID_STRING>.release exists, for at most a minute)
;
; The installer's switches: /S (no windows), /BRAND=Corvane or /BRAND=Lumacraft (decides in which
; list and folder the application is installed), /ROOT=<folder> (replaces Program Files).

Unicode true
Target amd64-unicode
SetCompressor zlib
RequestExecutionLevel user
ManifestSupportedOS all

Name "${DISPLAY_NAME}"
OutFile "${OUTPUT}"
BrandingText "Tessera sample suite"
ShowInstDetails nevershow
ShowUninstDetails nevershow
AutoCloseWindow true

!include LogicLib.nsh
!include FileFunc.nsh
!include "records.nsh"

!define SUITE_KEY "Software\Corvane"
!define SETTINGS_FOLDER "$APPDATA\Lumacraft"

Var brand
Var listName
Var logFile
Var deletesSettings
Var isLast
Var asksNothing
Var exitCode

Page instfiles
UninstPage instfiles

!macro chooseList
  ${If} $brand == "Corvane"
    StrCpy $listName "UninstallPaths"
  ${Else}
    StrCpy $listName "UninstPaths"
  ${EndIf}
!macroend

; Deletes the file of a program that is about to end.
!macro deleteOnceEnded file
  ${ForEach} $1 1 200 + 1
    Delete "${file}"
    ${IfNot} ${FileExists} "${file}"
      ${ExitFor}
    ${EndIf}
    Sleep 50
  ${Next}
!macroend

; ---------------------------------------------------------------- installer

Function .onInit
  SetShellVarContext current
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/BRAND=" $brand
  ${If} ${Errors}
    StrCpy $brand "Lumacraft"
  ${EndIf}
  ClearErrors
  ${GetOptions} $R0 "/ROOT=" $R1
  ${If} ${Errors}
    StrCpy $R1 "$PROGRAMFILES64"
  ${EndIf}
  StrCpy $INSTDIR "$R1\$brand\${FOLDER_NAME}"
  !insertmacro chooseList
FunctionEnd

Section
  SetOutPath "$INSTDIR"
  File "/oname=${ID_STRING}.exe" "${PROGRAM}"
  FileOpen $0 "$INSTDIR\readme.txt" w
  FileWriteUTF16LE /BOM $0 "${DISPLAY_NAME} ${VERSION}$\r$\n"
  FileClose $0
  SetOutPath "$INSTDIR\presets"
  FileOpen $0 "$INSTDIR\presets\standard.preset" w
  FileWrite $0 "quality=high$\r$\n"
  FileClose $0
  SetOutPath "$INSTDIR"
!ifdef KEEPER
  File "/oname=Uninst.exe" "${KEEPER}"
  WriteUninstaller "$INSTDIR\Uninst_core.exe"
!else
  WriteUninstaller "$INSTDIR\Uninst.exe"
!endif

  ; Settings and history, as the application would write them.
  CreateDirectory "${SETTINGS_FOLDER}\${ID_STRING}"
  FileOpen $0 "${SETTINGS_FOLDER}\${ID_STRING}\${ID_STRING}.cfg" w
  FileWrite $0 "InstType=full$\nVersion=${VERSION}$\n"
  FileClose $0
  FileOpen $0 "${SETTINGS_FOLDER}\${ID_STRING}\history.txt" w
  FileWrite $0 "C:\Media\last.mp4$\r$\n"
  FileClose $0
  CreateDirectory "${SETTINGS_FOLDER}\logs"

  WriteRegStr HKCU "${SUITE_KEY}\$listName" "${DISPLAY_NAME}" \
    "$INSTDIR\Uninst.exe /log=${SETTINGS_FOLDER}\logs\${ID_STRING}_uninstall.log"
  WriteRegStr HKCU "${SUITE_KEY}\AppPaths" "${ID_STRING}" "$INSTDIR"
  ; The uninstaller reads its brand from here.
  FileOpen $0 "$INSTDIR\brand.txt" w
  FileWrite $0 "$brand"
  FileClose $0
SectionEnd

; -------------------------------------------------------------- uninstaller

; findLogFile: the value of "/log=" in the parameters in $R0, or nothing. With a blank in it the whole
; switch is in quotes.
Function un.findLogFile
  StrCpy $logFile ""
  StrCpy $1 -1
  ${Do}
    IntOp $1 $1 + 1
    StrCpy $2 $R0 5 $1
    ${If} $2 == ""
      Return
    ${EndIf}
  ${LoopUntil} $2 == "/log="
  StrCpy $3 " "
  ${If} $1 > 0
    IntOp $2 $1 - 1
    StrCpy $2 $R0 1 $2
    ${If} $2 == '"'
      StrCpy $3 '"'
    ${EndIf}
  ${EndIf}
  IntOp $1 $1 + 5
  ${Do}
    StrCpy $2 $R0 1 $1
    ${If} $2 == $3
    ${OrIf} $2 == ""
      Return
    ${EndIf}
    StrCpy $logFile "$logFile$2"
    IntOp $1 $1 + 1
  ${Loop}
FunctionEnd

; The result is 1 when the parameters in $R0 contain the switch, else 0.
!macro switchPresent name result
  ${GetOptions} $R0 "${name}" ${result}
  ${If} ${Errors}
    StrCpy ${result} 0
  ${Else}
    StrCpy ${result} 1
  ${EndIf}
  ClearErrors
!macroend
!define switchPresent "!insertmacro switchPresent"

Function un.onInit
  SetShellVarContext current
!ifndef KEEPER
  ${un.recordCommandLine} "${ID_STRING}"
!endif
  StrCpy $exitCode 0
  ${GetParameters} $R0
  Call un.findLogFile
  ${switchPresent} "/FULL" $deletesSettings
  ${switchPresent} "/LASTAPP" $isLast
  ${switchPresent} "/SUPPRESSMSGBOXES" $asksNothing
  ${switchPresent} "/SILENT" $1
  ${If} $1 == 1
    SetSilent silent
  ${EndIf}

  ${If} $asksNothing == 0
    MessageBox MB_YESNO|MB_ICONQUESTION "Remove ${DISPLAY_NAME}?" IDYES goOn
    Abort
  goOn:
  ${EndIf}
FunctionEnd

; ${un.log} TEXT: adds a line to the file that the /log switch names, if any.
!macro log text
  ${If} $logFile != ""
    FileOpen $0 "$logFile" a
    ${IfNot} ${Errors}
      FileSeek $0 0 END
      FileWriteUTF16LE $0 "${text}$\r$\n"
      FileClose $0
    ${EndIf}
    ClearErrors
  ${EndIf}
!macroend
!define un.log "!insertmacro log"

Section un.Remove
  ${un.log} "Uninstall of ${DISPLAY_NAME} begun"

!if ${REMOVAL} == "fails"
  StrCpy $exitCode 5
  ${un.log} "The program folder is in use; nothing was removed"
!else
!if ${REMOVAL} == "holds"
  ${ForEach} $1 1 1200 + 1
    ${If} ${FileExists} "${RECORDS_FOLDER}\${ID_STRING}.release"
      ${ExitFor}
    ${EndIf}
    Sleep 50
  ${Next}
!endif
  StrCpy $brand ""
  FileOpen $0 "$INSTDIR\brand.txt" r
  FileRead $0 $brand
  FileClose $0
  !insertmacro chooseList

  Delete "$INSTDIR\${ID_STRING}.exe"
  Delete "$INSTDIR\readme.txt"
  Delete "$INSTDIR\brand.txt"
  Delete "$INSTDIR\presets\standard.preset"
  RMDir "$INSTDIR\presets"
!ifndef KEEPER
  ; Its first process, which started this one from a temporary folder, may not have ended yet.
  !insertmacro deleteOnceEnded "$INSTDIR\Uninst.exe"
!endif
  ${If} $isLast == 1
    ; The program that started us.
    !insertmacro deleteOnceEnded "$INSTDIR\Uninstall.exe"
  ${EndIf}
  RMDir "$INSTDIR"

  DeleteRegValue HKCU "${SUITE_KEY}\$listName" "${DISPLAY_NAME}"
  DeleteRegValue HKCU "${SUITE_KEY}\AppPaths" "${ID_STRING}"
  ${If} $deletesSettings == 1
    RMDir /r "${SETTINGS_FOLDER}\${ID_STRING}"
  ${EndIf}
  ${un.log} "Uninstall of ${DISPLAY_NAME} finished"
!endif

!ifndef KEEPER
  ${un.recordEnd} "${ID_STRING}" $exitCode
!endif
  SetErrorLevel $exitCode
SectionEnd
