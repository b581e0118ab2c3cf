// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/ShortcutListModel.h"

#include "model/DisplayableShortcut.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace keyvora {

namespace {

constexpr qsizetype leaves = -1;

/// A change that would take more steps than this is made in one piece from there on: those rows are far below
/// what a window shows, and thousands of steps would keep the view busy for longer than a frame.
constexpr qsizetype maximumSteps = 128;

/// Lets everything behind the first `maximumSteps` interruptions of an otherwise equal order leave.
void limitSteps(std::vector<qsizetype> &destinations, qsizetype newSize)
{
    qsizetype steps = 0;
    qsizetype last = leaves;
    bool wasLeaving = false;
    for (qsizetype &destination : destinations) {
        const bool isLeaving = destination == leaves;
        const bool isOutOfOrder = !isLeaving && destination < last;
        if (isOutOfOrder || (isLeaving && !wasLeaving))
            ++steps;
        if (steps > maximumSteps)
            destination = leaves;
        else if (!isLeaving)
            last = std::max(last, destination);
        wasLeaving = isLeaving;
    }

    std::vector<bool> stays(static_cast<size_t>(newSize), false);
    for (const qsizetype destination : destinations) {
        if (destination != leaves)
            stays[static_cast<size_t>(destination)] = true;
    }
    qsizetype cut = 0;
    for (steps = 0; cut < newSize; ++cut) {
        const bool startsInsertion =
            !stays[static_cast<size_t>(cut)] && (cut == 0 || stays[static_cast<size_t>(cut - 1)]);
        if (startsInsertion && ++steps > maximumSteps)
            break;
    }
    std::ranges::replace_if(
        destinations, [cut](qsizetype place) { return place >= cut; }, leaves);
}

} // namespace

int ShortcutListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ShortcutListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Shortcut &shortcut = at(index.row());
    switch (role) {
    case ShortcutIdRole:
        return shortcut.id;
    case TitleRole:
    case Qt::DisplayRole:
        return displayableTitle(shortcut);
    case KeysRole:
        return displayableKeys(shortcut);
    case CategoryRole:
        return static_cast<int>(shortcut.category);
    case HeaderTextRole:
        return displayableHeader(shortcut);
    case DetailRole:
        return displayableDetail(shortcut);
    case IsFavoriteRole:
        return m_favorites.contains(shortcut.id);
    default:
        return {};
    }
}

QHash<int, QByteArray> ShortcutListModel::roleNames() const
{
    return {
        {ShortcutIdRole, "shortcutId"}, {TitleRole, "title"},   {KeysRole, "keys"},
        {CategoryRole, "category"},     {DetailRole, "detail"}, {HeaderTextRole, "headerText"},
        {IsFavoriteRole, "isFavorite"},
    };
}

void ShortcutListModel::setShortcuts(const QList<Shortcut> &shortcuts)
{
    std::vector<qsizetype> places = destinations(shortcuts);
    limitSteps(places, shortcuts.size());
    removeLeaving(places);
    placeAll(std::move(places), shortcuts);
    replaceChanged(shortcuts);
}

void ShortcutListModel::setFavorites(const QSet<QString> &ids)
{
    const QSet<QString> before = std::exchange(m_favorites, ids);
    for (int row = 0; row < rowCount(); ++row) {
        if (before.contains(at(row).id) != ids.contains(at(row).id))
            emit dataChanged(index(row), index(row), {IsFavoriteRole});
    }
}

int ShortcutListModel::rowOf(const QString &shortcutId) const
{
    const auto found = std::ranges::find(m_rows, shortcutId, [](const Row &row) { return row->id; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void ShortcutListModel::languageChanged()
{
    if (!m_rows.empty())
        emit dataChanged(index(0), index(rowCount() - 1));
}

std::vector<qsizetype> ShortcutListModel::destinations(const QList<Shortcut> &shortcuts) const
{
    // For each id its first place that no row has taken yet; for each place the next one with the same id.
    struct Place
    {
        qsizetype index = leaves;
    };
    QHash<QStringView, Place> freePlaces;
    freePlaces.reserve(shortcuts.size());
    std::vector<qsizetype> nextPlaces(static_cast<size_t>(shortcuts.size()));
    for (qsizetype i = shortcuts.size() - 1; i >= 0; --i) {
        Place &first = freePlaces[shortcuts[i].id];
        nextPlaces[static_cast<size_t>(i)] = std::exchange(first.index, i);
    }

    std::vector<qsizetype> result;
    result.reserve(m_rows.size());
    for (const Row &row : m_rows) {
        const auto place = freePlaces.find(row->id);
        if (place == freePlaces.end() || place->index == leaves) {
            result.push_back(leaves);
            continue;
        }
        result.push_back(place->index);
        place->index = nextPlaces[static_cast<size_t>(place->index)];
    }
    return result;
}

void ShortcutListModel::removeLeaving(std::vector<qsizetype> &destinations)
{
    for (auto end = static_cast<int>(m_rows.size()); end > 0;) {
        int first = end;
        while (first > 0 && destinations[static_cast<size_t>(first - 1)] == leaves)
            --first;
        if (first == end) {
            --end;
            continue;
        }
        beginRemoveRows({}, first, end - 1);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + end);
        destinations.erase(destinations.begin() + first, destinations.begin() + end);
        endRemoveRows();
        end = first;
    }
}

void ShortcutListModel::placeAll(std::vector<qsizetype> destinations, const QList<Shortcut> &shortcuts)
{
    std::vector<bool> isPresent(static_cast<size_t>(shortcuts.size()), false);
    for (const qsizetype destination : destinations)
        isPresent[static_cast<size_t>(destination)] = true;

    // Rows before `row` are final; those from it on are in their old order.
    for (int row = 0; row < shortcuts.size(); ++row) {
        if (isPresent[static_cast<size_t>(row)]) {
            const auto found = std::find(destinations.begin() + row, destinations.end(), row);
            const auto from = static_cast<int>(found - destinations.begin());
            if (from == row)
                continue;
            beginMoveRows({}, from, from, {}, row);
            std::rotate(m_rows.begin() + row, m_rows.begin() + from, m_rows.begin() + from + 1);
            std::rotate(destinations.begin() + row, found, found + 1);
            endMoveRows();
            continue;
        }
        int end = row + 1;
        while (end < shortcuts.size() && !isPresent[static_cast<size_t>(end)])
            ++end;
        beginInsertRows({}, row, end - 1);
        std::vector<Row> inserted;
        std::vector<qsizetype> places;
        for (int i = row; i < end; ++i) {
            inserted.push_back(std::make_shared<const Shortcut>(shortcuts[i]));
            places.push_back(i);
        }
        m_rows.insert(m_rows.begin() + row, inserted.begin(), inserted.end());
        destinations.insert(destinations.begin() + row, places.begin(), places.end());
        endInsertRows();
        row = end - 1;
    }
}

void ShortcutListModel::replaceChanged(const QList<Shortcut> &shortcuts)
{
    int firstChanged = -1;
    const auto announceUpTo = [&](int end) {
        if (firstChanged >= 0)
            emit dataChanged(index(firstChanged), index(end - 1));
        firstChanged = -1;
    };
    for (int row = 0; row < shortcuts.size(); ++row) {
        if (at(row) == shortcuts[row]) {
            announceUpTo(row);
            continue;
        }
        m_rows[static_cast<size_t>(row)] = std::make_shared<const Shortcut>(shortcuts[row]);
        if (firstChanged < 0)
            firstChanged = row;
    }
    announceUpTo(static_cast<int>(shortcuts.size()));
}

} // namespace keyvora
