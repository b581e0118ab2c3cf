// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

#include <QAbstractListModel>
#include <QSet>

#include <memory>
#include <vector>

namespace keyvora {

/// A list of shortcuts for a view. A new list is turned into inserted, removed, moved and changed rows, so
/// that rows that stay keep their delegates. Rows are the same when their ids are; of several with one id,
/// the first answers to the first.
class ShortcutListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        ShortcutIdRole = Qt::UserRole,
        TitleRole,
        KeysRole,
        CategoryRole,   ///< position in `allCategories`
        HeaderTextRole, ///< in the current language
        DetailRole,
        IsFavoriteRole,
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setShortcuts(const QList<Shortcut> &shortcuts);
    void setFavorites(const QSet<QString> &ids);

    /// The row of the first shortcut with this id, or -1.
    [[nodiscard]] Q_INVOKABLE int rowOf(const QString &shortcutId) const;

    /// Tells the views that texts which follow the language have changed.
    void languageChanged();

private:
    using Row = std::shared_ptr<const Shortcut>;

    /// For each present row its place in the new list, or `leaves`.
    [[nodiscard]] std::vector<qsizetype> destinations(const QList<Shortcut> &shortcuts) const;
    void removeLeaving(std::vector<qsizetype> &destinations);
    void placeAll(std::vector<qsizetype> destinations, const QList<Shortcut> &shortcuts);
    void replaceChanged(const QList<Shortcut> &shortcuts);
    [[nodiscard]] const Shortcut &at(int row) const { return *m_rows[static_cast<size_t>(row)]; }

    std::vector<Row> m_rows;
    QSet<QString> m_favorites;
};

} // namespace keyvora
