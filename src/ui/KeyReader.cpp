// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/KeyReader.h"

#include "platform/KeyToken.h"
#include "platform/KeyboardLayout.h"

#include <QKeyEvent>

namespace keyvora {

namespace {

/// What can be known by the toolkit's own names of keys.
KeyboardLayout::Key keyOfToolkit(const QKeyEvent &event)
{
    const QString name = qtKeyToken(event.key());
    const QList<uint> characters = event.text().toUcs4();
    const QString typed = characters.size() == 1
                              ? characterToken(static_cast<char32_t>(characters.constFirst())).toUpper()
                              : QString();
    const bool isSign = event.key() < Qt::Key_Escape && name.size() == 1 && !name.front().isLetter();
    if (!isSign)
        return {.plain = name, .typed = name, .latin = {}};
    // With Shift, the key's name is the sign that it gives then.
    return {
        .plain = event.modifiers().testFlag(Qt::ShiftModifier) ? QString() : name,
        .typed = typed.isEmpty() ? name : typed,
        .latin = {},
    };
}

} // namespace

KeyReader::KeyReader(const KeyboardLayout &layout, QObject *parent)
    : QObject(parent)
    , m_layout(layout)
{
}

std::optional<KeyPress> KeyReader::read(const QKeyEvent &event) const
{
    const auto known =
        m_layout.key(event.nativeScanCode(), event.nativeVirtualKey(), event.nativeModifiers());
    const KeyboardLayout::Key key = known ? *known : keyOfToolkit(event);
    if (key.plain.isEmpty() && key.typed.isEmpty())
        return std::nullopt;
    const Qt::KeyboardModifiers held = event.modifiers();
    return KeyPress{
        .control = held.testFlag(Qt::ControlModifier),
        .option = held.testFlag(Qt::AltModifier),
        .shift = held.testFlag(Qt::ShiftModifier),
        .command = held.testFlag(Qt::MetaModifier),
        .plain = key.plain,
        .typed = key.typed,
        .latin = key.latin,
    };
}

} // namespace keyvora
