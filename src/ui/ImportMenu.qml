// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// Brings in the shortcuts that other applications show in their menus.
GlassButton {
    id: root

    required property AppModel appModel
    property bool isImporting: root.appModel.isImporting
    property int current: root.appModel.importCurrent
    property int total: root.appModel.importTotal

    function countText(current: int): string {
        return (Localized.czech ? "Importuji… (" : "Importing… (") + current + "/" + root.total + ")";
    }

    // An import does not make the button smaller, nor does its count move what stands beside the button.
    implicitWidth: Math.max(implicitContentWidth, root.isImporting ? Math.max(idle.contentWidth, counted.contentWidth) : 0) + leftPadding + rightPadding
    symbol: "download"
    trailingSymbol: root.isImporting ? "" : "keyboard_arrow_down"
    label: !root.isImporting ? idle.text : root.total > 0 ? root.countText(root.current) : Localized.czech ? "Importuji…" : "Importing…"
    onClicked: {
        menu.active = true;
        const popup = menu.item as AppMenuPopup;
        if (popup.opened)
            popup.close();
        else
            popup.open();
    }

    component LabelMetrics: TextMetrics {
        font.pointSize: Theme.points(11)
        font.weight: Theme.mediumWeight
    }

    LabelMetrics {
        id: idle

        readonly property real contentWidth: Math.ceil(advanceWidth) + 46

        text: Localized.czech ? "Import z menu" : "Import from Menu"
    }
    LabelMetrics {
        id: counted

        readonly property real contentWidth: Math.ceil(advanceWidth) + 24

        text: root.total > 0 ? root.countText(root.total) : ""
    }
    // Made when it is first opened.
    Loader {
        id: menu
        active: false

        // Qt 6.4 gives the linter no way to know that the menu belongs to the component around it.
        // qmllint disable unqualified
        sourceComponent: AppMenuPopup {
            parent: root
            y: root.height + 4
            // The button itself closes it.
            closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

            AppMenuItem {
                label: Localized.czech ? "Import z aktivní aplikace „" + root.appModel.activeApp + "“"
                                      : "Import from Active App “" + root.appModel.activeApp + "”"
                enabled: !root.isImporting
                onTriggered: root.appModel.importFrontmostMenu()
            }
            AppMenuItem {
                label: Localized.czech ? "Import ze všech spuštěných aplikací" : "Import from All Running Apps"
                enabled: !root.isImporting
                onTriggered: root.appModel.importAllRunningApps()
            }
        }
        // qmllint enable unqualified
    }
}
