@echo off
rem Deletes what an uninstallation has moved out of the product's folder because it was in use, and
rem then itself, and its own folder where that was made for one process and is empty.
rem Arguments: the delay in seconds; the product's folder; whether it is the only entry of its parent
rem (not used).
rem VORLAN_REMOVAL is the identity of the uninstallation: <folder>.<identity> is deleted, which nothing
rem else uses. The product's folder itself is never touched: the next version may be in it by now.
setlocal EnableExtensions DisableDelayedExpansion
set "mostTries=3600"
set "folder=%~2"
set "identity=%VORLAN_REMOVAL%"
set "reason=no absolute path"
if not defined folder goto refuse
if not "%folder:~1,1%"==":" goto refuse
if not "%folder:~2,1%"=="\" if not "%folder:~2,1%"=="/" goto refuse
set "reason=a root"
for %%d in ("%folder%\.") do set "folder=%%~fd"
if "%folder:~3%"=="" goto refuse
set "reason=not marked for removal"
if not defined identity goto refuse
for %%d in ("%folder%") do set "parent=%%~dpd"
for %%d in ("%folder%.%identity%") do (set "aside=%%~fd" & set "asideParent=%%~dpd" & set "attributes=%%~ad")
if /i not "%asideParent%"=="%parent%" goto refuse
rem Windows drops dots at the end of a name.
if /i "%aside%"=="%folder%" goto refuse
if not defined attributes goto refuse
if not "%attributes:~0,1%"=="d" goto refuse
if not "%attributes:l=%"=="%attributes%" goto refuse

"%SystemRoot%\System32\ping.exe" -n %~1 127.0.0.1 >nul 2>&1
set "tries=0"
:delete
"%SystemRoot%\System32\ping.exe" -n 2 127.0.0.1 >nul 2>&1
rd /s /q "%aside%" 2>nul
if not exist "%aside%" goto end
set /a tries+=1
if %tries% lss %mostTries% goto delete
set "reason=in use"

:refuse
echo not removed: "%folder%" is %reason% 1>&2
set "code=1"
goto leave
:end
set "code=0"
:leave
cd /d "%SystemRoot%"
for %%d in ("%~dp0.") do (set "own=%%~fd" & set "ownName=%%~nxd")
if not "%ownName:Setup-=%"=="%ownName%" (del "%~f0" & rd "%own%" 2>nul & exit %code%)
del "%~f0" & exit %code%
