// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "update/UpdateChecker.h"

#include "model/Assign.h"
#include "model/Defaults.h"
#include "model/DefaultsKeys.h"
#include "platform/ForeignText.h"
#include "platform/MakersDomain.h"
#include "platform/UrlLoader.h"
#include "platform/WhenFinished.h"
#include "update/VersionManifest.h"
#include "update/VersionOrder.h"

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

// What a banner has room for.
constexpr qsizetype maximumVersionLength = 40;
constexpr qsizetype maximumNotesLength = 400;

std::optional<QUrl> parsed(const QString &address)
{
    QUrl url(address, QUrl::StrictMode);
    return url.isValid() ? std::optional(std::move(url)) : std::nullopt;
}

bool mayBeOpened(const QUrl &url)
{
    const QString scheme = url.scheme();
    return (scheme == "https"_L1 || scheme == "http"_L1) && !url.host().isEmpty();
}

} // namespace

QUrl updateManifestURL()
{
    return QUrl(u"https://"_s + makersDomain() + u"/downloads/keyvora/version.json"_s);
}

UpdateChecker::UpdateChecker(Defaults &defaults, UrlLoader &loader, const QString &currentVersion,
                             OpenPage openPage)
    : m_defaults(defaults)
    , m_loader(loader)
    , m_currentVersion(currentVersion.isEmpty() ? u"1.0"_s : currentVersion)
    , m_openPage(std::move(openPage))
    , m_dismissedVersion(defaults.text(DefaultsKeys::dismissedUpdateVersion))
{
}

void UpdateChecker::setDismissedVersion(const std::optional<QString> &version)
{
    if (version)
        m_defaults.setText(DefaultsKeys::dismissedUpdateVersion, *version);
    else
        m_defaults.remove(DefaultsKeys::dismissedUpdateVersion);
    const bool wasAvailable = isUpdateAvailable();
    if (!assign(m_dismissedVersion, version))
        return;
    emit dismissedVersionChanged();
    if (isUpdateAvailable() != wasAvailable)
        emit isUpdateAvailableChanged();
}

bool UpdateChecker::isUpdateAvailable() const
{
    return m_latestVersion && m_dismissedVersion != m_latestVersion &&
           isNewer(*m_latestVersion, m_currentVersion);
}

QString UpdateChecker::shownVersion() const
{
    return displayableForeignText(m_latestVersion.value_or(QString()), maximumVersionLength);
}

QString UpdateChecker::shownNotes() const
{
    return displayableForeignText(m_notes.value_or(QString()), maximumNotesLength);
}

bool UpdateChecker::hasDownloadPage() const
{
    return m_downloadURL && mayBeOpened(*m_downloadURL);
}

void UpdateChecker::checkForUpdate()
{
    whenFinished(m_loader.load(updateManifestURL()), this, [this](const auto &finished) {
        const std::optional<QByteArray> document = resultOr(finished, std::optional<QByteArray>());
        if (const auto manifest = VersionManifest::decode(document.value_or(QByteArray())))
            take(*manifest);
    });
}

void UpdateChecker::skip()
{
    setDismissedVersion(m_latestVersion);
}

void UpdateChecker::openDownloadPage()
{
    if (hasDownloadPage())
        m_openPage(*m_downloadURL);
}

void UpdateChecker::take(const VersionManifest &manifest)
{
    const bool wasAvailable = isUpdateAvailable();
    // Whoever hears of one sees all of them.
    const bool versionChanges = assign(m_latestVersion, std::optional(manifest.version));
    const bool addressChanges = assign(m_downloadURL, parsed(manifest.url));
    const bool notesChange = assign(m_notes, manifest.notes);
    if (versionChanges)
        emit latestVersionChanged();
    if (addressChanges)
        emit downloadURLChanged();
    if (notesChange)
        emit notesChanged();
    if (isUpdateAvailable() != wasAvailable)
        emit isUpdateAvailableChanged();
}

} // namespace keyvora
