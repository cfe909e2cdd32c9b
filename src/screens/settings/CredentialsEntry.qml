import QtQuick
import QtQuick.Layouts
import Vantrell

// One text of the credentials with its label and where it is found.
ColumnLayout {
    id: entry

    required property string label
    // An example.
    required property string prompt
    required property string hint
    required property string value
    signal edited(string text)

    Layout.fillWidth: true
    spacing: 4

    PlainText {
        spoken: false
        text: entry.label
        font.pixelSize: Theme.callout
        font.weight: Font.Medium
    }
    TextEntry {
        Layout.fillWidth: true
        name: entry.label
        prompt: entry.prompt
        text: entry.value
        onTextEdited: entry.edited(text)
    }
    FormNote { text: entry.hint }
}
