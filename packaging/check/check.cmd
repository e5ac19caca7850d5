@echo off
rem Plays Kestrel's check on this Windows; kestrel-check.txt then stands beside this file, with pictures.
setlocal
set "bits=win64"
if /i "%PROCESSOR_ARCHITECTURE%"=="x86" if not defined PROCESSOR_ARCHITEW6432 set "bits=win32"
set "program=%~dp0kit\%bits%\kestrel-check.exe"
if exist "%program%" goto play
echo Please unpack the whole zip into a folder of yours first,
echo then start check.cmd there.
echo Bitte entpacken Sie zuerst das ganze Zip-Archiv in einen eigenen Ordner
echo und starten Sie dann dort check.cmd.
timeout /t 20
exit /b 2
:play
"%program%" %*
exit /b %errorlevel%
