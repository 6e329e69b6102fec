; The records of the sample uninstallers in C:\records\<id string>.txt: UTF-16 text, one line per
; entry, tabs between fields. Each run adds
;
;   line <TAB> command line    at its start, exactly as Windows passed it
;   end <TAB> exit code        at its end
;
; No plug-in is used here or in the uninstallers. NSIS unpacks plug-ins into a temporary folder, whose
; name two uninstallers can choose at the same moment; one of them then fails with a message.

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
