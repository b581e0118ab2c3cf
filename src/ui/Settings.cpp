// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/Settings.h"

#include "model/AppModel.h"
#include "model/Assign.h"
#include "platform/Accessibility.h"
#include "platform/WhenFinished.h"

#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

Settings::Settings(AppModel &model, Accessibility &accessibility, BackupCommands backup, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_accessibility(accessibility)
    , m_backup(std::move(backup))
{
    connect(&m_model, &AppModel::launchAtLoginChanged, this, &Settings::launchAtLoginChanged);
    connect(&m_model, &AppModel::smartSuggestionsEnabledChanged, this, &Settings::smartSuggestionsChanged);
    connect(&m_model, &AppModel::learningModeEnabledChanged, this, &Settings::learningModeChanged);
}

bool Settings::launchAtLogin() const
{
    return m_model.launchAtLogin();
}

bool Settings::smartSuggestions() const
{
    return m_model.smartSuggestionsEnabled();
}

bool Settings::learningMode() const
{
    return m_model.learningModeEnabled();
}

QString Settings::versionLabel()
{
    return u"Keyvora %1 (%2)"_s.arg(QCoreApplication::applicationVersion(), QStringLiteral(KEYVORA_BUILD));
}

void Settings::begin()
{
    setAlreadyTrusted(false);
    if (!m_isBackupUnderWay)
        setBackupOutcome(BackupOutcome::None);
}

void Settings::setLaunchAtLogin(bool enabled)
{
    if (const auto error = m_model.setLaunchAtLogin(enabled))
        emit failed(error->description);
}

void Settings::setSmartSuggestions(bool enabled)
{
    m_model.setSmartSuggestions(enabled);
}

void Settings::setLearningMode(bool enabled)
{
    m_model.setLearningMode(enabled);
}

void Settings::requestTrust()
{
    whenFinished(m_accessibility.isTrusted(), this, [this](const QFuture<bool> &answer) {
        const bool isTrusted = resultOr(answer, false);
        setAlreadyTrusted(isTrusted);
        if (!isTrusted)
            m_accessibility.requestTrust();
    });
}

void Settings::exportBackup(QWindow *window)
{
    runBackup(m_backup.save, window, BackupOutcome::Saved, BackupOutcome::None);
}

void Settings::importBackup(QWindow *window)
{
    runBackup(m_backup.load, window, BackupOutcome::Imported, BackupOutcome::ImportFailed);
}

void Settings::runBackup(const BackupCommand &command, QWindow *window, BackupOutcome success,
                         BackupOutcome failure)
{
    if (std::exchange(m_isBackupUnderWay, true))
        return;
    setBackupOutcome(BackupOutcome::None);
    command(window, [self = QPointer(this), success, failure](bool isDone) {
        if (!self)
            return;
        self->m_isBackupUnderWay = false;
        self->setBackupOutcome(isDone ? success : failure);
    });
}

void Settings::setAlreadyTrusted(bool isAlreadyTrusted)
{
    if (assign(m_isAlreadyTrusted, isAlreadyTrusted))
        emit isAlreadyTrustedChanged();
}

void Settings::setBackupOutcome(BackupOutcome outcome)
{
    if (assign(m_backupOutcome, outcome))
        emit backupOutcomeChanged();
}

} // namespace keyvora
