<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>インストールに失敗しました。別の場所を選択して、もう一度インストールを実行してください。</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>ハードウェアアクセラレーションを確認しています...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>追加データをダウンロードしています...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>以前のバージョンをアンインストールしています</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>%1 をアンインストールするには、先に次のプログラムをアンインストールしてください:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>セットアップまたはアンインストールのウィンドウが実行中です。%1 を開始する前に閉じてください。</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>%1 をコピーできませんでした。パスが正しくないか、アクセス許可がありません</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>ファイル %1 を %2 に移動できませんでした。パスが正しくないか、アクセス許可がありません</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>%1 をアンインストール</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>%1 のサイト</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>変換先</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>プログラムから開く</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>動画と音声を変換</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>指定された保存先フォルダーにアクセスできません</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>ディスクの空き容量が不足しています</translation>
    </message>
</context>
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>すべてのユーザー向けのインストールには管理者の権限が必要です。管理者としてプログラムを起動してください。</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>管理者の権限で実行される部分が結果を返さずに終了しました。管理者としてプログラムを起動してください。</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>セットアップが壊れています。もう一度ダウンロードしてください。</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>参照(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>インストール先: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>必要な容量: %1、空き容量: %2</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>必要な容量: %1</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>フォルダーを確認しています...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>このコンピューターにドライブ %1 はありません。</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 をインストールしています</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 のインストール</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>%1 を %2 から %3 に更新</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 は既にインストールされています</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>新しいバージョン %1 がインストールされています</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>すぐにインストールするか、先にオプションを確認できます。</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>設定とご自身のファイルは保持されます。</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>すべてのユーザー用、%1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>現在のユーザー用、%1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>&lt;a href=&quot;remove&quot;&gt;削除する&lt;/a&gt;こともできます。</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>%1 に別のインストールがあります。&lt;a href=&quot;remove&quot;&gt;削除する&lt;/a&gt;こともできます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>閉じて続行(&amp;C)</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>先にこれらのプログラムを閉じてください</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>変更するファイルを使用しています。作業内容を保存してください。</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>各プログラムに終了を要求します。閉じないものは、同意した場合にのみ強制終了します。</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>プログラムが閉じるのを待っています...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Windows の一部であり、ここからは閉じられません。サインアウトするか、コンピューターを再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1、プロセス %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (ウィンドウなし)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (システムの一部)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>閉じていないプログラム: %1。今すぐ強制終了しますか? 保存していない内容は失われます。</translation>
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
        <translation>置き換え(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>ファイルと設定を変更しているため、今はインストールを中止できません。終わってからウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>%1 のインストールをキャンセルしますか?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>キャンセルしました。何もインストールされていません。</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 はプログラムの一部ではなく、移動できません。何も変更されていません。使用中のプログラムを閉じて、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>新しいバージョン %1 をバージョン %2 に置き換えますか?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>ファイル %1 がありません。セットアップと同じ場所に戻してください。</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 をインストールしました</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1 をインストールできませんでした</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 は %2 で使用中です。</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>プログラムを閉じて、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 は実行中で、終了できません。</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>ファイル %1 が壊れているか、途中で切れています。</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>セットアップをもう一度ダウンロードしてください。</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>%1 のドライブがいっぱいです。空き容量は %2 です。</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>そこに %1 の空き容量を用意するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>%1 のドライブで、ファイルの書き込み中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>ドライブを確認するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>ファイル %1 を置き換えられません。書き込み禁止になっているか、使用中です。</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>フォルダー %1 には何も作成できません。必要な権限がありません。</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>別のフォルダーを選ぶか、セットアップを管理者として実行してください。</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>フォルダーが必要な場所に、ファイル %1 があります。</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>ファイルを別の場所に移動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>以前のバージョンのアンインストーラーが失敗しました。</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>以前のバージョンをご自身でアンインストールして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>何も変更されていません。</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>以前のバージョンの一部は、すでに削除されている可能性があります。</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>%1 のインストールは完了していません。プログラムを使うには、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>ファイルは %1 にありますが、プログラムの登録が完了していません。</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>ログファイル: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>ログを開く(&amp;L)</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>ログファイル %1 を開けません。</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>準備が整いました。すぐに使い始められます。</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>ご注意ください:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>プログラムに同じ名前のファイルがあるため、お客様のファイルを移動しました: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>インストールの設定</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>対象ユーザー</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>自分のみ(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>このコンピューターのすべてのユーザー (管理者の権限が必要)(&amp;A)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>デスクトップとスタートメニューにショートカットを作成する(&amp;S)</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>右クリックメニューに「変換」と「プログラムから開く」を表示する(&amp;C)</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>ログオン時に自動的に起動する(&amp;L)</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>改善のために匿名の使用統計を送信する(&amp;U)</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>詳細を隠す(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>詳細を表示(&amp;D)</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備しています...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>手順 %1/%2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>毎秒 %1</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>残り約 %1 秒</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>残り約 %1 分</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>%1 を今すぐ起動する(&amp;S)</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>以前のバージョンを削除しています...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>ファイルを配置しています...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>プログラムを登録しています...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>ハードウェアアクセラレーションを確認しています...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>追加データをダウンロードしています...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>仕上げています...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>%1 をアンインストールしています</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 をアンインストールしました</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>%1 のコピーを削除しました</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;アンインストールの理由をお聞かせください&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1 をアンインストールできませんでした</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>インストールすると、&lt;a href=&quot;licence&quot;&gt;使用許諾契約&lt;/a&gt;と&lt;a href=&quot;privacy&quot;&gt;プライバシーポリシー&lt;/a&gt;に同意したことになります。</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>プログラムは %2 ではなく %1 にインストールされています。何も削除されませんでした。そちらのアンインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>プログラムは %1 にインストールされていません。何も削除されませんでした。不要な場合はフォルダーを手動で削除してください。</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>フォルダー %1 の名前が %2 ではないため、他のプログラムのファイルが含まれている可能性があります。何も削除されませんでした。</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>キャンセルしました。何も削除されていません。</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>プログラムの一部は、すでに削除されている可能性があります。</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>プログラムはすべてのユーザー向けにインストールされています。アンインストールには管理者の権限が必要です。管理者としてアンインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 はプログラムの一部ではなく、移動できません。何も削除されていません。使用中のプログラムを閉じて、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 をアンインストールしますか?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 はここにインストールされていません</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>プログラム、ショートカット、Windows への登録を削除します。ご自身のファイルは残ります。</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>プログラム、ショートカット、Windows への登録、およびフォルダー全体を削除します。</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>このフォルダーにプログラムのものと分かるファイルはありません。</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>%1 にプログラムのコピーがあります: %2 個のファイル。これらは削除できます。フォルダー内の他のファイルとインストールはそのまま残ります。</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>自分の設定を削除する(&amp;D)</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>プログラム以外で、フォルダーに残るもの:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>プログラム以外で、フォルダーと一緒に削除されるもの:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>アンインストール(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>%1 個のファイルを削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>インストール済みのものをアンインストール(&amp;U)</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>ファイルと設定を削除しているため、今はアンインストールを中止できません。終わってからウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>ご利用ありがとうございました。</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>%1 に残っているもの:</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
