@echo off
rem Removes one folder with everything in it after a delay, and then itself.
rem Arguments: the delay in seconds; the folder; whether it is the only entry of its parent (not
rem used: nothing but the folder itself is removed).
setlocal
set "folder=%~2"
if not defined folder goto refuse
if "%folder:~-1%"=="\" set "folder=%folder:~0,-1%"
if not "%folder:~1,1%"==":" goto refuse
if "%folder:~2%"=="" goto refuse
for %%d in ("%SystemRoot%" "%SystemRoot%\System32" "%ProgramFiles%" "%ProgramFiles(x86)%" "%ProgramData%" "%PUBLIC%" "%USERPROFILE%" "%APPDATA%" "%LOCALAPPDATA%" "%TEMP%") do if /i "%folder%"=="%%~d" goto refuse
if not exist "%folder%\" goto refuse
ping -n %~1 127.0.0.1 >nul
ping -n 2 127.0.0.1 >nul
rd /s /q "%folder%"
:refuse
endlocal
(goto) 2>nul & del "%~f0"
