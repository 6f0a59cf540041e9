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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>L&apos;installazione per tutti gli utenti richiede i diritti di amministratore: avviare il programma come amministratore.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>La parte con i diritti di amministratore è terminata senza risultato. Avviare il programma come amministratore.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Il programma di installazione è danneggiato. Scaricarlo di nuovo.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Carte&amp;lla:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>&amp;Sfoglia...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Scegliere una cartella</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Verrà installato in: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Spazio necessario: %1. Libero in quella posizione: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Spazio necessario: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Controllo della cartella...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Su questo computer non esiste un'unità %1.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installazione di %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Installa %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>Aggiorna %1 da %2 a %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 è già installato</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>È installata la versione più recente %1</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>È possibile installare subito o vedere prima le opzioni.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Le impostazioni e i file personali vengono conservati.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Per tutti gli utenti, in %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Per l&apos;utente corrente, in %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>È anche possibile &lt;a href=&quot;remove&quot;&gt;rimuoverlo&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>C&apos;è un&apos;altra installazione in %1. È possibile &lt;a href=&quot;remove&quot;&gt;rimuoverla&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>I&amp;nstalla</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Chiudi e continua</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Chiudere prima questi programmi</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Usano file che stanno per essere modificati. Salvare il proprio lavoro in essi.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>A ciascuno viene chiesto di chiudersi. Ciò che non si chiude viene terminato solo con il consenso dell'utente.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>In attesa della chiusura dei programmi...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Sono parti di Windows che non possono essere chiuse da qui: disconnettersi o riavviare il computer e riprovare.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, processo %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (senza finestra)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (parte del sistema)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Non chiusi: %1. Terminarli ora? Ciò che non è stato salvato andrà perso.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Rimpia&amp;zza</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>L&apos;installazione non può essere interrotta ora: file e impostazioni sono in corso di modifica. Chiudere la finestra al termine.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Annullare l&apos;installazione di %1?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Annullato: nulla è stato installato.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 non fa parte del programma e non può essere spostato: nulla è stato modificato. Chiudere il programma che lo usa e riprovare.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Sostituire la versione più recente %1 con la versione %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Il file %1 non è presente. Rimetterlo accanto al programma di installazione.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 è installato</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>Non è stato possibile installare %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 è in uso da parte di %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Chiudere il programma e riprovare.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 è in esecuzione e non può essere terminato.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>Il file %1 è danneggiato o incompleto.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Scaricare di nuovo il programma di installazione.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>L'unità di %1 è piena: sono liberi %2.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Liberare %1 su quell'unità o scegliere un'altra cartella.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>L'unità di %1 segnala un errore durante la scrittura dei file.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Controllare l'unità o scegliere un'altra cartella.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Impossibile sostituire il file %1: è protetto da scrittura o in uso.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>Impossibile creare elementi nella cartella %1: mancano i diritti necessari.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Scegliere un'altra cartella o avviare il programma di installazione come amministratore.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 è un file dove serve una cartella.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Spostare il file altrove e riprovare.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Il programma di disinstallazione della versione precedente non è riuscito.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Disinstallare la versione precedente manualmente e riprovare.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Una parte della versione precedente potrebbe essere già stata rimossa.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>L'installazione in %1 è incompleta: ripeterla per usare il programma.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>I file sono in %1, ma il programma non è registrato completamente.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>File di registro: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Apri re&amp;gistro</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Impossibile aprire il file di registro %1.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Tutto è al suo posto. È possibile iniziare subito.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Il file dell&apos;utente è stato spostato perché il programma ne ha uno con lo stesso nome: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Come installare</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Installa per</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Solo per &amp;me</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Tutti gli utenti di questo computer (diritti di amministratore)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Inoltre</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Crea c&amp;ollegamenti sul desktop e nel menu Start</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Offri &quot;Converti in&quot; e &quot;Apri con&quot; nel menu &amp;contestuale dei file multimediali</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Avvia automaticamente all&apos;acc&amp;esso</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Invia statistiche di &amp;utilizzo anonime per migliorare il programma</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Nascondi &amp;dettagli</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostra &amp;dettagli</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Passaggio %1 di %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 al secondo</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Ancora %1 s circa</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Ancora %1 min circa</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>&amp;Avvia %1 ora</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Rimozione della versione precedente...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Copia dei file...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Registrazione del programma...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Verifica dell&apos;accelerazione hardware...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Download di dati aggiuntivi...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>Completamento...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>Disinstallazione di %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 è stato disinstallato</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>La copia di %1 è stata eliminata</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Dicci perché lo hai disinstallato&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>Non è stato possibile disinstallare %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Installando si accettano il &lt;a href=&quot;licence&quot;&gt;contratto di licenza&lt;/a&gt; e l&apos;&lt;a href=&quot;privacy&quot;&gt;informativa sulla privacy&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Il programma è installato in %1, non in %2: nulla è stato eliminato. Avviare il programma di disinstallazione da lì.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Il programma non è installato in %1: nulla è stato eliminato. Eliminare la cartella a mano se non serve.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>Il nome della cartella %1 non è %2, quindi può contenere file di altri programmi: non è stato eliminato nulla.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Annullato: nulla è stato eliminato.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Una parte del programma potrebbe essere già stata rimossa.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Il programma è installato per tutti gli utenti. Per disinstallarlo servono i diritti di amministratore: avviare il programma di disinstallazione come amministratore.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 non fa parte del programma e non può essere spostato: nulla è stato eliminato. Chiudere il programma che lo usa e riprovare.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Disinstallare %1?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 non è installato qui</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Vengono rimossi il programma, i suoi collegamenti e le sue voci in Windows. I file personali restano.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Vengono rimossi il programma, i suoi collegamenti e le sue voci in Windows, e tutta la cartella.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Nulla in questa cartella risulta appartenere al programma.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>Una copia del programma è in %1: %2 file. Possono essere eliminati. Gli altri file della cartella e l&apos;installazione restano.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Elimina le mie impostazioni</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Non del programma, resta nella cartella:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Non del programma, eliminato con la cartella:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Disinstalla</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Elimina %1 file</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Disinstalla quello installato</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>La disinstallazione non può essere interrotta ora: file e impostazioni sono in corso di rimozione. Chiudere la finestra al termine.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Grazie per averlo usato.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Resta in %1:</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
</TS>
