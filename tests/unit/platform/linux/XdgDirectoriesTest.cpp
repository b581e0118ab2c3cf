// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XdgDirectories.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

XdgDirectories directoriesWith(std::initializer_list<std::pair<QString, QString>> variables)
{
    QProcessEnvironment environment;
    environment.insert(u"HOME"_s, u"/home/somebody"_s);
    for (const auto &[name, value] : variables)
        environment.insert(name, value);
    return XdgDirectories::fromEnvironment(environment);
}

} // namespace

TEST(XdgDirectories, LieInTheUsualPlaces)
{
    const XdgDirectories directories = directoriesWith({});
    EXPECT_EQ(directories.configHome, u"/home/somebody/.config"_s);
    EXPECT_EQ(directories.stateHome, u"/home/somebody/.local/state"_s);
    EXPECT_EQ(directories.configDirs, QStringList{u"/etc/xdg"_s});
    EXPECT_EQ(directories.dataDirs,
              (QStringList{u"/home/somebody/.local/share"_s, u"/usr/local/share"_s, u"/usr/share"_s}));
}

TEST(XdgDirectories, LieWhereTheEnvironmentSays)
{
    const XdgDirectories directories = directoriesWith({
        {u"XDG_CONFIG_HOME"_s, u"/config"_s},
        {u"XDG_STATE_HOME"_s, u"/state"_s},
        {u"XDG_DATA_HOME"_s, u"/data"_s},
        {u"XDG_CONFIG_DIRS"_s, u"/site/config:/etc/xdg"_s},
        {u"XDG_DATA_DIRS"_s, u"/site/data:/usr/share"_s},
    });
    EXPECT_EQ(directories.configHome, u"/config"_s);
    EXPECT_EQ(directories.stateHome, u"/state"_s);
    EXPECT_EQ(directories.configDirs, (QStringList{u"/site/config"_s, u"/etc/xdg"_s}));
    EXPECT_EQ(directories.dataDirs, (QStringList{u"/data"_s, u"/site/data"_s, u"/usr/share"_s}));
}

TEST(XdgDirectories, TakeAnEmptyVariableForAMissingOne)
{
    const XdgDirectories directories = directoriesWith({
        {u"XDG_CONFIG_HOME"_s, QString()},
        {u"XDG_CONFIG_DIRS"_s, QString()},
        {u"XDG_DATA_DIRS"_s, u":"_s},
    });
    EXPECT_EQ(directories.configHome, u"/home/somebody/.config"_s);
    EXPECT_EQ(directories.configDirs, QStringList{u"/etc/xdg"_s});
    EXPECT_EQ(directories.dataDirs,
              (QStringList{u"/home/somebody/.local/share"_s, u"/usr/local/share"_s, u"/usr/share"_s}));
}

TEST(XdgDirectories, IgnoreRelativePaths)
{
    const XdgDirectories directories = directoriesWith({
        {u"XDG_CONFIG_HOME"_s, u"config"_s},
        {u"XDG_STATE_HOME"_s, u"../state"_s},
        {u"XDG_DATA_HOME"_s, u"~/data"_s},
        {u"XDG_CONFIG_DIRS"_s, u"etc:/etc/xdg:."_s},
        {u"XDG_DATA_DIRS"_s, u"share"_s},
    });
    EXPECT_EQ(directories.configHome, u"/home/somebody/.config"_s);
    EXPECT_EQ(directories.stateHome, u"/home/somebody/.local/state"_s);
    EXPECT_EQ(directories.configDirs, QStringList{u"/etc/xdg"_s});
    EXPECT_EQ(directories.dataDirs,
              (QStringList{u"/home/somebody/.local/share"_s, u"/usr/local/share"_s, u"/usr/share"_s}));
}

TEST(XdgDirectories, AreWrittenInTheShortestWay)
{
    const XdgDirectories directories = directoriesWith({
        {u"XDG_CONFIG_HOME"_s, u"/a//b/../config/"_s},
        {u"XDG_DATA_DIRS"_s, u"/usr/share/:/opt/./share//"_s},
    });
    EXPECT_EQ(directories.configHome, u"/a/config"_s);
    EXPECT_EQ(directories.dataDirs,
              (QStringList{u"/home/somebody/.local/share"_s, u"/usr/share"_s, u"/opt/share"_s}));
}

} // namespace keyvora
