import QtQuick 2.15

// Hosts a nag fetched from the nag server. The nag sees the same "callback" as a local one.
Item {
    id: shell
    property url nagUrl
    property string loadStatus: "loading"
    property string loadError: ""
    readonly property alias nagItem: loader.item
    signal statusChanged()

    width: loader.item ? loader.item.width : 1
    height: loader.item ? loader.item.height : 1
    focus: true

    Loader {
        id: loader
        source: shell.nagUrl
        focus: true
        onStatusChanged: {
            if (status === Loader.Ready) {
                shell.loadStatus = "ready"
            } else if (status === Loader.Error) {
                shell.loadError = "the server answered with an error or sent a nag that does not compile"
                shell.loadStatus = "error"
            } else if (status === Loader.Loading) {
                shell.loadStatus = "loading"
            }
            shell.statusChanged()
        }
    }
}
