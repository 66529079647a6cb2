.pragma library

var fontArial = "Arial";
var fontVerdana = "Verdana";
var platform = "win";
