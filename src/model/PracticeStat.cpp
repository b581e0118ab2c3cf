// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeStat.h"

#include "model/JsonInteger.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

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

QByteArray encodePracticeStats(const QHash<QString, PracticeStat> &stats)
{
    // The object keeps its keys sorted: in any other order each entry would move those after it.
    QStringList ids = stats.keys();
    std::ranges::sort(ids);
    QJsonObject object;
    for (const QString &id : ids) {
        const PracticeStat stat = stats.value(id);
        object.insert(id, QJsonObject{{u"seen"_s, stat.seen}, {u"wrong"_s, stat.wrong}});
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace keyvora
