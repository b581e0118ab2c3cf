// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"

#include "model/Assign.h"
#include "model/Defaults.h"
#include "model/DefaultsKeys.h"
#include "model/Localization.h"
#include "model/MenuShortcutImporter.h"
#include "model/ShortcutLibrary.h"
#include "platform/LoginItem.h"

#include <QCoreApplication>
#include <QPointer>
#include <QUuid>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

AppModel::AppModel(Dependencies dependencies, QObject *parent)
    : QObject(parent)
    , m_services(std::move(dependencies))
    , m_activeApp(u"Mac"_s)
    , m_launchAtLogin(m_services.loginItem.isEnabled())
    , m_importer(std::make_unique<MenuShortcutImporter>(m_services.accessibility))
{
    if (!m_services.makeUuid)
        m_services.makeUuid = [] {
            return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
        };
    if (const auto application = m_services.workspace.frontmostApplication()) {
        if (application->name.isEmpty())
            m_activeAppPID = application->pid;
        applicationActivated(*application);
    }
    restore();
    connect(&m_services.workspace, &Workspace::applicationActivated, this, &AppModel::applicationActivated);
    connect(&Localization::shared(), &Localization::languageChanged, this, &AppModel::updateImportMessage);
    if (m_services.makeSmartObserver) {
        m_smartObserver = m_services.makeSmartObserver([self = QPointer(this)](const QString &title) {
            if (self)
                self->recordMouseAction(title);
        });
    }
    updateSmartObserver();
}

AppModel::~AppModel() = default;

void AppModel::restore()
{
    const Defaults &defaults = m_services.defaults;
    const QStringList favorites =
        defaults.textList(DefaultsKeys::favorites)
            .value_or(QStringList{u"copy"_s, u"paste"_s, u"spotlight"_s, u"shot-area"_s});
    m_favorites = QSet<QString>(favorites.begin(), favorites.end());
    m_smartSuggestionsEnabled = defaults.boolean(DefaultsKeys::smartSuggestions).value_or(true);
    m_learningModeEnabled = defaults.boolean(DefaultsKeys::learningMode).value_or(false);
    m_usageCounts = defaults.integerMap(DefaultsKeys::usageCounts).value_or(QHash<QString, qint64>());
    if (const auto stored = defaults.data(DefaultsKeys::customShortcuts))
        m_customShortcuts = decodeShortcuts(*stored).value_or(QList<Shortcut>());
    if (const auto stored = defaults.data(DefaultsKeys::practiceStats))
        m_practiceStats = decodePracticeStats(*stored).value_or(QHash<QString, PracticeStat>());
}

QList<Shortcut> AppModel::allShortcuts() const
{
    return ShortcutLibrary::all(Localization::shared().language()) + m_customShortcuts;
}

void AppModel::applicationActivated(const RunningApplication &application)
{
    if (application.pid == static_cast<qint32>(QCoreApplication::applicationPid()) ||
        application.name.isEmpty())
        return;
    m_activeAppPID = application.pid;
    if (assign(m_activeApp, application.name))
        emit activeAppChanged();
}

void AppModel::updateSmartObserver()
{
    if (!m_smartObserver)
        return;
    if (m_smartSuggestionsEnabled)
        m_smartObserver->start();
    else
        m_smartObserver->stop();
}

void AppModel::setSmartSuggestions(bool enabled)
{
    const bool changes = assign(m_smartSuggestionsEnabled, enabled);
    m_services.defaults.setBoolean(DefaultsKeys::smartSuggestions, enabled);
    updateSmartObserver();
    if (changes)
        emit smartSuggestionsEnabledChanged();
}

void AppModel::setLearningMode(bool enabled)
{
    const bool changes = assign(m_learningModeEnabled, enabled);
    m_services.defaults.setBoolean(DefaultsKeys::learningMode, enabled);
    if (changes)
        emit learningModeEnabledChanged();
}

std::optional<PlatformError> AppModel::setLaunchAtLogin(bool enabled)
{
    if (auto error = m_services.loginItem.setEnabled(enabled))
        return error;
    if (assign(m_launchAtLogin, m_services.loginItem.isEnabled()))
        emit launchAtLoginChanged();
    return std::nullopt;
}

} // namespace keyvora
