// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fakes/FakeLoginItem.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "system/AppMenu.h"
#include "ui/PanelController.h"
#include "ui/SidebarModel.h"

#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace keyvora {

/// A program without its desktop, for the screens under test. `reset` makes a fresh one.
class Fixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::AppModel *appModel READ appModel NOTIFY wasReset)
    Q_PROPERTY(keyvora::SidebarModel *sections READ sections NOTIFY wasReset)
    Q_PROPERTY(keyvora::AppMenu *appMenu READ appMenu NOTIFY wasReset)
    Q_PROPERTY(keyvora::PanelController *panelController READ panelController NOTIFY wasReset)
    Q_PROPERTY(int libraryOpenings MEMBER m_libraryOpenings NOTIFY counted)
    Q_PROPERTY(int quits MEMBER m_quits NOTIFY counted)

public:
    Fixture();

    [[nodiscard]] AppModel *appModel() const { return m_program->model.get(); }
    [[nodiscard]] SidebarModel *sections() const { return m_program->sections.get(); }
    [[nodiscard]] AppMenu *appMenu() const { return m_program->menu.get(); }
    [[nodiscard]] PanelController *panelController() const { return m_program->panel.get(); }

    /// An English program with nothing stored. What was made before lives on until the engine is gone.
    Q_INVOKABLE void reset();
    Q_INVOKABLE void installMenu();
    Q_INVOKABLE void activate(const QString &application);
    Q_INVOKABLE void addCustom(const QString &title, const QStringList &keys);
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
        std::unique_ptr<AppModel> model;
        std::unique_ptr<SidebarModel> sections;
        std::unique_ptr<AppMenu> menu;
        std::unique_ptr<PanelController> panel;
    };

    QTemporaryDir m_languageFolder;
    Defaults m_languageStore;
    Localization m_localization;
    std::vector<std::unique_ptr<Program>> m_earlierPrograms;
    std::unique_ptr<Program> m_program;
    int m_libraryOpenings = 0;
    int m_quits = 0;
};

} // namespace keyvora
