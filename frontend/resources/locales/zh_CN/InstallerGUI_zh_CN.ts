<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>安装失败。请选择其他位置并重新运行安装。</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>正在检查硬件加速...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>正在下载附加数据...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>正在卸载以前的版本</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>要卸载 %1，请先卸载以下程序：</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>安装或卸载窗口正在运行，启动 %1 之前需要先将其关闭。</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>无法复制 %1。路径错误或没有权限</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>无法将文件 %1 移动到 %2。路径错误或没有权限</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>卸载 %1</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>%1 网站</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>转换为</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>打开方式</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>转换视频和音频</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>无法访问指定的目标文件夹</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>磁盘空间不足</translation>
    </message>
</context>
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>为所有用户安装需要管理员权限：请以管理员身份启动程序。</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>以管理员权限运行的部分已结束，但没有返回结果。请以管理员身份启动程序。</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>安装程序已损坏。请重新下载。</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F):</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>浏览(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>将安装到：%1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>所需空间：%1。可用空间：%2。</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>所需空间：%1。</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>正在检查文件夹...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>此计算机上没有驱动器 %1。</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>正在安装 %1</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>安装 %1</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>将 %1 从 %2 更新到 %3</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 已经安装</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>已安装较新的版本 %1</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>您可以立即安装，或先查看选项。</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>您的设置和您自己的文件将会保留。</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>所有用户，位于 %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>仅您自己，位于 %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>您也可以&lt;a href=&quot;remove&quot;&gt;将其移除&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>%1 中还有另一个安装。您可以&lt;a href=&quot;remove&quot;&gt;将其移除&lt;/a&gt;。</translation>
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
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>关闭并继续(&amp;C)</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>请先关闭这些程序</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>它们正在使用将要更改的文件。请保存其中的工作。</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>将请求每个程序关闭。未关闭的程序只有在您同意后才会结束。</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>正在等待程序关闭...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>它们是 Windows 的组成部分，无法从这里关闭：请注销或重新启动计算机，然后重试。</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1，进程 %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1（无窗口）</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1（系统组件）</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>未关闭：%1。现在结束吗？其中未保存的内容将会丢失。</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>更新(&amp;P)</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>修复(&amp;E)</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>替换(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>正在更改文件和设置，现在不能停止安装。请在完成后关闭窗口。</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>要取消安装 %1 吗？</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>已取消：没有安装任何内容。</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 不属于本程序，且无法移开: 未做任何更改。请关闭使用它的程序，然后重试。</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>是否用版本 %2 替换较新的版本 %1?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>缺少文件 %1。请把它放回安装程序旁边。</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 已安装</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>无法安装 %1</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 正在被 %2 使用。</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>请关闭该程序，然后重试。</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 正在运行，无法结束。</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>文件 %1 已损坏或不完整。</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>请重新下载安装程序。</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>%1 所在的驱动器已满：可用空间为 %2。</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>请在该处腾出 %1 空间，或选择其他文件夹。</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>%1 所在的驱动器在写入文件时报告错误。</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>请检查驱动器，或选择其他文件夹。</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>无法替换文件 %1：它被写保护或正在使用。</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>无法在文件夹 %1 中创建任何内容：没有所需的权限。</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>请选择其他文件夹，或以管理员身份运行安装程序。</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 是文件，但此处需要文件夹。</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>请将该文件移到其他位置，然后重试。</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>以前版本的卸载程序失败。</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>请自行卸载以前的版本，然后重试。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未更改任何内容。</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>以前版本的一部分可能已被删除。</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>%1 中的安装不完整：请重新安装后再使用程序。</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>文件已在 %1 中，但程序尚未完全注册。</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>日志文件：%1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>打开日志(&amp;L)</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>无法打开日志文件 %1。</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>一切就绪。您可以马上开始使用。</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>请注意:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>您的文件已被移动，因为程序有同名文件: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>安装选项</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>安装给</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>仅我自己(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>此计算机的所有用户(需要管理员权限)(&amp;A)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>此外</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>在桌面和“开始”菜单中创建快捷方式(&amp;S)</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>在媒体文件的右键菜单中显示“转换为”和“打开方式”(&amp;C)</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>登录时自动启动(&amp;L)</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>发送匿名使用统计以改进程序(&amp;U)</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>隐藏详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>显示详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>第 %1 步，共 %2 步：%3</translation>
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
        <translation>剩余约 %1 秒</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>剩余约 %1 分钟</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>立即启动 %1(&amp;S)</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>正在删除以前的版本...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>正在放置文件...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>正在注册程序...</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>正在检查硬件加速...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>正在下载附加数据...</translation>
    </message>
    <message>
        <source>Finishing...</source>
        <translation>正在完成...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>正在卸载 %1</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 已卸载</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>%1 的副本已删除</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;请告诉我们卸载的原因&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>无法卸载 %1</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L):</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>安装即表示您接受&lt;a href=&quot;licence&quot;&gt;许可协议&lt;/a&gt;和&lt;a href=&quot;privacy&quot;&gt;隐私政策&lt;/a&gt;。</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>程序安装在 %1，而不是 %2:没有删除任何内容。请在那里启动卸载程序。</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>程序未安装在 %1：没有删除任何内容。如果不需要该文件夹，请手动删除。</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>文件夹 %1 的名称不是 %2，其中可能有其他程序的文件：未删除任何内容。</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>已取消：没有删除任何内容。</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>程序的一部分可能已被删除。</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>程序是为所有用户安装的。卸载需要管理员权限：请以管理员身份启动卸载程序。</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 不属于本程序，且无法移开: 未删除任何内容。请关闭使用它的程序，然后重试。</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>要卸载 %1 吗？</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 未安装在此处</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>将移除程序、其快捷方式和在 Windows 中的条目。您自己的文件会保留。</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>将移除程序、其快捷方式和在 Windows 中的条目，以及整个文件夹。</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>此文件夹中没有已知属于本程序的内容。</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>%1 中有本程序的副本: %2 个文件。可以将其删除。文件夹中的其他文件和已安装的程序会保留。</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>删除我的设置(&amp;D)</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>不属于本程序，将保留在文件夹中:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>不属于本程序，将随文件夹一起删除:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>卸载(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>删除 %1 个文件(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>卸载已安装的程序(&amp;U)</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>正在删除文件和设置，现在不能停止卸载。请在完成后关闭窗口。</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>感谢您的使用。</translation>
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
        <translation>确定</translation>
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
        <translation>重试</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
