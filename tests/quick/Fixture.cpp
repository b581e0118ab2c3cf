// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "Fixture.h"

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

Fixture::Fixture()
    : m_languageStore(m_languageFolder.filePath(u"defaults.json"_s))
    , m_localization(m_languageStore, {u"en-US"_s})
{
    reset();
}

void Fixture::reset()
{
    m_localization.setLanguage(AppLanguage::English);
    auto program = std::make_unique<Program>();
    program->defaults = std::make_unique<Defaults>(program->folder.filePath(u"defaults.json"_s));
    program->model = std::make_unique<AppModel>(AppModel::Dependencies{
        .defaults = *program->defaults,
        .workspace = program->workspace,
        .loginItem = program->loginItem,
        .makeSmartObserver = {},
        .locale = QLocale(QLocale::English),
    });
    program->sections = std::make_unique<SidebarModel>(*program->model);
    program->menu = std::make_unique<AppMenu>();
    program->menu->install();
    program->panel = std::make_unique<PanelController>(
        [this] {
            ++m_libraryOpenings;
            emit counted();
        },
        [this] {
            ++m_quits;
            emit counted();
        });
    m_libraryOpenings = 0;
    m_quits = 0;
    if (m_program)
        m_earlierPrograms.push_back(std::move(m_program));
    m_program = std::move(program);
    emit wasReset();
}

void Fixture::installMenu()
{
    m_program->menu->install();
}

void Fixture::activate(const QString &application)
{
    m_program->workspace.activate({.name = application, .pid = 1});
}

void Fixture::addCustom(const QString &title, const QStringList &keys)
{
    m_program->model->addCustom(title, keys, Shortcut::Category::zaklady, {}, {});
}

void Fixture::selectCategory(int category)
{
    m_program->model->setSelection(
        {SidebarSelection::Kind::category, allCategories.at(static_cast<size_t>(category))});
}

QStringList Fixture::titlesShown() const
{
    QStringList titles;
    for (const Shortcut &shortcut : m_program->model->filtered())
        titles.append(shortcut.title);
    return titles;
}

} // namespace keyvora
