.pragma library

// The families a nag names. The nag library maps both to the DejaVu faces it carries (a font
// substitution registered with those fonts), so every machine draws the nags with the same
// glyphs. Text items also ask for no hinting and Qt's own glyph rendering, which leaves the
// machine's fontconfig hinting settings out of the picture.
var fontArial = "Arial";
var fontVerdana = "Verdana";
var platform = "win";
