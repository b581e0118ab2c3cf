// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/FirstAid.h"

#include <QAbstractListModel>

namespace keyvora {

class AppModel;
class ShortcutListModel;

/// The situations of first aid with the catalog's shortcuts for them, in the current language.
class FirstAidModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        TitleRole = Qt::UserRole,
        SymbolRole,    ///< name of the symbol
        ShortcutsRole, ///< a `ShortcutListModel`
    };

    /// The application model outlives this one.
    explicit FirstAidModel(const AppModel &model, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void fill();

    std::vector<FirstAidGroup> m_groups;
    std::vector<ShortcutListModel *> m_shortcuts; ///< one list for each group
};

} // namespace keyvora
