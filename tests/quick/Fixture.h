// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fakes/FakeAccessibility.h"
#include "fakes/FakeKeyboardLayout.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeUrlLoader.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "system/AppMenu.h"
#include "ui/CheatSheets.h"
#include "ui/CustomShortcuts.h"
#include "ui/KeyReader.h"
#include "ui/Learning.h"
#include "ui/NoticeController.h"
#include "ui/OverlayController.h"
#include "ui/PanelController.h"
#include "ui/Settings.h"
#include "ui/SidebarModel.h"
#include "ui/TrustController.h"
#include "update/UpdateChecker.h"

#include <QDateTime>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

namespace keyvora {

/// A program without its desktop, for the screens under test. `reset` makes a fresh one.
class Fixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::AppModel *appModel READ appModel NOTIFY wasReset)
    Q_PROPERTY(keyvora::SidebarModel *sections READ sections NOTIFY wasReset)
    Q_PROPERTY(keyvora::Learning *learning READ learning NOTIFY wasReset)
    Q_PROPERTY(keyvora::CheatSheets *sheets READ sheets NOTIFY wasReset)
    Q_PROPERTY(keyvora::Settings *settings READ settings NOTIFY wasReset)
    Q_PROPERTY(keyvora::CustomShortcuts *customs READ customs NOTIFY wasReset)
    Q_PROPERTY(keyvora::AppMenu *appMenu READ appMenu NOTIFY wasReset)
    Q_PROPERTY(keyvora::PanelController *panelController READ panelController NOTIFY wasReset)
    Q_PROPERTY(keyvora::OverlayController *overlayController READ overlayController NOTIFY wasReset)
    Q_PROPERTY(keyvora::NoticeController *noticeController READ noticeController NOTIFY wasReset)
    Q_PROPERTY(keyvora::TrustController *trustController READ trustController NOTIFY wasReset)
    Q_PROPERTY(keyvora::UpdateChecker *updates READ updates NOTIFY wasReset)
    Q_PROPERTY(keyvora::KeyReader *keyReader READ keyReader CONSTANT)
    Q_PROPERTY(QString openedPage MEMBER m_openedPage NOTIFY counted)
    Q_PROPERTY(int overlayToggles MEMBER m_overlayToggles NOTIFY counted)
    Q_PROPERTY(int trustGrants MEMBER m_trustGrants NOTIFY counted)
    Q_PROPERTY(int libraryOpenings MEMBER m_libraryOpenings NOTIFY counted)
    Q_PROPERTY(int backups MEMBER m_backups NOTIFY counted)
    Q_PROPERTY(int quits MEMBER m_quits NOTIFY counted)

public:
    Fixture();

    [[nodiscard]] AppModel *appModel() const { return m_program->model.get(); }
    [[nodiscard]] SidebarModel *sections() const { return m_program->sections.get(); }
    [[nodiscard]] Learning *learning() const { return m_program->learning.get(); }
    [[nodiscard]] CheatSheets *sheets() const { return m_program->sheets.get(); }
    [[nodiscard]] Settings *settings() const { return m_program->settings.get(); }
    [[nodiscard]] CustomShortcuts *customs() const { return m_program->customs.get(); }
    [[nodiscard]] AppMenu *appMenu() const { return m_program->menu.get(); }
    [[nodiscard]] PanelController *panelController() const { return m_program->panel.get(); }

    [[nodiscard]] OverlayController *overlayController() const { return m_program->overlay.get(); }
    [[nodiscard]] NoticeController *noticeController() const { return m_program->notice.get(); }
    [[nodiscard]] TrustController *trustController() const { return m_program->trust.get(); }
    [[nodiscard]] UpdateChecker *updates() const { return m_program->updates.get(); }
    [[nodiscard]] KeyReader *keyReader() { return &m_keyReader; }

    /// An English program with nothing stored. What was made before lives on until the engine is gone.
    Q_INVOKABLE void reset();
    /// Whether the desktop lets the program read other applications; it does at first.
    Q_INVOKABLE void setTrusted(bool isTrusted);
    /// The desktop refuses to start the program at login, with this reason.
    Q_INVOKABLE void refuseLoginItem(const QString &description);
    /// The desktop takes requests to start the program at login, but does nothing.
    Q_INVOKABLE void ignoreLoginItem();
    /// The dialog for a backup, which stays open until then, ends.
    Q_INVOKABLE void endBackup(bool isDone);
    /// The user's own shortcuts, as they are stored.
    [[nodiscard]] Q_INVOKABLE QVariantList customShortcuts() const;
    /// What the program's clock shows from now on.
    Q_INVOKABLE void setTime(const QDateTime &time);
    Q_INVOKABLE void installMenu();
    Q_INVOKABLE void activate(const QString &application);
    Q_INVOKABLE void addCustom(const QString &title, const QStringList &keys);
    Q_INVOKABLE void addCustomFor(const QString &application, const QString &title, const QStringList &keys);
    /// What the overlay and the panel list becomes nothing.
    Q_INVOKABLE void emptyContextualModel();
    /// As the panel's window does when it opens.
    Q_INVOKABLE void presentPanel();
    /// A menu command is chosen with the mouse, and the program answers with a suggestion.
    Q_INVOKABLE void suggest(const QString &menuTitle);
    /// As the shell does when a suggestion is to be shown.
    Q_INVOKABLE void presentNotice();
    /// As the shell does when an import needs trust.
    Q_INVOKABLE void askForTrust();
    /// The application in front keeps an import waiting for its menu, which has one command, until it
    /// answers.
    Q_INVOKABLE void holdMenu(const QString &title, const QString &key);
    Q_INVOKABLE void answerMenu();
    /// The maker's web server says what is there; the program that runs is version 1.0.
    Q_INVOKABLE void publish(const QString &manifest);
    /// What the user does not want to hear of; empty for nothing.
    Q_INVOKABLE QString dismissedVersion() const;
    Q_INVOKABLE void selectCategory(int category);
    Q_INVOKABLE QStringList titlesShown() const;

signals:
    void wasReset();
    void counted();

private:
    struct Program
    {
        QTemporaryDir folder;
        std::unique_ptr<Defaults> defaults;
        FakeWorkspace workspace;
        FakeLoginItem loginItem;
        FakeAccessibility accessibility;
        std::unique_ptr<AppModel> model;
        std::unique_ptr<SidebarModel> sections;
        std::unique_ptr<Learning> learning;
        std::unique_ptr<CheatSheets> sheets;
        std::unique_ptr<Settings> settings;
        std::unique_ptr<CustomShortcuts> customs;
        std::unique_ptr<AppMenu> menu;
        std::unique_ptr<PanelController> panel;
        std::unique_ptr<OverlayController> overlay;
        std::unique_ptr<NoticeController> notice;
        std::unique_ptr<TrustController> trust;
        FakeUrlLoader web;
        std::unique_ptr<UpdateChecker> updates;
    };

    QTemporaryDir m_languageFolder;
    Defaults m_languageStore;
    Localization m_localization;
    FakeKeyboardLayout m_keyboardLayout;
    KeyReader m_keyReader{m_keyboardLayout};
    std::vector<std::unique_ptr<Program>> m_earlierPrograms;
    std::unique_ptr<Program> m_program;
    QDateTime m_now;
    QString m_openedPage;
    int m_overlayToggles = 0;
    int m_trustGrants = 0;
    int m_libraryOpenings = 0;
    int m_backups = 0;
    std::function<void(bool)> m_endBackup;
    int m_quits = 0;
};

} // namespace keyvora
