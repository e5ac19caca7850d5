@echo off
rem Starts Kestrel. The first time it begins with the buttons of samples\@FOLDER@; settings that are there stay as they are.
setlocal
if exist "%~dp0kestrel.exe" goto begin
echo @UNPACK@
timeout /t 20
exit /b 2
:begin
if not exist "%~dp0kestrel.ini" copy "%~dp0samples\@FOLDER@\kestrel.ini" "%~dp0kestrel.ini" >nul
rem Windows shows blank pages of a help file from the internet. Its mark stands beside the file's content; this says that
rem the file is from this computer. A drive that knows no marks refuses, and needs none.
(
echo [ZoneTransfer]
echo ZoneId=0
) 2>nul >"%~dp0EAGLE_Kestrel_Bench.chm:Zone.Identifier"
start "" "%~dp0kestrel.exe"
