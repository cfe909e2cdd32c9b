import QtQuick
import QtQuick.Layouts
import Vantrell

// A row of a form: what it is at one end, its value or controls at the other.
RowLayout {
    id: row

    property string label: ""

    Layout.fillWidth: true
    spacing: 10

    DataText {
        Layout.fillWidth: true
        Layout.minimumWidth: 90
        text: row.label
    }
}
