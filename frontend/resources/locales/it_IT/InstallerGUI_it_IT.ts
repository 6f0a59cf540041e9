<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Installazione non riuscita. Prova a selezionare un&apos;altra posizione e avvia di nuovo l&apos;installazione.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Verifica dell&apos;accelerazione hardware...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Download dei dati aggiuntivi...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Disinstallazione di una versione precedente</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Per disinstallare %1, disinstalla prima questi programmi:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>È aperta una finestra di installazione o disinstallazione, che deve essere chiusa prima di avviare %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Impossibile copiare %1. Percorso errato o autorizzazione mancante</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Impossibile spostare il file %1 in %2. Percorso errato o autorizzazione mancante</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmi</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Disinstalla %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Sito di %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Converti in</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Apri con</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Converti video e audio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Impossibile accedere alla cartella di destinazione specificata</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Spazio su disco insufficiente</translation>
    </message>
</context>
</TS>
