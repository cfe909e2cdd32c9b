pragma Singleton
import QtQuick
import Vantrell

// What every figure of the window shares. Set by the window.
QtObject {
    property CurrencyBreakdown breakdown: null
    property RootView root: null
}
