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
</TS>
