// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/ApplicationNames.h"

#include "platform/ForeignText.h"
#include "platform/linux/DesktopEntry.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>

#include <limits>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView suffix(".desktop");
constexpr int maximumEntries = 20000;
constexpr qsizetype maximumNameLength = 100;
constexpr int noMatch = std::numeric_limits<int>::max();

bool isSame(const QString &left, const QString &right)
{
    return !left.isEmpty() && left.compare(right, Qt::CaseInsensitive) == 0;
}

/// How well an entry fits a window: the smaller the better.
int rank(const DesktopEntry &entry, const QString &id, const WindowIdentity &identity)
{
    const QString startupClass = entry.value(u"StartupWMClass"_s);
    const QString executable = entry.executableName();
    const bool fits[] = {
        isSame(startupClass, identity.windowClass),  isSame(startupClass, identity.windowInstance),
        isSame(id, identity.gtkApplicationId),       isSame(id, identity.windowClass),
        isSame(id, identity.windowInstance),         isSame(executable, identity.windowClass),
        isSame(executable, identity.windowInstance),
    };
    int place = 0;
    for (const bool fit : fits) {
        if (fit)
            return place;
        ++place;
    }
    return noMatch;
}

/// The desktop entries below a folder in a fixed order, so that of equally good ones the same is always
/// taken.
QStringList entryFiles(const QString &folder, int &remaining)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext() && remaining-- > 0) {
        const QString path = files.next();
        // Compared by hand: a name filter would bring in the regular expression engine for good.
        if (path.endsWith(suffix))
            paths.append(path);
    }
    paths.sort();
    return paths;
}

} // namespace

ApplicationNames::ApplicationNames(QStringList dataDirs, QStringList languages)
    : m_dataDirs(std::move(dataDirs))
    , m_languages(std::move(languages))
{
}

QHash<WindowIdentity, QString> ApplicationNames::find(const QList<WindowIdentity> &identities) const
{
    QHash<WindowIdentity, int> bestRanks;
    QHash<WindowIdentity, QString> names;
    QSet<QString> seenIds;
    int remaining = maximumEntries;
    for (const QString &dataDir : m_dataDirs) {
        const QDir applications(dataDir + u"/applications"_s);
        for (const QString &path : entryFiles(applications.path(), remaining)) {
            const QString id = applications.relativeFilePath(path).chopped(suffix.size()).replace(u'/', u'-');
            if (seenIds.contains(id))
                continue; // the user's own entry stands for the system's
            seenIds.insert(id);
            const auto entry = DesktopEntry::read(path);
            if (!entry || entry->flag(u"Hidden"_s, false))
                continue;
            for (const WindowIdentity &identity : identities) {
                const int entryRank = rank(*entry, id, identity);
                if (entryRank >= bestRanks.value(identity, noMatch))
                    continue;
                const QString name =
                    displayableForeignText(entry->localizedValue(u"Name"_s, m_languages), maximumNameLength);
                if (name.isEmpty())
                    continue;
                bestRanks.insert(identity, entryRank);
                names.insert(identity, name);
            }
        }
    }
    return names;
}

QString ApplicationNames::fallback(const WindowIdentity &identity)
{
    const QString name = identity.windowClass.isEmpty() ? identity.windowInstance : identity.windowClass;
    return displayableForeignText(name, maximumNameLength);
}

} // namespace keyvora
