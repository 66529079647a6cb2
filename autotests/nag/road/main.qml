import QtQuick 2.15

// A nag for the road test: a button that reports itself, a link, and an accept.
Item {
    id: root
    width: 400
    height: 200
    focus: true

    readonly property string nag_id: "road_1"
    readonly property string nag_name: "Road test"
    readonly property string hash_name: "road"
    readonly property size hash_size: Qt.size(8, 4)
    readonly property string nag_hash: "10101010101010101010101010101010"

    function accept() { callback.Accept() }
    function close() { callback.Reject() }
    function choosePlan() { callback.ButtonClicked("plan", { "plan": "pro", "seats": 3 }) }
    function openLink(url) { callback.RequestUrl(url) }

    Keys.onEscapePressed: close()
    Keys.onReturnPressed: accept()

    Rectangle { anchors.fill: parent; color: "#f4f7fd" }
    Rectangle {
        x: 0; y: 0; width: 200; height: 100; color: "#3a7bf0"
        MouseArea { anchors.fill: parent; onClicked: root.choosePlan() }
    }
    Rectangle {
        x: 200; y: 0; width: 200; height: 100; color: "#ffbd2e"
        MouseArea { anchors.fill: parent; onClicked: root.openLink("https://link.ostrel.com/faq/?asrc=menu&link_id=road_faq&-TAIL_WITH_ARGS-") }
    }
    Rectangle {
        x: 0; y: 100; width: 400; height: 100; color: "#28c941"
        MouseArea { anchors.fill: parent; onClicked: root.accept() }
    }
}
