// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeyPress.h"

#include <QSet>

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList combination(const KeyPress &press, bool shift, const QString &key)
{
    QStringList tokens;
    if (press.control)
        tokens.append(u"⌃"_s);
    if (press.option)
        tokens.append(u"⌥"_s);
    if (shift)
        tokens.append(u"⇧"_s);
    if (press.command)
        tokens.append(u"⌘"_s);
    tokens.append(key);
    return tokens;
}

/// A token as the catalog would write it; users write their own as they like.
QString canonicalToken(const QString &token)
{
    if (token == "-"_L1)
        return u"−"_s;
    return token.size() == 1 ? token.toUpper() : token;
}

QSet<QString> canonicalSet(const QStringList &tokens)
{
    QSet<QString> set;
    for (const QString &token : tokens)
        set.insert(canonicalToken(token));
    return set;
}

} // namespace

QStringList keyTokens(const KeyPress &press)
{
    return combination(press, press.shift, press.plain.isEmpty() ? press.typed : press.plain);
}

QList<QStringList> readings(const KeyPress &press)
{
    QList<QStringList> all{keyTokens(press)};
    // With a letter Shift gives the same token, so that leaving it out would be another combination.
    if (!press.typed.isEmpty() && press.typed != press.plain) {
        all.append(combination(press, false, press.typed));
        if (press.shift)
            all.append(combination(press, true, press.typed));
    }
    if (!press.latin.isEmpty())
        all.append(combination(press, press.shift, press.latin));
    return all;
}

bool isPressOf(const KeyPress &press, const QStringList &keys)
{
    QSet<QString> asked = canonicalSet(keys);
    asked.remove(u"Fn"_s);
    return std::ranges::any_of(readings(press),
                               [&](const QStringList &reading) { return canonicalSet(reading) == asked; });
}

} // namespace keyvora
