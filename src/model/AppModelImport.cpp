// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The import of other applications' menus.

#include "model/AppModel.h"
#include "model/Assign.h"
#include "model/Backup.h"
#include "model/Localization.h"
#include "model/MenuShortcutImporter.h"
#include "platform/Accessibility.h"
#include "platform/WhenFinished.h"

#include <QCoreApplication>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

void addSignatures(QSet<QString> &signatures, const QList<Shortcut> &shortcuts)
{
    for (const Shortcut &shortcut : shortcuts)
        signatures.insert(menuSignature(shortcut));
}

/// The room that the user's own data leaves for imports. Without a bound the menus of others could make a
/// store that the next start does not read.
class ImportRoom
{
public:
    ImportRoom() = default;
    explicit ImportRoom(const AppModel::Backup &data)
    {
        // Data that takes more than there is leaves none.
        static_cast<void>(m_allowance.take(data));
    }

    [[nodiscard]] bool take(const Shortcut &shortcut)
    {
        const bool fits = m_allowance.take(shortcut);
        m_hasRefused = m_hasRefused || !fits;
        return fits;
    }

    [[nodiscard]] bool hasRefused() const { return m_hasRefused; }

private:
    BackupAllowance m_allowance = BackupAllowance::ofImports();
    bool m_hasRefused = false;
};

/// What the library does not know yet, with all repetitions, as far as there is room for it.
QList<Shortcut> unknown(const QList<Shortcut> &shortcuts, const QSet<QString> &signatures, ImportRoom &room)
{
    QList<Shortcut> result;
    for (const Shortcut &shortcut : shortcuts) {
        if (signatures.contains(menuSignature(shortcut)))
            continue;
        if (!room.take(shortcut))
            break;
        result.append(shortcut);
    }
    return result;
}

/// The applications that this program may read: all but itself.
QList<RunningApplication> others(QList<RunningApplication> applications)
{
    applications.removeIf([](const RunningApplication &application) {
        return application.pid == static_cast<qint32>(QCoreApplication::applicationPid());
    });
    return applications;
}

/// New ones were found, and none of them was added.
QString outcomeWithoutRoom()
{
    return Localization::shared().text(u"Na další zkratky už není místo."_s,
                                       u"There is no room for more shortcuts."_s);
}

QString outcomeWithoutApplications()
{
    return Localization::shared().text(u"Nenašel jsem žádné spuštěné aplikace k importu."_s,
                                       u"No running apps found to import from."_s);
}

QString outcomeOfFrontmost(qsizetype count, bool isFull, const QString &appName)
{
    const Localization &localization = Localization::shared();
    if (count == 0 && isFull)
        return outcomeWithoutRoom();
    if (count == 0)
        return localization.text(u"V menu nebyly nalezeny žádné nové zkratky."_s,
                                 u"No new shortcuts were found in the menu."_s);
    return localization.text(u"Importováno %1 zkratek z aplikace %2."_s, u"Imported %1 shortcuts from %2."_s)
        .arg(QString::number(count), appName);
}

QString outcomeOfRunningApps(qsizetype count, bool isFull, int contributors)
{
    const Localization &localization = Localization::shared();
    if (count == 0 && isFull)
        return outcomeWithoutRoom();
    if (count == 0)
        return localization.text(u"V žádné spuštěné aplikaci nebyly nalezeny nové zkratky."_s,
                                 u"No new shortcuts were found in any running app."_s);
    return localization
        .text(u"Importováno %1 zkratek z %2 aplikací."_s, u"Imported %1 shortcuts from %2 apps."_s)
        .arg(QString::number(count), QString::number(contributors));
}

} // namespace

/// An import of all running applications that is under way.
struct AppModel::RunningAppsImport
{
    /// The signatures of the library and the batch, and the room they leave. They are kept from one
    /// application to the next, because the library may be large, and made anew when it changed.
    const QSet<QString> &knownSignatures(const AppModel &model)
    {
        const AppLanguage current = Localization::shared().language();
        if (signatures.isEmpty() || language != current || customShortcuts != model.m_customShortcuts) {
            language = current;
            customShortcuts = model.m_customShortcuts;
            signatures.clear();
            addSignatures(signatures, model.allShortcuts());
            addSignatures(signatures, batch);
            room = ImportRoom(model.backup());
            for (const Shortcut &shortcut : batch)
                static_cast<void>(room.take(shortcut));
        }
        return signatures;
    }

