// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/FirstAidModel.h"

#include "model/AppModel.h"
#include "model/Localization.h"
#include "model/ShortcutLibrary.h"

#include <algorithm>

namespace keyvora {

namespace {

/// The catalog's shortcuts with these ids, in the order of the ids; unknown ones are skipped.
QList<Shortcut> catalogShortcuts(const QStringList &ids, AppLanguage language)
{
    const QList<Shortcut> catalog = ShortcutLibrary::all(language);
    QList<Shortcut> found;
    for (const QString &id : ids) {
        const auto shortcut = std::ranges::find(catalog, id, &Shortcut::id);
        if (shortcut != catalog.end())
            found.append(*shortcut);
    }
    return found;
}

} // namespace

FirstAidModel::FirstAidModel(const AppModel &model, QObject *parent)
    : QAbstractListModel(parent)
    , m_groups(firstAidGroups(Localization::shared().language()))
{
    std::ranges::generate_n(std::back_inserter(m_shortcuts), std::ssize(m_groups),
                            [&] { return model.makeListModel(this); });
    fill();
    connect(&Localization::shared(), &Localization::languageChanged, this, [this] {
        fill();
        emit dataChanged(index(0), index(rowCount() - 1), {TitleRole});
    });
}

int FirstAidModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_groups.size());
}

QVariant FirstAidModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto row = static_cast<size_t>(index.row());
    switch (role) {
    case TitleRole:
        return m_groups[row].title;
    case SymbolRole:
        return m_groups[row].symbol;
    case ShortcutsRole:
        return QVariant::fromValue(m_shortcuts[row]);
    default:
        return {};
    }
}

QHash<int, QByteArray> FirstAidModel::roleNames() const
{
    return {{TitleRole, "title"}, {SymbolRole, "symbol"}, {ShortcutsRole, "shortcuts"}};
}

void FirstAidModel::fill()
{
    const AppLanguage language = Localization::shared().language();
    m_groups = firstAidGroups(language);
    for (size_t row = 0; row < m_groups.size(); ++row)
        m_shortcuts[row]->setShortcuts(catalogShortcuts(m_groups[row].items, language));
}

} // namespace keyvora
