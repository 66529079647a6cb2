<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>ApplicationRestarter</name>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>&lt;b&gt;This will restart the application.&lt;/b&gt;&lt;br&gt;Do you want to continue?</source>
        <translation>&lt;b&gt;L&apos;application va redémarrer.&lt;/b&gt;&lt;br&gt;Voulez-vous continuer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Restart</source>
        <translation>&amp;Redémarrer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help Center</source>
        <translation>&amp;Centre d&apos;aide</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Questions fréquentes</translation>
    </message>
    <message>
        <source>&amp;Contact Support</source>
        <translation>C&amp;ontacter le support</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Politique de confidentialité</translation>
    </message>
    <message>
        <source>All &amp;Links...</source>
        <translation>Tous les &amp;liens...</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Community F&amp;orum</source>
        <translation>&amp;Forum de la communauté</translation>
    </message>
    <message>
        <source>Ho&amp;me Page</source>
        <translation>Page d&apos;&amp;accueil</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;À propos...</translation>
    </message>
</context>
<context>
    <name>HostSplash</name>
    <message>
        <source>Starting…</source>
        <translation>Démarrage…</translation>
    </message>
</context>
<context>
    <name>LinksPanel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
</context>
<context>
    <name>LookAndFeelWiring</name>
    <message>
        <source>Remembered answers were reset.</source>
        <translation>Les réponses mémorisées ont été réinitialisées.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organisation&#xa0;:</translation>
    </message>
    <message>
        <source>Partner:</source>
        <translation>Partenaire&#xa0;:</translation>
    </message>
    <message>
        <source>Launch type:</source>
        <translation>Type de lancement&#xa0;:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Days since first start:</source>
        <translation>Jours depuis le premier lancement&#xa0;:</translation>
    </message>
    <message>
        <source>Brand:</source>
        <translation>Marque&#xa0;:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Tool&amp;s</source>
        <translation>O&amp;utils</translation>
    </message>
</context>
<context>
    <name>OptionsMenu</name>
    <message>
        <source>&amp;Browser</source>
        <translation>&amp;Navigateur</translation>
    </message>
    <message>
        <source>Desktop default</source>
        <translation>Par défaut du bureau</translation>
    </message>
    <message>
        <source>Custom &amp;Colours...</source>
        <translation>&amp;Couleurs personnalisées...</translation>
    </message>
    <message>
        <source>&amp;Reset Remembered Answers</source>
        <translation>&amp;Réinitialiser les réponses mémorisées</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::AboutBoxDialog</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Copyright © %1 %2</source>
        <translation>Copyright © %1 %2</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Tous droits réservés.</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Page d’accueil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::ConfirmationAlertBox</name>
    <message>
        <source>Don&apos;t show this again</source>
        <translation>Ne plus afficher</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::EmailDialog</name>
    <message>
        <source>Stay in touch</source>
        <translation>Restons en contact</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers.</source>
        <translation>Laissez votre adresse e-mail pour être informé des nouveautés et des offres.</translation>
    </message>
    <message>
        <source>Leave your e-mail address to hear about new features and offers of %1.</source>
        <translation>Laissez votre adresse e-mail pour être informé des nouveautés et des offres de %1.</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Votre nom</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Yes, send me news and special offers by e-mail</source>
        <translation>Oui, je souhaite recevoir des nouvelles et des offres spéciales par e-mail</translation>
    </message>
    <message>
        <source>We never share your address. &lt;a href=&quot;privacy&quot;&gt;Privacy policy&lt;/a&gt;</source>
        <translation>Nous ne partageons jamais votre adresse. &lt;a href=&quot;privacy&quot;&gt;Politique de confidentialité&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>S&apos;abonner</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Please enter a valid e-mail address.</source>
        <translation>Veuillez saisir une adresse e-mail valide.</translation>
    </message>
