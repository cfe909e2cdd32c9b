import QtQuick
import QtQuick.Layouts
import Vantrell

Card {
    default property alias content: column.data
    property alias spacing: column.spacing

    Layout.fillWidth: true
    implicitHeight: column.implicitHeight + 32

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 16
    }
}
