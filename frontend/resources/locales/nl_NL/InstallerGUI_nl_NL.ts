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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>Voor installatie voor alle gebruikers zijn beheerdersrechten nodig: start het programma als beheerder.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>Het deel met beheerdersrechten is zonder resultaat beëindigd. Start het programma als beheerder.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Het installatieprogramma is beschadigd. Download het opnieuw.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Ma&amp;p:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>&amp;Bladeren...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Map kiezen</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Wordt geïnstalleerd in: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Benodigde ruimte: %1. Daar vrij: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Benodigde ruimte: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>De map wordt gecontroleerd...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Er is geen station %1 op deze computer.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 installeren</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>%1 bijwerken van %2 naar %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 is al geïnstalleerd</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>De nieuwere versie %1 is geïnstalleerd</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>U kunt direct installeren of eerst de opties bekijken.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Uw instellingen en eigen bestanden blijven behouden.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Voor alle gebruikers, in %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Voor u, in %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>U kunt het ook &lt;a href=&quot;remove&quot;&gt;verwijderen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Er is nog een installatie in %1. U kunt &lt;a href=&quot;remove&quot;&gt;die verwijderen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Vorige</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>Sl&amp;uiten en doorgaan</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Sluit eerst deze programma's</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Ze gebruiken bestanden die worden gewijzigd. Sla uw werk erin op.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Elk programma wordt gevraagd te sluiten. Wat niet sluit, wordt alleen met uw toestemming beëindigd.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Wachten tot de programma's zijn gesloten...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Het zijn onderdelen van Windows die hier niet kunnen worden gesloten: meld u af of start de computer opnieuw op en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proces %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (zonder venster)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (onderdeel van het systeem)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Niet gesloten: %1. Nu beëindigen? Wat er niet in is opgeslagen, gaat verloren.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Bij&amp;werken</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Repareren</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>V&amp;ervangen</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>O&amp;pties</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Voltooien</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Opnieuw proberen</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>De installatie kan nu niet worden gestopt: bestanden en instellingen worden gewijzigd. Sluit het venster als het klaar is.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>De installatie van %1 annuleren?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Geannuleerd: er is niets geïnstalleerd.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 hoort niet bij het programma en kan niet worden verplaatst: er is niets gewijzigd. Sluit het programma dat het gebruikt en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>De nieuwere versie %1 vervangen door versie %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Het bestand %1 ontbreekt. Zet het terug naast het installatieprogramma.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 is geïnstalleerd</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1 kon niet worden geïnstalleerd</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 is in gebruik door %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Sluit het programma en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 is actief en kan niet worden beëindigd.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>Het bestand %1 is beschadigd of onvolledig.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Download het installatieprogramma opnieuw.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>Het station met %1 is vol: er is %2 vrij.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Maak daar %1 vrij of kies een andere map.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>Het station met %1 meldt een fout bij het schrijven van bestanden.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Controleer het station of kies een andere map.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Het bestand %1 kan niet worden vervangen: het is tegen schrijven beveiligd of in gebruik.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>In de map %1 kan niets worden gemaakt: de rechten ervoor ontbreken.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Kies een andere map of start het installatieprogramma als administrator.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 is een bestand waar een map nodig is.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Verplaats het bestand en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Het verwijderprogramma van de vorige versie is mislukt.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Verwijder de vorige versie zelf en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Er is niets gewijzigd.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Een deel van de vorige versie is mogelijk al verwijderd.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>De installatie in %1 is onvolledig: herhaal haar om het programma te gebruiken.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>De bestanden staan in %1, maar het programma is niet volledig geregistreerd.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Logbestand: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>&amp;Logbestand openen</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Het logbestand %1 kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Alles staat op zijn plaats. U kunt meteen beginnen.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Let op:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Uw bestand is verplaatst, omdat het programma een bestand met die naam heeft: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Installatieopties</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Installeren voor</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Alleen voor &amp;mij</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Alle gebruikers van deze computer (beheerdersrechten nodig)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Ook</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>&amp;Snelkoppelingen maken op het bureaublad en in het menu Start</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>&apos;Converteren naar&apos; en &apos;Openen met&apos; in het &amp;contextmenu tonen</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Automatisch starten bij aanme&amp;lden</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Anonieme &amp;gebruiksstatistieken sturen om het programma te verbeteren</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>&amp;Details verbergen</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details tonen</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Stap %1 van %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 per seconde</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Nog ongeveer %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Nog ongeveer %1 min</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>%1 nu &amp;starten</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Vorige versie wordt verwijderd...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Bestanden worden geplaatst...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Programma wordt geregistreerd...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Hardwareversnelling wordt gecontroleerd...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Extra gegevens worden gedownload...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>Afronden...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>%1 wordt verwijderd</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 is verwijderd</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>De kopie van %1 is verwijderd</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Vertel ons waarom u het hebt verwijderd&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1 kon niet worden verwijderd</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Taal:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Door te installeren aanvaardt u de &lt;a href=&quot;licence&quot;&gt;licentieovereenkomst&lt;/a&gt; en het &lt;a href=&quot;privacy&quot;&gt;privacybeleid&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Het programma is geïnstalleerd in %1, niet in %2: er is niets verwijderd. Start daar het verwijderprogramma.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Het programma is niet geïnstalleerd in %1: er is niets verwijderd. Verwijder de map handmatig als deze niet nodig is.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>De map %1 heet niet %2 en kan dus bestanden van andere programma&apos;s bevatten: er is niets verwijderd.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Geannuleerd: er is niets verwijderd.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Een deel van het programma is mogelijk al verwijderd.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Het programma is voor alle gebruikers geïnstalleerd. Voor het verwijderen zijn beheerdersrechten nodig: start het verwijderprogramma als beheerder.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 hoort niet bij het programma en kan niet worden verplaatst: er is niets verwijderd. Sluit het programma dat het gebruikt en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 verwijderen?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 is hier niet geïnstalleerd</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Het programma, de snelkoppelingen en de vermeldingen in Windows worden verwijderd. Uw eigen bestanden blijven.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Het programma, de snelkoppelingen en de vermeldingen in Windows worden verwijderd, en de hele map.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Van niets in deze map is bekend dat het bij het programma hoort.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>In %1 staat een kopie van het programma: %2 bestanden. Die kunnen worden verwijderd. Andere bestanden in de map blijven, en de installatie ook.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Mijn instellingen verwijderen</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Niet van het programma, blijft in de map:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Niet van het programma, wordt met de map verwijderd:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>%1 bestanden &amp;wissen</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Geïnstalleerde verwijderen</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>Het verwijderen kan nu niet worden gestopt: bestanden en instellingen worden verwijderd. Sluit het venster als het klaar is.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Bedankt voor het gebruik.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Blijft in %1:</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
</TS>
