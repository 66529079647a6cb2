import QtQuick 2.15
import "TranslationUtils.js" as TU
import "../common/qmlStyle.js" as Style
import "../common/Fingerprint.js" as Fingerprint
import "Fingerprints.js" as Published
import "../common"

// Shown before an export of the free edition: the file will be marked, the full edition removes it.
Item {
    id: root
    width: 850
    height: 472
    focus: true
    // A screen reader announces the nag as a dialog with its title; Tab walks its controls in the
    // order they read, the close button last.
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    readonly property string nag_id: "before_routine_watermark_1"
    readonly property string nag_name: "Watermark before export"
    readonly property string hash_name: "before_routine_watermark"
    readonly property size hash_size: Fingerprint.size(TU.getCurrentLocale())
    readonly property string nag_hash: Fingerprint.of(Published.fingerprints, TU.getCurrentLocale())
    readonly property string whyUrl: "https://go.ostrel.com/watermark/?asrc=nag_before_routine&nag=-NAG_ID-&-TAIL_WITH_ARGS-"

    function accept() { callback.Accept() }
    function close() { callback.Reject() }
    function buyNow() { callback.BuyNow() }
    function openLink(url) { callback.RequestUrl(url) }
    function dontShow() { callback.DontShow(); close() }

    Keys.onEscapePressed: close()
    Keys.onReturnPressed: buyNow()
    Keys.onEnterPressed: buyNow()

    Rectangle {
        id: card
        anchors.fill: parent
        radius: 10
        color: "#ffffff"
        border.color: "#d9dee7"
        clip: true

        Rectangle {
            id: hero
            width: 330
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
            radius: 10
            gradient: Gradient {
                GradientStop { position: 0.0; color: "#0f5c54" }
                GradientStop { position: 1.0; color: "#178c79" }
            }
            Rectangle {
                id: screen
                width: 220; height: 150
                anchors.centerIn: parent
                radius: 8
                color: "#f4f7fd"
                Rectangle { width: parent.width; height: 22; radius: 8; color: "#dfe7f7" }
                Row {
                    x: 10; y: 7; spacing: 6
                    Repeater { model: ["#ff6159", "#ffbd2e", "#28c941"]; Rectangle { width: 8; height: 8; radius: 4; color: modelData } }
                }
                Rectangle {
                    id: selection
                    x: 38; y: 42; width: 132; height: 80
                    color: "#331fa58f"
                    border.color: "#1fa58f"
                    border.width: 2
                    Repeater {
                        model: 4
                        Rectangle {
                            width: 9; height: 9; radius: 2; color: "#ffffff"; border.color: "#1fa58f"; border.width: 2
                            x: (index % 2) * (selection.width - width)
                            y: Math.floor(index / 2) * (selection.height - height)
                        }
                    }
                }
                Rectangle { x: 158; y: 112; width: 14; height: 14; rotation: 45; color: "#0f5c54" }
            }
            Text {
                renderType: Text.QtRendering
                anchors { horizontalCenter: parent.horizontalCenter; top: screen.bottom; topMargin: 22 }
                text: TU.getLocalizedText("\u00A9 watermark")
                color: "#ffffff"
                font { family: Style.fontArial; pixelSize: 14; italic: true; hintingPreference: Font.PreferNoHinting }
            }
        }

        Column {
            id: body
            objectName: "body"
            anchors { left: hero.right; right: parent.right; top: parent.top; leftMargin: 44; rightMargin: 48; topMargin: 58 }
            spacing: 16

            Text {
                id: title
                renderType: Text.QtRendering
                width: parent.width
                wrapMode: Text.WordWrap
                text: TU.getLocalizedText("Your export will carry a watermark")
                color: "#17233b"
                font { family: Style.fontArial; pixelSize: 28; bold: true; hintingPreference: Font.PreferNoHinting }
            }
            Text {
                renderType: Text.QtRendering
                width: parent.width
                wrapMode: Text.WordWrap
                text: TU.getLocalizedText("The free edition marks every exported file. Remove the mark once and for all with the full edition.")
                color: "#4a5670"
                lineHeight: 1.2
                font { family: Style.fontArial; pixelSize: 15; hintingPreference: Font.PreferNoHinting }
            }
        }

        // The second button goes under the first when a language's labels don't fit side by side.
        Flow {
            id: buttons
            objectName: "buttons"
            anchors { left: body.left; right: body.right; bottom: parent.bottom; bottomMargin: 66 }
            spacing: 14
            Rectangle {
                id: primary
                width: Math.min(buttons.width, Math.max(170, primaryLabel.implicitWidth + 48)); height: 44; radius: 6
                color: primaryArea.pressed ? "#0b6154" : (primaryArea.containsMouse ? "#0d7060" : "#0f7d6b")
                Text { id: primaryLabel; renderType: Text.QtRendering; anchors.centerIn: parent; text: TU.getLocalizedText("Remove watermark"); color: "#ffffff"; font { family: Style.fontArial; pixelSize: 15; bold: true; hintingPreference: Font.PreferNoHinting } }
                MouseArea { id: primaryArea; anchors.fill: parent; hoverEnabled: true; cursorShape: Qt.PointingHandCursor; onClicked: root.buyNow() }
                KeyControl { name: primaryLabel.text; onActivated: root.buyNow() }
            }
            Rectangle {
                width: Math.min(buttons.width, Math.max(110, laterLabel.implicitWidth + 40)); height: 44; radius: 6
                color: laterArea.containsMouse ? "#f1f4f9" : "#ffffff"
                border.color: "#cdd5e3"
                Text { id: laterLabel; renderType: Text.QtRendering; anchors.centerIn: parent; text: TU.getLocalizedText("Export with watermark"); color: "#3b4863"; font { family: Style.fontArial; pixelSize: 15; hintingPreference: Font.PreferNoHinting } }
                MouseArea { id: laterArea; anchors.fill: parent; hoverEnabled: true; cursorShape: Qt.PointingHandCursor; onClicked: root.accept() }
                KeyControl { name: laterLabel.text; onActivated: root.accept() }
            }
        }

        Text {
            renderType: Text.QtRendering
            anchors { left: body.left; bottom: parent.bottom; bottomMargin: 28 }
            width: Math.min(implicitWidth, body.width - dontShowLabel.implicitWidth - 16)
            wrapMode: Text.WordWrap
            text: TU.getLocalizedText("<a href=\"#\">Why is there a watermark?</a>")
            textFormat: Text.StyledText
            linkColor: "#0f7d6b"
            font { family: Style.fontArial; pixelSize: 13; hintingPreference: Font.PreferNoHinting }
            onLinkActivated: root.openLink(root.whyUrl)
            MouseArea { anchors.fill: parent; acceptedButtons: Qt.NoButton; cursorShape: Qt.PointingHandCursor }
            KeyControl { role: Accessible.Link; name: parent.text.replace(/<[^>]*>/g, ""); onActivated: parent.linkActivated("#") }
        }
        Text {
            renderType: Text.QtRendering
            id: dontShowLabel
            anchors { right: parent.right; bottom: parent.bottom; rightMargin: 48; bottomMargin: 28 }
            text: TU.getLocalizedText("Don't show again")
            color: dontShowArea.containsMouse ? "#4a5670" : "#647086"
            font { family: Style.fontArial; pixelSize: 12; hintingPreference: Font.PreferNoHinting }
            MouseArea { id: dontShowArea; anchors.fill: parent; hoverEnabled: true; cursorShape: Qt.PointingHandCursor; onClicked: root.dontShow() }
            KeyControl { name: dontShowLabel.text; onActivated: root.dontShow() }
        }
    }

    Rectangle {
        id: closeButton
        width: 28; height: 28; radius: 14
        anchors.top: parent.top
        anchors.topMargin: 12
        color: closeArea.containsMouse ? "#eef1f6" : "transparent"
        Text { renderType: Text.QtRendering; anchors.centerIn: parent; text: TU.getLocalizedText("\u2715"); color: "#6b7690"; Accessible.ignored: true; font { family: Style.fontArial; pixelSize: 14; hintingPreference: Font.PreferNoHinting } }
        MouseArea { id: closeArea; anchors.fill: parent; hoverEnabled: true; cursorShape: Qt.PointingHandCursor; onClicked: root.close() }
        KeyControl { name: TU.getLocalizedText("Close"); onActivated: root.close() }
    }

    Component.onCompleted: {
        // Same size and margin everywhere; only the corner follows the platform's habit.
        if (Style.platform === "mac") {
            closeButton.anchors.left = root.left
            closeButton.anchors.leftMargin = 12
        } else {
            closeButton.anchors.right = root.right
            closeButton.anchors.rightMargin = 12
        }
    }
}
