// Texts of this nag in every locale the product ships. Tags are the English texts.
// Not a library script: it reads the context property "callback" of the nag.
// Shared texts and the lookup stay copied in every nag: a nag's folder holds each text it shows.

var locale = "";

const translationMap = {
    // A label of the picture, a mock-up of the product's own screen: the same in every locale.
    "\u00A9 watermark": {
        "de_DE": "\u00A9 watermark",
        "en_US": "\u00A9 watermark",
        "es_ES": "\u00A9 watermark",
        "fr_FR": "\u00A9 watermark",
        "it_IT": "\u00A9 watermark",
        "ja_JP": "\u00A9 watermark",
        "ko_KR": "\u00A9 watermark",
        "nl_NL": "\u00A9 watermark",
        "pl_PL": "\u00A9 watermark",
        "pt_BR": "\u00A9 watermark",
        "ru_RU": "\u00A9 watermark",
        "tr_TR": "\u00A9 watermark",
        "zh_CN": "\u00A9 watermark",
        "zh_TW": "\u00A9 watermark"
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
    "Your export will carry a watermark": {
        "de_DE": "Ihr Export erhält ein Wasserzeichen",
        "en_US": "Your export will carry a watermark",
        "es_ES": "Tu exportación llevará una marca de agua",
        "fr_FR": "Votre export portera un filigrane",
        "it_IT": "La tua esportazione avrà una filigrana",
        "ja_JP": "書き出しに透かしが入ります",
        "ko_KR": "내보내기에 워터마크가 포함됩니다",
        "nl_NL": "Je export krijgt een watermerk",
        "pl_PL": "Eksport będzie miał znak wodny",
        "pt_BR": "Sua exportação terá marca-d'água",
        "ru_RU": "При экспорте будет добавлен водяной знак",
        "tr_TR": "Dışa aktarımınız filigran içerecek",
        "zh_CN": "导出内容将带有水印",
        "zh_TW": "匯出內容將帶有浮水印"
    },
    "The free edition marks every exported file. Remove the mark once and for all with the full edition.": {
        "de_DE": "Die kostenlose Edition markiert jede exportierte Datei. Mit der Vollversion entfernen Sie die Markierung dauerhaft.",
        "en_US": "The free edition marks every exported file. Remove the mark once and for all with the full edition.",
        "es_ES": "La edición gratuita marca cada archivo exportado. Elimina la marca para siempre con la edición completa.",
        "fr_FR": "L'édition gratuite marque chaque fichier exporté. Supprimez la marque une fois pour toutes avec l'édition complète.",
        "it_IT": "L'edizione gratuita contrassegna ogni file esportato. Rimuovi il segno per sempre con l'edizione completa.",
        "ja_JP": "無料版では書き出したすべてのファイルに透かしが入ります。完全版なら透かしは永久に消えます。",
        "ko_KR": "무료 버전은 내보낸 모든 파일에 표시를 남깁니다. 정식 버전으로 표시를 영구히 제거하세요.",
        "nl_NL": "De gratis editie markeert elk geëxporteerd bestand. Verwijder de markering voorgoed met de volledige editie.",
        "pl_PL": "Wersja bezpłatna oznacza każdy eksportowany plik. Usuń oznaczenie na zawsze dzięki pełnej wersji.",
        "pt_BR": "A edição gratuita marca cada arquivo exportado. Remova a marca de vez com a edição completa.",
        "ru_RU": "Бесплатная версия помечает каждый экспортируемый файл. Полная версия навсегда убирает эту пометку.",
        "tr_TR": "Ücretsiz sürüm dışa aktarılan her dosyayı işaretler. Tam sürümle işareti kalıcı olarak kaldırın.",
        "zh_CN": "免费版会在每个导出文件上添加标记。升级完整版即可永久去除。",
        "zh_TW": "免費版會在每個匯出檔案加上標記。升級完整版即可永久移除。"
    },
    "Remove watermark": {
        "de_DE": "Wasserzeichen entfernen",
        "en_US": "Remove watermark",
        "es_ES": "Quitar marca de agua",
        "fr_FR": "Supprimer le filigrane",
        "it_IT": "Rimuovi filigrana",
        "ja_JP": "透かしを削除",
        "ko_KR": "워터마크 제거",
        "nl_NL": "Watermerk verwijderen",
        "pl_PL": "Usuń znak wodny",
        "pt_BR": "Remover marca-d'água",
        "ru_RU": "Убрать водяной знак",
        "tr_TR": "Filigranı kaldır",
        "zh_CN": "去除水印",
        "zh_TW": "移除浮水印"
    },
    "Export with watermark": {
        "de_DE": "Mit Wasserzeichen exportieren",
        "en_US": "Export with watermark",
        "es_ES": "Exportar con marca de agua",
        "fr_FR": "Exporter avec filigrane",
        "it_IT": "Esporta con filigrana",
        "ja_JP": "透かし付きで書き出す",
        "ko_KR": "워터마크 포함 내보내기",
        "nl_NL": "Exporteren met watermerk",
        "pl_PL": "Eksportuj ze znakiem wodnym",
        "pt_BR": "Exportar com marca-d'água",
        "ru_RU": "Экспортировать со знаком",
        "tr_TR": "Filigranla dışa aktar",
        "zh_CN": "带水印导出",
        "zh_TW": "帶浮水印匯出"
    },
    "<a href=\"#\">Why is there a watermark?</a>": {
        "de_DE": "<a href=\"#\">Warum ein Wasserzeichen?</a>",
        "en_US": "<a href=\"#\">Why is there a watermark?</a>",
        "es_ES": "<a href=\"#\">¿Por qué hay una marca de agua?</a>",
        "fr_FR": "<a href=\"#\">Pourquoi un filigrane ?</a>",
        "it_IT": "<a href=\"#\">Perché c'è una filigrana?</a>",
        "ja_JP": "<a href=\"#\">透かしが入る理由</a>",
        "ko_KR": "<a href=\"#\">워터마크가 있는 이유</a>",
        "nl_NL": "<a href=\"#\">Waarom een watermerk?</a>",
        "pl_PL": "<a href=\"#\">Dlaczego jest znak wodny?</a>",
        "pt_BR": "<a href=\"#\">Por que há marca-d'água?</a>",
        "ru_RU": "<a href=\"#\">Зачем водяной знак?</a>",
        "tr_TR": "<a href=\"#\">Neden filigran var?</a>",
        "zh_CN": "<a href=\"#\">为什么有水印？</a>",
        "zh_TW": "<a href=\"#\">為什麼有浮水印？</a>"
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
