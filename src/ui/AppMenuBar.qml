// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// The main menu. Its texts are in the language in which it was installed.
MenuBarGround {
    id: root

    required property AppMenu appMenu

    readonly property bool czech: root.appMenu.czech
    readonly property bool isActive: appTitle.isOpen || editTitle.isOpen || windowTitle.isOpen
    // Where cutting, copying and pasting happens. An open menu has the focus itself, so the place before counts.
    property TextInput editedText: null
    readonly property Item focusItem: root.Window.activeFocusItem

    signal aboutRequested
    signal minimizeRequested

    // Opens one menu and closes the others.
    function present(title: AppMenuTitle): void {
        appTitle.closeMenu();
        editTitle.closeMenu();
        windowTitle.closeMenu();
        title.openMenu();
    }

    Accessible.role: Accessible.MenuBar
    onFocusItemChanged: {
        if (root.focusItem !== null && !root.isActive)
            root.editedText = root.focusItem as TextInput;
    }

    Shortcut {
        sequence: "F10"
        onActivated: root.present(appTitle)
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: root.appMenu.quitRequested()
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: root.Window.window.close()
    }
    Shortcut {
        sequence: "Ctrl+M"
        onActivated: root.minimizeRequested()
    }

    // Qt 6.4 gives the linter no way to know that a menu belongs to the component around it.
    // qmllint disable unqualified
    Row {
        x: 12
        y: 2

        AppMenuTitle {
            id: appTitle
            text: "Keyvora"
            isBarActive: root.isActive
            onRequested: root.present(appTitle)

            dropDown: AppMenuPopup {
                title: appTitle.text
                onNextRequested: root.present(editTitle)
                onPreviousRequested: root.present(windowTitle)

                AppMenuItem {
                    label: root.czech ? "O aplikaci Keyvora" : "About Keyvora"
                    onTriggered: root.aboutRequested()
                }
                T.MenuSeparator {
                    padding: 4
                    contentItem: RoundedRectangle {
                        implicitHeight: Theme.hairlineWidth
                        color: Theme.hairline
                    }
                }
                AppMenuItem {
                    label: root.czech ? "Ukončit Keyvora" : "Quit Keyvora"
                    keysText: "Ctrl+Q"
                    onTriggered: root.appMenu.quitRequested()
                }
            }
        }
        AppMenuTitle {
            id: editTitle
            text: root.czech ? "Úpravy" : "Edit"
            isBarActive: root.isActive
            onRequested: root.present(editTitle)

            dropDown: AppMenuPopup {
                title: editTitle.text
                onNextRequested: root.present(windowTitle)
                onPreviousRequested: root.present(appTitle)

                AppMenuItem {
                    label: root.czech ? "Vyjmout" : "Cut"
                    keysText: "Ctrl+X"
                    enabled: root.editedText !== null
                    onTriggered: root.editedText.cut()
                }
                AppMenuItem {
                    label: root.czech ? "Kopírovat" : "Copy"
                    keysText: "Ctrl+C"
                    enabled: root.editedText !== null
                    onTriggered: root.editedText.copy()
                }
                AppMenuItem {
                    label: root.czech ? "Vložit" : "Paste"
                    keysText: "Ctrl+V"
                    enabled: root.editedText !== null
                    onTriggered: root.editedText.paste()
                }
                AppMenuItem {
                    label: root.czech ? "Vybrat vše" : "Select All"
                    keysText: "Ctrl+A"
                    enabled: root.editedText !== null
                    onTriggered: root.editedText.selectAll()
                }
            }
        }
        AppMenuTitle {
            id: windowTitle
            text: root.czech ? "Okno" : "Window"
            isBarActive: root.isActive
            onRequested: root.present(windowTitle)

            dropDown: AppMenuPopup {
                title: windowTitle.text
                onNextRequested: root.present(appTitle)
                onPreviousRequested: root.present(editTitle)

                AppMenuItem {
                    label: root.czech ? "Zavřít" : "Close"
                    keysText: "Ctrl+W"
                    onTriggered: root.Window.window.close()
                }
                AppMenuItem {
                    label: root.czech ? "Minimalizovat" : "Minimize"
                    keysText: "Ctrl+M"
                    onTriggered: root.minimizeRequested()
                }
            }
        }
    }
    // qmllint enable unqualified
}
