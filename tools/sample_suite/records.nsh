; What the sample uninstallers tell about themselves, in C:\records\<id string>.txt (UTF-16 text,
; one line per entry, tab between its fields):
;
;   begin <TAB> system time    hundreds of nanoseconds, at the start of the uninstaller
;   line <TAB> command line    exactly as Windows handed it over
;   end <TAB> system time <TAB> exit code
;
; A file that several runs wrote holds several such groups.

!ifndef RECORDS_NSH
!define RECORDS_NSH

!define RECORDS_FOLDER "C:\records"

!macro writeRecord id text
  CreateDirectory "${RECORDS_FOLDER}"
  FileOpen $0 "${RECORDS_FOLDER}\${id}.txt" a
  FileSeek $0 0 END
  FileWriteUTF16LE $0 "${text}$\r$\n"
  FileClose $0
!macroend

!macro systemTime result
  System::Call 'kernel32::GetSystemTimeAsFileTime(*l .r9)'
  StrCpy ${result} $9
!macroend

!macro recordCommandLine id
  !insertmacro systemTime $1
  !insertmacro writeRecord "${id}" "begin$\t$1"
  !insertmacro writeRecord "${id}" "line$\t$CMDLINE"
!macroend

!macro recordEnd id code
  !insertmacro systemTime $1
  !insertmacro writeRecord "${id}" "end$\t$1$\t${code}"
!macroend

!define recordCommandLine "!insertmacro recordCommandLine"
!define recordEnd "!insertmacro recordEnd"
!define un.recordCommandLine "!insertmacro recordCommandLine"
!define un.recordEnd "!insertmacro recordEnd"

!endif
