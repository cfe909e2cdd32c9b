import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

// What happened on a day, line by line.
FocusScope {
    id: detail

    required property DayDetailView day
    signal done()

    Accessible.role: Accessible.Dialog
    Accessible.name: detail.day.title

    RowLayout {
        id: bar
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 16
        spacing: 12
        DataText {
            Layout.fillWidth: true
            text: detail.day.title
            font.pixelSize: Theme.title3
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        PushButton {
            prominent: true
            focus: true
            text: qsTr("Done")
            onClicked: detail.done()
        }
    }
    ListView {
        id: lines
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: bar.bottom
        anchors.topMargin: 12
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 1
        clip: true
        leftMargin: 16
        rightMargin: 16
        bottomMargin: 16
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        model: detail.day.lines
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Line items")
        T.ScrollBar.vertical: ScrollLine {}
        readonly property ReadingOrder order: ReadingOrder { content: lines.contentItem }
        header: DaySummary {
            width: lines.width - 32
            day: detail.day
        }
        delegate: LineRow { width: lines.width - 32 }
    }
}
