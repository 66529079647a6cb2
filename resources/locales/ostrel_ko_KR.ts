<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>주의</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;애플리케이션을 다시 시작합니다.&lt;/b&gt;&lt;br&gt;계속하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>다시 시작(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>도움말 센터(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>자주 묻는 질문(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>지원팀에 문의(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>개인정보 처리방침(&amp;P)</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>모든 링크(&amp;L)...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>커뮤니티 포럼(&amp;O)</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>홈페이지(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>정보(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>시작하는 중…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>저장된 응답을 초기화했습니다.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>조직:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>파트너:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>실행 유형:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>첫 실행 후 경과일:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>브랜드:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>테마(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>옵션(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>도구(&amp;S)</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>브라우저(&amp;B)</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>데스크톱 기본값</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>사용자 지정 색(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>저장된 응답 초기화(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>%1 정보</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>모든 권리 보유.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>홈페이지</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>다시 표시하지 않음</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>소식 받기</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>이메일 주소를 남겨 주시면 새로운 기능과 혜택 소식을 보내 드립니다.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>이메일 주소를 남겨 주시면 %1의 새로운 기능과 혜택 소식을 보내 드립니다.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>예, 새 소식과 특별 혜택을 이메일로 받겠습니다</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>이메일 주소는 절대 공유하지 않습니다. &lt;a href=&quot;privacy&quot;&gt;개인정보 처리방침&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>구독</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>이메일:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>올바른 이메일 주소를 입력하세요.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Nag 화면 테스터</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Nag 표시</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Nag 경로 설정</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>모두 다시 로드</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>다시 로드하는 중: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Nag를 연 후 webconfig에서 SendNagHashEvent가 사용 설정되어 있고 Nag에 hashName이 지정되어 있으면 해시가 표시됩니다</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Nag 재정의 경고</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;참고:&lt;/b&gt; Nag 작업 &quot;%1&quot;이(가) 현재 &lt;b&gt;사용 중지&lt;/b&gt;되어 있습니다. Nag가 표시되지 않습니다.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Nag 재정의 오류</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;오류:&lt;/b&gt; Nag가 손상된 것 같습니다. 자세한 내용은 로그를 확인하세요.&lt;br&gt;&lt;br&gt;Nag 작업: %1&lt;br&gt;파일:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>%1 재정의는 아직 지원되지 않습니다. 다른 Nag를 선택한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>main.qml 파일 선택</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>main.qml 파일 (main.qml);;모든 QML 파일 (*.qml);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;사용할 수 없음&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>정적 Nag 또는 웹 Nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>해시 중 하나가 비어 있어 거리를 계산할 수 없습니다</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>Nag에 hashSize가 지정되어 있지 않습니다</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>해시를 계산하려면 Nag에 hashName을 추가하세요</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>주의</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>익명 사용 통계를 자동으로 보내 %1 소프트웨어 개선에 참여해 주세요</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>동의</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>동의 안 함</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 제어판에서 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; 가속이 비활성화되어 있습니다. %1에서 CUDA&amp;#8482; 가속을 사용하려면 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 제어판에서 기본 그래픽 프로세서로 &lt;b&gt;고성능 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 프로세서&lt;/b&gt;를 선택하세요.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;자세한 안내&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>현재 설치된 그래픽 카드 드라이버는 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; 가속을 지원하지 않습니다.&lt;br&gt;&lt;br&gt;이전 버전의 NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; 그래픽 카드 드라이버를 설치하면 CUDA&amp;#8482; 가속을 사용할 수 있습니다. 설치 패키지를 다운로드한 다음 제조업체의 안내에 따라 드라이버를 설치하세요.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;드라이버 다운로드&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>액세스 오류입니다. 이미지 파일을 열 수 없습니다</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>Nag 화면 테스터(&amp;T)...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>구성 테스트 오류</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>덤프 파일을 열 수 없습니다: </translation>
    </message>
</context>
</TS>
