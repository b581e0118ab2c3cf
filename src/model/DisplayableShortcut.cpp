// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/DisplayableShortcut.h"

#include "platform/ForeignText.h"

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype maximumTitleLength = 200;
constexpr qsizetype maximumDetailLength = 400;
constexpr qsizetype maximumKeyLength = 40;
constexpr qsizetype maximumKeys = 24;

} // namespace

QString displayableTitle(const Shortcut &shortcut)
{
    return displayableForeignText(shortcut.title, maximumTitleLength);
}

QString displayableHeader(const Shortcut &shortcut)
{
    return displayableForeignText(headerText(shortcut), maximumTitleLength);
}

QString displayableDetail(const Shortcut &shortcut)
{
    return displayableForeignText(shortcut.detail, maximumDetailLength);
}

QStringList displayableKeys(const Shortcut &shortcut)
{
    QStringList keys;
    for (const QString &key : shortcut.keys.first(std::min(maximumKeys, shortcut.keys.size())))
        keys.append(displayableForeignText(key, maximumKeyLength));
    if (shortcut.keys.size() > maximumKeys)
        keys.append(u"…"_s);
    return keys;
}

} // namespace keyvora
