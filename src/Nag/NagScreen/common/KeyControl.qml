import QtQuick 2.15

// Makes a drawn button or link a control for keyboard and screen reader users: it fills the item
// it stands in, takes its place in the Tab chain, presses on Enter or Space, rings itself while it
// has the focus, and tells a screen reader its role and name. The ring shows only once the user
// tabs to a control, so the first frame (and so the fingerprint) is the one a mouse user sees.
Item {
    id: control
    property string name
    property int role: Accessible.Button
    // Dark enough for the ring to stand out from every nag's white card.
    property color ringColor: "#17233b"
    signal activated()

    anchors.fill: parent
    activeFocusOnTab: true
    Accessible.role: role
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onPressAction: activated()
    Keys.onReturnPressed: activated()
    Keys.onEnterPressed: activated()
    Keys.onSpacePressed: activated()

    Rectangle {
        anchors { fill: parent; margins: -3 }
        radius: (control.parent && control.parent.radius !== undefined ? control.parent.radius : 0) + 3
        color: "transparent"
        border { color: control.ringColor; width: 2 }
        visible: control.activeFocus
    }
}
