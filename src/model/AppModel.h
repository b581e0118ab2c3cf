// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DisplayableShortcut.h"
#include "model/MenuImportError.h"
#include "model/MenuUseObserver.h"
#include "model/ModifierFilter.h"
#include "model/PracticeDraw.h"
#include "model/PracticeStat.h"
#include "model/Shortcut.h"
#include "model/ShortcutListModel.h"
#include "model/SidebarSelection.h"
#include "platform/PlatformError.h"
#include "platform/Workspace.h"

#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QObject>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>

namespace keyvora {

class Accessibility;
class Defaults;
class LoginItem;
class MenuShortcutImporter;
struct Backup;

/// How far an import has come: the application being read, counted from 1, of how many.
struct ImportProgress
{
    int current = 0;
    int total = 0;

    friend bool operator==(const ImportProgress &, const ImportProgress &) = default;
};

/// Shortcuts of the user's own that were deleted together.
struct DeletedCustom
{
    struct Entry
    {
        qsizetype position = 0; ///< in the list before the deletion
        Shortcut shortcut = {};
    };

    QList<Entry> entries = {}; ///< by position
    bool wasFavorite = false;
};

/// The state of the program: what the library shows, the user's own data, and the switches. Everything that
/// is persisted is written by the operation that changes it; nothing is saved at exit. Signals tell of real
/// changes only. Main thread only.
class AppModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(QStringList modifierTokens READ modifierTokens NOTIFY modifierFiltersChanged)
    Q_PROPERTY(QString activeApp READ activeApp NOTIFY activeAppChanged)
    Q_PROPERTY(QString importMessage READ importMessageText NOTIFY importMessageChanged)
    Q_PROPERTY(bool isImporting READ isImporting NOTIFY isImportingChanged)
    Q_PROPERTY(int importCurrent READ importCurrent NOTIFY importProgressChanged)
    Q_PROPERTY(int importTotal READ importTotal NOTIFY importProgressChanged)
    Q_PROPERTY(QString suggestionId READ suggestionId NOTIFY latestSuggestionChanged)
    Q_PROPERTY(QString suggestionTitle READ suggestionTitle NOTIFY latestSuggestionChanged)
    Q_PROPERTY(QStringList suggestionKeys READ suggestionKeys NOTIFY latestSuggestionChanged)
    Q_PROPERTY(QString suggestionReason READ latestSuggestionReason NOTIFY latestSuggestionReasonChanged)
    Q_PROPERTY(keyvora::ShortcutListModel *filteredModel READ filteredModel CONSTANT)
    Q_PROPERTY(keyvora::ShortcutListModel *contextualModel READ contextualModel CONSTANT)

public:
    using Backup = keyvora::Backup;
    using SmartObserverFactory =
        std::function<std::unique_ptr<MenuUseObserver>(MenuUseObserver::MenuActionHandler)>;

    /// What the model stands on; all of it outlives the model.
    struct Dependencies
    {
        Defaults &defaults;
        Workspace &workspace;
        LoginItem &loginItem;
        Accessibility &accessibility;
        SmartObserverFactory makeSmartObserver;
        QLocale locale = QLocale::system();     ///< whose rules compare texts
        std::function<QString()> makeUuid = {}; ///< absent: random ones
        std::function<QDateTime()> now = &QDateTime::currentDateTime;
        UniformRandom uniformRandom = systemRandom();
    };

    /// Restores what is stored, reads the frontmost application and follows it from then on.
    explicit AppModel(Dependencies dependencies, QObject *parent = nullptr);
    ~AppModel() override;

