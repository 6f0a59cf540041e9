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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>Für die Installation für alle Benutzer sind Administratorrechte nötig: Starten Sie das Programm als Administrator.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>Der Teil mit Administratorrechten wurde ohne Ergebnis beendet. Starten Sie das Programm als Administrator.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Das Installationsprogramm ist beschädigt. Laden Sie es erneut herunter.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Wird installiert in: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Benötigter Speicherplatz: %1. Dort frei: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Benötigter Speicherplatz: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Der Ordner wird geprüft...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Auf diesem Computer gibt es kein Laufwerk %1.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 wird installiert</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 installieren</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>%1 von %2 auf %3 aktualisieren</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 ist bereits installiert</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>Die neuere Version %1 ist installiert</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Sie können sofort installieren oder zuerst die Optionen ansehen.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Ihre Einstellungen und eigenen Dateien bleiben erhalten.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Für alle Benutzer, in %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Für Sie, in %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Sie können es auch &lt;a href=&quot;remove&quot;&gt;entfernen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Eine weitere Installation ist in %1. Sie können &lt;a href=&quot;remove&quot;&gt;sie entfernen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Schließen und fortfahren</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Schließen Sie zuerst diese Programme</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Sie verwenden Dateien, die geändert werden sollen. Speichern Sie Ihre Arbeit darin.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Jedes wird gebeten, sich zu schließen. Was sich nicht schließt, wird nur mit Ihrer Zustimmung beendet.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Warten, bis die Programme geschlossen sind...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Es sind Teile von Windows, die von hier nicht geschlossen werden können: Melden Sie sich ab oder starten Sie den Computer neu und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, Prozess %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (ohne Fenster)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (Teil des Systems)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Nicht geschlossen: %1. Jetzt beenden? Was darin nicht gespeichert ist, geht verloren.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Ak&amp;tualisieren</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>Die Installation kann jetzt nicht angehalten werden: Dateien und Einstellungen werden gerade geändert. Schließen Sie das Fenster, wenn sie beendet ist.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Installation von %1 abbrechen?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Abgebrochen: Es wurde nichts installiert.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 gehört nicht zum Programm und kann nicht beiseite verschoben werden: Es wurde nichts geändert. Schließen Sie das Programm, das die Datei verwendet, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Die neuere Version %1 durch Version %2 ersetzen?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Die Datei %1 fehlt. Legen Sie sie wieder neben das Installationsprogramm.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 ist installiert</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1 konnte nicht installiert werden</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 wird verwendet von %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Schließen Sie das Programm und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 läuft und kann nicht beendet werden.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>Die Datei %1 ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Laden Sie das Installationsprogramm erneut herunter.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>Das Laufwerk mit %1 ist voll: %2 sind frei.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Sorgen Sie dort für %1 freien Speicherplatz oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>Das Laufwerk mit %1 meldet beim Schreiben von Dateien einen Fehler.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Prüfen Sie das Laufwerk oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Die Datei %1 kann nicht ersetzt werden: Sie ist schreibgeschützt oder wird verwendet.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>Im Ordner %1 kann nichts angelegt werden: Die Rechte dafür fehlen.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Wählen Sie einen anderen Ordner oder starten Sie das Installationsprogramm als Administrator.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 ist eine Datei, wo ein Ordner gebraucht wird.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Verschieben Sie die Datei an einen anderen Ort und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Das Deinstallationsprogramm der vorherigen Version ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Deinstallieren Sie die vorherige Version selbst und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Ein Teil der vorherigen Version ist möglicherweise schon entfernt.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>Die Installation in %1 ist unvollständig: Wiederholen Sie sie, um das Programm zu benutzen.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Die Dateien liegen in %1, aber das Programm ist nicht vollständig registriert.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Protokolldatei: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>&amp;Protokoll öffnen</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Die Protokolldatei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Alles ist an seinem Platz. Sie können sofort beginnen.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Bitte beachten Sie:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Ihre Datei wurde verschoben, weil das Programm eine mit diesem Namen hat: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Installationsoptionen</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Installieren für</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Nur für &amp;mich</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Alle Benutzer dieses Computers (Administratorrechte nötig)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Außerdem</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>&amp;Verknüpfungen auf dem Desktop und im Startmenü anlegen</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>„Konvertieren in“ und „Öffnen mit“ im &amp;Kontextmenü von Mediendateien anbieten</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Bei der A&amp;nmeldung automatisch starten</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Anonyme Nutzungs&amp;statistik senden, um das Programm zu verbessern</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>&amp;Einzelheiten ausblenden</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Einzelheiten anzeigen</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 pro Sekunde</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Noch etwa %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Noch etwa %1 min</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>%1 jetzt &amp;starten</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Vorherige Version wird entfernt...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Dateien werden abgelegt...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Programm wird registriert...</translation>
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
        <source>Finishing...</source>
        <translation>Wird abgeschlossen...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>%1 wird deinstalliert</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 wurde deinstalliert</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>Die Kopie von %1 wurde gelöscht</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Sagen Sie uns, warum Sie es deinstalliert haben&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1 konnte nicht deinstalliert werden</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Mit der Installation akzeptieren Sie die &lt;a href=&quot;licence&quot;&gt;Lizenzvereinbarung&lt;/a&gt; und die &lt;a href=&quot;privacy&quot;&gt;Datenschutzerklärung&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Das Programm ist in %1 installiert, nicht in %2: Es wurde nichts gelöscht. Starten Sie das Deinstallationsprogramm dort.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Das Programm ist in %1 nicht installiert: Es wurde nichts gelöscht. Löschen Sie den Ordner von Hand, wenn er nicht gebraucht wird.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>Der Ordner %1 heißt nicht %2 und kann deshalb Dateien anderer Programme enthalten: Es wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Abgebrochen: Es wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Ein Teil des Programms ist möglicherweise schon entfernt.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Das Programm ist für alle Benutzer installiert. Für die Deinstallation sind Administratorrechte nötig: Starten Sie das Deinstallationsprogramm als Administrator.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 gehört nicht zum Programm und kann nicht beiseite verschoben werden: Es wurde nichts gelöscht. Schließen Sie das Programm, das die Datei verwendet, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 deinstallieren?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 ist hier nicht installiert</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Das Programm, seine Verknüpfungen und seine Einträge in Windows werden entfernt. Ihre eigenen Dateien bleiben.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Das Programm, seine Verknüpfungen und seine Einträge in Windows werden entfernt, und der ganze Ordner.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Von nichts in diesem Ordner ist bekannt, dass es zum Programm gehört.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>In %1 ist eine Kopie des Programms: %2 Dateien. Sie können gelöscht werden. Andere Dateien im Ordner bleiben, und die Installation auch.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Meine Einstellungen löschen</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Nicht vom Programm, bleibt im Ordner:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Nicht vom Programm, wird mit dem Ordner gelöscht:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Deinstallieren</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>%1 Dateien &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Installiertes deinstallieren</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>Die Deinstallation kann jetzt nicht angehalten werden: Dateien und Einstellungen werden gerade entfernt. Schließen Sie das Fenster, wenn sie beendet ist.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Vielen Dank, dass Sie das Programm verwendet haben.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>In %1 bleiben:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
