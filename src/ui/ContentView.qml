// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Window
import Keyvora

// What the main window shows: menu, sidebar, top bar, and the page of the selected section.
FocusScope {
    id: root

    required property AppModel appModel
    required property SidebarModel sections
    required property AppMenu appMenu
    required property bool isFirstTime

    readonly property int minimumWidth: 980
    readonly property int minimumHeight: 650 + menuBar.implicitHeight

    property bool hasGreeted: false

    function greet(window: Window): void {
        if (!root.isFirstTime || root.hasGreeted || window === null)
            return;
        root.hasGreeted = true;
        sheet.present("OnboardingView");
    }

    focus: true
    // Sheets need a window, which may come after the content.
    onWindowChanged: window => root.greet(window)
    Component.onCompleted: root.greet(root.Window.window)

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: topBar.focusSearch()
    }

    Backdrop {
        anchors.fill: parent
    }
    AppMenuBar {
        id: menuBar
        width: parent.width
        appMenu: root.appMenu
        onAboutRequested: about.present()
    }
    Sidebar {
        id: sidebar
        anchors.top: menuBar.bottom
        anchors.bottom: parent.bottom
        focus: true
        sections: root.sections
        onAddRequested: sheet.present("CustomShortcutEditor")
        onSettingsRequested: sheet.present("SettingsView")
    }
    TopBar {
        id: topBar
        anchors.top: menuBar.bottom
        anchors.topMargin: 16
        anchors.left: sidebar.right
        anchors.leftMargin: 22
        anchors.right: parent.right
        anchors.rightMargin: 22
        appModel: root.appModel
        sections: root.sections
        onLeftDownwards: library.focusCards()
    }
    LibraryView {
        id: library
        anchors.top: topBar.bottom
        anchors.topMargin: 18
        anchors.bottom: parent.bottom
        anchors.left: sidebar.right
        anchors.right: parent.right
        visible: root.sections.showsLibrary
        appModel: root.appModel
    }

    // At most one sheet is open; it exists while it is.
    Loader {
        id: sheet

        function present(name: string): void {
            sheet.source = name + ".qml";
        }

        onLoaded: (sheet.item as AppSheet).open()
    }
    Connections {
        target: sheet.item

        function onClosed(): void {
            sheet.source = "";
        }
    }
    Loader {
        id: about

        function present(): void {
            about.source = "AboutWindow.qml";
            (about.item as AboutWindow).show();
        }
    }
    Connections {
        target: about.item

        function onClosing(): void {
            about.source = "";
        }
    }
}
