<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Die Installation ist fehlgeschlagen. Wählen Sie einen anderen Speicherort und starten Sie die Installation erneut.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Hardwarebeschleunigung wird geprüft...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Zusätzliche Daten werden heruntergeladen...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Vorherige Version wird deinstalliert</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Um %1 zu deinstallieren, deinstallieren Sie zuerst diese Programme:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Ein Installations- oder Deinstallationsfenster ist bereits geöffnet und muss geschlossen werden, bevor %1 gestartet wird.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>%1 konnte nicht kopiert werden. Falscher Pfad oder keine Berechtigung</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Die Datei %1 konnte nicht nach %2 verschoben werden. Falscher Pfad oder keine Berechtigung</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>%1 deinstallieren</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Website von %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Konvertieren in</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Öffnen mit</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Video und Audio konvertieren</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Auf den angegebenen Zielordner kann nicht zugegriffen werden</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Es ist nicht genügend Speicherplatz vorhanden</translation>
    </message>
</context>
</TS>
