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
</TS>
