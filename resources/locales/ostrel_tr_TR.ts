<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Dikkat</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;Uygulama yeniden başlatılacak.&lt;/b&gt;&lt;br&gt;Devam etmek istiyor musunuz?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Yeniden Başlat</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Çı&amp;kış</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Yardım Merkezi</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Sık Sorulan Sorular</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Destek ile İletişim</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Gizlilik Politikası</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Tüm &amp;bağlantılar...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Bağlantılar</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrele</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>&amp;Topluluk Forumu</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>&amp;Ana Sayfa</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Hakkında...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Başlatılıyor…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Hatırlanan yanıtlar sıfırlandı.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Kuruluş:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>İş ortağı:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Başlatma türü:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>İlk başlatmadan bu yana geçen gün:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marka:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>D&amp;il</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Seçenekler</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>&amp;Araçlar</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>&amp;Tarayıcı</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>Masaüstü varsayılanı</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Özel renkler...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Hatırlanan yanıtları sıfırla</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>%1 hakkında</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Tüm hakları saklıdır.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Ana sayfa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Bir daha gösterme</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>İletişimde kalalım</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Yeni özelliklerden ve fırsatlardan haberdar olmak için e-posta adresinizi bırakın.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>%1 yeniliklerinden ve fırsatlarından haberdar olmak için e-posta adresinizi bırakın.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Adınız</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Evet, bana e-postayla haberler ve özel teklifler gönderin</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Adresinizi asla kimseyle paylaşmayız. &lt;a href=&quot;privacy&quot;&gt;Gizlilik politikası&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Abone ol</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Şimdi değil</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-posta:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Lütfen geçerli bir e-posta adresi girin.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag ekranı test aracı</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Nag&apos;i göster</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Nag yolunu ayarla</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Tümünü yeniden yükle</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Yeniden yükleniyor: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Hash, nag açıldıktan sonra webconfig&apos;de SendNagHashEvent etkinse ve nag&apos;de hashName belirtilmişse görünür</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Nag geçersiz kılma uyarısı</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Not:&lt;/b&gt; &quot;%1&quot; nag eylemi şu anda &lt;b&gt;devre dışı&lt;/b&gt;. Nag gösterilmeyecek.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Nag geçersiz kılma hatası</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Hata:&lt;/b&gt; Nag bozuk görünüyor, ayrıntılar için günlüklere bakın.&lt;br&gt;&lt;br&gt;Nag eylemi: %1&lt;br&gt;Dosya:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>%1 için geçersiz kılma henüz desteklenmiyor. Lütfen başka bir nag seçip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>main.qml dosyasını seçin</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml dosyası (main.qml);;Herhangi bir QML dosyası (*.qml);;Herhangi bir dosya (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Kullanılamıyor&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>statik veya web nag&apos;i</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>hash&apos;lerden biri boş, uzaklık hesaplanamıyor</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>nag&apos;de hashSize belirtilmemiş</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>hash&apos;i hesaplamak için nag&apos;e hashName ekleyin</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Dikkat</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Anonim kullanım istatistiklerini otomatik olarak göndererek %1 yazılımının gelişmesine yardımcı olun</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Kabul ediyorum</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Kabul etmiyorum</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; hızlandırması NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Denetim Masası&apos;nda devre dışı bırakıldı. %1 için CUDA&amp;#8482; hızlandırmasını etkinleştirmek üzere NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Denetim Masası&apos;nda tercih edilen grafik işlemcisi olarak &lt;b&gt;Yüksek performanslı NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; işlemci&lt;/b&gt; seçeneğini belirleyin.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Ayrıntılı talimatlar&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Ne yazık ki yüklü ekran kartı sürücüsü NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; hızlandırmasını desteklemiyor.&lt;br&gt;&lt;br&gt;CUDA&amp;#8482; hızlandırmasını etkinleştirmek için NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; ekran kartı sürücüsünün daha eski bir sürümünü yükleyebilirsiniz. Bunun için yükleme paketini indirin ve sürücüyü üreticinin talimatlarına göre yükleyin.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Sürücüyü indir&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Erişim hatası. Resim dosyası açılamıyor</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag ekranı &amp;test aracı...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Yapılandırma testi hatası</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Döküm dosyası açılamıyor: </translation>
    </message>
</context>
</TS>
