<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Instalacja nie powiodła się. Wybierz inną lokalizację i uruchom instalację ponownie.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Sprawdzanie akceleracji sprzętowej...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Pobieranie dodatkowych danych...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Odinstalowywanie poprzedniej wersji</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Aby odinstalować %1, najpierw odinstaluj te programy:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Okno instalacji lub odinstalowywania jest otwarte i należy je zamknąć przed uruchomieniem %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Nie udało się skopiować %1. Nieprawidłowa ścieżka lub brak uprawnień</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Nie udało się przenieść pliku %1 do %2. Nieprawidłowa ścieżka lub brak uprawnień</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programy</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Odinstaluj %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Strona %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Konwertuj na</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Otwórz za pomocą</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Konwertuj wideo i audio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Brak dostępu do wskazanego folderu docelowego</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Za mało miejsca na dysku</translation>
    </message>
</context>
</TS>
