@echo off
rem Proves NVRandom on this machine: plays everything, 32 and 64 bit, and writes report.html beside this file. Nothing is
rem installed or registered, no rights are needed, and nothing is left behind. For some minutes, leave mouse and keyboard
rem alone: the tests work with them. Ctrl+C, or closing the window, stops it.
"%~dp0x86\nvhost.exe" check
if "%1"=="" pause
