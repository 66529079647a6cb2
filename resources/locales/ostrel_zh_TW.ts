<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;應用程式將重新啟動。&lt;/b&gt;&lt;br&gt;是否繼續？</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>重新啟動(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>說明中心(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>常見問題(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>聯絡技術支援(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>隱私權政策(&amp;P)</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>所有連結(&amp;L)...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>社群論壇(&amp;O)</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>首頁(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>關於(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>正在啟動…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>已重設記住的回答。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>組織：</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>合作夥伴：</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>啟動類型：</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>首次啟動後的天數：</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>品牌：</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>佈景主題(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>選項(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>工具(&amp;S)</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>瀏覽器(&amp;B)</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>桌面預設</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>自訂色彩(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>重設已記住的回答(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>關於 %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>保留所有權利。</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>首頁</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>不再顯示</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>保持聯繫</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>留下您的電子郵件地址，即時掌握新功能與優惠資訊。</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>留下您的電子郵件地址，即時掌握 %1 的新功能與優惠資訊。</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>您的姓名</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>是的，請透過電子郵件寄送最新消息和特別優惠給我</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>我們絕不會分享您的地址。&lt;a href=&quot;privacy&quot;&gt;隱私權政策&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>訂閱</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>以後再說</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>姓名：</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>電子郵件：</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>請輸入有效的電子郵件地址。</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag 視窗測試器</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>顯示 Nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>設定 Nag 路徑</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>全部重新載入</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>正在重新載入：%v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>開啟 Nag 後，若 webconfig 中已啟用 SendNagHashEvent 且 Nag 中指定了 hashName，就會顯示雜湊值</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Nag 覆寫警告</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;注意：&lt;/b&gt;Nag 動作「%1」目前已&lt;b&gt;停用&lt;/b&gt;。不會顯示 Nag。</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Nag 覆寫錯誤</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;錯誤：&lt;/b&gt;Nag 似乎已損壞，詳情請查看記錄檔。&lt;br&gt;&lt;br&gt;Nag 動作：%1&lt;br&gt;檔案：&lt;br&gt;&lt;nobr&gt;「%2」&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>暫不支援覆寫 %1，請選擇其他 Nag 後再試一次。</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>選擇 main.qml 檔案</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml 檔案 (main.qml);;任何 QML 檔案 (*.qml);;任何檔案 (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;無法使用&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>靜態或網頁 Nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>某個雜湊值為空，無法計算距離</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>Nag 中未指定 hashSize</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>在 Nag 中加入 hashName 以計算雜湊值</translation>
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
        <translation>自動傳送匿名使用統計資料，協助改善 %1 軟體</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>同意</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>不同意</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; 加速已在 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 控制台中停用。若要為 %1 啟用 CUDA&amp;#8482; 加速，請在 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 控制台中將&lt;b&gt;高效能 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 處理器&lt;/b&gt;選為慣用的圖形處理器。&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;詳細說明&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>很抱歉，目前安裝的顯示卡驅動程式不支援 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; 加速。&lt;br&gt;&lt;br&gt;您可以安裝較舊版本的 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 顯示卡驅動程式來啟用 CUDA&amp;#8482; 加速。只要下載安裝套件，並依照製造商的說明安裝驅動程式即可。&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;下載驅動程式&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>存取錯誤。無法開啟圖片檔案</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag 視窗測試器(&amp;T)...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>設定測試錯誤</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>無法開啟傾印檔案：</translation>
    </message>
</context>
</TS>
