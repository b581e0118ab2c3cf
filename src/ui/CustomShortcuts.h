// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppModel.h"
#include "model/CustomShortcutDraft.h"
#include "model/ShortcutListModel.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace keyvora {

/// The user's own shortcuts as a list to look through and to delete from, and the one being written.
class CustomShortcuts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::ShortcutListModel *list READ list CONSTANT)
    Q_PROPERTY(keyvora::CustomShortcutDraft *draft READ draft CONSTANT)
    Q_PROPERTY(int revision READ revision NOTIFY changed)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY deletedChanged)
    Q_PROPERTY(QString deletedTitle READ deletedTitle NOTIFY deletedChanged)
    /// How long a deletion can be undone, in milliseconds.
    Q_PROPERTY(int undoTime MEMBER m_undoTime)
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    /// The model outlives it.
    explicit CustomShortcuts(AppModel &model, QObject *parent = nullptr);

    [[nodiscard]] ShortcutListModel *list() const { return m_list; }
    [[nodiscard]] CustomShortcutDraft *draft() { return &m_draft; }
    /// Another number whenever a conflict may have come or gone.
    [[nodiscard]] int revision() const { return m_revision; }
    /// Something was deleted a short time ago, and can be put back.
    [[nodiscard]] bool canUndo() const { return !m_deleted.isEmpty(); }
    /// The title of what was deleted last.
    [[nodiscard]] QString deletedTitle() const;

    /// The title of the first shortcut that collides with the one in this row; empty when there is none.
    /// `revision` and `czech` are passed so that a binding follows them.
    [[nodiscard]] Q_INVOKABLE QString conflictTitle(int row, int revision, bool czech) const;

    /// Deletes the shortcut in a row; rows that do not exist are ignored.
    Q_INVOKABLE void remove(int row);
    /// Puts back what was deleted last. What was deleted shortly before can be put back next.
    Q_INVOKABLE void undo();

signals:
    void changed();
    void deletedChanged();

private:
    void follow();

    AppModel &m_model;
    ShortcutListModel *m_list;
    CustomShortcutDraft m_draft;
    int m_revision = 0;
    int m_undoTime = 8000;
    QList<DeletedCustom> m_deleted;
    QTimer m_undoTimer;
};

} // namespace keyvora
