import QtQuick
import Vantrell

// The keys that work everywhere in the main window.
Item {
    id: keys

    required property RootView root

    Repeater {
        model: keys.root.destinations
        Item {
            id: entry
            required property destinationItem row
            required property int index
            Shortcut {
                sequence: "Ctrl+" + (entry.index + 1)
                enabled: keys.root.hasCredentials
                onActivated: keys.root.select(entry.row.destination)
            }
        }
    }
    Shortcut {
        sequences: ["F5", "Ctrl+R"]
        onActivated: keys.root.syncButton.press()
    }
    Shortcut {
        sequences: [StandardKey.Back]
        enabled: keys.root.canGoBack
        onActivated: keys.root.goBack()
    }
    Shortcut {
        sequences: [StandardKey.Preferences, "Ctrl+,"]
        enabled: keys.root.hasCredentials
        onActivated: keys.root.showSettings()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
