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
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don't show this again</source>
        <translation>Больше не показывать</translation>
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
    <message>
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href="%2" style="%3"&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>Ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; отключено в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Чтобы включить ускорение CUDA&amp;#8482; для %1, выберите &lt;b&gt;Высокопроизводительный процессор NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;&lt;/b&gt; в качестве предпочитаемого графического процессора в панели управления NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href="%2" style="%3"&gt;Подробные инструкции&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer's instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href="%1" style="%2"&gt;Download Driver&lt;/a&gt;</source>
        <translation>К сожалению, установленный драйвер видеокарты не поддерживает ускорение NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Чтобы включить ускорение CUDA&amp;#8482;, можно установить более раннюю версию драйвера видеокарты NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Для этого загрузите установочный пакет и установите драйвер, следуя инструкциям производителя.&lt;br&gt;&lt;br&gt;&lt;a href="%1" style="%2"&gt;Скачать драйвер&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
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
        <source>Custom colours...</source>
        <translation>Свои цвета...</translation>
    </message>
    <message>
        <source>Reset remembered answers</source>
        <translation>Сбросить запомненные ответы</translation>
    </message>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Запомненные ответы сброшены.</translation>
    </message>
</context>
</TS>
