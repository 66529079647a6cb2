.pragma library

// How a shipped nag publishes its fingerprint. The text differs by locale, so each locale has a
// fingerprint of its own. Japanese, Korean and Chinese glyphs are not in the fonts the nag library
// carries: the machine's own fonts draw them, and a finer fingerprint would judge those fonts
// rather than the nag. There it is taken coarser, which keeps the layout (blocks of text, buttons,
// picture) and lets the glyphs go.
var systemFontLocales = ["ja_JP", "ko_KR", "zh_CN", "zh_TW"];

function size(locale) {
    return systemFontLocales.indexOf(locale) >= 0 ? Qt.size(8, 4) : Qt.size(16, 8);
}

// The published fingerprint for `locale`, empty when there is none.
function of(published, locale) {
    var hash = published[locale];
    return hash === undefined ? "" : hash;
}
