// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace keyvora {

/// The key combination of a menu command.
struct Accelerator
{
    QString commandCharacter; ///< as in `MenuElement`
    int modifiers = 0;        ///< bits of `MenuModifier`

    friend bool operator==(const Accelerator &, const Accelerator &) = default;
};

/// Reads what applications answer to `org.a11y.atspi.Action.GetKeyBinding`. GTK, LibreOffice and Firefox give
/// "mnemonic;path of mnemonics;accelerator", Qt gives a key sequence in its portable form. Nothing for a
/// command without a key: mnemonics are none, and Qt passes those off as "Alt+<a letter of the title>".
/// Nothing, too, for what one key with modifiers cannot say: several strokes, unknown keys, or no sense at
/// all.
[[nodiscard]] std::optional<Accelerator> parseKeyBinding(QStringView binding, QStringView title);

/// Reads the accelerators of GTK alone, such as "<Primary><Shift>s".
[[nodiscard]] std::optional<Accelerator> parseGtkAccelerator(QStringView text);

} // namespace keyvora
