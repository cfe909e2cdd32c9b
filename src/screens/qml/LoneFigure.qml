import QtQuick
import Vantrell

// A figure that is in no row, and so can be copied by itself.
MoneyText {
    id: figure

    Keys.onPressed: event => copying.takeKey(event)
    CopyHandler {
        id: copying
        text: figure.text
    }
}
