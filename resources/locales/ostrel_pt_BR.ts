<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;O aplicativo será reiniciado.&lt;/b&gt;&lt;br&gt;Deseja continuar?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Reiniciar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Central de ajuda</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Perguntas frequentes</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>&amp;Fale com o suporte</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>Política de p&amp;rivacidade</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Todos os &amp;links...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>F&amp;órum da comunidade</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>Página &amp;inicial</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Sobre...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Iniciando…</translation>
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
        <translation>Endereço</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>As respostas lembradas foram redefinidas.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organização:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Parceiro:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Tipo de inicialização:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Dias desde a primeira inicialização:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marca:</translation>
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
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>&amp;Ferramentas</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>&amp;Navegador</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>Padrão da área de trabalho</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Cores personalizadas...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Redefinir respostas lembradas</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Página inicial</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Não mostrar novamente</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Fique por dentro</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Deixe seu endereço de e-mail para saber de novos recursos e ofertas.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Deixe seu endereço de e-mail para saber de novos recursos e ofertas de %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Seu nome</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Sim, quero receber novidades e ofertas especiais por e-mail</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Nunca compartilhamos seu endereço. &lt;a href=&quot;privacy&quot;&gt;Política de privacidade&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Inscrever-se</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
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
        <translation>Digite um endereço de e-mail válido.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Testador de nags</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Mostrar nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Definir caminho do nag</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Recarregar tudo</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Recarregando: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>O hash aparecerá após abrir o nag se SendNagHashEvent estiver ativado na webconfig e hashName estiver definido no nag</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Aviso de substituição do nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Observação:&lt;/b&gt; a ação de nag &quot;%1&quot; está &lt;b&gt;desativada&lt;/b&gt; no momento. O nag não será exibido.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Erro de substituição do nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Erro:&lt;/b&gt; parece que o nag está com defeito; consulte os logs para mais detalhes.&lt;br&gt;&lt;br&gt;Ação de nag: %1&lt;br&gt;Arquivo:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>A substituição de %1 ainda não está disponível. Escolha outro nag e tente novamente.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>Escolher arquivo main.qml</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>Arquivo main.qml (main.qml);;Qualquer arquivo QML (*.qml);;Qualquer arquivo (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Indisponível&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>nag estático ou web</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>algum hash está vazio, não é possível calcular a distância</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>hashSize não está definido no nag</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>adicione hashName ao nag para calcular o hash</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Ajude a melhorar o software %1 enviando automaticamente estatísticas de uso anônimas</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Concordo</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Não concordo</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>A aceleração NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; foi desativada no Painel de Controle NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Para ativar a aceleração CUDA&amp;#8482; para %1, selecione &lt;b&gt;Processador NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; de alto desempenho&lt;/b&gt; como processador gráfico preferencial no Painel de Controle NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Instruções detalhadas&lt;/a&gt;</numerusform>
            <numerusform>A aceleração NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; foi desativada no Painel de Controle NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Para ativar a aceleração CUDA&amp;#8482; para %1, selecione &lt;b&gt;Processador NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; de alto desempenho&lt;/b&gt; como processador gráfico preferencial no Painel de Controle NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Instruções detalhadas&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Infelizmente, o driver da placa de vídeo instalado não oferece suporte à aceleração NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Você pode instalar uma versão anterior do driver da placa de vídeo NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; para ativar a aceleração CUDA&amp;#8482;. Para isso, basta baixar o pacote de instalação e seguir as instruções do fabricante para instalar o driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Baixar driver&lt;/a&gt;</numerusform>
            <numerusform>Infelizmente, o driver da placa de vídeo instalado não oferece suporte à aceleração NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Você pode instalar uma versão anterior do driver da placa de vídeo NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; para ativar a aceleração CUDA&amp;#8482;. Para isso, basta baixar o pacote de instalação e seguir as instruções do fabricante para instalar o driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Baixar driver&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Erro de acesso. Não é possível abrir o arquivo de imagem</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>&amp;Testador de nags...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Erro no teste de configuração</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Não é possível abrir o arquivo de despejo: </translation>
    </message>
</context>
</TS>
