<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;应用程序将重新启动。&lt;/b&gt;&lt;br&gt;是否继续？</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>重新启动(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>帮助中心(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>常见问题(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>联系技术支持(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>隐私政策(&amp;P)</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>所有链接(&amp;L)...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>社区论坛(&amp;O)</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>主页(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>关于(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>正在启动…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>已重置记住的回答。</translation>
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
        <translation>组织：</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>合作伙伴：</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>启动类型：</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>首次启动后的天数：</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>品牌：</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
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
        <translation>浏览器(&amp;B)</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>桌面默认</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>自定义颜色(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>重置已记住的回答(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
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
        <translation>保留所有权利。</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>不再显示</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>保持联系</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>留下您的电子邮件地址，及时了解新功能和优惠信息。</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>留下您的电子邮件地址，及时了解 %1 的新功能和优惠信息。</translation>
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
        <translation>是的，请通过电子邮件向我发送新闻和特别优惠</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>我们绝不会分享您的地址。&lt;a href=&quot;privacy&quot;&gt;隐私政策&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>订阅</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>姓名：</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>电子邮件：</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>请输入有效的电子邮件地址。</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag 窗口测试器</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>显示 Nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>设置 Nag 路径</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>全部重新加载</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>正在重新加载：%v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>打开 Nag 后，如果 webconfig 中启用了 SendNagHashEvent 且 Nag 中指定了 hashName，就会显示哈希值</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Nag 覆盖警告</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;注意：&lt;/b&gt;Nag 操作“%1”当前已&lt;b&gt;禁用&lt;/b&gt;。不会显示 Nag。</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Nag 覆盖错误</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;错误：&lt;/b&gt;Nag 似乎已损坏，详情请查看日志。&lt;br&gt;&lt;br&gt;Nag 操作：%1&lt;br&gt;文件：&lt;br&gt;&lt;nobr&gt;“%2”&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>暂不支持覆盖 %1，请选择其他 Nag 后重试。</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>选择 main.qml 文件</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml 文件 (main.qml);;任意 QML 文件 (*.qml);;任意文件 (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;不可用&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>静态或网页 Nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>某个哈希值为空，无法计算距离</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>Nag 中未指定 hashSize</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>在 Nag 中添加 hashName 以计算哈希值</translation>
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
        <translation>自动发送匿名使用统计信息，帮助改进 %1 软件</translation>
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
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; 加速已在 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 控制面板中被禁用。要为 %1 启用 CUDA&amp;#8482; 加速，请在 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 控制面板中将&lt;b&gt;高性能 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 处理器&lt;/b&gt;选为首选图形处理器。&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;详细说明&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>很抱歉，当前安装的显卡驱动程序不支持 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; 加速。&lt;br&gt;&lt;br&gt;您可以安装较早版本的 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 显卡驱动程序来启用 CUDA&amp;#8482; 加速。只需下载安装包，并按照制造商的说明安装驱动程序即可。&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;下载驱动程序&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>访问错误。无法打开图片文件</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag 窗口测试器(&amp;T)...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>配置测试错误</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>无法打开转储文件：</translation>
    </message>
</context>
</TS>
