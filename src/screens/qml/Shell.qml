pragma Singleton
import QtQuick
import Vantrell

// What every figure and row of the window shares. The window sets what it owns.
QtObject {
    property CurrencyBreakdown breakdown: null
    property RootView root: null
    readonly property Clipboard clipboard: Clipboard {}
}
