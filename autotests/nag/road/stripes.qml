import QtQuick 2.15

// A second nag for the road test, drawn otherwise than the first; a click anywhere accepts.
Item {
    id: root
    width: 400
    height: 200
    focus: true

    readonly property string nag_id: "road_2"
    readonly property string hash_name: "road_stripes"
    readonly property size hash_size: Qt.size(8, 4)
    readonly property string nag_hash: "00011000000110000001100000011000"

    Row {
        Repeater {
            model: 4
            Rectangle { width: 100; height: 200; color: index % 2 ? "#f4f7fd" : "#1b2a4a" }
        }
    }
    MouseArea { anchors.fill: parent; onClicked: callback.Accept() }
}
