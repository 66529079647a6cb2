import QtQuick 2.15

// Five stripes of 20 pixels: white, white, black, black, grey. Its difference hash at 4 x 1 is
// "0100" (equal neighbours give 0); it declares "0110", one position off.
Item {
    width: 100
    height: 20
    readonly property string nag_id: "striped_1"
    readonly property string nag_hash: "0110"
    readonly property size hash_size: Qt.size(4, 1)
    Row {
        Repeater {
            model: ["#ffffff", "#ffffff", "#000000", "#000000", "#808080"]
            Rectangle { width: 20; height: 20; color: modelData }
        }
    }
}
