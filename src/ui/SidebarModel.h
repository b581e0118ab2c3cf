// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace keyvora {

/// The rows of the sidebar, and what the selected one means for the window.
class SidebarModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentRowChanged)
    Q_PROPERTY(QString pageTitle READ pageTitle NOTIFY pageTitleChanged)
    Q_PROPERTY(Page page READ page NOTIFY currentRowChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    /// What the window shows for a section.
    enum class Page : quint8 {
        Library, ///< its shortcuts, as they pass the filters
        Keyboard,
        Sticker,
        FirstAid,
        Daily,
        Practice,
    };
    Q_ENUM(Page)

    enum Role {
        TitleRole = Qt::UserRole,
        SymbolRole,  ///< name of the symbol
        HeadingRole, ///< heading of the group that the row stands in
    };

    explicit SidebarModel(AppModel &model, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The row of the model's selection.
    [[nodiscard]] int currentRow() const;
    /// The title over the selected section's page.
    [[nodiscard]] QString pageTitle() const;
    /// What the window shows for the selected section.
    [[nodiscard]] Page page() const;

    /// Selects the section of a row; rows that do not exist are ignored.
    Q_INVOKABLE void select(int row);

signals:
    void currentRowChanged();
    void pageTitleChanged();

private:
    AppModel &m_model;
};

} // namespace keyvora
