import QtQuick
import QtQuick.Templates as T
import Vantrell

// The sheet of the selected day over a screen, as long as there is one.
T.Popup {
    id: popup

    required property DaySheet sheet

    function follow() {
        if (popup.sheet.day !== null) {
            detail.setSource("DayDetail.qml", { day: popup.sheet.day })
            popup.open()
        } else {
            popup.close()
            detail.source = ""
        }
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: parent ? Math.min(parent.width - 32, Math.max(560, Math.min(640, parent.width * 0.6))) : 560
    height: parent ? Math.min(parent.height - 32, Math.max(500, parent.height * 0.8)) : 500
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onClosed: popup.sheet.dismiss()
    Component.onCompleted: follow()

    contentItem: Loader {
        id: detail
        focus: true
    }
    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.window
        border.color: Theme.border
    }
    T.Overlay.modal: Rectangle { color: Theme.scrim }

    Connections {
        target: popup.sheet
        function onDayChanged() { popup.follow() }
    }
    Connections {
        target: detail.item
        ignoreUnknownSignals: true
        function onDone() { popup.close() }
    }
}
