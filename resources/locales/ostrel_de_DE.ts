<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;Die Anwendung wird neu gestartet.&lt;/b&gt;&lt;br&gt;Möchten Sie fortfahren?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Neu starten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Hilfe-Center</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>Häufige &amp;Fragen</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Support kontaktieren</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Datenschutzerklärung</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Alle &amp;Links...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>C&amp;ommunity-Forum</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>Ho&amp;mepage</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Wird gestartet…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Die gespeicherten Antworten wurden zurückgesetzt.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organisation:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Partner:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Starttyp:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Tage seit dem ersten Start:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marke:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Desig&amp;n</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>E&amp;xtras</translation>
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
        <translation>Standard des Desktops</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Eigene Farben...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Gespeicherte Antworten zurücksetzen</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Homepage</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>In Kontakt bleiben</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Hinterlassen Sie Ihre E-Mail-Adresse, um von neuen Funktionen und Angeboten zu erfahren.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Hinterlassen Sie Ihre E-Mail-Adresse, um von neuen Funktionen und Angeboten von %1 zu erfahren.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Ihr Name</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Ja, senden Sie mir Neuigkeiten und Sonderangebote per E-Mail</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Wir geben Ihre Adresse niemals weiter. &lt;a href=&quot;privacy&quot;&gt;Datenschutzerklärung&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Abonnieren</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Bitte geben Sie eine gültige E-Mail-Adresse ein.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag-Screen-Tester</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Nag anzeigen</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Pfad zum Nag festlegen</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Alle neu laden</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Wird neu geladen: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Der Hash erscheint, sobald der Nag geöffnet wurde, SendNagHashEvent in der Webconfig aktiviert ist und hashName im Nag angegeben ist</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Warnung zur Nag-Ersetzung</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Hinweis:&lt;/b&gt; Die Nag-Aktion „%1“ ist derzeit &lt;b&gt;deaktiviert&lt;/b&gt;. Der Nag wird nicht angezeigt.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Fehler bei der Nag-Ersetzung</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Fehler:&lt;/b&gt; Der Nag scheint defekt zu sein, Einzelheiten stehen im Protokoll.&lt;br&gt;&lt;br&gt;Nag-Aktion: %1&lt;br&gt;Datei:&lt;br&gt;&lt;nobr&gt;„%2“&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>Das Ersetzen von %1 ist derzeit nicht möglich. Bitte wählen Sie einen anderen Nag und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>main.qml-Datei auswählen</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml-Datei (main.qml);;Beliebige QML-Datei (*.qml);;Beliebige Datei (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Nicht verfügbar&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>statischer oder Web-Nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>ein Hash ist leer, der Abstand lässt sich nicht berechnen</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>hashSize ist im Nag nicht angegeben</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>hashName im Nag angeben, um den Hash zu berechnen</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Helfen Sie, %1 zu verbessern, indem Sie automatisch anonyme Nutzungsstatistiken senden</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Zustimmen</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ablehnen</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>Die NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-Beschleunigung wurde in der NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Systemsteuerung deaktiviert. Um die CUDA&amp;#8482;-Beschleunigung für %1 zu aktivieren, wählen Sie in der NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Systemsteuerung &lt;b&gt;Hochleistungs-NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-Prozessor&lt;/b&gt; als bevorzugten Grafikprozessor.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Ausführliche Anleitung&lt;/a&gt;</numerusform>
            <numerusform>Die NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-Beschleunigung wurde in der NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Systemsteuerung deaktiviert. Um die CUDA&amp;#8482;-Beschleunigung für %1 zu aktivieren, wählen Sie in der NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Systemsteuerung &lt;b&gt;Hochleistungs-NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-Prozessor&lt;/b&gt; als bevorzugten Grafikprozessor.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Ausführliche Anleitung&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Leider unterstützt der installierte Grafikkartentreiber die NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-Beschleunigung nicht.&lt;br&gt;&lt;br&gt;Sie können eine ältere Version des NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-Grafikkartentreibers installieren, um die CUDA&amp;#8482;-Beschleunigung zu aktivieren. Laden Sie dazu einfach das Installationspaket herunter und installieren Sie den Treiber nach den Anweisungen des Herstellers.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Treiber herunterladen&lt;/a&gt;</numerusform>
            <numerusform>Leider unterstützt der installierte Grafikkartentreiber die NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;-Beschleunigung nicht.&lt;br&gt;&lt;br&gt;Sie können eine ältere Version des NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;-Grafikkartentreibers installieren, um die CUDA&amp;#8482;-Beschleunigung zu aktivieren. Laden Sie dazu einfach das Installationspaket herunter und installieren Sie den Treiber nach den Anweisungen des Herstellers.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Treiber herunterladen&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Zugriffsfehler. Die Bilddatei lässt sich nicht öffnen</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag-Screen-&amp;Tester...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Fehler beim Konfigurationstest</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Die Ausgabedatei lässt sich nicht öffnen: </translation>
    </message>
</context>
</TS>
