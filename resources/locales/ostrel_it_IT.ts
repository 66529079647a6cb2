<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;L&apos;applicazione verrà riavviata.&lt;/b&gt;&lt;br&gt;Continuare?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Riavvia</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Centro assistenza</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Domande frequenti</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>C&amp;ontatta l&apos;assistenza</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Informativa sulla privacy</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Tutti i &amp;link...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtra</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>&amp;Forum della community</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>Sito &amp;web</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>I&amp;nformazioni...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Avvio in corso…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Le risposte memorizzate sono state reimpostate.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organizzazione:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Partner:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Tipo di avvio:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Giorni dal primo avvio:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marchio:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>St&amp;rumenti</translation>
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
        <translation>Predefinito del desktop</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Colori personalizzati...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Reimposta le risposte memorizzate</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Home page</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Non mostrare più</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Restiamo in contatto</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Lascia il tuo indirizzo e-mail per ricevere notizie su nuove funzioni e offerte.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Lascia il tuo indirizzo e-mail per ricevere notizie su nuove funzioni e offerte di %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Il tuo nome</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Sì, inviatemi novità e offerte speciali via e-mail</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Non condividiamo mai il tuo indirizzo. &lt;a href=&quot;privacy&quot;&gt;Informativa sulla privacy&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Iscriviti</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Inserisci un indirizzo e-mail valido.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Tester dei nag</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Mostra nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Imposta percorso del nag</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Ricarica tutto</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Ricaricamento: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>L&apos;hash apparirà all&apos;apertura del nag se SendNagHashEvent è attivo nella webconfig e hashName è indicato nel nag</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Avviso di sostituzione del nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Nota:&lt;/b&gt; l&apos;azione nag «%1» è attualmente &lt;b&gt;disattivata&lt;/b&gt;. Il nag non verrà mostrato.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Errore di sostituzione del nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Errore:&lt;/b&gt; sembra che il nag sia danneggiato, consulta i log per i dettagli.&lt;br&gt;&lt;br&gt;Azione nag: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;«%2»&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>La sostituzione di %1 non è ancora disponibile. Scegli un altro nag e riprova.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>Scegli il file main.qml</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>File main.qml (main.qml);;Qualsiasi file QML (*.qml);;Qualsiasi file (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Non disponibile&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>nag statico o web</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>un hash è vuoto, impossibile calcolare la distanza</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>hashSize non è indicato nel nag</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>aggiungi hashName al nag per calcolare l&apos;hash</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Aiuta a migliorare il software %1 inviando automaticamente statistiche d&apos;uso anonime</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Accetto</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Non accetto</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>L&apos;accelerazione NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; è stata disattivata nel Pannello di controllo NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Per attivare l&apos;accelerazione CUDA&amp;#8482; per %1, selezionare &lt;b&gt;Processore NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; ad alte prestazioni&lt;/b&gt; come processore grafico preferito nel Pannello di controllo NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Istruzioni dettagliate&lt;/a&gt;</numerusform>
            <numerusform>L&apos;accelerazione NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; è stata disattivata nel Pannello di controllo NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Per attivare l&apos;accelerazione CUDA&amp;#8482; per %1, selezionare &lt;b&gt;Processore NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; ad alte prestazioni&lt;/b&gt; come processore grafico preferito nel Pannello di controllo NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Istruzioni dettagliate&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Purtroppo il driver della scheda grafica attualmente installato non supporta l&apos;accelerazione NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Per attivare l&apos;accelerazione CUDA&amp;#8482; è possibile installare una versione precedente del driver della scheda grafica NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Basta scaricare il pacchetto di installazione e seguire le istruzioni del produttore per installare il driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Scarica il driver&lt;/a&gt;</numerusform>
            <numerusform>Purtroppo il driver della scheda grafica attualmente installato non supporta l&apos;accelerazione NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Per attivare l&apos;accelerazione CUDA&amp;#8482; è possibile installare una versione precedente del driver della scheda grafica NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Basta scaricare il pacchetto di installazione e seguire le istruzioni del produttore per installare il driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Scarica il driver&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Errore di accesso. Impossibile aprire il file immagine</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>&amp;Tester dei nag...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Errore del test di configurazione</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Impossibile aprire il file di dump: </translation>
    </message>
</context>
</TS>
