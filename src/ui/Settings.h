// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

class QWindow;

namespace keyvora {

class Accessibility;
class AppModel;

/// What the settings sheet switches and starts, and what came of it.
class Settings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(bool smartSuggestions READ smartSuggestions NOTIFY smartSuggestionsChanged)
    Q_PROPERTY(bool learningMode READ learningMode NOTIFY learningModeChanged)
    Q_PROPERTY(bool isAlreadyTrusted READ isAlreadyTrusted NOTIFY isAlreadyTrustedChanged)
    Q_PROPERTY(BackupOutcome backupOutcome READ backupOutcome NOTIFY backupOutcomeChanged)
    Q_PROPERTY(QString versionLabel READ versionLabel CONSTANT)
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    /// What the last command of the backup section came to.
    enum class BackupOutcome : quint8 {
        None, ///< there is nothing to tell
        Saved,
        Imported,
        ImportFailed,
    };
    Q_ENUM(BackupOutcome)

    /// Asks for a file in a dialog over the window, and tells, at most once and later than the call, whether
    /// that came to anything.
    using BackupCommand = std::function<void(QWindow *window, std::function<void(bool)> done)>;

    struct BackupCommands
    {
        BackupCommand save;
        BackupCommand load;
    };

    /// The model and the service outlive it.
    Settings(AppModel &model, Accessibility &accessibility, BackupCommands backup, QObject *parent = nullptr);

    [[nodiscard]] bool launchAtLogin() const;
    [[nodiscard]] bool smartSuggestions() const;
    [[nodiscard]] bool learningMode() const;
    /// Trust was asked for while the program had it.
    [[nodiscard]] bool isAlreadyTrusted() const { return m_isAlreadyTrusted; }
    [[nodiscard]] BackupOutcome backupOutcome() const { return m_backupOutcome; }
    /// Name, version and build number.
    [[nodiscard]] static QString versionLabel();

    /// Forgets what earlier commands came to.
    Q_INVOKABLE void begin();

    // A switch that the system refuses stays as it was, and `failed` tells why.
    Q_INVOKABLE void setLaunchAtLogin(bool enabled);
    Q_INVOKABLE void setSmartSuggestions(bool enabled);
    Q_INVOKABLE void setLearningMode(bool enabled);

    /// Has the user asked whether the program may read other applications, unless it may already.
    Q_INVOKABLE void requestTrust();

    // Both open the desktop's dialog over the window; `backupOutcome` tells what came of it. One at a time.
    Q_INVOKABLE void exportBackup(QWindow *window);
    Q_INVOKABLE void importBackup(QWindow *window);

signals:
    void launchAtLoginChanged();
    void smartSuggestionsChanged();
    void learningModeChanged();
    void isAlreadyTrustedChanged();
    void backupOutcomeChanged();
    /// A switch could not be changed; the system's reason, which may be empty.
    void failed(const QString &description);

private:
    void setAlreadyTrusted(bool isAlreadyTrusted);
    void runBackup(const BackupCommand &command, QWindow *window, BackupOutcome success,
                   BackupOutcome failure);
    void setBackupOutcome(BackupOutcome outcome);

    AppModel &m_model;
    Accessibility &m_accessibility;
    BackupCommands m_backup;
    bool m_isAlreadyTrusted = false;
    BackupOutcome m_backupOutcome = BackupOutcome::None;
    bool m_isBackupUnderWay = false; ///< a dialog is open, or a file is being read or written
};

} // namespace keyvora
