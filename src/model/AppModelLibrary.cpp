// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The lists that the library, the overlay and the panel show.

#include "model/AppModel.h"
#include "model/Assign.h"
#include "model/Localization.h"
#include "model/TextMatching.h"

#include <algorithm>
#include <vector>

namespace keyvora {

QList<Shortcut> AppModel::filtered() const
{
    const QString query = m_search.trimmed();
    const ContainmentMatcher matcher(query, m_services.locale);
    const auto matchesSearch = [&](const Shortcut &shortcut) {
        return query.isEmpty() || matcher.isContainedIn(shortcut.title) ||
               matcher.isContainedIn(shortcut.detail) || matcher.isContainedIn(shortcut.keys.join(QString()));
    };
    QList<Shortcut> result;
    for (const Shortcut &shortcut : allShortcuts()) {
        if (isInSection(shortcut) && holdsModifiers(shortcut) && matchesSearch(shortcut))
            result.append(shortcut);
    }
    return result;
}

bool AppModel::isInSection(const Shortcut &shortcut) const
{
    switch (m_selection.kind) {
    case SidebarSelection::Kind::favorites:
        return m_favorites.contains(shortcut.id);
    case SidebarSelection::Kind::category:
        return shortcut.category == m_selection.category;
    case SidebarSelection::Kind::all:
    case SidebarSelection::Kind::keyboard:
    case SidebarSelection::Kind::sticker:
    case SidebarSelection::Kind::firstAid:
    case SidebarSelection::Kind::daily:
    case SidebarSelection::Kind::practice:
        return true;
    }
    Q_UNREACHABLE();
}

bool AppModel::holdsModifiers(const Shortcut &shortcut) const
{
    return std::ranges::all_of(
        m_modifierFilters, [&](ModifierFilter filter) { return shortcut.keys.contains(rawValue(filter)); });
}

QList<Shortcut> AppModel::contextual() const
{
    constexpr qsizetype maximumCount = 4;
    const QList<Shortcut> all = allShortcuts();
    const bool namesActiveApp = std::ranges::any_of(
        all, [this](const Shortcut &shortcut) { return shortcut.apps.contains(m_activeApp); });
    struct Candidate
    {
        qint64 uses;
        qsizetype place;
    };
    std::vector<Candidate> candidates;
    for (qsizetype place = 0; place < all.size(); ++place) {
        if (!namesActiveApp || all.at(place).apps.contains(m_activeApp))
            candidates.push_back({m_usageCounts.value(all.at(place).id), place});
    }
    // Of those that are used as much, the first.
    const auto isBefore = [](const Candidate &one, const Candidate &other) {
        return one.uses != other.uses ? one.uses > other.uses : one.place < other.place;
    };
    const auto end = candidates.begin() + std::min<ptrdiff_t>(maximumCount, std::ssize(candidates));
    std::ranges::partial_sort(candidates, end, isBefore);
    QList<Shortcut> result;
    std::transform(candidates.begin(), end, std::back_inserter(result),
                   [&](const Candidate &candidate) { return all.at(candidate.place); });
    return result;
}

QStringList AppModel::modifierTokens() const
{
    QStringList tokens;
    for (const ModifierFilter filter : allModifierFilters) {
        if (m_modifierFilters.contains(filter))
            tokens.append(rawValue(filter));
    }
    return tokens;
}

ShortcutListModel *AppModel::makeListModel(QObject *parent) const
{
    auto *list = new ShortcutListModel(parent);
    list->setFavorites(m_favorites);
    connect(this, &AppModel::favoritesChanged, list, [this, list] { list->setFavorites(m_favorites); });
    connect(&Localization::shared(), &Localization::languageChanged, list,
            &ShortcutListModel::languageChanged);
    return list;
}

ShortcutListModel *AppModel::filteredModel()
{
    if (m_filteredModel != nullptr)
        return m_filteredModel;
    m_filteredModel = makeListModel(this);
    const auto update = [this] {
        m_filteredModel->setShortcuts(filtered());
    };
    update();
    connect(this, &AppModel::searchChanged, m_filteredModel, update);
    connect(this, &AppModel::selectionChanged, m_filteredModel, update);
    connect(this, &AppModel::modifierFiltersChanged, m_filteredModel, update);
    connect(this, &AppModel::customShortcutsChanged, m_filteredModel, update);
    connect(this, &AppModel::favoritesChanged, m_filteredModel, [this, update] {
        if (m_selection.kind == SidebarSelection::Kind::favorites)
            update();
    });
    connect(&Localization::shared(), &Localization::languageChanged, m_filteredModel, update);
    return m_filteredModel;
}

ShortcutListModel *AppModel::contextualModel()
{
    if (m_contextualModel != nullptr)
        return m_contextualModel;
    m_contextualModel = makeListModel(this);
    const auto update = [this] {
        m_contextualModel->setShortcuts(contextual());
    };
    update();
    connect(this, &AppModel::activeAppChanged, m_contextualModel, update);
    connect(this, &AppModel::usageCountsChanged, m_contextualModel, update);
    connect(this, &AppModel::customShortcutsChanged, m_contextualModel, update);
    connect(&Localization::shared(), &Localization::languageChanged, m_contextualModel, update);
    return m_contextualModel;
}

void AppModel::setSearch(const QString &search)
{
    if (assign(m_search, search))
        emit searchChanged();
}

void AppModel::setSelection(const SidebarSelection &selection)
{
    if (assign(m_selection, selection))
        emit selectionChanged();
}

void AppModel::toggleModifier(ModifierFilter filter)
{
    if (!m_modifierFilters.remove(filter))
        m_modifierFilters.insert(filter);
    emit modifierFiltersChanged();
}

void AppModel::toggleModifierToken(const QString &token)
{
    if (const auto filter = modifierFilterFromRawValue(token))
        toggleModifier(*filter);
}

void AppModel::clearModifiers()
{
    if (assign(m_modifierFilters, {}))
        emit modifierFiltersChanged();
}

void AppModel::revealShortcut(const QString &shortcutId)
{
    setSearch({});
    clearModifiers();
    setSelection({.kind = SidebarSelection::Kind::all});
    emit shortcutRevealed(shortcutId);
}

} // namespace keyvora
