; What the sample uninstallers tell about themselves, in C:\records\<id string>.txt (UTF-16 text,
; one line per entry, tab between its fields):
;
;   line <TAB> command line    at the start, exactly as Windows handed it over
;   end <TAB> exit code
;
; A file that several runs wrote holds several such pairs.
;
; No plug-in is used here or in the uninstallers. NSIS unpacks plug-ins into a temporary folder whose
; name two uninstallers can pick at the same moment, and one of them then gives up with a message.

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

!macro recordCommandLine id
  !insertmacro writeRecord "${id}" "line$\t$CMDLINE"
!macroend

!macro recordEnd id code
  !insertmacro writeRecord "${id}" "end$\t${code}"
!macroend

!define recordCommandLine "!insertmacro recordCommandLine"
!define recordEnd "!insertmacro recordEnd"
!define un.recordCommandLine "!insertmacro recordCommandLine"
!define un.recordEnd "!insertmacro recordEnd"

!endif
