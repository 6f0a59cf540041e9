<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Installation failed. Try to select another location and run install again.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Checking hardware acceleration...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Downloading additional data...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Uninstalling a previous version</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>To uninstall %1, first uninstall these programs:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Failed to copy %1. Wrong path or no permission</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Failed to move file %1 to %2. Wrong path or no permission</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programs</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Uninstall %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Site %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Convert to</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Open with</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Convert Video and Audio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Can&apos;t access the specified destination folder</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>There is not enough disk space</translation>
    </message>
</context>
</TS>
