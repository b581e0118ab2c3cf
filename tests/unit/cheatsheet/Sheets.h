// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/PrintableCheatSheetView.h"
#include "model/Defaults.h"
#include "model/Localization.h"

#include <QTemporaryDir>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

/// The interface language, in a folder of its own.
class Speaking
{
public:
    explicit Speaking(AppLanguage language)
        : m_defaults(m_folder.filePath(u"defaults.json"_s))
        , m_localization(m_defaults, {rawValue(language)})
    {
    }

    void speak(AppLanguage language) { m_localization.setLanguage(language); }

private:
    QTemporaryDir m_folder;
    Defaults m_defaults;
    Localization m_localization;
};

inline Shortcut entry(const QString &title, const QStringList &keys = {u"⌘"_s, u"C"_s})
{
    return {.id = title, .title = title, .keys = keys, .apps = {}, .detail = {}};
}

inline QList<Shortcut> entries(int count)
{
    QList<Shortcut> list;
    for (int i = 1; i <= count; ++i)
        list.append(entry(u"Title %1"_s.arg(i)));
    return list;
}

inline QStringList textsOf(const SheetElements &elements)
{
    QStringList texts;
    for (const SheetText &text : elements.texts)
        texts.append(text.line.text);
    return texts;
}

/// Where a text's letters may be.
inline QRectF boundsOf(const SheetText &text)
{
    const qreal size = text.line.style.size;
    return {text.baseline - QPointF(0, size), QSizeF(text.line.width, 1.25 * size)};
}

} // namespace keyvora
