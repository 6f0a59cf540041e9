<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>安裝失敗。請選擇其他位置並重新執行安裝。</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>正在檢查硬體加速...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>正在下載其他資料...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>正在解除安裝先前的版本</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>若要解除安裝 %1，請先解除安裝下列程式：</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>安裝或解除安裝視窗正在執行，啟動 %1 之前必須先將其關閉。</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>無法複製 %1。路徑錯誤或沒有權限</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>無法將檔案 %1 移動到 %2。路徑錯誤或沒有權限</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程式集</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>解除安裝 %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>%1 網站</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>轉換為</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>開啟方式</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>轉換影片和音訊</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>無法存取指定的目的地資料夾</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>磁碟空間不足</translation>
    </message>
</context>
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>為所有使用者安裝需要系統管理員權限：請以系統管理員身分啟動程式。</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>以系統管理員權限執行的部分已結束，但沒有傳回結果。請以系統管理員身分啟動程式。</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>安裝程式已損毀。請重新下載。</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>資料夾(&amp;F):</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>瀏覽(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>將安裝到：%1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>所需空間：%1。可用空間：%2。</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>所需空間：%1。</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>正在檢查資料夾...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>此電腦上沒有磁碟機 %1。</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>正在安裝 %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>安裝 %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>將 %1 從 %2 更新到 %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 已經安裝</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>已安裝較新的版本 %1</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>您可以立即安裝，或先檢視選項。</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>您的設定和您自己的檔案會保留。</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>所有使用者，位於 %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>僅您自己，位於 %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>您也可以&lt;a href=&quot;remove&quot;&gt;將其移除&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>%1 中還有另一個安裝。您可以&lt;a href=&quot;remove&quot;&gt;將其移除&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>上一步(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>關閉並繼續(&amp;C)</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>請先關閉這些程式</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>它們正在使用即將變更的檔案。請儲存其中的工作。</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>會要求每個程式關閉。未關閉的程式只有在您同意後才會結束。</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>正在等待程式關閉...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>它們是 Windows 的一部分，無法從這裡關閉：請登出或重新啟動電腦，然後再試一次。</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1，處理程序 %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1（無視窗）</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1（系統元件）</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>未關閉：%1。現在結束嗎？其中未儲存的內容將會遺失。</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>更新(&amp;P)</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>修復(&amp;E)</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>取代(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>選項(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重試(&amp;T)</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>正在變更檔案和設定，現在無法停止安裝。請在完成後關閉視窗。</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>要取消安裝 %1 嗎？</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>已取消：沒有安裝任何內容。</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 不屬於本程式，且無法移開: 未做任何變更。請關閉使用它的程式，然後重試。</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>要以版本 %2 取代較新的版本 %1 嗎?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>缺少檔案 %1。請將它放回安裝程式旁邊。</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 已安裝</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>無法安裝 %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 正由 %2 使用中。</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>請關閉該程式，然後再試一次。</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 正在執行，無法結束。</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>檔案 %1 已損毀或不完整。</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>請重新下載安裝程式。</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>%1 所在的磁碟機已滿：可用空間為 %2。</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>請在該處騰出 %1 空間，或選擇其他資料夾。</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>%1 所在的磁碟機在寫入檔案時回報錯誤。</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>請檢查磁碟機，或選擇其他資料夾。</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>無法取代檔案 %1：它受到寫入保護或正在使用中。</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>無法在資料夾 %1 中建立任何項目：沒有所需的權限。</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>請選擇其他資料夾，或以系統管理員身分執行安裝程式。</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 是檔案，但此處需要資料夾。</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>請將該檔案移到其他位置，然後再試一次。</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>先前版本的解除安裝程式失敗。</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>請自行解除安裝先前的版本，然後再試一次。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未變更任何內容。</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>先前版本的一部分可能已被移除。</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>%1 中的安裝不完整：請重新安裝後再使用程式。</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>檔案已在 %1 中，但程式尚未完全登錄。</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>記錄檔：%1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>開啟記錄檔(&amp;L)</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>無法開啟記錄檔 %1。</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>一切就緒。您可以立即開始使用。</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>請注意:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>您的檔案已移動，因為程式有同名的檔案: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>安裝選項</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>安裝給</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>只有我自己(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>此電腦的所有使用者(需要系統管理員權限)(&amp;A)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>此外</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>在桌面和「開始」功能表中建立捷徑(&amp;S)</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>在媒體檔案的快顯功能表中顯示「轉換成」和「開啟檔案」(&amp;C)</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>登入時自動啟動(&amp;L)</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>傳送匿名使用統計以改進程式(&amp;U)</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>隱藏詳細資料(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>顯示詳細資料(&amp;D)</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>步驟 %1 / %2：%3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>每秒 %1</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>剩餘約 %1 秒</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>剩餘約 %1 分鐘</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>立即啟動 %1(&amp;S)</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>正在移除先前的版本...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>正在放置檔案...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>正在註冊程式...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>正在檢查硬體加速...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>正在下載其他資料...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>正在完成...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>正在解除安裝 %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 已解除安裝</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>%1 的複本已刪除</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;請告訴我們解除安裝的原因&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>無法解除安裝 %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>語言(&amp;L):</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>安裝即表示您接受&lt;a href=&quot;licence&quot;&gt;授權合約&lt;/a&gt;和&lt;a href=&quot;privacy&quot;&gt;隱私權政策&lt;/a&gt;。</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>程式安裝在 %1，而不是 %2:沒有刪除任何內容。請在那裡啟動解除安裝程式。</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>程式未安裝在 %1：沒有刪除任何內容。如果不需要該資料夾，請手動刪除。</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>資料夾 %1 的名稱不是 %2，其中可能有其他程式的檔案：未刪除任何內容。</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>已取消：沒有刪除任何內容。</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>程式的一部分可能已被移除。</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>程式是為所有使用者安裝的。解除安裝需要系統管理員權限：請以系統管理員身分啟動解除安裝程式。</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 不屬於本程式，且無法移開: 未刪除任何內容。請關閉使用它的程式，然後重試。</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>要解除安裝 %1 嗎？</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 未安裝在此處</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>將移除程式、其捷徑和在 Windows 中的項目。您自己的檔案會保留。</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>將移除程式、其捷徑和在 Windows 中的項目，以及整個資料夾。</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>此資料夾中沒有已知屬於本程式的內容。</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>%1 中有本程式的複本: %2 個檔案。可以將其刪除。資料夾中的其他檔案和已安裝的程式會保留。</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>刪除我的設定(&amp;D)</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>不屬於本程式，將保留在資料夾中:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>不屬於本程式，將隨資料夾一起刪除:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>解除安裝(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>刪除 %1 個檔案(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>解除安裝已安裝的程式(&amp;U)</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>正在移除檔案和設定，現在無法停止解除安裝。請在完成後關閉視窗。</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>感謝您的使用。</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>保留在 %1 中:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
</TS>
