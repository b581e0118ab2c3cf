// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// What the main window shows: menu, sidebar, top bar, and the page of the selected section.
FocusScope {
    id: root

    required property AppModel appModel
    required property SidebarModel sections
    required property Learning learning
    required property CheatSheets sheets
    required property Settings settings
    required property CustomShortcuts customs
    required property AppMenu appMenu
    required property TrustController trust
    required property UpdateChecker updates
    required property KeyReader keyReader
    required property bool isFirstTime

    // A sheet or another window is open.
    readonly property bool isInterrupted: sheet.item !== null || about.item !== null

    signal minimizeRequested

    readonly property bool showsLibrary: root.sections.page === SidebarModel.Page.Library

    // The settings gave way to the question, and come back after it.
    property bool returnsToSettings: false

    function presentSettings(): void {
        sheet.setSource("SettingsView.qml", {
            "settings": root.settings,
            "customs": root.customs
        });
    }

    // Asks as soon as no other sheet is open. The settings, from where the person asked for it, give way.
    function offerTrust(): void {
        if (!root.trust.isAsked)
            return;
        if (sheet.item instanceof SettingsView) {
            root.returnsToSettings = true;
            (sheet.item as SettingsView).close();
        } else if (sheet.item === null) {
            sheet.setSource("TrustPrompt.qml", {
                "controller": root.trust
            });
        }
    }

    function followSheet(): void {
        sheet.source = "";
        root.offerTrust();
        if (sheet.item !== null || !root.returnsToSettings)
            return;
        root.returnsToSettings = false;
        root.presentSettings();
    }

    // Where the person is in what is longer than the window, for the content that takes this one's place.
    function place(): var {
        return {
            "row": root.sections.currentRow,
            "libraryY": library.contentY,
            "libraryRow": library.currentRow,
            "pageY": page.item === null ? 0 : (page.item as ScrollPage).contentY
        };
    }

    // Goes there, once everything has its size, unless the person went somewhere else meanwhile.
    function resume(place: var): void {
        if (root.sections.currentRow !== place.row)
            return;
        library.resume(place.libraryY, place.libraryRow);
        if (page.item !== null)
            (page.item as ScrollPage).scrollTo(place.pageY);
    }

    // Moves the keyboard into what the section shows.
    function focusPage(): void {
        if (root.showsLibrary)
            library.focusCards();
        else
            page.focusFirst();
    }

    // Nobody would have the keyboard that was in what goes, and what is hidden would keep it.
    onShowsLibraryChanged: {
        if (root.showsLibrary && page.activeFocus)
            library.focusCards();
        else if (!root.showsLibrary && library.activeFocus)
            page.forceActiveFocus();
    }
    focus: true
    Component.onCompleted: {
        if (root.isFirstTime)
            sheet.present("OnboardingView");
        root.offerTrust();
    }

    Connections {
        target: root.trust

        function onIsAskedChanged(): void {
            root.offerTrust();
        }
    }
    Connections {
        target: root.appModel

        function onShortcutRevealed(shortcutId: string): void {
            library.reveal(shortcutId, sheet.item === null);
        }
    }

    FocusFollower {
        within: canvas
        onMoved: focused => viewport.bringIntoView(focused)
    }

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: {
            topBar.focusSearch();
            viewport.bringIntoView(root.Window.activeFocusItem);
        }
    }

    AppMenuBar {
        id: menuBar
        width: parent.width
        appMenu: root.appMenu
        onAboutRequested: about.present()
        onMinimizeRequested: root.minimizeRequested()
    }
    // Screens may be narrower than the content, which scrolls sideways then; upwards and downwards its parts do.
    Flickable {
        id: viewport

        // Scrolls as little as shows an item, or its beginning where it is wider than the window.
        function bringIntoView(item: Item): void {
            const left = item.mapToItem(canvas, 0, 0).x;
            const leftmost = left + item.width + viewport.margin - viewport.width;
            const x = Math.min(Math.max(viewport.contentX, leftmost), left - viewport.margin);
            viewport.contentX = Math.max(0, Math.min(x, viewport.contentWidth - viewport.width));
        }

        readonly property int margin: 12

        objectName: "viewport"
        anchors.top: menuBar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentWidth: Math.max(viewport.width, Theme.leastPageWidth)
        contentHeight: viewport.height
        interactive: viewport.contentWidth > viewport.width
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.HorizontalFlick

        T.ScrollBar.horizontal: SlimScrollBar {}

        Item {
            id: canvas
            width: viewport.contentWidth
            height: viewport.height

            Sidebar {
                id: sidebar
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                focus: true
                sections: root.sections
                onAddRequested: sheet.setSource("CustomShortcutEditor.qml", {
                    "draft": root.customs.draft,
                    "keyReader": root.keyReader
                })
                onSettingsRequested: root.presentSettings()
            }
            TopBar {
                id: topBar
                anchors.top: parent.top
                anchors.topMargin: 16
                anchors.left: sidebar.right
                anchors.leftMargin: 22
                anchors.right: parent.right
                anchors.rightMargin: 22
                appModel: root.appModel
                sections: root.sections
                onLeftDownwards: root.focusPage()
            }
            Loader {
                id: banner
                anchors.top: topBar.bottom
                anchors.topMargin: 16
                anchors.left: topBar.left
                anchors.right: topBar.right
                active: root.updates.isUpdateAvailable
                Component.onCompleted: banner.setSource("UpdateBanner.qml", {
                    "updates": root.updates
                })
            }
            Connections {
                target: banner.item
                ignoreUnknownSignals: true

                function onSkipping(hasFocus: bool): void {
                    if (!hasFocus)
                        return;
                    // Who uses the mouse is not taken into a control: that of the practice would take all keys.
                    if (Theme.showsFocus || root.showsLibrary)
                        root.focusPage();
                    else
                        page.forceActiveFocus();
                }
            }
            LibraryView {
                id: library
                anchors.top: banner.active ? banner.bottom : topBar.bottom
                anchors.topMargin: 18
                anchors.bottom: parent.bottom
                anchors.left: sidebar.right
                anchors.right: parent.right
                visible: root.showsLibrary
                appModel: root.appModel
            }
            // The screens of their own exist, and take time and memory, while they are shown; what they know outlives them.
            Loader {
                id: page

                readonly property int section: root.sections.page

                function focusFirst(): void {
                    if (page.item !== null)
                        (page.item as ScrollPage).focusFirst();
                }

                function follow(): void {
                    switch (page.section) {
                    case SidebarModel.Page.Keyboard:
                        page.setSource("VisualKeyboardView.qml", {
                            "appModel": root.appModel,
                            "keyboard": root.learning.keyboard
                        });
                        break;
                    case SidebarModel.Page.Sticker:
                        page.setSource("StickerView.qml", {
                            "appModel": root.appModel,
                            "sheets": root.sheets
                        });
                        break;
                    case SidebarModel.Page.FirstAid:
                        page.setSource("FirstAidView.qml", {
                            "appModel": root.appModel,
                            "groups": root.learning.firstAid
                        });
                        break;
                    case SidebarModel.Page.Daily:
                        page.setSource("DailyLearningView.qml", {
                            "appModel": root.appModel,
                            "lesson": root.learning.lesson
                        });
                        break;
                    case SidebarModel.Page.Practice:
                        page.setSource("PracticeView.qml", {
                            "practice": root.learning.practice,
                            "keyReader": root.keyReader
                        });
                        break;
                    default:
                        page.source = "";
                    }
                }

                anchors.fill: library
                onSectionChanged: page.follow()
            }
        }
    }
    Connections {
        target: page.item
        ignoreUnknownSignals: true

        function onExportRequested(): void {
            sheet.setSource("CheatSheetExportSheet.qml", {
                "sheets": root.sheets
            });
        }
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

        function onQuitRequested(): void {
            root.appMenu.quitRequested();
        }
        function onClosed(): void {
            root.followSheet();
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

        function onQuitRequested(): void {
            root.appMenu.quitRequested();
        }
        function onClosing(): void {
            about.source = "";
        }
    }
}