    [[nodiscard]] const QString &search() const { return m_search; }
    [[nodiscard]] SidebarSelection selection() const { return m_selection; }
    [[nodiscard]] const QSet<ModifierFilter> &modifierFilters() const { return m_modifierFilters; }
    /// The key tokens of the filters that are on, in the order of display.
    [[nodiscard]] QStringList modifierTokens() const;
    /// The application that the user works in or came from; never this program. "Mac" until one is known.
    [[nodiscard]] const QString &activeApp() const { return m_activeApp; }
    [[nodiscard]] std::optional<qint32> activeAppPID() const { return m_activeAppPID; }
    [[nodiscard]] const QList<Shortcut> &customShortcuts() const { return m_customShortcuts; }
    [[nodiscard]] bool smartSuggestionsEnabled() const { return m_smartSuggestionsEnabled; }
    [[nodiscard]] bool learningModeEnabled() const { return m_learningModeEnabled; }
    [[nodiscard]] const std::optional<Shortcut> &latestSuggestion() const { return m_latestSuggestion; }
    [[nodiscard]] const QString &latestSuggestionReason() const { return m_latestSuggestionReason; }
    // The latest suggestion by its parts, as it may be shown; empty when there is none.
    [[nodiscard]] QString suggestionId() const { return m_latestSuggestion.value_or(Shortcut()).id; }
    [[nodiscard]] QString suggestionTitle() const
    {
        return displayableTitle(m_latestSuggestion.value_or(Shortcut()));
    }
    [[nodiscard]] QStringList suggestionKeys() const
    {
        return displayableKeys(m_latestSuggestion.value_or(Shortcut()));
    }
    [[nodiscard]] const std::optional<QString> &importMessage() const { return m_importMessage; }
    [[nodiscard]] QString importMessageText() const { return m_importMessage.value_or(QString()); }
    [[nodiscard]] bool isImporting() const { return m_importsUnderWay > 0; }
    [[nodiscard]] std::optional<ImportProgress> importProgress() const { return m_importProgress; }
    /// The progress by its parts; 0 while there is none.
    [[nodiscard]] int importCurrent() const { return m_importProgress.value_or(ImportProgress()).current; }
    [[nodiscard]] int importTotal() const { return m_importProgress.value_or(ImportProgress()).total; }
    [[nodiscard]] int practiceIndex() const { return m_practiceIndex; }
    [[nodiscard]] int practiceScore() const { return m_practiceScore; }
    [[nodiscard]] bool practiceAnswered() const { return m_practiceAnswered; }
    [[nodiscard]] bool launchAtLogin() const { return m_launchAtLogin; }
    [[nodiscard]] const QSet<QString> &favorites() const { return m_favorites; }
    [[nodiscard]] const QHash<QString, qint64> &usageCounts() const { return m_usageCounts; }
    [[nodiscard]] const QHash<QString, PracticeStat> &practiceStats() const { return m_practiceStats; }

    /// The catalog in the current language, then the user's own shortcuts.
    [[nodiscard]] QList<Shortcut> allShortcuts() const;
    /// The shortcuts that pass section, modifiers and search, in the order of `allShortcuts`.
    [[nodiscard]] QList<Shortcut> filtered() const;
    /// At most four shortcuts of the active application, most used first; of all when it has none.
    [[nodiscard]] QList<Shortcut> contextual() const;
    /// The time by which days are told.
    [[nodiscard]] QDateTime now() const { return m_services.now(); }
    /// The shortcut of today, by local time.
    [[nodiscard]] Shortcut dailyShortcut() const;
    /// Draws at most `count` shortcuts to practise, by the statistics as they are now.
    [[nodiscard]] QList<Shortcut> weightedPracticeItems(qsizetype count) const;
    /// The first shortcut with the same set of keys whose scope overlaps that of an application; an empty
    /// `app` stands for the whole system. The shortcut with the id `excluding` does not count.
    [[nodiscard]] std::optional<Shortcut> conflict(const QStringList &keys, const QString &app,
                                                   const std::optional<QString> &excluding = {}) const;

    /// What the user can save into a file.
    [[nodiscard]] Backup backup() const;
    /// The same as bytes; empty when it is beyond the bounds of a backup.
    [[nodiscard]] QByteArray exportBackup() const;

    /// `filtered` and `contextual` as item models that follow them. Made at the first call, owned by the
    /// model.
    ShortcutListModel *filteredModel();
    ShortcutListModel *contextualModel();
    /// An empty list of shortcuts that knows the favourites and the language, now and later.
    [[nodiscard]] ShortcutListModel *makeListModel(QObject *parent) const;

    void setSearch(const QString &search);
    void setSelection(const SidebarSelection &selection);
    void toggleModifier(ModifierFilter filter);
    /// The same by key token; tokens of no filter are ignored.
    Q_INVOKABLE void toggleModifierToken(const QString &token);
    Q_INVOKABLE void clearModifiers();

    /// Makes the library show this shortcut: all sections, no filter, no search.
    Q_INVOKABLE void revealShortcut(const QString &shortcutId);

    // Both imports tell their outcome in `importMessage`, and may run beside each other.
    /// Imports the menu of the active application.
    Q_INVOKABLE void importFrontmostMenu();
    /// Imports the menus of all ordinary running applications, one after another.
    Q_INVOKABLE void importAllRunningApps();

    /// Adds what the backup has and the model has not: own shortcuts with ids that no own shortcut has, in
    /// the backup's order, and favourites. False, and nothing changes, when both together are beyond the
    /// bounds of a backup.
    [[nodiscard]] bool mergeBackup(const Backup &backup);
    /// The same with what `exportBackup` gave. False, and nothing changes, when it cannot be read.
    [[nodiscard]] bool importBackup(const QByteArray &json);

