import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

// The main window.
T.ApplicationWindow {
    id: window

    required property RootView root

    title: window.root.title
    width: 1150
    height: 760
    minimumWidth: 640
    minimumHeight: 480
    color: Theme.window
    font.family: Theme.family
    font.pixelSize: Theme.body
    LayoutMirroring.enabled: root.isRightToLeft
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Theme
        property: "breakdown"
        value: window.root.breakdown
    }
    Binding {
        target: Theme
        property: "dark"
        value: window.root.isDark
    }
    Binding {
        target: Theme
        property: "reducesMotion"
        value: window.root.reducesMotion
    }
    Shortcuts { root: window.root }
    Loader {
        anchors.fill: parent
        active: !window.root.hasCredentials
        sourceComponent: Item {
            StoreNotice {
                id: notice
                width: parent.width
                root: window.root
            }
            WelcomeScreen {
                anchors.fill: parent
                anchors.topMargin: notice.height
                model: window.root.welcome
            }
            ApplicationMenu {
                anchors.left: parent.left
                anchors.top: notice.bottom
                anchors.margins: 14
                commands: window.root.menu
            }
        }
    }
    Loader {
        active: window.root.about.isOpen
        sourceComponent: AboutWindow {
            model: window.root.about
            mirrored: window.root.isRightToLeft
        }
    }
    RowLayout {
        anchors.fill: parent
        visible: window.root.hasCredentials
        spacing: 0
        Sidebar {
            Layout.fillHeight: true
            Layout.preferredWidth: 210
            Layout.minimumWidth: 180
            root: window.root
        }
        ColumnLayout {
            spacing: 0
            Toolbar {
                Layout.fillWidth: true
                root: window.root
            }
            StoreNotice {
                Layout.fillWidth: true
                root: window.root
            }
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                ScreenHost {
                    root: window.root
                    model: window.root.dashboard
                    sourceComponent: DashboardScreen {
                        model: window.root.dashboard
                        syncButton: window.root.syncButton
                    }
                }
                ScreenHost {
                    id: appsHost
                    root: window.root
                    model: window.root.apps
                    sourceComponent: AppsScreen { apps: window.root.apps }
                }
                AppDetailHost {
                    anchors.fill: parent
                    root: window.root
                    onClosed: if (appsHost.current) appsHost.forceActiveFocus()
                }
                ScreenHost {
                    root: window.root
                    model: window.root.byDay
                    sourceComponent: TrendsScreen { trends: window.root.byDay }
                }
                ScreenHost {
                    root: window.root
                    model: window.root.history
                    sourceComponent: HistoryScreen {
                        history: window.root.history
                        syncButton: window.root.syncButton
                    }
                }
                ScreenHost {
                    root: window.root
                    model: window.root.payouts
                    sourceComponent: PayoutsScreen { model: window.root.payouts }
                }
                ScreenHost {
                    root: window.root
                    model: window.root.settings
                    sourceComponent: SettingsScreen { model: window.root.settings }
                }
            }
        }
    }
}
