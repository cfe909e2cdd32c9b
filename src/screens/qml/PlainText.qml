import QtQuick
import Vantrell

// Every text on every screen. Never markup: what a report holds is shown as it stands.
Text {
    id: text

    // False for a text whose control speaks for it.
    property bool spoken: true

    textFormat: Text.PlainText
    // By the window's direction and not by that of the text, so that columns stay aligned.
    horizontalAlignment: Text.AlignLeft
    font.family: Theme.family
    font.pixelSize: Theme.body
    color: Theme.primary
    elide: wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    Accessible.role: Accessible.StaticText
    Accessible.name: text.text
    Accessible.ignored: !text.spoken || text.text === ""
}
