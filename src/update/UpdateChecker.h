// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace keyvora {

class Defaults;
class UrlLoader;
struct VersionManifest;

/// Where the maker says which version is the latest.
[[nodiscard]] QUrl updateManifestURL();

/// Whether there is a newer version than the one that runs, and what is known about it. The program has one.
/// Main thread only.
class UpdateChecker : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isUpdateAvailable READ isUpdateAvailable NOTIFY isUpdateAvailableChanged)
    Q_PROPERTY(QString currentVersion READ currentVersion CONSTANT)
    Q_PROPERTY(QString shownVersion READ shownVersion NOTIFY latestVersionChanged)
    Q_PROPERTY(QString shownNotes READ shownNotes NOTIFY notesChanged)
    Q_PROPERTY(bool hasDownloadPage READ hasDownloadPage NOTIFY downloadURLChanged)

public:
    /// Shows a page to the user, in whatever the desktop has for that.
    using OpenPage = std::function<void(const QUrl &page)>;

    /// Defaults and loader outlive it. `currentVersion` is the running one; without any it is "1.0".
    UpdateChecker(Defaults &defaults, UrlLoader &loader, const QString &currentVersion, OpenPage openPage);

    /// What the last check that succeeded told, as it came; nothing before. The address is none, too, when it
    /// is malformed.
    [[nodiscard]] const std::optional<QString> &latestVersion() const { return m_latestVersion; }
    [[nodiscard]] const std::optional<QUrl> &downloadURL() const { return m_downloadURL; }
    [[nodiscard]] const std::optional<QString> &notes() const { return m_notes; }

    /// The version that the user does not want to hear of; it is kept from one start to the next.
    [[nodiscard]] const std::optional<QString> &dismissedVersion() const { return m_dismissedVersion; }
    void setDismissedVersion(const std::optional<QString> &version);

    [[nodiscard]] const QString &currentVersion() const { return m_currentVersion; }

    /// Whether the latest version is newer than the running one and was not dismissed.
    [[nodiscard]] bool isUpdateAvailable() const;

    /// The latest version and its notes as they may be shown: in one line, harmless and of a bounded length;
    /// empty when there is nothing to show.
    [[nodiscard]] QString shownVersion() const;
    [[nodiscard]] QString shownNotes() const;

    /// Whether the download address is one that may be opened: a page on the web, and nothing else.
    [[nodiscard]] bool hasDownloadPage() const;

    /// Asks the maker's web server, once. When that fails, nothing changes and nobody is told.
    void checkForUpdate();

    /// Dismisses the latest version.
    Q_INVOKABLE void skip();
    /// Opens the download page, if there is one.
    Q_INVOKABLE void openDownloadPage();

signals:
    void latestVersionChanged();
    void downloadURLChanged();
    void notesChanged();
    void dismissedVersionChanged();
    void isUpdateAvailableChanged();

private:
    void take(const VersionManifest &manifest);

    Defaults &m_defaults;
    UrlLoader &m_loader;
    QString m_currentVersion;
    OpenPage m_openPage;
    std::optional<QString> m_latestVersion;
    std::optional<QUrl> m_downloadURL;
    std::optional<QString> m_notes;
    std::optional<QString> m_dismissedVersion;
};

} // namespace keyvora
