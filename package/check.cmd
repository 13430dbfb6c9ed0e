@echo off
rem Proves NVRandom on this machine: plays everything, 32 and 64 bit, and writes report.html beside this file. Nothing is
rem installed or registered, no rights are needed, and nothing is left behind. For some minutes, leave mouse and keyboard
rem alone: the tests work with them. Ctrl+C, or closing the window, stops it.
setlocal DisableDelayedExpansion
if exist "%~dp0x86\nvhost.exe" goto play
echo Files are missing: unpack the whole archive, then start check.cmd in its folder.
if "%~1"=="" pause
exit /b 2
:play
"%~dp0x86\nvhost.exe" check
set result=%errorlevel%
if "%~1"=="" pause
exit /b %result%
