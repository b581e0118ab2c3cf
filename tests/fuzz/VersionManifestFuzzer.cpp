// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fuzz/Properties.h"
#include "update/VersionManifest.h"
#include "update/VersionOrder.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray encoded(const VersionManifest &manifest)
{
    QJsonObject object{{u"version"_s, manifest.version}, {u"url"_s, manifest.url}};
    if (manifest.notes)
        object.insert(u"notes"_s, *manifest.notes);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Any texts may be compared as versions.
void checkOrder(const QString &a, const QString &b, const QString &c)
{
    require(!isNewer(a, a), "no version is newer than itself");
    require(!isNewer(a, b) || !isNewer(b, a), "of two versions one is newer at most");
    require(!isNewer(a, b) || !isNewer(b, c) || isNewer(a, c), "what is newer than a newer one is newer");
    require(!isNewer(a + u".0"_s, a) && !isNewer(a, a + u".0"_s), "nothing at the end counts as 0");
    require(isNewer(a + u".1"_s, a) && !isNewer(a, a + u".1"_s), "something at the end counts");
    require(isNewer(a, b) == isNewer(a + u".later"_s, u"."_s + b), "what is no number does not count");
}

} // namespace

void checkVersionManifest(const QByteArray &bytes)
{
    const auto manifest = VersionManifest::decode(bytes);
    if (!manifest)
        return;
    const QString notes = manifest->notes.value_or(QString());
    require(manifest->version.size() + manifest->url.size() + notes.size() <= bytes.size(),
            "there is no more text than was sent");
    require(VersionManifest::decode(encoded(*manifest)) == manifest, "what was written is read as it was");
    checkOrder(manifest->version, manifest->url, notes);
    checkOrder(notes, manifest->version, manifest->url);
}

} // namespace keyvora
