import QtQuick
import QtQuick.Layouts
import Vantrell

// What a screen says in place of its figures while it has none.
ColumnLayout {
    id: view

    required property emptyState content

    spacing: 8

    SymbolItem {
        Layout.alignment: Qt.AlignHCenter
        Layout.preferredWidth: 48
        Layout.preferredHeight: 48
        Layout.bottomMargin: 6
        name: view.content.symbol
        color: Theme.tertiary
    }
    PlainText {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: view.content.title
        font.pixelSize: Theme.title2
        font.weight: Font.DemiBold
    }
    PlainText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: 420
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: view.content.description
        font.pixelSize: Theme.callout
        color: Theme.secondary
    }
}
