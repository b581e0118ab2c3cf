// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "Fixture.h"

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint32 applicationPid = 1;

} // namespace

Fixture::Fixture()
    : m_languageStore(m_languageFolder.filePath(u"defaults.json"_s))
    , m_localization(m_languageStore, {u"en-US"_s})
{
    reset();
}

void Fixture::reset()
{
    m_now = QDateTime(QDate(2026, 3, 2), QTime(12, 0));
    m_localization.setLanguage(AppLanguage::English);
    auto program = std::make_unique<Program>();
    program->defaults = std::make_unique<Defaults>(program->folder.filePath(u"defaults.json"_s));
    program->model = std::make_unique<AppModel>(AppModel::Dependencies{
        .defaults = *program->defaults,
        .workspace = program->workspace,
        .loginItem = program->loginItem,
        .accessibility = program->accessibility,
        .makeSmartObserver = {},
        .locale = QLocale(QLocale::English),
        .now = [this] { return m_now; },
        // With equal weights the draw keeps the order of the catalog.
        .uniformRandom = [] { return 0.5; },
    });
    program->sections = std::make_unique<SidebarModel>(*program->model);
    program->learning = std::make_unique<Learning>(*program->model, *program->defaults);
    program->sheets =
        std::make_unique<CheatSheets>(*program->model, PrintService(&QDateTime::currentDateTimeUtc));
    const auto waitForBackup = [this](QWindow *, std::function<void(bool)> done) {
        m_endBackup = std::move(done);
        ++m_backups;
        emit counted();
    };
    program->settings =
        std::make_unique<Settings>(*program->model, program->accessibility,
                                   Settings::BackupCommands{.save = waitForBackup, .load = waitForBackup});
    program->customs = std::make_unique<CustomShortcuts>(*program->model);
    program->menu = std::make_unique<AppMenu>();
    program->menu->install();
    const auto countLibraryOpening = [this] {
        ++m_libraryOpenings;
        emit counted();
    };
    const auto countOverlayToggle = [this] {
        ++m_overlayToggles;
        emit counted();
    };
    program->panel = std::make_unique<PanelController>(countOverlayToggle, countLibraryOpening, [this] {
        ++m_quits;
        emit counted();
    });
    program->overlay = std::make_unique<OverlayController>(countOverlayToggle, countLibraryOpening);
    program->notice = std::make_unique<NoticeController>(*program->model, countLibraryOpening);
    program->trust = std::make_unique<TrustController>([this] {
        ++m_trustGrants;
        emit counted();
    });
    connect(&program->accessibility, &Accessibility::trustRequested, program->trust.get(),
            &TrustController::ask);
    program->updates =
        std::make_unique<UpdateChecker>(*program->defaults, program->web, u"1.0"_s, [this](const QUrl &page) {
            m_openedPage = page.toString();
            emit counted();
        });
    m_openedPage.clear();
    m_overlayToggles = 0;
    m_trustGrants = 0;
    m_libraryOpenings = 0;
    m_backups = 0;
    m_quits = 0;
    if (m_program)
        m_earlierPrograms.push_back(std::move(m_program));
    m_program = std::move(program);
    emit wasReset();
}

void Fixture::setTrusted(bool isTrusted)
{
    m_program->accessibility.setTrusted(isTrusted);
}

void Fixture::refuseLoginItem(const QString &description)
{
    m_program->loginItem.setError(PlatformError{description});
}

void Fixture::ignoreLoginItem()
{
    m_program->loginItem.setObeys(false);
}

void Fixture::endBackup(bool isDone)
{
    std::exchange(m_endBackup, {})(isDone);
}

QVariantList Fixture::customShortcuts() const
{
    QVariantList shortcuts;
    for (const Shortcut &shortcut : m_program->model->customShortcuts())
        shortcuts.append(toJson(shortcut).toVariantMap());
    return shortcuts;
}

void Fixture::setTime(const QDateTime &time)
{
    m_now = time;
}

void Fixture::installMenu()
{
    m_program->menu->install();
}

void Fixture::activate(const QString &application)
{
    m_program->workspace.activate({.name = application, .pid = applicationPid});
}

void Fixture::addCustom(const QString &title, const QStringList &keys)
{
    m_program->model->addCustom(title, keys, Shortcut::Category::zaklady, {}, {});
}

void Fixture::addCustomFor(const QString &application, const QString &title, const QStringList &keys)
{
    m_program->model->addCustom(title, keys, Shortcut::Category::zaklady, application, {});
}

void Fixture::emptyContextualModel()
{
    m_program->model->contextualModel()->setShortcuts({});
}

void Fixture::presentPanel()
{
    m_program->panel->present();
}

void Fixture::suggest(const QString &menuTitle)
{
    m_program->model->setLearningMode(true);
    m_program->model->recordMouseAction(menuTitle);
}

void Fixture::presentNotice()
{
    m_program->notice->present();
}

void Fixture::askForTrust()
{
    m_program->trust->ask();
}

void Fixture::holdMenu(const QString &title, const QString &key)
{
    const MenuElement bar{.title = {}, .commandCharacter = {}, .modifiers = {}, .children = {1}};
    const MenuElement command{.title = title,
                              .commandCharacter = key,
                              .modifiers = MenuModifier::Control | MenuModifier::NoCommand,
                              .children = {}};
    m_program->accessibility.setMenuBar(applicationPid, {{bar, command}});
    m_program->accessibility.setHoldsAnswers(true);
    m_program->workspace.setRunning(
        QList<RunningApplication>{{.name = m_program->model->activeApp(), .pid = applicationPid}});
}

void Fixture::answerMenu()
{
    // The question may yet have to come.
    m_program->accessibility.setHoldsAnswers(false);
    m_program->accessibility.answer();
}

void Fixture::publish(const QString &manifest)
{
    m_program->updates->checkForUpdate();
    m_program->web.answer(manifest.toUtf8());
}

QString Fixture::dismissedVersion() const
{
    return m_program->updates->dismissedVersion().value_or(QString());
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
