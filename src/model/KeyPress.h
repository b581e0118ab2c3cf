// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace keyvora {

/// One key pressed while modifiers were held. The texts are key tokens, as on the keys of `KeyboardLayout`.
struct KeyPress
{
    Q_GADGET
    Q_PROPERTY(bool control MEMBER control)
    Q_PROPERTY(bool option MEMBER option)
    Q_PROPERTY(bool shift MEMBER shift)
    Q_PROPERTY(bool command MEMBER command)
    Q_PROPERTY(QString plain MEMBER plain)
    Q_PROPERTY(QString typed MEMBER typed)
    Q_PROPERTY(QString latin MEMBER latin)

public:
    bool control = false;
    bool option = false; ///< Alt
    bool shift = false;
    bool command = false; ///< Super
    QString plain;        ///< what the key gives alone
    QString typed;        ///< what it gives with the modifiers as they are held; empty: nothing else
    QString latin = {};   ///< its Latin letter or sign on a layout of another script; empty: none

    friend bool operator==(const KeyPress &, const KeyPress &) = default;
};

/// The key tokens that a press stands for: Control, Option, Shift, Command, each where held, then the key as
/// it is without modifiers.
QStringList keyTokens(const KeyPress &press);

/// All ways in which a shortcut may write this press, `keyTokens` first. A sign that needs Shift is written
/// as Shift with the key, as the sign alone, or as both: "⇧ 1", "!", "⇧ !".
QList<QStringList> readings(const KeyPress &press);

/// Whether a press is the combination of these keys. Order and repetition do not matter, nor does the case of
/// letters; Fn, which keyboards keep to themselves, need not be seen.
bool isPressOf(const KeyPress &press, const QStringList &keys);

} // namespace keyvora
