<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Let op</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;De toepassing wordt opnieuw gestart.&lt;/b&gt;&lt;br&gt;Wilt u doorgaan?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>Opnieuw &amp;starten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Helpcentrum</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Veelgestelde vragen</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Contact met support</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Privacybeleid</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Alle &amp;links...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filteren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>Community&amp;forum</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>&amp;Startpagina</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Over...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Bezig met starten…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
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
        <translation>Onthouden antwoorden zijn gewist.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organisatie:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Partner:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Starttype:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Dagen sinds eerste start:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Merk:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Th&amp;ema</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opties</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>E&amp;xtra</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>&amp;Browser</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>Standaard van het bureaublad</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Eigen kleuren...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Onthouden antwoorden wissen</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>Over %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Alle rechten voorbehouden.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Startpagina</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Niet meer weergeven</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Blijf op de hoogte</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Laat uw e-mailadres achter om op de hoogte te blijven van nieuwe functies en aanbiedingen.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Laat uw e-mailadres achter om op de hoogte te blijven van nieuwe functies en aanbiedingen van %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Uw naam</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Ja, stuur mij nieuws en speciale aanbiedingen per e-mail</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>We delen uw adres nooit met anderen. &lt;a href=&quot;privacy&quot;&gt;Privacybeleid&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Niet nu</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Voer een geldig e-mailadres in.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag-schermtester</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Nag tonen</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Pad naar nag instellen</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Alles herladen</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Herladen: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>De hash verschijnt na het openen van de nag als SendNagHashEvent in de webconfig is ingeschakeld en hashName in de nag is opgegeven</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Waarschuwing nag-vervanging</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Let op:&lt;/b&gt; nag-actie &quot;%1&quot; is momenteel &lt;b&gt;uitgeschakeld&lt;/b&gt;. De nag wordt niet weergegeven.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Fout bij nag-vervanging</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Fout:&lt;/b&gt; de nag lijkt beschadigd te zijn; zie de logboeken voor details.&lt;br&gt;&lt;br&gt;Nag-actie: %1&lt;br&gt;Bestand:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>Het vervangen van %1 is nog niet mogelijk. Kies een andere nag en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>main.qml-bestand kiezen</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml-bestand (main.qml);;Elk QML-bestand (*.qml);;Elk bestand (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Niet beschikbaar&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>statische of web-nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>een van de hashes is leeg, de afstand kan niet worden berekend</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>hashSize is niet opgegeven in de nag</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>voeg hashName toe aan de nag om de hash te berekenen</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Let op</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Help %1-software te verbeteren door automatisch anonieme gebruiksstatistieken te verzenden</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Akkoord</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Niet akkoord</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-versnelling is uitgeschakeld in het NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Configuratiescherm. Als u CUDA&amp;#8482;-versnelling voor %1 wilt inschakelen, selecteert u in het NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Configuratiescherm &lt;b&gt;Krachtige NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-processor&lt;/b&gt; als voorkeursprocessor voor graphics.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Uitgebreide instructies&lt;/a&gt;</numerusform>
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-versnelling is uitgeschakeld in het NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Configuratiescherm. Als u CUDA&amp;#8482;-versnelling voor %1 wilt inschakelen, selecteert u in het NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Configuratiescherm &lt;b&gt;Krachtige NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-processor&lt;/b&gt; als voorkeursprocessor voor graphics.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Uitgebreide instructies&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Helaas ondersteunt het geïnstalleerde stuurprogramma van de grafische kaart geen NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-versnelling.&lt;br&gt;&lt;br&gt;U kunt een eerdere versie van het NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-stuurprogramma voor de grafische kaart installeren om CUDA&amp;#8482;-versnelling in te schakelen. Download daarvoor het installatiepakket en volg de instructies van de fabrikant om het stuurprogramma te installeren.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Stuurprogramma downloaden&lt;/a&gt;</numerusform>
            <numerusform>Helaas ondersteunt het geïnstalleerde stuurprogramma van de grafische kaart geen NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-versnelling.&lt;br&gt;&lt;br&gt;U kunt een eerdere versie van het NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-stuurprogramma voor de grafische kaart installeren om CUDA&amp;#8482;-versnelling in te schakelen. Download daarvoor het installatiepakket en volg de instructies van de fabrikant om het stuurprogramma te installeren.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Stuurprogramma downloaden&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Toegangsfout. Kan het afbeeldingsbestand niet openen</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag-scherm&amp;tester...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Fout bij configuratietest</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Kan dumpbestand niet openen: </translation>
    </message>
</context>
</TS>
