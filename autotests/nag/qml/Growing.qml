import QtQuick 2.15

// A nag that grows when told to, and names its own dimmer.
Item {
    id: root
    objectName: "growing"
    width: 300
    height: 200
    focus: true
    readonly property string nag_id: "growing_1"
    property string dimming_name: ""
    property var dimming_parameters: ({})
    function grow() { width = 500; height = 320 }
    function accept() { callback.Accept() }
    function close() { callback.Reject() }
    Keys.onEscapePressed: close()
    Keys.onReturnPressed: accept()
    Rectangle { anchors.fill: parent; color: "#3366cc" }
}
