@echo off
rem Removes one folder with everything in it after a delay, and then itself.
rem Arguments: the delay in seconds; the folder; whether it is the only entry of its parent (not
rem used: nothing but the folder itself is removed).
rem VORLAN_REMOVAL is the identity of this removal, and the name of a file in the mark of the folder.
rem An installation deletes the file before it places anything, and then nothing is removed.
setlocal EnableExtensions DisableDelayedExpansion
set "mark=uninst.unfinished"
set "mostTries=60"
set "folder=%~2"
set "reason=no absolute path"
if not defined folder goto refuse
if not "%folder:~1,1%"==":" goto refuse
if not "%folder:~2,1%"=="\" if not "%folder:~2,1%"=="/" goto refuse
for %%d in ("%folder%\.") do set "folder=%%~fd"
set "reason=no folder"
set "attributes=-"
for %%d in ("%folder%") do set "attributes=%%~ad"
if not "%attributes:~0,1%"=="d" goto refuse
set "reason=a root"
if "%folder:~3%"=="" goto refuse
set "reason=a link"
if not "%attributes:l=%"=="%attributes%" goto refuse

set "reason=a folder of the system"
set "isInside="
set "inner=%folder%"
for %%d in ("%SystemRoot%\.") do set "outer=%%~fd"
call :compare
if defined isInside goto refuse
set "outer=%folder%"
for %%d in ("%SystemRoot%" "%ProgramFiles%" "%ProgramFiles(x86)%" "%ProgramW6432%" "%CommonProgramFiles%" "%CommonProgramFiles(x86)%" "%CommonProgramW6432%" "%ProgramData%\Microsoft" "%TEMP%" "%TMP%") do (set "inner=%%~d" & call :compare)
if defined isInside goto refuse

set "reason=a home folder"
for %%d in ("%PUBLIC%" "%APPDATA%" "%LOCALAPPDATA%" "%OneDrive%") do (set "inner=%%~d" & call :compare)
for %%d in (Desktop Documents Downloads Music Pictures Videos) do (set "inner=%USERPROFILE%\%%d" & call :compare)
if defined isInside goto refuse
for %%d in ("%folder%\..") do set "parent=%%~fd"
for %%d in ("%USERPROFILE%\..") do if /i "%parent%"=="%%~fd" goto refuse
if defined PUBLIC for %%d in ("%PUBLIC%\..") do if /i "%parent%"=="%%~fd" goto refuse

set "reason=not marked for this removal"
set "identity=%VORLAN_REMOVAL%"
if not defined identity goto refuse
set "attributes=d"
for %%d in ("%folder%\%mark%\%identity%") do set "attributes=%%~ad"
if not defined attributes goto refuse
if "%attributes:~0,1%"=="d" goto refuse
"%SystemRoot%\System32\ping.exe" -n %~1 127.0.0.1 >nul 2>&1
"%SystemRoot%\System32\ping.exe" -n 2 127.0.0.1 >nul 2>&1

rem The claimed folder gets a name that nobody else uses. An installation takes the mark or waits for
rem the end of the claim, and its new folder is another one than that which is deleted.
for %%d in ("%folder%") do set "aside=%%~nxd.%identity%"
for %%d in ("%folder%\..\%aside%") do set "asidePath=%%~fd"
set "tries=0"
:claim
set "reason=not marked for this removal"
if not exist "%folder%\%mark%\%identity%.claimed" ren "%folder%\%mark%\%identity%" "%identity%.claimed" 2>nul
if not exist "%folder%\%mark%\%identity%.claimed" goto refuse
if not exist "%asidePath%" ren "%folder%" "%aside%" 2>nul
if exist "%asidePath%\%mark%\%identity%.claimed" goto delete
ren "%folder%\%mark%\%identity%.claimed" "%identity%" 2>nul
set "reason=in use"
set /a tries+=1
if %tries% geq %mostTries% goto refuse
echo in use: "%folder%" 1>&2
"%SystemRoot%\System32\ping.exe" -n 2 127.0.0.1 >nul 2>&1
goto claim

:delete
rd /s /q "%asidePath%" 2>nul
if not exist "%asidePath%" goto end
set /a tries+=1
if %tries% geq %mostTries% goto end
"%SystemRoot%\System32\ping.exe" -n 2 127.0.0.1 >nul 2>&1
goto delete

rem Sets isInside if the folder "inner" is the folder "outer" or inside it.
:compare
if "%inner%"=="" exit /b
for %%p in ("%inner%\.") do set "inner=%%~fp"
:upwards
if /i "%inner%"=="%outer%" set "isInside=1"
for %%p in ("%inner%\..") do set "upper=%%~fp"
if /i "%upper%"=="%inner%" exit /b
set "inner=%upper%"
goto upwards

:refuse
echo not removed: "%folder%" is %reason% 1>&2
del "%~f0" & exit 1
:end
del "%~f0" & exit 0
