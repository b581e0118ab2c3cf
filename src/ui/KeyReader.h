// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/KeyPress.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QKeyEvent;

namespace keyvora {

class KeyboardLayout;

/// Tells what the key events of a window stand for.
class KeyReader : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one; it comes in as a property.")

public:
    /// The layout outlives the reader.
    explicit KeyReader(const KeyboardLayout &layout, QObject *parent = nullptr);

    /// What was pressed; nothing for modifiers alone and for keys that no shortcut can name. Where the layout
    /// is unknown, a sign that needs Shift is not told from a key of its own.
    [[nodiscard]] std::optional<KeyPress> read(const QKeyEvent &event) const;

private:
    const KeyboardLayout &m_layout;
};

} // namespace keyvora
