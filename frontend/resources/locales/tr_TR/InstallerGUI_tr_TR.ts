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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>Tüm kullanıcılar için yükleme yönetici hakları gerektirir: programı yönetici olarak başlatın.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>Yönetici haklarıyla çalışan bölüm sonuç vermeden sona erdi. Programı yönetici olarak başlatın.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>Kurulum programı bozuk. Yeniden indirin.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>K&amp;lasör:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>G&amp;özat...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Klasör seçin</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>Yükleneceği konum: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>Gereken alan: %1. Boş alan: %2.</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>Gereken alan: %1.</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>Klasör denetleniyor...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>Bu bilgisayarda %1 sürücüsü yok.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 yükleniyor</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 kurulumu</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>%1: %2 sürümünden %3 sürümüne güncelle</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1 zaten yüklü</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>Daha yeni olan %1 sürümü yüklü</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>Hemen yükleyebilir veya önce seçeneklere bakabilirsiniz.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>Ayarlarınız ve kendi dosyalarınız korunur.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>Tüm kullanıcılar için, %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>Sizin için, %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>İsterseniz &lt;a href=&quot;remove&quot;&gt;kaldırabilirsiniz&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>%1 içinde başka bir kurulum var. &lt;a href=&quot;remove&quot;&gt;Kaldırabilirsiniz&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>&amp;Kapat ve sürdür</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>Önce bu programları kapatın</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>Değiştirilecek dosyaları kullanıyorlar. Bu programlardaki çalışmalarınızı kaydedin.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>Her birinden kapanması istenir. Kapanmayanlar yalnızca siz onaylarsanız sonlandırılır.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>Programların kapanması bekleniyor...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Bunlar buradan kapatılamayan Windows bileşenleridir: oturumu kapatın veya bilgisayarı yeniden başlatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, işlem %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1 (penceresi yok)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1 (sistem bileşeni)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>Kapanmayanlar: %1. Şimdi sonlandırılsın mı? Kaydedilmeyenler kaybolur.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>Gü&amp;ncelle</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Değişti&amp;r</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Seçenekler</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>B&amp;itir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Yeniden dene</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>Yükleme şu anda durdurulamaz: dosyalar ve ayarlar değiştiriliyor. Bittiğinde pencereyi kapatın.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>%1 yüklemesi iptal edilsin mi?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>İptal edildi: hiçbir şey yüklenmedi.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1 programın parçası değil ve taşınamıyor: hiçbir şey değiştirilmedi. Onu kullanan programı kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>Daha yeni olan %1 sürümü %2 sürümüyle değiştirilsin mi?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>%1 dosyası yok. Dosyayı kurulum programının yanına geri koyun.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 yüklendi</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1 yüklenemedi</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 şu program tarafından kullanılıyor: %2.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>Programı kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1 çalışıyor ve sonlandırılamıyor.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>%1 dosyası bozuk veya eksik.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>Kurulum programını yeniden indirin.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>%1 klasörünün sürücüsü dolu: %2 boş.</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>Orada %1 yer açın veya başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>%1 klasörünün sürücüsü, dosyalar yazılırken hata bildiriyor.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>Sürücüyü denetleyin veya başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>%1 dosyası değiştirilemiyor: yazmaya karşı korumalı veya kullanımda.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>%1 klasöründe hiçbir şey oluşturulamıyor: gerekli haklar yok.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>Başka bir klasör seçin veya kurulum programını yönetici olarak başlatın.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>%1 bir dosya, oysa orada bir klasör gerekiyor.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>Dosyayı başka bir yere taşıyıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>Önceki sürümün kaldırma programı başarısız oldu.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>Önceki sürümü kendiniz kaldırıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Hiçbir şey değiştirilmedi.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>Önceki sürümün bir bölümü kaldırılmış olabilir.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>%1 klasöründeki yükleme eksik: programı kullanmak için yüklemeyi yineleyin.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>Dosyalar %1 klasöründe, ancak programın kaydı tamamlanmadı.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>Günlük dosyası: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>Günlüğü &amp;aç</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>%1 günlük dosyası açılamıyor.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>Her şey yerinde. Hemen başlayabilirsiniz.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>Lütfen dikkat edin:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>Programın aynı adlı bir dosyası olduğu için dosyanız taşındı: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>Yükleme seçenekleri</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>Kimin için</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>Yalnızca &amp;benim için</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>&amp;Tüm kullanıcılar için (yönetici hakları gerekir)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Ayrıca</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>Masaüstünde ve Başlat menüsünde &amp;kısayol oluştur</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>Ortam dosyalarının &amp;sağ tık menüsünde &quot;Dönüştür&quot; ve &quot;Birlikte aç&quot; göster</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>&amp;Oturum açıldığında otomatik başlat</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>Programı geliştirmek için &amp;anonim kullanım istatistikleri gönder</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Simge durumuna küçült</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>&amp;Ayrıntıları gizle</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Ayrıntıları göster</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Adım %1/%2: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>saniyede %1</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Yaklaşık %1 sn kaldı</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Yaklaşık %1 dk kaldı</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>%1 programını şimdi &amp;başlat</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>Önceki sürüm kaldırılıyor...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>Dosyalar yerleştiriliyor...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>Program kaydediliyor...</translation>
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
        <source>Finishing...</source>
        <translation>Tamamlanıyor...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>%1 kaldırılıyor</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1 kaldırıldı</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>%1 kopyası silindi</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;Neden kaldırdığınızı bize anlatın&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1 kaldırılamadı</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Dil:</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>Yükleyerek &lt;a href=&quot;licence&quot;&gt;lisans sözleşmesini&lt;/a&gt; ve &lt;a href=&quot;privacy&quot;&gt;gizlilik politikasını&lt;/a&gt; kabul etmiş olursunuz.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>Program %2 konumunda değil, %1 konumunda yüklü: hiçbir şey silinmedi. Kaldırma programını orada başlatın.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>Program %1 konumunda yüklü değil: hiçbir şey silinmedi. Gerekmiyorsa klasörü elle silin.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>%1 klasörünün adı %2 değil, bu yüzden içinde başka programların dosyaları olabilir: hiçbir şey silinmedi.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>İptal edildi: hiçbir şey silinmedi.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>Programın bir bölümü kaldırılmış olabilir.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>Program tüm kullanıcılar için yüklü. Kaldırmak için yönetici hakları gerekir: kaldırma programını yönetici olarak başlatın.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1 programın parçası değil ve taşınamıyor: hiçbir şey silinmedi. Onu kullanan programı kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 kaldırılsın mı?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1 burada yüklü değil</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>Program, kısayolları ve Windows kayıtları kaldırılır. Kendi dosyalarınız kalır.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>Program, kısayolları ve Windows kayıtları ile klasörün tamamı kaldırılır.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>Bu klasörde programa ait olduğu bilinen bir şey yok.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>%1 içinde programın bir kopyası var: %2 dosya. Bunlar silinebilir. Klasördeki diğer dosyalar ve kurulum kalır.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>A&amp;yarlarımı sil</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>Programa ait değil, klasörde kalır:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>Programa ait değil, klasörle birlikte silinir:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>%1 dosyayı &amp;sil</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>&amp;Yüklü olanı kaldır</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>Kaldırma şu anda durdurulamaz: dosyalar ve ayarlar kaldırılıyor. Bittiğinde pencereyi kapatın.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>Kullandığınız için teşekkür ederiz.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>%1 içinde kalanlar:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
</TS>
