// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeStat.h"

#include "model/JsonInteger.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

std::optional<QHash<QString, PracticeStat>> decodePracticeStats(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    QHash<QString, PracticeStat> stats;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const auto seen = jsonInteger(entry.value()["seen"_L1]);
        const auto wrong = jsonInteger(entry.value()["wrong"_L1]);
        if (!seen || !wrong)
            return std::nullopt;
        stats.insert(entry.key(), {*seen, *wrong});
    }
    return stats;
}

} // namespace keyvora
