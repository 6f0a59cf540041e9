<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>Yükleme başarısız oldu. Başka bir konum seçip yüklemeyi yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>Donanım hızlandırma denetleniyor...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>Ek veriler indiriliyor...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>Önceki sürüm kaldırılıyor</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>%1 programını kaldırmak için önce şu programları kaldırın:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>Bir kurulum veya kaldırma penceresi açık. %1 başlatılmadan önce bu pencere kapatılmalıdır.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>%1 kopyalanamadı. Yol yanlış veya izin yok</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>%1 dosyası %2 konumuna taşınamadı. Yol yanlış veya izin yok</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programlar</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>%1 programını kaldır</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>%1 sitesi</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Şuna dönüştür</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>Birlikte aç</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>Video ve sesi dönüştür</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>Belirtilen hedef klasöre erişilemiyor</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>Yeterli disk alanı yok</translation>
    </message>
</context>
</TS>
