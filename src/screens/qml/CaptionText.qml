import QtQuick
import QtQuick.Layouts
import Vantrell

// A line of a row beneath its title; none if there is nothing to say.
DataText {
    Layout.fillWidth: true
    visible: text !== ""
    font.pixelSize: Theme.caption
    color: Theme.secondary
}
