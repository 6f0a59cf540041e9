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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>Instalacja dla wszystkich użytkowników wymaga uprawnień administratora: uruchom program jako administrator.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>Część działająca z uprawnieniami administratora zakończyła się bez wyniku. Uruchom program jako administrator.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Instalator jest uszkodzony. Pobierz go ponownie.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Folder:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>P&amp;rzeglądaj...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Zostanie zainstalowany w: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Potrzebne miejsce: %1. Wolne: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Potrzebne miejsce: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Sprawdzanie folderu...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Na tym komputerze nie ma dysku %1.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Instalowanie %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Zainstaluj %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>Zaktualizuj %1 z %2 do %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 jest już zainstalowany</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>Zainstalowana jest nowsza wersja %1</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Możesz zainstalować od razu lub najpierw obejrzeć opcje.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Twoje ustawienia i własne pliki zostaną zachowane.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Dla wszystkich użytkowników, w %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Dla Ciebie, w %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Możesz go też &lt;a href=&quot;remove&quot;&gt;usunąć&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Inna instalacja znajduje się w %1. Możesz &lt;a href=&quot;remove&quot;&gt;ją usunąć&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Zainstaluj</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Zamknij i kontynuuj</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Najpierw zamknij te programy</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Używają plików, które mają zostać zmienione. Zapisz w nich swoją pracę.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Każdy zostanie poproszony o zamknięcie. To, co się nie zamknie, zostanie zakończone tylko za Twoją zgodą.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Oczekiwanie na zamknięcie programów...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>To części systemu Windows, których nie można stąd zamknąć: wyloguj się lub uruchom ponownie komputer i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proces %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (bez okna)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (część systemu)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Nie zamknięto: %1. Zakończyć teraz? Niezapisane w nich dane zostaną utracone.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Ak&amp;tualizuj</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Zas&amp;tąp</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opcje</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Spróbuj ponownie</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>Instalacji nie można teraz zatrzymać: zmieniane są pliki i ustawienia. Zamknij okno po jej zakończeniu.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Anulować instalację %1?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Anulowano: niczego nie zainstalowano.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 nie należy do programu i nie można go przenieść: nic nie zostało zmienione. Zamknij program, który go używa, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Zastąpić nowszą wersję %1 wersją %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Brakuje pliku %1. Umieść go z powrotem obok instalatora.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>Zainstalowano %1</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>Nie udało się zainstalować %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>Plik %1 jest używany przez %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Zamknij program i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>Program %1 działa i nie można go zakończyć.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>Plik %1 jest uszkodzony lub niekompletny.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Pobierz instalator ponownie.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>Dysk z folderem %1 jest pełny: wolne jest %2.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Zwolnij tam %1 lub wybierz inny folder.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>Dysk z folderem %1 zgłasza błąd podczas zapisu plików.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Sprawdź dysk lub wybierz inny folder.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Nie można zastąpić pliku %1: jest chroniony przed zapisem lub używany.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>W folderze %1 nie można niczego utworzyć: brak uprawnień.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Wybierz inny folder lub uruchom instalator jako administrator.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 jest plikiem w miejscu, w którym potrzebny jest folder.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Przenieś plik w inne miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Dezinstalator poprzedniej wersji zakończył się niepowodzeniem.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Odinstaluj poprzednią wersję samodzielnie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nic nie zostało zmienione.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Część poprzedniej wersji mogła już zostać usunięta.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>Instalacja w folderze %1 jest niekompletna: powtórz ją, aby korzystać z programu.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Pliki są w folderze %1, ale program nie jest w pełni zarejestrowany.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Plik dziennika: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Otwórz d&amp;ziennik</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Nie można otworzyć pliku dziennika %1.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Wszystko jest na swoim miejscu. Możesz od razu zacząć.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Uwaga:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Twój plik został przeniesiony, ponieważ program ma plik o tej nazwie: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Opcje instalacji</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Zainstaluj dla</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Tylko dla &amp;mnie</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>Wszyscy &amp;użytkownicy tego komputera (wymaga administratora)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Ponadto</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Utwórz &amp;skróty na pulpicie i w menu Start</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Pokaż „Konwertuj na” i „Otwórz za pomocą” w menu &amp;kontekstowym</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Uruchamiaj automatycznie przy &amp;logowaniu</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Wysyłaj &amp;anonimowe statystyki użycia, aby ulepszać program</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Ukryj &amp;szczegóły</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Pokaż &amp;szczegóły</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Krok %1 z %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 na sekundę</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Pozostało około %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Pozostało około %1 min</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>&amp;Uruchom teraz %1</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Usuwanie poprzedniej wersji...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Umieszczanie plików...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Rejestrowanie programu...</translation>
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
        <source>Finishing...</source>
        <translation>Kończenie...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>Odinstalowywanie %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>Odinstalowano %1</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>Kopia %1 została usunięta</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Powiedz nam, dlaczego go odinstalowano&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>Nie udało się odinstalować %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Język:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Instalując, akceptujesz &lt;a href=&quot;licence&quot;&gt;umowę licencyjną&lt;/a&gt; i &lt;a href=&quot;privacy&quot;&gt;politykę prywatności&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Program jest zainstalowany w %1, a nie w %2: niczego nie usunięto. Uruchom tam program odinstalowujący.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Program nie jest zainstalowany w %1: niczego nie usunięto. Usuń folder ręcznie, jeśli jest zbędny.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>Folder %1 nie nazywa się %2, więc mogą w nim być pliki innych programów: niczego nie usunięto.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Anulowano: niczego nie usunięto.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Część programu mogła już zostać usunięta.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Program jest zainstalowany dla wszystkich użytkowników. Odinstalowanie wymaga uprawnień administratora: uruchom program odinstalowujący jako administrator.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 nie należy do programu i nie można go przenieść: nic nie zostało usunięte. Zamknij program, który go używa, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Odinstalować %1?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 nie jest tu zainstalowany</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Program, jego skróty i wpisy w Windows zostaną usunięte. Twoje własne pliki pozostaną.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Program, jego skróty i wpisy w Windows oraz cały folder zostaną usunięte.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>W tym folderze nie ma nic, o czym wiadomo, że należy do programu.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>W %1 jest kopia programu, liczba plików: %2. Można je usunąć. Inne pliki w folderze pozostaną, podobnie jak instalacja.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>Usuń &amp;moje ustawienia</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Nie należy do programu, pozostanie w folderze:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Nie należy do programu, zostanie usunięte z folderem:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Odinstaluj</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Usuń pliki (%1)</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Odinstaluj zainstalowany</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>Odinstalowywania nie można teraz zatrzymać: usuwane są pliki i ustawienia. Zamknij okno po jego zakończeniu.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Dziękujemy za korzystanie z programu.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Pozostaje w %1:</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
</TS>
