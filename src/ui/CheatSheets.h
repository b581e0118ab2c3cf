// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/CheatSheetSize.h"
#include "cheatsheet/PrintService.h"
#include "model/ShortcutListModel.h"

#include <QObject>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

namespace keyvora {

class AppModel;

/// The essentials on the screen, and their way to paper and into files. Formats are told by their position in
/// the order of display.
class CheatSheets : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::ShortcutListModel *sticker READ sticker CONSTANT)
    Q_PROPERTY(int sizeCount READ sizeCount CONSTANT)
    Q_PROPERTY(int a4 READ a4 CONSTANT)
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    /// The model outlives it.
    CheatSheets(AppModel &model, PrintService service, QObject *parent = nullptr);

    /// The fixed choice of shortcuts, in the current language.
    [[nodiscard]] ShortcutListModel *sticker() const { return m_sticker; }
    [[nodiscard]] static int sizeCount() { return static_cast<int>(allCheatSheetSizes.size()); }
    /// Where A4 stands.
    [[nodiscard]] static int a4();

    // `czech` is the language's property, passed so that a binding follows it.
    [[nodiscard]] Q_INVOKABLE QString label(int size, bool czech) const;
    [[nodiscard]] Q_INVOKABLE QString detail(int size, bool czech) const;
    [[nodiscard]] Q_INVOKABLE bool isCard(int size) const;

    // Both open a dialog over the window and end silently, whatever comes of it.
    Q_INVOKABLE void print(int size, QWindow *window) const;
    Q_INVOKABLE void exportPDF(int size, QWindow *window) const;

private:
    [[nodiscard]] static QList<Shortcut> stickerShortcuts();

    PrintService m_service;
    ShortcutListModel *m_sticker;
};

} // namespace keyvora
