// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/Waiting.h"
#include "model/AppModel.h"
#include "model/Backup.h"
#include "model/Defaults.h"
#include "unit/Settle.h"
#include "unit/model/Menus.h"
#include "unit/model/Program.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace keyvora {

inline const RunningApplication safari{u"Safari"_s, 4711};
inline const RunningApplication finder{u"Finder"_s, 815};
inline const RunningApplication mail{u"Mail"_s, 42};

inline RunningApplication ourselves()
{
    return {u"Keyvora"_s, static_cast<qint32>(QCoreApplication::applicationPid())};
}

/// A program over which an application is in front.
inline Program::Start inFront(const RunningApplication &application, const QString &language = u"en-US"_s)
{
    return {.languages = {language}, .frontmost = application};
}

/// What the import makes of a menu item that declares Command and a character.
inline Shortcut imported(const RunningApplication &application, const QString &title, const QString &key)
{
    return makeShortcut("menu-"_L1 + application.name + '-'_L1 + title + u"-⌘"_s + key, title, {u"⌘"_s, key},
                        {application.name}, "Imported from "_L1 + application.name + "'s menu."_L1);
}

/// Own shortcuts that leave room for a few imported ones more.
inline QList<Shortcut> nearlyAllThatFits()
{
    constexpr qint64 left = 500;
    return {makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"1"_s}, {},
                         QString(BackupLimits::textBytes / 2 - left, u'x'))};
}

/// A menu of ten new commands, more than are left room for.
inline MenuTree menuOfTen()
{
    QList<MenuElement> items;
    for (char key = '0'; key <= '9'; ++key)
        items.append(menuItem(u"New Thing "_s + QLatin1Char(key), QString(QLatin1Char(key))));
    return menuOf(items);
}

/// Some but not all of the ten were added, as the message tells, and all that there is now can be backed up.
inline void expectNoMoreThanFits(Program &program, const QString &message)
{
    const qsizetype added = program.model().customShortcuts().size() - 1;
    EXPECT_GT(added, 0);
    EXPECT_LT(added, 10);
    EXPECT_EQ(program.model().importMessage(), message.arg(added));
    // The user goes on.
    program.model().toggleFavorite(u"undo"_s);
    program.model().addCustom(u"One More"_s, {u"⌘"_s, u"1"_s}, Shortcut::Category::zaklady, {}, {});
    EXPECT_FALSE(program.model().exportBackup().isEmpty());
    EXPECT_LT(QFileInfo(program.storePath()).size(), Defaults::maximumFileBytes);
}

inline void importFrontmost(Program &program)
{
    program.model().importFrontmostMenu();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
}

inline void importAll(Program &program)
{
    program.model().importAllRunningApps();
    settle();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
}

inline bool isReading(const Program &program, const QList<qint32> &pids)
{
    return becomesTrue([&] { return program.accessibility.menuBarsRead() == pids; });
}

/// The pairs that the progress went through; (0, 0) while there is none.
class ProgressLog
{
public:
    explicit ProgressLog(const AppModel &model)
    {
        QObject::connect(&model, &AppModel::importProgressChanged, &m_context, [this, &model] {
            m_steps.append({model.importCurrent(), model.importTotal()});
        });
    }

    [[nodiscard]] const QList<std::pair<int, int>> &steps() const { return m_steps; }

private:
    QObject m_context;
    QList<std::pair<int, int>> m_steps;
};

} // namespace keyvora
