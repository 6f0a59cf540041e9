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
</TS>