    /// Adds what the application has to offer to the batch.
    void take(const QList<Shortcut> &imported, const AppModel &model)
    {
        const QList<Shortcut> added = unknown(imported, knownSignatures(model), room);
        if (added.isEmpty())
            return;
        batch.append(added);
        addSignatures(signatures, added);
        ++contributors;
    }

    QList<RunningApplication> applications;
    int started = 0; ///< how many of them have been read or are being read
    QList<Shortcut> batch;
    int contributors = 0;

    QSet<QString> signatures;
    ImportRoom room;
    AppLanguage language = AppLanguage::English; ///< of the catalog that is in the signatures
    QList<Shortcut> customShortcuts;             ///< those that are in the signatures
};

void AppModel::importFrontmostMenu()
{
    beginImport();
    if (!m_activeAppPID) {
        setImportError(MenuImportError::application);
        endImport();
        return;
    }
    const auto finish = [this, appName = m_activeApp](const QFuture<MenuImport> &import) {
        const MenuImport outcome = resultOr(import, MenuImport(MenuImportError::menu));
        if (const auto *error = std::get_if<MenuImportError>(&outcome)) {
            setImportError(*error);
        } else {
            QSet<QString> signatures;
            addSignatures(signatures, allShortcuts());
            ImportRoom room(backup());
            const QList<Shortcut> added = unknown(std::get<QList<Shortcut>>(outcome), signatures, room);
            addImported(added);
            setImportOutcome([count = added.size(), isFull = room.hasRefused(), appName] {
                return outcomeOfFrontmost(count, isFull, appName);
            });
        }
        endImport();
    };
    whenFinished(m_importer->importFromApplication(*m_activeAppPID, m_activeApp), this, finish);
}

void AppModel::importAllRunningApps()
{
    whenFinished(m_services.accessibility.isTrusted(), this, [this](const QFuture<bool> &isTrusted) {
        if (!resultOr(isTrusted, false)) {
            setImportError(MenuImportError::permission);
            m_services.accessibility.requestTrust();
            return;
        }
        beginImport();
        whenFinished(m_services.workspace.runningApplications(), this,
                     [this](const QFuture<QList<RunningApplication>> &running) {
                         const auto import = std::make_shared<RunningAppsImport>();
                         import->applications = others(resultOr(running, {}));
                         importNextApp(import);
                     });
    });
}

void AppModel::importNextApp(const std::shared_ptr<RunningAppsImport> &import)
{
    const int total = static_cast<int>(import->applications.size());
    while (import->started < total) {
        const RunningApplication &application = import->applications[import->started++];
        setImportProgress(ImportProgress{.current = import->started, .total = total});
        if (application.name.isEmpty() || !application.pid)
            continue;
        whenFinished(m_importer->importFromApplication(*application.pid, application.name), this,
                     [this, import](const QFuture<MenuImport> &finished) {
                         const MenuImport outcome = resultOr(finished, MenuImport(MenuImportError::menu));
                         if (const auto *shortcuts = std::get_if<QList<Shortcut>>(&outcome))
                             import->take(*shortcuts, *this);
                         importNextApp(import);
                     });
        return;
    }
    finishImport(*import);
}

void AppModel::finishImport(const RunningAppsImport &import)
{
    if (import.applications.isEmpty()) {
        setImportOutcome(&outcomeWithoutApplications);
    } else {
        addImported(import.batch);
        setImportOutcome([count = import.batch.size(), isFull = import.room.hasRefused(),
                          contributors = import.contributors] {
            return outcomeOfRunningApps(count, isFull, contributors);
        });
    }
    setImportProgress(std::nullopt);
    endImport();
}

void AppModel::addImported(const QList<Shortcut> &shortcuts)
{
    m_customShortcuts.append(shortcuts);
    saveCustomShortcuts();
    if (!shortcuts.isEmpty())
        emit customShortcutsChanged();
}

void AppModel::setImportError(MenuImportError error)
{
    setImportOutcome([error] { return errorDescription(error); });
}

void AppModel::setImportOutcome(std::function<QString()> inWords)
{
    m_importOutcome = std::move(inWords);
    updateImportMessage();
}

void AppModel::updateImportMessage()
{
    if (m_importOutcome && assign(m_importMessage, std::optional(m_importOutcome())))
        emit importMessageChanged();
}

void AppModel::setImportProgress(const std::optional<ImportProgress> &progress)
{
    if (assign(m_importProgress, progress))
        emit importProgressChanged();
}

void AppModel::beginImport()
{
    if (++m_importsUnderWay == 1)
        emit isImportingChanged();
}

void AppModel::endImport()
{
    if (--m_importsUnderWay == 0)
        emit isImportingChanged();
}

} // namespace keyvora