</context>
<context>
    <name>Ostrel::App::NagScreen::NagScreenTestForm</name>
    <message>
        <source>Nag Screen Tester</source>
        <translation>Testeur de nags</translation>
    </message>
    <message>
        <source>Show Nag</source>
        <translation>Afficher le nag</translation>
    </message>
    <message>
        <source>Set Path To Nag</source>
        <translation>Définir le chemin du nag</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Tout recharger</translation>
    </message>
    <message>
        <source>Reloading: %v/%m</source>
        <translation>Rechargement&#xa0;: %v/%m</translation>
    </message>
    <message>
        <source>The hash will appear after opening the nag and if SendNagHashEvent is enabled in the webconfig and hashName is specified in the nag</source>
        <translation>Le hash apparaîtra à l&apos;ouverture du nag si SendNagHashEvent est activé dans la webconfig et si hashName est indiqué dans le nag</translation>
    </message>
    <message>
        <source>Nag Override Warning</source>
        <translation>Avertissement de remplacement du nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Note:&lt;/b&gt; Nag action &quot;%1&quot; is currently &lt;b&gt;disabled&lt;/b&gt;. Nag will not be displayed.</source>
        <translation>&lt;b&gt;Remarque&#xa0;:&lt;/b&gt; l&apos;action de nag «&#xa0;%1&#xa0;» est actuellement &lt;b&gt;désactivée&lt;/b&gt;. Le nag ne s&apos;affichera pas.</translation>
    </message>
    <message>
        <source>Nag Override Error</source>
        <translation>Erreur de remplacement du nag</translation>
    </message>
    <message>
        <source>&lt;b&gt;Error:&lt;/b&gt; Looks like nag is broken somehow, see logs for details.&lt;br&gt;&lt;br&gt;Nag action: %1&lt;br&gt;File:&lt;br&gt;&lt;nobr&gt;&quot;%2&quot;&lt;/nobr&gt;</source>
        <translation>&lt;b&gt;Erreur&#xa0;:&lt;/b&gt; le nag semble endommagé, consultez les journaux pour en savoir plus.&lt;br&gt;&lt;br&gt;Action de nag&#xa0;: %1&lt;br&gt;Fichier&#xa0;:&lt;br&gt;&lt;nobr&gt;«&#xa0;%2&#xa0;»&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>Overriding of %1 is not implemented for now, please choose another nag and try again.</source>
        <translation>Le remplacement de %1 n&apos;est pas encore disponible. Choisissez un autre nag et réessayez.</translation>
    </message>
    <message>
        <source>Choose main.qml file</source>
        <translation>Choisir le fichier main.qml</translation>
    </message>
    <message>
        <source>main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)</source>
        <translation>Fichier main.qml (main.qml);;Tout fichier QML (*.qml);;Tout fichier (*)</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;color: #d95963;&quot;&gt;Unavailable&lt;/b&gt; </source>
        <translation>&lt;b style=&quot;color: #d95963;&quot;&gt;Indisponible&lt;/b&gt; </translation>
    </message>
    <message>
        <source>static or web nag</source>
        <translation>nag statique ou web</translation>
    </message>
    <message>
        <source>some hash is empty, it is impossible to calculate the distance</source>
        <translation>un des hashs est vide, impossible de calculer la distance</translation>
    </message>
    <message>
        <source>hashSize is not specified in the nag</source>
        <translation>hashSize n&apos;est pas indiqué dans le nag</translation>
    </message>
    <message>
        <source>add hashName to nag to calculate hash</source>
        <translation>ajoutez hashName au nag pour calculer le hash</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Help improve %1 software by automatically sending anonymous usage stats</source>
        <translation>Aidez à améliorer les logiciels %1 en envoyant automatiquement des statistiques d&apos;utilisation anonymes</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>J&apos;accepte</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Je refuse</translation>
    </message>
</context>
<context>
    <name>SharedMessages</name>
    <message numerus="yes">
        <source>NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration has been disabled in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel. To enable CUDA&amp;#8482; acceleration for %1, select &lt;b&gt;High-performance NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; processor&lt;/b&gt; as your preferred graphics processor in NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; Control Panel.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Detailed Instructions&lt;/a&gt;</source>
        <translation>
            <numerusform>L&apos;accélération NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; a été désactivée dans le Panneau de configuration NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Pour activer l&apos;accélération CUDA&amp;#8482; pour %1, sélectionnez &lt;b&gt;Processeur NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; hautes performances&lt;/b&gt; comme processeur graphique préféré dans le Panneau de configuration NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Instructions détaillées&lt;/a&gt;</numerusform>
            <numerusform>L&apos;accélération NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; a été désactivée dans le Panneau de configuration NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;. Pour activer l&apos;accélération CUDA&amp;#8482; pour %1, sélectionnez &lt;b&gt;Processeur NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; hautes performances&lt;/b&gt; comme processeur graphique préféré dans le Panneau de configuration NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt;.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%2&quot; style=&quot;%3&quot;&gt;Instructions détaillées&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unfortunately, the currently installed graphics card driver does not support NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482; acceleration.&lt;br&gt;&lt;br&gt;You can install an earlier version of the NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; graphics card driver to enable CUDA&amp;#8482; acceleration. To do that, simply download the installation package and follow the manufacturer&apos;s instructions to install the driver.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Download Driver&lt;/a&gt;</source>
        <translation>
            <numerusform>Malheureusement, le pilote de carte graphique installé ne prend pas en charge l&apos;accélération NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Vous pouvez installer une version antérieure du pilote de carte graphique NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; pour activer l&apos;accélération CUDA&amp;#8482;. Pour cela, téléchargez le package d&apos;installation et suivez les instructions du fabricant pour installer le pilote.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Télécharger le pilote&lt;/a&gt;</numerusform>
            <numerusform>Malheureusement, le pilote de carte graphique installé ne prend pas en charge l&apos;accélération NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; CUDA&amp;#8482;.&lt;br&gt;&lt;br&gt;Vous pouvez installer une version antérieure du pilote de carte graphique NVIDIA&lt;sup&gt;&amp;reg;&lt;/sup&gt; pour activer l&apos;accélération CUDA&amp;#8482;. Pour cela, téléchargez le package d&apos;installation et suivez les instructions du fabricant pour installer le pilote.&lt;br&gt;&lt;br&gt;&lt;a href=&quot;%1&quot; style=&quot;%2&quot;&gt;Télécharger le pilote&lt;/a&gt;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TestNagContext</name>
    <message>
        <source>Access error. Can&apos;t open picture file</source>
        <translation>Erreur d&apos;accès. Impossible d&apos;ouvrir le fichier image</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>Nag Screen &amp;Tester...</source>
        <translation>&amp;Testeur de nags...</translation>
    </message>
</context>
<context>
    <name>UrlTest</name>
    <message>
        <source>Config test error</source>
        <translation>Erreur du test de configuration</translation>
    </message>
    <message>
        <source>Can&apos;t open file to dump: </source>
        <translation>Impossible d&apos;ouvrir le fichier de sortie&#xa0;: </translation>
    </message>
</context>
</TS>
