// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fakes/FakeAccessibility.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeMenuUseObserver.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "unit/model/ModelPrinters.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

inline Shortcut makeShortcut(const QString &id, const QString &title = {}, const QStringList &keys = {},
                             const QStringList &apps = {}, const QString &detail = {},
                             Shortcut::Category category = Shortcut::Category::zaklady)
{
    return {id, title, keys, category, apps, detail};
}

inline QStringList idsOf(const QList<Shortcut> &shortcuts)
{
    QStringList ids;
    for (const Shortcut &shortcut : shortcuts)
        ids.append(shortcut.id);
    return ids;
}

inline QStringList rowsOf(const ShortcutListModel &model)
{
    QStringList ids;
    for (int row = 0; row < model.rowCount(); ++row)
        ids.append(model.data(model.index(row), ShortcutListModel::ShortcutIdRole).toString());
    return ids;
}

/// A store's content that holds these shortcuts of the user's own.
inline QJsonObject storedCustom(const QList<Shortcut> &shortcuts)
{
    return {{u"customShortcuts"_s, QJsonDocument::fromJson(encodeShortcuts(shortcuts)).array()}};
}

/// The model and what it stands on: a store in a folder of its own and a desktop that does what the test
/// says.
class Program
{
public:
    struct Start
    {
        QJsonObject stored = {};
        QStringList languages = {u"en-US"_s};
        QLocale locale = QLocale(QLocale::English, QLocale::UnitedStates);
        std::optional<RunningApplication> frontmost = {};
        bool opensAtLogin = false;
    };

    Program()
        : Program(Start{})
    {
    }

    explicit Program(Start start)
        : m_start(std::move(start))
    {
        if (!m_start.stored.isEmpty()) {
            QFile file(storePath());
            if (file.open(QIODevice::WriteOnly))
                file.write(QJsonDocument(m_start.stored).toJson());
        }
        workspace.setFrontmost(m_start.frontmost);
        loginItem.setReported(m_start.opensAtLogin);
        begin();
    }

    [[nodiscard]] AppModel &model() { return *m_model; }
    [[nodiscard]] Defaults &defaults() { return *m_defaults; }
    [[nodiscard]] Localization &localization() { return *m_localization; }
    [[nodiscard]] QString storePath() const { return m_folder.filePath(u"defaults.json"_s); }

    /// What the store's file holds now.
    [[nodiscard]] QJsonObject stored() const
    {
        QFile file(storePath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QJsonDocument::fromJson(file.readAll()).object();
    }

    void end()
    {
        m_model.reset();
        m_localization.reset();
        m_defaults.reset();
    }

    /// Ends the program and starts it again over the same file.
    void restart()
    {
        end();
        begin();
    }

    // Public, because the tests speak to the desktop directly.
    FakeWorkspace workspace;
    FakeLoginItem loginItem;
    FakeAccessibility accessibility;
    FakeMenuUseObserver::Log menuUse;
    QDateTime now{QDate(2026, 1, 1), QTime(12, 0)};
    // Always the same number: the draw then goes by weight, and by the order of the list among equals.
    UniformRandom uniformRandom = [] {
        return 0.5;
    };

private:
    void begin()
    {
        m_defaults.emplace(storePath());
        m_localization.emplace(*m_defaults, m_start.languages);
        m_model = std::make_unique<AppModel>(AppModel::Dependencies{
            .defaults = *m_defaults,
            .workspace = workspace,
            .loginItem = loginItem,
            .accessibility = accessibility,
            .makeSmartObserver = FakeMenuUseObserver::factory(menuUse),
            .locale = m_start.locale,
            .makeUuid = {},
            .now = [this] { return now; },
            .uniformRandom = [this] { return uniformRandom(); },
        });
    }

    Start m_start;
    QTemporaryDir m_folder;
    std::optional<Defaults> m_defaults;
    std::optional<Localization> m_localization;
    std::unique_ptr<AppModel> m_model;
};

/// The own shortcuts as the file holds them.
inline std::optional<QList<Shortcut>> storedCustomOf(const Program &program)
{
    return decodeShortcuts(QJsonDocument(program.stored()[u"customShortcuts"_s].toArray()).toJson());
}

} // namespace keyvora
