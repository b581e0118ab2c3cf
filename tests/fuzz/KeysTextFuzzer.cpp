// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fuzz/Properties.h"
#include "model/KeysText.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

void checkKeysText(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const QString arrow = u"→"_s;
    const QStringList keys = parsedKeys(text);
    qsizetype length = 0;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const QString &key = keys[i];
        require(!key.isEmpty() && key == key.trimmed(), "no key is blank");
        require(!key.contains(u'+') && (key == arrow || !key.contains(u'→')), "keys are apart");
        require(key != arrow || (i > 0 && i + 1 < keys.size() && keys[i - 1] != arrow),
                "arrows stand between steps");
        length += key.size();
    }
    require(length <= text.size(), "there are no more keys than were written");
    require(parsedKeys(keysText(keys)) == keys, "what was written is read as it was");
}

} // namespace keyvora
