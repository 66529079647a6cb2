// Texts of this nag in every locale the product ships. Tags are the English texts.
// Not a library script: it reads the context property "callback" of the nag.
// Shared texts and the lookup stay copied in every nag: a nag's folder holds each text it shows.

var locale = "";

const translationMap = {
    // A label of the picture, a mock-up of the product's own screen: the same in every locale.
    "PRO": {
        "de_DE": "PRO",
        "en_US": "PRO",
        "es_ES": "PRO",
        "fr_FR": "PRO",
        "it_IT": "PRO",
        "ja_JP": "PRO",
        "ko_KR": "PRO",
        "nl_NL": "PRO",
        "pl_PL": "PRO",
        "pt_BR": "PRO",
        "ru_RU": "PRO",
        "tr_TR": "PRO",
        "zh_CN": "PRO",
        "zh_TW": "PRO"
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
    "Before you go": {
        "de_DE": "Bevor Sie gehen",
        "en_US": "Before you go",
        "es_ES": "Antes de irte",
        "fr_FR": "Avant de partir",
        "it_IT": "Prima di andare",
        "ja_JP": "終了する前に",
        "ko_KR": "떠나기 전에",
        "nl_NL": "Voordat je gaat",
        "pl_PL": "Zanim wyjdziesz",
        "pt_BR": "Antes de sair",
        "ru_RU": "Прежде чем уйти",
        "tr_TR": "Gitmeden önce",
        "zh_CN": "离开之前",
        "zh_TW": "離開之前"
    },
    "Unlock everything %1 can do": {
        "de_DE": "Schalten Sie alles frei, was %1 kann",
        "en_US": "Unlock everything %1 can do",
        "es_ES": "Desbloquea todo lo que %1 puede hacer",
        "fr_FR": "Débloquez tout ce que %1 sait faire",
        "it_IT": "Sblocca tutto ciò che %1 può fare",
        "ja_JP": "%1 のすべての機能を解放",
        "ko_KR": "%1의 모든 기능을 잠금 해제하세요",
        "nl_NL": "Ontgrendel alles wat %1 kan",
        "pl_PL": "Odblokuj wszystkie możliwości %1",
        "pt_BR": "Desbloqueie tudo o que o %1 pode fazer",
        "ru_RU": "Откройте все возможности %1",
        "tr_TR": "%1 uygulamasının tüm özelliklerini açın",
        "zh_CN": "解锁 %1 的全部功能",
        "zh_TW": "解鎖 %1 的全部功能"
    },
    "No watermark on your exports": {
        "de_DE": "Kein Wasserzeichen in Ihren Exporten",
        "en_US": "No watermark on your exports",
        "es_ES": "Sin marca de agua en tus exportaciones",
        "fr_FR": "Aucun filigrane sur vos exports",
        "it_IT": "Nessuna filigrana nelle esportazioni",
        "ja_JP": "書き出しに透かしなし",
        "ko_KR": "내보내기에 워터마크 없음",
        "nl_NL": "Geen watermerk op je exports",
        "pl_PL": "Bez znaku wodnego w eksportach",
        "pt_BR": "Sem marca-d'água nas exportações",
        "ru_RU": "Без водяного знака при экспорте",
        "tr_TR": "Dışa aktarımlarda filigran yok",
        "zh_CN": "导出内容无水印",
        "zh_TW": "匯出內容無浮水印"
    },
    "Record in 4K at 60 frames per second": {
        "de_DE": "Aufnahmen in 4K mit 60 Bildern pro Sekunde",
        "en_US": "Record in 4K at 60 frames per second",
        "es_ES": "Graba en 4K a 60 fotogramas por segundo",
        "fr_FR": "Enregistrez en 4K à 60 images par seconde",
        "it_IT": "Registra in 4K a 60 fotogrammi al secondo",
        "ja_JP": "4K・60fps で録画",
        "ko_KR": "초당 60프레임 4K 녹화",
        "nl_NL": "Opnemen in 4K met 60 beelden per seconde",
        "pl_PL": "Nagrywanie w 4K z 60 klatkami na sekundę",
        "pt_BR": "Grave em 4K a 60 quadros por segundo",
        "ru_RU": "Запись в 4K с частотой 60 кадров в секунду",
        "tr_TR": "Saniyede 60 karede 4K kayıt",
        "zh_CN": "以 60 帧/秒录制 4K 视频",
        "zh_TW": "以每秒 60 格錄製 4K 影片"
    },
    "Upgrade now": {
        "de_DE": "Jetzt upgraden",
        "en_US": "Upgrade now",
        "es_ES": "Mejorar ahora",
        "fr_FR": "Passer à la version complète",
        "it_IT": "Esegui l'upgrade",
        "ja_JP": "今すぐアップグレード",
        "ko_KR": "지금 업그레이드",
        "nl_NL": "Nu upgraden",
        "pl_PL": "Przejdź na pełną wersję",
        "pt_BR": "Fazer upgrade agora",
        "ru_RU": "Перейти на полную версию",
        "tr_TR": "Şimdi yükselt",
        "zh_CN": "立即升级",
        "zh_TW": "立即升級"
    },
    "Not now": {
        "de_DE": "Nicht jetzt",
        "en_US": "Not now",
        "es_ES": "Ahora no",
        "fr_FR": "Pas maintenant",
        "it_IT": "Non ora",
        "ja_JP": "今はしない",
        "ko_KR": "나중에",
        "nl_NL": "Niet nu",
        "pl_PL": "Nie teraz",
        "pt_BR": "Agora não",
        "ru_RU": "Не сейчас",
        "tr_TR": "Şimdi değil",
        "zh_CN": "暂不",
        "zh_TW": "暫不"
    },
    "<a href=\"#\">Compare editions</a>": {
        "de_DE": "<a href=\"#\">Editionen vergleichen</a>",
        "en_US": "<a href=\"#\">Compare editions</a>",
        "es_ES": "<a href=\"#\">Comparar ediciones</a>",
        "fr_FR": "<a href=\"#\">Comparer les éditions</a>",
        "it_IT": "<a href=\"#\">Confronta le edizioni</a>",
        "ja_JP": "<a href=\"#\">エディションを比較</a>",
        "ko_KR": "<a href=\"#\">에디션 비교</a>",
        "nl_NL": "<a href=\"#\">Edities vergelijken</a>",
        "pl_PL": "<a href=\"#\">Porównaj wersje</a>",
        "pt_BR": "<a href=\"#\">Comparar edições</a>",
        "ru_RU": "<a href=\"#\">Сравнить версии</a>",
        "tr_TR": "<a href=\"#\">Sürümleri karşılaştır</a>",
        "zh_CN": "<a href=\"#\">比较版本</a>",
        "zh_TW": "<a href=\"#\">比較版本</a>"
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
