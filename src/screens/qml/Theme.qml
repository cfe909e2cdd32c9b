pragma Singleton
import QtQuick
import Vantrell

// The colours, type scale and measures of every screen, and what their items share, in one place.
QtObject {
    // Set by the window from the desktop's appearance.
    property bool dark: false
    property bool reducesMotion: false
    // What every figure opens when it is pressed. Set by the window.
    property CurrencyBreakdown breakdown: null
    readonly property Clipboard clipboard: Clipboard {}

    readonly property color window: dark ? "#17181B" : "#F4F5F7"
    readonly property color sidebar: dark ? "#1D1F23" : "#EAECEF"
    readonly property color card: dark ? "#222429" : "#FFFFFF"
    readonly property color raised: dark ? "#2B2E34" : "#FFFFFF"
    readonly property color border: dark ? "#34373E" : "#DFE2E6"
    readonly property color separator: dark ? "#303339" : "#E6E8EC"
    readonly property color control: dark ? "#33363D" : "#FFFFFF"
    readonly property color controlPressed: dark ? "#3D4149" : "#E9EBEF"
    readonly property color quaternary: dark ? "#2C2F35" : "#EFF1F4"
    readonly property color selection: dark ? "#2A3444" : "#D9E5F8"
    readonly property color scrim: dark ? "#99000000" : "#59000000"

    readonly property color primary: dark ? "#F1F2F4" : "#1B1D21"
    readonly property color secondary: dark ? "#AEB3BC" : "#575D68"
    readonly property color tertiary: dark ? "#9AA0AB" : "#626872"
    readonly property color accent: dark ? "#6AA5F8" : "#1B5FCB"
    readonly property color accentFill: dark ? "#3673D3" : "#1B5FCB"
    readonly property color accentInk: "#FFFFFF"
    readonly property color good: dark ? "#4CC38A" : "#1B7F4B"
    readonly property color warning: dark ? "#F0A35E" : "#955000"
    readonly property color bad: dark ? "#F47C75" : "#BC2F28"

    readonly property color chartProceeds: accentFill
    readonly property color chartRefunds: Qt.rgba(bad.r, bad.g, bad.b, 0.75)
    readonly property color chartMissing: dark ? "#3B3F47" : "#DDE0E6"
    readonly property color chartZero: dark ? "#6B707A" : "#A3A9B3"
    readonly property color chartGrid: dark ? "#2D3036" : "#ECEEF1"

    // Its digits are all of one width.
    readonly property string family: "Roboto"
    readonly property real smallest: 11
    readonly property real caption: 12
    readonly property real callout: 13
    readonly property real body: 14
    readonly property real headline: 15
    readonly property real title3: 18
    readonly property real title2: 22
    readonly property real largeTitle: 32

    // Where the window is wider, the margins grow.
    readonly property real widestContent: 1400
    readonly property real cardRadius: 16
    readonly property real controlRadius: 8
    readonly property real controlHeight: 32
    readonly property int quick: reducesMotion ? 0 : 120

    // What is known of a day.
    function covered(status) {
        switch (status) {
        case "ok": return chartProceeds
        case "empty": return dark ? "#2B4368" : "#B9D0F2"
        case "pending": return dark ? "#8A6236" : "#EFC38F"
        case "error": return bad
        case "unavailable": return chartMissing
        default: return "transparent"
        }
    }
    function tone(value) {
        switch (value) {
        case Tone.Secondary: return secondary
        case Tone.Tertiary: return tertiary
        case Tone.Accent: return accent
        case Tone.Good: return good
        case Tone.Warning: return warning
        case Tone.Bad: return bad
        case Tone.Muted: return secondary
        default: return primary
        }
    }
}
