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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>The installation for all users needs the rights of an administrator: start the program as one.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>The part with administrator rights has ended without a result. Start the program as an administrator.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>The setup is damaged. Download it again.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Folder:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>B&amp;rowse...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Will be installed in: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Space needed: %1. Free there: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Space needed: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>The folder is being checked...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>There is no drive %1 on this computer.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installing %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Install %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>Update %1 from %2 to %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 is installed already</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>The newer version %1 is installed</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>You can install right away, or look at the options first.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Your settings and your own files are kept.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>For all users, in %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>For you, in %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Close them and go on</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Close these programs first</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>They use files that are to be changed. Save your work in them.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Each is asked to close. What does not close is ended only if you agree.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Waiting until the programs have closed...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, process %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (without a window)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (a part of the system)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Not closed: %1. End them now? What is not saved in them is lost.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>U&amp;pdate</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>R&amp;epair</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Re&amp;place</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finish</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Try again</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>Cancel the installation of %1?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>Cancelled: nothing was installed.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Replace the newer version %1 with version %2?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>The file %1 is missing. Put it back beside the setup program.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 is installed</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1 could not be installed</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 is in use by %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Close the program, and try again.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 is running and cannot be ended.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>The file %1 is damaged or cut off.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Download the setup again.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>The drive with %1 is full: %2 are free.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Make sure that %1 are free there, or choose another folder.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>The drive with %1 reports an error while files are written.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Check the drive, or choose another folder.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>The file %1 cannot be replaced: it is write-protected or in use.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>Nothing can be created in the folder %1: the rights to it are missing.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Choose another folder, or start the setup as an administrator.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 is a file where a folder is needed.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Move the file to another place, and try again.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>The uninstaller of the previous version has failed.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Uninstall the previous version yourself, and try again.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>A part of the previous version may already be removed.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>The installation in %1 is incomplete: repeat it to use the program.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>The files are in %1, but the program is not completely registered.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Log file: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Open &amp;log</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>The log file %1 cannot be opened.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Everything is in its place. You can begin right away.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Please note:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Your file was moved, because the program has one of that name: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>How to install</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Install for</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Only for &amp;me</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;All users of this computer (administrator rights needed)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Also</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Create &amp;shortcuts on the desktop and in the Start menu</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>Start automatically when I &amp;log on</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Send anonymous &amp;usage statistics to improve the program</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>Hide &amp;details</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Show &amp;details</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Step %1 of %2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 per second</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>About %1 s left</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>About %1 min left</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>&amp;Start %1 now</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Removing the previous version...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Placing the files...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Registering the program...</translation>
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
        <source>Finishing...</source>
        <translation>Finishing...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>Uninstalling %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 was uninstalled</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>The copy of %1 was deleted</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1 could not be uninstalled</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>Cancelled: nothing was deleted.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>A part of the program may already be removed.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Uninstall %1?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 is not installed here</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Nothing in this folder is known to be of the program.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>&amp;Delete my settings</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Not of the program, and left in the folder:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Not of the program, and deleted with the folder:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Uninstall</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>&amp;Delete %1 files</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Uninstall the installed one</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Thank you for having used it.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>Left in %1:</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
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
        <translation>Retry</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
</TS>
