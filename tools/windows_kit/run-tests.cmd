@echo off
rem Tests Uninstall.exe on this computer: run-tests.cmd [TEST...]. Nothing needs to be installed.
rem What must happen also after Ctrl+C is done by the program, not by this script.
"%~dp0tests\run_tests.exe" %*
set code=%errorlevel%
rem After a double-click the window would close before anybody has read the result.
setlocal enabledelayedexpansion
set line=!cmdcmdline:/c=!
if not "!line!"=="!cmdcmdline!" pause
exit /b %code%
