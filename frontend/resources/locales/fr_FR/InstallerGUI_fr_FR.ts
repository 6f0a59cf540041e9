<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>L&apos;installation a échoué. Essayez de choisir un autre emplacement et relancez l&apos;installation.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Vérification de l&apos;accélération matérielle...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Téléchargement de données supplémentaires...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Désinstallation d&apos;une version précédente</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>Pour désinstaller %1, désinstallez d&apos;abord ces programmes :</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Une fenêtre d&apos;installation ou de désinstallation est ouverte et doit être fermée avant de lancer %1.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>Impossible de copier %1. Chemin incorrect ou autorisation manquante</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>Impossible de déplacer le fichier %1 vers %2. Chemin incorrect ou autorisation manquante</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>Désinstaller %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>Site de %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Convertir en</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Ouvrir avec</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Convertir vidéo et audio</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Impossible d&apos;accéder au dossier de destination indiqué</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>L&apos;espace disque est insuffisant</translation>
    </message>
</context>
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>L&apos;installation pour tous les utilisateurs nécessite des droits d&apos;administrateur : lancez le programme en tant qu&apos;administrateur.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>La partie disposant des droits d&apos;administrateur s&apos;est terminée sans résultat. Lancez le programme en tant qu&apos;administrateur.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Le programme d&apos;installation est endommagé. Téléchargez-le à nouveau.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier :</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Sera installé dans : %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Espace nécessaire : %1. Libre à cet endroit : %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Espace nécessaire : %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Vérification du dossier...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Il n'y a pas de lecteur %1 sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installation de %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Installer %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>Mettre à jour %1 de %2 vers %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 est déjà installé</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>La version plus récente %1 est installée</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Vous pouvez installer tout de suite ou voir d&apos;abord les options.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Vos paramètres et vos propres fichiers sont conservés.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Pour tous les utilisateurs, dans %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Pour vous, dans %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Vous pouvez aussi &lt;a href=&quot;remove&quot;&gt;le supprimer&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>Une autre installation se trouve dans %1. Vous pouvez &lt;a href=&quot;remove&quot;&gt;la supprimer&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>P&amp;récédent</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Fermer et continuer</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Fermez d'abord ces programmes</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Ils utilisent des fichiers qui vont être modifiés. Enregistrez-y votre travail.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Chacun est invité à se fermer. Ce qui ne se ferme pas n'est arrêté qu'avec votre accord.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>En attente de la fermeture des programmes...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Ce sont des parties de Windows qui ne peuvent pas être fermées d'ici : déconnectez-vous ou redémarrez l'ordinateur et réessayez.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, processus %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (sans fenêtre)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (partie du système)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Non fermés : %1. Les arrêter maintenant ? Ce qui n'y est pas enregistré sera perdu.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Mettre à &amp;jour</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>Rép&amp;arer</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Remplac&amp;er</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>L&apos;installation ne peut pas être arrêtée maintenant : des fichiers et des paramètres sont en cours de modification. Fermez la fenêtre lorsqu'elle est terminée.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Annuler l&apos;installation de %1 ?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Annulé : rien n&apos;a été installé.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 ne fait pas partie du programme et ne peut pas être écarté : rien n&apos;a été modifié. Fermez le programme qui l&apos;utilise et réessayez.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Remplacer la version plus récente %1 par la version %2 ?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>Le fichier %1 est manquant. Remettez-le à côté du programme d&apos;installation.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 est installé</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1 n&apos;a pas pu être installé</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 est utilisé par %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Fermez le programme et réessayez.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 est en cours d'exécution et ne peut pas être arrêté.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>Le fichier %1 est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Téléchargez à nouveau le programme d'installation.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>Le lecteur de %1 est plein : %2 sont libres.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Libérez-y %1 ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>Le lecteur de %1 signale une erreur lors de l'écriture de fichiers.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Vérifiez le lecteur ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>Le fichier %1 ne peut pas être remplacé : il est protégé en écriture ou en cours d'utilisation.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>Rien ne peut être créé dans le dossier %1 : les droits nécessaires manquent.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Choisissez un autre dossier ou lancez le programme d'installation en tant qu'administrateur.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 est un fichier là où un dossier est nécessaire.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Déplacez le fichier vers un autre endroit et réessayez.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Le programme de désinstallation de la version précédente a échoué.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Désinstallez vous-même la version précédente et réessayez.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Rien n'a été modifié.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Une partie de la version précédente est peut-être déjà supprimée.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>L'installation dans %1 est incomplète : recommencez-la pour utiliser le programme.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Les fichiers sont dans %1, mais le programme n'est pas entièrement enregistré.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Fichier journal : %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Ouvrir le &amp;journal</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>Le fichier journal %1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Tout est en place. Vous pouvez commencer tout de suite.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Remarque :</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Votre fichier a été déplacé, car le programme en a un du même nom : %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Options d&apos;installation</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Installer pour</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>&amp;Moi uniquement</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Tous les utilisateurs de cet ordinateur (droits d&apos;administrateur requis)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Également</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>&amp;Créer des raccourcis sur le bureau et dans le menu Démarrer</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Proposer « Convertir en » et « Ouvrir avec » dans le menu c&amp;ontextuel des médias</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>&amp;Lancer automatiquement à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Envoyer des statistiques d&apos;&amp;utilisation anonymes pour améliorer le programme</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Masquer les &amp;détails</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Afficher les &amp;détails</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Étape %1 sur %2 : %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 par seconde</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Encore %1 s environ</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Encore %1 min environ</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>&amp;Démarrer %1 maintenant</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Suppression de la version précédente...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Mise en place des fichiers...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Enregistrement du programme...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Vérification de l&apos;accélération matérielle...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Téléchargement de données supplémentaires...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>Finalisation...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>Désinstallation de %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 a été désinstallé</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>La copie de %1 a été supprimée</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Dites-nous pourquoi vous l&apos;avez désinstallé&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1 n&apos;a pas pu être désinstallé</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>En installant, vous acceptez le &lt;a href=&quot;licence&quot;&gt;contrat de licence&lt;/a&gt; et la &lt;a href=&quot;privacy&quot;&gt;politique de confidentialité&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Le programme est installé dans %1 et non dans %2 : rien n&apos;a été supprimé. Lancez le désinstallateur à cet endroit.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Le programme n&apos;est pas installé dans %1 : rien n&apos;a été supprimé. Supprimez le dossier à la main s&apos;il n&apos;est plus utile.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>Le dossier %1 ne s&apos;appelle pas %2 et peut donc contenir des fichiers d&apos;autres programmes : rien n&apos;a été supprimé.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Annulé : rien n&apos;a été supprimé.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Une partie du programme est peut-être déjà supprimée.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Le programme est installé pour tous les utilisateurs. Sa désinstallation nécessite des droits d&apos;administrateur : lancez le programme de désinstallation en tant qu&apos;administrateur.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 ne fait pas partie du programme et ne peut pas être écarté : rien n&apos;a été supprimé. Fermez le programme qui l&apos;utilise et réessayez.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Désinstaller %1 ?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 n&apos;est pas installé ici</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Le programme, ses raccourcis et ses entrées dans Windows sont supprimés. Vos propres fichiers restent.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Le programme, ses raccourcis et ses entrées dans Windows sont supprimés, ainsi que tout le dossier.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Rien dans ce dossier n&apos;est connu comme appartenant au programme.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>Une copie du programme se trouve dans %1 : %2 fichiers. Ils peuvent être supprimés. Les autres fichiers du dossier restent, et l&apos;installation aussi.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Supprimer mes paramètres</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Hors du programme, laissé dans le dossier :</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Hors du programme, supprimé avec le dossier :</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Désinstaller</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Supprimer %1 fichiers</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Désinstaller le programme installé</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>La désinstallation ne peut pas être arrêtée maintenant : des fichiers et des paramètres sont en cours de suppression. Fermez la fenêtre lorsqu'elle est terminée.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Merci de l&apos;avoir utilisé.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Reste dans %1 :</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
