import QtQuick
import QtQuick.Layouts
import Vantrell

// What a form says about one of its rows, below it.
PlainText {
    Layout.fillWidth: true
    wrapMode: Text.Wrap
    lineHeight: 1.15
    font.pixelSize: Theme.caption
    color: Theme.secondary
}