    /// Counts one answer to a shortcut of the quiz, and stores that at once.
    void recordPracticeResult(const QString &shortcutId, bool correct);
    void setPracticeIndex(int index);
    void setPracticeScore(int score);
    void setPracticeAnswered(bool answered);

    void setSmartSuggestions(bool enabled);
    void setLearningMode(bool enabled);
    /// The login item's error as it is; `launchAtLogin` follows what the desktop reports afterwards.
    [[nodiscard]] std::optional<PlatformError> setLaunchAtLogin(bool enabled);

    void toggleFavorite(const Shortcut &shortcut) { toggleFavorite(shortcut.id); }
    Q_INVOKABLE void toggleFavorite(const QString &shortcutId);
    /// Appends a shortcut of the user's own. A missing description gets a stock one in the current language.
    void addCustom(const QString &title, const QStringList &keys, Shortcut::Category category,
                   const QString &app, const QString &detail);
    /// Removes every own shortcut with this id. The stored favourites keep the id until they are next
    /// written. What it returns undoes it.
    DeletedCustom deleteCustom(const Shortcut &shortcut);
    /// Puts back what was deleted, each shortcut where it was or, where the list has become too short for
    /// that, at its end. A backup may have brought it back meanwhile; then it stays as it is.
    void restoreCustom(const DeletedCustom &deleted);
    /// Counts a menu command that was chosen with the mouse towards the first shortcut whose title contains
    /// it or is contained in it, and suggests that shortcut from the second time on, in learning mode at
    /// once.
    void recordMouseAction(const QString &title);

signals:
    void searchChanged();
    void selectionChanged();
    /// The library shows this shortcut now and should bring it into view.
    void shortcutRevealed(const QString &shortcutId);
    void modifierFiltersChanged();
    void activeAppChanged();
    void customShortcutsChanged();
    void smartSuggestionsEnabledChanged();
    void learningModeEnabledChanged();
    void latestSuggestionChanged();
    void latestSuggestionReasonChanged();
    void importMessageChanged();
    void isImportingChanged();
    void importProgressChanged();
    void practiceIndexChanged();
    void practiceScoreChanged();
    void practiceAnsweredChanged();
    void launchAtLoginChanged();
    void favoritesChanged();
    void usageCountsChanged();
    void practiceStatsChanged();

private:
    struct RunningAppsImport;

    void restore();
    void applicationActivated(const RunningApplication &application);
    void updateSmartObserver();
    void saveFavorites();
    void saveCustomShortcuts();
    void importNextApp(const std::shared_ptr<RunningAppsImport> &import);
    void finishImport(const RunningAppsImport &import);
    void addImported(const QList<Shortcut> &shortcuts);
    void setImportError(MenuImportError error);
    /// The words are asked for again when the language changes.
    void setImportOutcome(std::function<QString()> inWords);
    void updateImportMessage();
    void setImportProgress(const std::optional<ImportProgress> &progress);
    void beginImport();
    void endImport();
    [[nodiscard]] bool isInSection(const Shortcut &shortcut) const;
    [[nodiscard]] bool holdsModifiers(const Shortcut &shortcut) const;

    Dependencies m_services;
    QString m_search;
    SidebarSelection m_selection;
    QSet<ModifierFilter> m_modifierFilters;
    QString m_activeApp;
    std::optional<qint32> m_activeAppPID;
    QList<Shortcut> m_customShortcuts;
    bool m_smartSuggestionsEnabled = true;
    bool m_learningModeEnabled = false;
    std::optional<Shortcut> m_latestSuggestion;
    QString m_latestSuggestionReason;
    std::function<QString()> m_importOutcome;
    std::optional<QString> m_importMessage; ///< the same in the current language
    int m_importsUnderWay = 0;
    std::optional<ImportProgress> m_importProgress;
    int m_practiceIndex = 0;
    int m_practiceScore = 0;
    bool m_practiceAnswered = false;
    bool m_launchAtLogin = false;
    QSet<QString> m_favorites;
    QHash<QString, qint64> m_usageCounts;
    QHash<QString, PracticeStat> m_practiceStats;
    std::unique_ptr<MenuUseObserver> m_smartObserver;
    std::unique_ptr<MenuShortcutImporter> m_importer;
    ShortcutListModel *m_filteredModel = nullptr;
    ShortcutListModel *m_contextualModel = nullptr;
};

} // namespace keyvora
