<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;Aplikacja zostanie uruchomiona ponownie.&lt;/b&gt;&lt;br&gt;Czy chcesz kontynuować?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Uruchom ponownie</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Centrum pomocy</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>Często zadawane &amp;pytania</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Kontakt z pomocą techniczną</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>Polityka p&amp;rywatności</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Wszystkie &amp;linki...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Linki</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtruj</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>&amp;Forum społeczności</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>&amp;Strona główna</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;O programie...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Uruchamianie…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
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
        <translation>Zapamiętane odpowiedzi zostały zresetowane.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organizacja:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Partner:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Typ uruchomienia:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Dni od pierwszego uruchomienia:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marka:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Motyw</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opcje</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>&amp;Narzędzia</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>Prze&amp;glądarka</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>Domyślna pulpitu</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Kolory niestandardowe...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Resetuj zapamiętane odpowiedzi</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>O programie %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Wszelkie prawa zastrzeżone.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Strona główna</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Nie pokazuj ponownie</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Bądźmy w kontakcie</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Zostaw swój adres e-mail, aby dowiadywać się o nowych funkcjach i ofertach.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Zostaw swój adres e-mail, aby dowiadywać się o nowych funkcjach i ofertach %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Twoje imię</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Tak, chcę otrzymywać e-mailem nowości i oferty specjalne</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Nigdy nie udostępniamy Twojego adresu. &lt;a href=&quot;privacy&quot;&gt;Polityka prywatności&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Subskrybuj</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Imię:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Wprowadź prawidłowy adres e-mail.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Tester okien nag</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Pokaż okno nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Ustaw ścieżkę okna nag</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Wczytaj wszystko ponownie</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Ponowne wczytywanie: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Skrót pojawi się po otwarciu okna nag, jeśli w webconfig włączono SendNagHashEvent, a w oknie nag podano hashName</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Ostrzeżenie o zastąpieniu okna nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Uwaga:&lt;/b&gt; akcja nag „%1” jest obecnie &lt;b&gt;wyłączona&lt;/b&gt;. Okno nag nie zostanie wyświetlone.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Błąd zastąpienia okna nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Błąd:&lt;/b&gt; okno nag wygląda na uszkodzone, szczegóły znajdziesz w dziennikach.&lt;br&gt;&lt;br&gt;Akcja nag: %1&lt;br&gt;Plik:&lt;br&gt;&lt;nobr&gt;„%2”&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>Zastępowanie %1 nie jest jeszcze dostępne. Wybierz inne okno nag i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>Wybierz plik main.qml</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>Plik main.qml (main.qml);;Dowolny plik QML (*.qml);;Dowolny plik (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Niedostępne&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>statyczne lub webowe okno nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>jeden ze skrótów jest pusty, nie można obliczyć odległości</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>w oknie nag nie podano hashSize</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>dodaj hashName do okna nag, aby obliczyć skrót</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Pomóż ulepszać oprogramowanie %1, automatycznie wysyłając anonimowe statystyki użycia</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Zgadzam się</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nie zgadzam się</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>Akceleracja NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; została wyłączona w Panelu sterowania NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Aby włączyć akcelerację CUDA&amp;#8482; dla %1, wybierz &lt;b&gt;Wysokowydajny procesor NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; jako preferowany procesor graficzny w Panelu sterowania NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Szczegółowe instrukcje&lt;/a&gt;</numerusform>
            <numerusform>Akceleracja NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; została wyłączona w Panelu sterowania NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Aby włączyć akcelerację CUDA&amp;#8482; dla %1, wybierz &lt;b&gt;Wysokowydajny procesor NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; jako preferowany procesor graficzny w Panelu sterowania NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Szczegółowe instrukcje&lt;/a&gt;</numerusform>
            <numerusform>Akceleracja NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; została wyłączona w Panelu sterowania NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Aby włączyć akcelerację CUDA&amp;#8482; dla %1, wybierz &lt;b&gt;Wysokowydajny procesor NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; jako preferowany procesor graficzny w Panelu sterowania NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Szczegółowe instrukcje&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Niestety zainstalowany sterownik karty graficznej nie obsługuje akceleracji NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Aby włączyć akcelerację CUDA&amp;#8482;, możesz zainstalować starszą wersję sterownika karty graficznej NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. W tym celu pobierz pakiet instalacyjny i zainstaluj sterownik zgodnie z instrukcjami producenta.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Pobierz sterownik&lt;/a&gt;</numerusform>
            <numerusform>Niestety zainstalowany sterownik karty graficznej nie obsługuje akceleracji NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Aby włączyć akcelerację CUDA&amp;#8482;, możesz zainstalować starszą wersję sterownika karty graficznej NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. W tym celu pobierz pakiet instalacyjny i zainstaluj sterownik zgodnie z instrukcjami producenta.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Pobierz sterownik&lt;/a&gt;</numerusform>
            <numerusform>Niestety zainstalowany sterownik karty graficznej nie obsługuje akceleracji NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Aby włączyć akcelerację CUDA&amp;#8482;, możesz zainstalować starszą wersję sterownika karty graficznej NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. W tym celu pobierz pakiet instalacyjny i zainstaluj sterownik zgodnie z instrukcjami producenta.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Pobierz sterownik&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Błąd dostępu. Nie można otworzyć pliku obrazu</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>&amp;Tester okien nag...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Błąd testu konfiguracji</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Nie można otworzyć pliku zrzutu: </translation>
    </message>
</context>
</TS>
