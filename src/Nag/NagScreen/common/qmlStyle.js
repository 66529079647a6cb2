.pragma library

// The nag library carries this family's files and registers them before a nag loads, so every
// machine draws the nags with the same glyphs. Text items also ask for no hinting and Qt's own
// glyph rendering, which leaves the machine's fontconfig hinting settings out of the picture.
var fontFamily = "DejaVu Sans";
var platform = "win";
