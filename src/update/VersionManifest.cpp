// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "update/VersionManifest.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace keyvora {

std::optional<VersionManifest> VersionManifest::decode(const QByteArray &json)
{
    // What is no object has none of the keys.
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const QJsonValue version = object.value(QLatin1StringView("version"));
    const QJsonValue url = object.value(QLatin1StringView("url"));
    const QJsonValue notes = object.value(QLatin1StringView("notes"));
    const bool hasNotes = !notes.isUndefined() && !notes.isNull();
    if (!version.isString() || !url.isString() || (hasNotes && !notes.isString()))
        return std::nullopt;
    return VersionManifest{
        .version = version.toString(),
        .url = url.toString(),
        .notes = hasNotes ? std::optional(notes.toString()) : std::nullopt,
    };
}

} // namespace keyvora
