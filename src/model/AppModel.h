// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/MenuUseObserver.h"
#include "model/ModifierFilter.h"
#include "model/PracticeStat.h"
#include "model/Shortcut.h"
#include "model/ShortcutListModel.h"
#include "model/SidebarSelection.h"
#include "platform/PlatformError.h"
#include "platform/Workspace.h"

#include <QHash>
#include <QLocale>
#include <QObject>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>

namespace keyvora {

class Defaults;
class LoginItem;

/// How far an import has come: the application being read, counted from 1, of how many.
struct ImportProgress
{
    int current = 0;
    int total = 0;

    friend bool operator==(const ImportProgress &, const ImportProgress &) = default;
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
    Q_PROPERTY(keyvora::ShortcutListModel *filteredModel READ filteredModel CONSTANT)
    Q_PROPERTY(keyvora::ShortcutListModel *contextualModel READ contextualModel CONSTANT)

public:
    using SmartObserverFactory =
        std::function<std::unique_ptr<MenuUseObserver>(MenuUseObserver::MenuActionHandler)>;

    /// What the model stands on; all of it outlives the model.
    struct Dependencies
    {
        Defaults &defaults;
        Workspace &workspace;
        LoginItem &loginItem;
        SmartObserverFactory makeSmartObserver;
        QLocale locale = QLocale::system();     ///< whose rules compare texts
        std::function<QString()> makeUuid = {}; ///< absent: random ones
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
    [[nodiscard]] const std::optional<QString> &importMessage() const { return m_importMessage; }
    [[nodiscard]] QString importMessageText() const { return m_importMessage.value_or(QString()); }
    [[nodiscard]] bool isImporting() const { return m_isImporting; }
    [[nodiscard]] std::optional<ImportProgress> importProgress() const { return m_importProgress; }
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
    /// The first shortcut with the same set of keys whose scope overlaps that of an application; an empty
    /// `app` stands for the whole system. The shortcut with the id `excluding` does not count.
    [[nodiscard]] std::optional<Shortcut> conflict(const QStringList &keys, const QString &app,
                                                   const std::optional<QString> &excluding = {}) const;

    /// `filtered` and `contextual` as item models that follow them. Made at the first call, owned by the
    /// model.
    ShortcutListModel *filteredModel();
    ShortcutListModel *contextualModel();

    void setSearch(const QString &search);
    void setSelection(const SidebarSelection &selection);
    void toggleModifier(ModifierFilter filter);
    /// The same by key token; tokens of no filter are ignored.
    Q_INVOKABLE void toggleModifierToken(const QString &token);
    Q_INVOKABLE void clearModifiers();

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
    /// written.
    void deleteCustom(const Shortcut &shortcut);
    /// Counts a menu command that was chosen with the mouse towards the first shortcut whose title contains
    /// it or is contained in it, and suggests that shortcut from the second time on, in learning mode at
    /// once.
    void recordMouseAction(const QString &title);

signals:
    void searchChanged();
    void selectionChanged();
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
    void restore();
    void applicationActivated(const RunningApplication &application);
    void updateSmartObserver();
    void saveFavorites();
    void saveCustomShortcuts();
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
    std::optional<QString> m_importMessage;
    bool m_isImporting = false;
    std::optional<ImportProgress> m_importProgress;
    int m_practiceIndex = 0;
    int m_practiceScore = 0;
    bool m_practiceAnswered = false;
    bool m_launchAtLogin = false;
    QSet<QString> m_favorites;
    QHash<QString, qint64> m_usageCounts;
    QHash<QString, PracticeStat> m_practiceStats;
    std::unique_ptr<MenuUseObserver> m_smartObserver;
    ShortcutListModel *m_filteredModel = nullptr;
    ShortcutListModel *m_contextualModel = nullptr;
};

} // namespace keyvora
