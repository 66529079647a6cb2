<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;Приложение будет перезапущено.&lt;/b&gt;&lt;br&gt;Продолжить?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Перезапустить</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Справочный центр</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Часто задаваемые вопросы</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>Связаться с &amp;поддержкой</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>П&amp;олитика конфиденциальности</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>&amp;Все ссылки...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Ссылки</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>&amp;Форум сообщества</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>&amp;Домашняя страница</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>О п&amp;рограмме...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Запуск…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Запомненные ответы сброшены.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Организация:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Партнёр:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Тип запуска:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Дней с первого запуска:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Бренд:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Тема</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Параметры</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>С&amp;ервис</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>&amp;Браузер</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>По умолчанию в системе</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Свои цвета...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>Сб&amp;росить запомненные ответы</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Все права защищены.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Домашняя страница</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Больше не показывать</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Оставайтесь на связи</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Оставьте свой адрес электронной почты, чтобы узнавать о новых функциях и предложениях.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Оставьте свой адрес электронной почты, чтобы узнавать о новых функциях и предложениях %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Ваше имя</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Да, присылайте мне новости и специальные предложения по электронной почте</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Мы никому не передаём ваш адрес. &lt;a href=&quot;privacy&quot;&gt;Политика конфиденциальности&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Подписаться</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Эл. почта:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Введите правильный адрес электронной почты.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Тестер nag-окон</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Показать nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Указать путь к nag</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Перезагрузить все</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Перезагрузка: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Хеш появится после открытия nag, если в webconfig включён SendNagHashEvent, а в nag указан hashName</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Предупреждение о замене nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Примечание:&lt;/b&gt; действие nag «%1» сейчас &lt;b&gt;отключено&lt;/b&gt;. Nag не будет показан.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Ошибка замены nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Ошибка:&lt;/b&gt; похоже, nag повреждён, подробности в журнале.&lt;br&gt;&lt;br&gt;Действие nag: %1&lt;br&gt;Файл:&lt;br&gt;&lt;nobr&gt;«%2»&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>Замена %1 пока не поддерживается. Выберите другой nag и повторите попытку.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>Выберите файл main.qml</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>Файл main.qml (main.qml);;Любой файл QML (*.qml);;Любой файл (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Недоступен&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>статический или веб-nag</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>один из хешей пуст, вычислить расстояние невозможно</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>в nag не указан hashSize</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>добавьте hashName в nag, чтобы вычислить хеш</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Помогите улучшить %1, автоматически отправляя анонимную статистику использования</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Согласен</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Не согласен</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>Ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; отключено в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Чтобы включить ускорение CUDA&amp;#8482; для %1, выберите &lt;b&gt;Высокопроизводительный процессор NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; в качестве предпочитаемого графического процессора в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Подробные инструкции&lt;/a&gt;</numerusform>
            <numerusform>Ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; отключено в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Чтобы включить ускорение CUDA&amp;#8482; для %1, выберите &lt;b&gt;Высокопроизводительный процессор NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; в качестве предпочитаемого графического процессора в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Подробные инструкции&lt;/a&gt;</numerusform>
            <numerusform>Ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; отключено в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Чтобы включить ускорение CUDA&amp;#8482; для %1, выберите &lt;b&gt;Высокопроизводительный процессор NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; в качестве предпочитаемого графического процессора в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Подробные инструкции&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>К сожалению, установленный драйвер видеокарты не поддерживает ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Чтобы включить ускорение CUDA&amp;#8482;, можно установить более раннюю версию драйвера видеокарты NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Для этого загрузите установочный пакет и установите драйвер, следуя инструкциям производителя.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Скачать драйвер&lt;/a&gt;</numerusform>
            <numerusform>К сожалению, установленный драйвер видеокарты не поддерживает ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Чтобы включить ускорение CUDA&amp;#8482;, можно установить более раннюю версию драйвера видеокарты NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Для этого загрузите установочный пакет и установите драйвер, следуя инструкциям производителя.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Скачать драйвер&lt;/a&gt;</numerusform>
            <numerusform>К сожалению, установленный драйвер видеокарты не поддерживает ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Чтобы включить ускорение CUDA&amp;#8482;, можно установить более раннюю версию драйвера видеокарты NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Для этого загрузите установочный пакет и установите драйвер, следуя инструкциям производителя.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Скачать драйвер&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Ошибка доступа. Не удаётся открыть файл изображения</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>&amp;Тестер nag-окон...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Ошибка проверки конфигурации</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Не удаётся открыть файл для выгрузки: </translation>
    </message>
</context>
</TS>
