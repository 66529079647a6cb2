<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;アプリケーションを再起動します。&lt;/b&gt;&lt;br&gt;続行しますか？</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>再起動(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>ヘルプ センター(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>よくある質問(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>サポートに問い合わせる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>プライバシー ポリシー(&amp;P)</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>すべてのリンク(&amp;L)...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>コミュニティ フォーラム(&amp;O)</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>ホームページ(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>バージョン情報(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>起動しています…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>記憶した回答をリセットしました。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>組織：</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>パートナー：</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>起動の種類：</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>初回起動からの日数：</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>ブランド：</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>ツール(&amp;S)</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>ブラウザー(&amp;B)</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>デスクトップの既定</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>カスタム カラー(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>記憶した回答をリセット(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>無断複写・転載を禁じます。</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>ホームページ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>今後表示しない</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>最新情報を受け取る</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>メール アドレスを登録すると、新機能やお得な情報をお届けします。</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>メール アドレスを登録すると、%1 の新機能やお得な情報をお届けします。</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>お名前</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>はい、最新情報や特別オファーをメールで受け取ります</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>メール アドレスを第三者と共有することはありません。&lt;a href=&quot;privacy&quot;&gt;プライバシー ポリシー&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>登録する</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前：</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>メール アドレス：</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>有効なメール アドレスを入力してください。</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag 画面テスター</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Nag を表示</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Nag のパスを設定</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>すべて再読み込み</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>再読み込み中: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Nag を開いた後、webconfig で SendNagHashEvent が有効で、Nag に hashName が指定されていればハッシュが表示されます</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Nag の置き換えに関する警告</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;注意:&lt;/b&gt; Nag アクション「%1」は現在&lt;b&gt;無効&lt;/b&gt;です。Nag は表示されません。</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Nag の置き換えエラー</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;エラー:&lt;/b&gt; Nag が壊れているようです。詳しくはログを確認してください。&lt;br&gt;&lt;br&gt;Nag アクション: %1&lt;br&gt;ファイル:&lt;br&gt;&lt;nobr&gt;「%2」&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>%1 の置き換えには現在対応していません。別の Nag を選んでもう一度お試しください。</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>main.qml ファイルを選択</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml ファイル (main.qml);;すべての QML ファイル (*.qml);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;利用不可&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>静的 Nag または Web Nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>いずれかのハッシュが空のため、距離を計算できません</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>Nag に hashSize が指定されていません</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>ハッシュを計算するには Nag に hashName を追加してください</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>匿名の使用統計を自動送信して、%1 ソフトウェアの改善にご協力ください</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>同意する</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>同意しない</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; アクセラレーションが NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; コントロール パネルで無効になっています。%1 で CUDA&amp;#8482; アクセラレーションを有効にするには、NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; コントロール パネルで優先するグラフィックス プロセッサとして&lt;b&gt;高パフォーマンス NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; プロセッサ&lt;/b&gt;を選択してください。&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;詳しい手順&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>現在インストールされているグラフィックス カード ドライバーは NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; アクセラレーションに対応していません。&lt;br&gt;&lt;br&gt;以前のバージョンの NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; グラフィックス カード ドライバーをインストールすると、CUDA&amp;#8482; アクセラレーションを有効にできます。インストール パッケージをダウンロードし、メーカーの手順に従ってドライバーをインストールしてください。&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;ドライバーをダウンロード&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>アクセス エラー。画像ファイルを開けません</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag 画面テスター(&amp;T)...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>設定テストのエラー</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>ダンプ ファイルを開けません: </translation>
    </message>
</context>
</TS>
