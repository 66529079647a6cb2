// Texts of this nag in every locale the product ships. Tags are the English texts.
// Not a library script: it reads the context property "callback" of the nag.
// Shared texts and the lookup stay copied in every nag: a nag's folder holds each text it shows.

var locale = "";

const translationMap = {
    // A label of the picture, a mock-up of the product's own screen: the same in every locale.
    "\u25CF REC  00:42": {
        "de_DE": "\u25CF REC  00:42",
        "en_US": "\u25CF REC  00:42",
        "es_ES": "\u25CF REC  00:42",
        "fr_FR": "\u25CF REC  00:42",
        "it_IT": "\u25CF REC  00:42",
        "ja_JP": "\u25CF REC  00:42",
        "ko_KR": "\u25CF REC  00:42",
        "nl_NL": "\u25CF REC  00:42",
        "pl_PL": "\u25CF REC  00:42",
        "pt_BR": "\u25CF REC  00:42",
        "ru_RU": "\u25CF REC  00:42",
        "tr_TR": "\u25CF REC  00:42",
        "zh_CN": "\u25CF REC  00:42",
        "zh_TW": "\u25CF REC  00:42"
    },
    "Close": {
        "de_DE": "Schließen",
        "en_US": "Close",
        "es_ES": "Cerrar",
        "fr_FR": "Fermer",
        "it_IT": "Chiudi",
        "ja_JP": "閉じる",
        "ko_KR": "닫기",
        "nl_NL": "Sluiten",
        "pl_PL": "Zamknij",
        "pt_BR": "Fechar",
        "ru_RU": "Закрыть",
        "tr_TR": "Kapat",
        "zh_CN": "关闭",
        "zh_TW": "關閉"
    },
    "Welcome to %1": {
        "de_DE": "Willkommen bei %1",
        "en_US": "Welcome to %1",
        "es_ES": "Te damos la bienvenida a %1",
        "fr_FR": "Bienvenue dans %1",
        "it_IT": "Benvenuto in %1",
        "ja_JP": "%1 へようこそ",
        "ko_KR": "%1에 오신 것을 환영합니다",
        "nl_NL": "Welkom bij %1",
        "pl_PL": "Witamy w %1",
        "pt_BR": "Boas-vindas ao %1",
        "ru_RU": "Добро пожаловать в %1",
        "tr_TR": "%1 uygulamasına hoş geldiniz",
        "zh_CN": "欢迎使用 %1",
        "zh_TW": "歡迎使用 %1"
    },
    "Capture any part of your screen, mark it up and share it in seconds.": {
        "de_DE": "Nehmen Sie jeden Bereich Ihres Bildschirms auf, versehen Sie ihn mit Notizen und teilen Sie ihn in Sekunden.",
        "en_US": "Capture any part of your screen, mark it up and share it in seconds.",
        "es_ES": "Captura cualquier parte de tu pantalla, anótala y compártela en segundos.",
        "fr_FR": "Capturez n'importe quelle partie de votre écran, annotez-la et partagez-la en quelques secondes.",
        "it_IT": "Cattura qualsiasi parte dello schermo, annotala e condividila in pochi secondi.",
        "ja_JP": "画面のどこでもキャプチャして、注釈を付け、数秒で共有できます。",
        "ko_KR": "화면의 원하는 부분을 캡처하고 주석을 달아 몇 초 만에 공유하세요.",
        "nl_NL": "Leg elk deel van je scherm vast, voorzie het van aantekeningen en deel het in enkele seconden.",
        "pl_PL": "Przechwyć dowolny fragment ekranu, dodaj adnotacje i udostępnij go w kilka sekund.",
        "pt_BR": "Capture qualquer parte da tela, faça anotações e compartilhe em segundos.",
        "ru_RU": "Снимайте любую часть экрана, добавляйте пометки и делитесь за секунды.",
        "tr_TR": "Ekranınızın herhangi bir bölümünü yakalayın, not ekleyin ve saniyeler içinde paylaşın.",
        "zh_CN": "截取屏幕的任意区域，添加标注，几秒内即可分享。",
        "zh_TW": "擷取螢幕的任何區域，加上標註，幾秒內即可分享。"
    },
    "Screenshots and screen recordings": {
        "de_DE": "Screenshots und Bildschirmvideos",
        "en_US": "Screenshots and screen recordings",
        "es_ES": "Capturas y grabaciones de pantalla",
        "fr_FR": "Captures et enregistrements d'écran",
        "it_IT": "Screenshot e registrazioni dello schermo",
        "ja_JP": "スクリーンショットと画面録画",
        "ko_KR": "스크린샷 및 화면 녹화",
        "nl_NL": "Schermafbeeldingen en schermopnamen",
        "pl_PL": "Zrzuty i nagrania ekranu",
        "pt_BR": "Capturas e gravações de tela",
        "ru_RU": "Скриншоты и запись экрана",
        "tr_TR": "Ekran görüntüleri ve ekran kayıtları",
        "zh_CN": "截图和屏幕录制",
        "zh_TW": "螢幕截圖與螢幕錄製"
    },
    "Arrows, text and blur in one click": {
        "de_DE": "Pfeile, Text und Unschärfe mit einem Klick",
        "en_US": "Arrows, text and blur in one click",
        "es_ES": "Flechas, texto y desenfoque con un clic",
        "fr_FR": "Flèches, texte et flou en un clic",
        "it_IT": "Frecce, testo e sfocatura con un clic",
        "ja_JP": "矢印、テキスト、ぼかしをワンクリックで",
        "ko_KR": "클릭 한 번으로 화살표, 텍스트, 흐림 효과",
        "nl_NL": "Pijlen, tekst en vervaging met één klik",
        "pl_PL": "Strzałki, tekst i rozmycie jednym kliknięciem",
        "pt_BR": "Setas, texto e desfoque com um clique",
        "ru_RU": "Стрелки, текст и размытие в один клик",
        "tr_TR": "Tek tıkla ok, metin ve bulanıklaştırma",
        "zh_CN": "一键添加箭头、文字和模糊",
        "zh_TW": "一鍵加入箭頭、文字與模糊"
    },
    "Hotkeys that stay out of your way": {
        "de_DE": "Tastenkürzel, die nicht stören",
        "en_US": "Hotkeys that stay out of your way",
        "es_ES": "Atajos que no estorban",
        "fr_FR": "Des raccourcis qui ne gênent pas",
        "it_IT": "Scorciatoie che non intralciano",
        "ja_JP": "邪魔にならないホットキー",
        "ko_KR": "방해되지 않는 단축키",
        "nl_NL": "Sneltoetsen die niet in de weg zitten",
        "pl_PL": "Skróty, które nie przeszkadzają",
        "pt_BR": "Atalhos que não atrapalham",
        "ru_RU": "Горячие клавиши, которые не мешают",
        "tr_TR": "Sizi rahatsız etmeyen kısayollar",
        "zh_CN": "不打扰你的快捷键",
        "zh_TW": "不打擾你的快速鍵"
    },
    "Start capturing": {
        "de_DE": "Aufnahme starten",
        "en_US": "Start capturing",
        "es_ES": "Empezar a capturar",
        "fr_FR": "Commencer",
        "it_IT": "Inizia a catturare",
        "ja_JP": "キャプチャを開始",
        "ko_KR": "캡처 시작",
        "nl_NL": "Beginnen met vastleggen",
        "pl_PL": "Zacznij przechwytywać",
        "pt_BR": "Começar a capturar",
        "ru_RU": "Начать съёмку",
        "tr_TR": "Yakalamaya başla",
        "zh_CN": "开始截图",
        "zh_TW": "開始擷取"
    },
    "Later": {
        "de_DE": "Später",
        "en_US": "Later",
        "es_ES": "Más tarde",
        "fr_FR": "Plus tard",
        "it_IT": "Più tardi",
        "ja_JP": "後で",
        "ko_KR": "나중에",
        "nl_NL": "Later",
        "pl_PL": "Później",
        "pt_BR": "Mais tarde",
        "ru_RU": "Позже",
        "tr_TR": "Daha sonra",
        "zh_CN": "稍后",
        "zh_TW": "稍後"
    },
    "<a href=\"#\">See what's new in this version</a>": {
        "de_DE": "<a href=\"#\">Neuerungen dieser Version ansehen</a>",
        "en_US": "<a href=\"#\">See what's new in this version</a>",
        "es_ES": "<a href=\"#\">Novedades de esta versión</a>",
        "fr_FR": "<a href=\"#\">Nouveautés de cette version</a>",
        "it_IT": "<a href=\"#\">Scopri le novità di questa versione</a>",
        "ja_JP": "<a href=\"#\">このバージョンの新機能</a>",
        "ko_KR": "<a href=\"#\">이번 버전의 새로운 기능</a>",
        "nl_NL": "<a href=\"#\">Bekijk wat er nieuw is</a>",
        "pl_PL": "<a href=\"#\">Zobacz nowości w tej wersji</a>",
        "pt_BR": "<a href=\"#\">Veja as novidades desta versão</a>",
        "ru_RU": "<a href=\"#\">Что нового в этой версии</a>",
        "tr_TR": "<a href=\"#\">Bu sürümdeki yenilikler</a>",
        "zh_CN": "<a href=\"#\">查看此版本的新功能</a>",
        "zh_TW": "<a href=\"#\">查看此版本的新功能</a>"
    },
    "Don't show again": {
        "de_DE": "Nicht mehr anzeigen",
        "en_US": "Don't show again",
        "es_ES": "No volver a mostrar",
        "fr_FR": "Ne plus afficher",
        "it_IT": "Non mostrare più",
        "ja_JP": "今後表示しない",
        "ko_KR": "다시 표시 안 함",
        "nl_NL": "Niet meer tonen",
        "pl_PL": "Nie pokazuj ponownie",
        "pt_BR": "Não mostrar novamente",
        "ru_RU": "Больше не показывать",
        "tr_TR": "Bir daha gösterme",
        "zh_CN": "不再显示",
        "zh_TW": "不再顯示"
    }
};

function getCurrentLocale() {
    if (locale === "")
        locale = callback.GetLocale();
    return locale;
}

// The text of `tag` in the nag's locale. A locale the map lacks for that tag shows the "en_US"
// text; a tag the map lacks shows the tag itself, which is how a symbol with no words (a check
// mark, the close cross) needs no row.
function getLocalizedText(tag) {
    var texts = translationMap[tag];
    if (texts === undefined)
        return tag;
    var text = texts[getCurrentLocale()];
    return text === undefined ? texts["en_US"] : text;
}
