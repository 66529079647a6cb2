<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;La aplicación se reiniciará.&lt;/b&gt;&lt;br&gt;¿Desea continuar?</translation>
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
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Centro de ayuda</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Preguntas frecuentes</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>C&amp;ontactar con soporte</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>Política de pri&amp;vacidad</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Todos los &amp;enlaces...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>&amp;Foro de la comunidad</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>Página &amp;web</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Acerca de...</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Se restablecieron las respuestas recordadas.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organización:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Socio:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Tipo de inicio:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Días desde el primer inicio:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marca:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
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
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>&amp;Herramientas</translation>
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
        <translation>Predeterminado del escritorio</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Colores personalizados...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Restablecer respuestas recordadas</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Página de inicio</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>No volver a mostrar</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Mantengámonos en contacto</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Deje su dirección de correo electrónico para recibir novedades y ofertas.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Deje su dirección de correo electrónico para recibir novedades y ofertas de %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Su nombre</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Sí, quiero recibir novedades y ofertas especiales por correo electrónico</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Nunca compartimos su dirección. &lt;a href=&quot;privacy&quot;&gt;Política de privacidad&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Suscribirse</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo electrónico:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Introduzca una dirección de correo electrónico válida.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Probador de nags</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Mostrar nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Definir ruta del nag</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Recargar todo</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Recargando: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>El hash aparecerá al abrir el nag si SendNagHashEvent está activado en la webconfig y hashName está indicado en el nag</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Advertencia de sustitución del nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Nota:&lt;/b&gt; La acción de nag «%1» está &lt;b&gt;desactivada&lt;/b&gt;. El nag no se mostrará.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Error de sustitución del nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Error:&lt;/b&gt; Parece que el nag está dañado; consulte los registros para más detalles.&lt;br&gt;&lt;br&gt;Acción de nag: %1&lt;br&gt;Archivo:&lt;br&gt;&lt;nobr&gt;«%2»&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>Todavía no es posible sustituir %1. Elija otro nag e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>Elegir el archivo main.qml</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>Archivo main.qml (main.qml);;Cualquier archivo QML (*.qml);;Cualquier archivo (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;No disponible&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>nag estático o web</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>algún hash está vacío, no se puede calcular la distancia</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>hashSize no está indicado en el nag</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>añada hashName al nag para calcular el hash</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Ayude a mejorar el software de %1 enviando automáticamente estadísticas de uso anónimas</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Rechazar</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>La aceleración NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; se ha desactivado en el Panel de control de NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Para activar la aceleración CUDA&amp;#8482; en %1, seleccione &lt;b&gt;Procesador NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; de alto rendimiento&lt;/b&gt; como procesador de gráficos preferido en el Panel de control de NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Instrucciones detalladas&lt;/a&gt;</numerusform>
            <numerusform>La aceleración NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; se ha desactivado en el Panel de control de NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Para activar la aceleración CUDA&amp;#8482; en %1, seleccione &lt;b&gt;Procesador NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; de alto rendimiento&lt;/b&gt; como procesador de gráficos preferido en el Panel de control de NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Instrucciones detalladas&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Lamentablemente, el controlador de la tarjeta gráfica instalado no admite la aceleración NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Puede instalar una versión anterior del controlador de la tarjeta gráfica NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; para activar la aceleración CUDA&amp;#8482;. Para ello, descargue el paquete de instalación y siga las instrucciones del fabricante para instalar el controlador.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Descargar controlador&lt;/a&gt;</numerusform>
            <numerusform>Lamentablemente, el controlador de la tarjeta gráfica instalado no admite la aceleración NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Puede instalar una versión anterior del controlador de la tarjeta gráfica NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; para activar la aceleración CUDA&amp;#8482;. Para ello, descargue el paquete de instalación y siga las instrucciones del fabricante para instalar el controlador.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Descargar controlador&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Error de acceso. No se puede abrir el archivo de imagen</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>&amp;Probador de nags...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Error en la prueba de configuración</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>No se puede abrir el archivo de volcado: </translation>
    </message>
</context>
</TS>
