import QtQuick 2.15

// A nag for the road test that asks for no fingerprint; a click anywhere accepts.
Item {
    width: 400
    height: 200
    focus: true

    readonly property string nag_id: "road_3"

    Rectangle { anchors.fill: parent; color: "#28c941" }
    MouseArea { anchors.fill: parent; onClicked: callback.Accept() }
}
