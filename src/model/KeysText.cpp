// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeysText.h"

#include "model/KeySteps.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QStringList parsedKeys(const QString &text)
{
    QStringList keys;
    for (const QString &step : text.split(u'→')) {
        QStringList pieces;
        for (const QString &piece : step.split(u'+')) {
            if (const QString key = piece.trimmed(); !key.isEmpty())
                pieces.append(key);
        }
        if (!keys.isEmpty() && !pieces.isEmpty())
            keys.append(u"→"_s);
        keys.append(pieces);
    }
    return keys;
}

QString keysText(const QStringList &keys)
{
    QString text;
    for (int index = 0; index < keys.size(); ++index) {
        const bool isFirstOfStep = index == 0 || isStepSeparator(keys, index - 1);
        if (isStepSeparator(keys, index))
            text += u" → "_s;
        else
            text += (isFirstOfStep ? QString() : u" + "_s) + keys[index];
    }
    return text;
}

} // namespace keyvora
