<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>De installatie is mislukt. Selecteer een andere locatie en voer de installatie opnieuw uit.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Hardwareversnelling controleren...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Aanvullende gegevens downloaden...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Een vorige versie wordt verwijderd</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Verwijder eerst deze programma&apos;s om %1 te verwijderen:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Er is een installatie- of verwijderingsvenster geopend dat moet worden gesloten voordat %1 wordt gestart.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Kan %1 niet kopiëren. Onjuist pad of geen machtiging</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Kan bestand %1 niet verplaatsen naar %2. Onjuist pad of geen machtiging</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programma&apos;s</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>%1 verwijderen</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Website van %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Converteren naar</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Openen met</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Video en audio converteren</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Geen toegang tot de opgegeven doelmap</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Er is onvoldoende schijfruimte</translation>
    </message>
</context>
</TS>
