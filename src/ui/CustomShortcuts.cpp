// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CustomShortcuts.h"

#include "model/DisplayableShortcut.h"

namespace keyvora {

CustomShortcuts::CustomShortcuts(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_list(model.makeListModel(this))
    , m_draft(model)
{
    m_undoTimer.setSingleShot(true);
    connect(&m_undoTimer, &QTimer::timeout, this, [this] {
        m_deleted.clear();
        emit deletedChanged();
    });
    connect(&m_model, &AppModel::customShortcutsChanged, this, &CustomShortcuts::follow);
    follow();
}

QString CustomShortcuts::deletedTitle() const
{
    if (m_deleted.isEmpty())
        return {};
    return displayableTitle(m_deleted.constLast().entries.constFirst().shortcut);
}

QString CustomShortcuts::conflictTitle(int row, [[maybe_unused]] int revision,
                                       [[maybe_unused]] bool czech) const
{
    const QList<Shortcut> &shortcuts = m_model.customShortcuts();
    if (row < 0 || row >= shortcuts.size())
        return {};
    const Shortcut &shortcut = shortcuts[row];
    const auto other = m_model.conflict(shortcut.keys, shortcut.apps.value(0), shortcut.id);
    return other ? displayableTitle(*other) : QString();
}

void CustomShortcuts::remove(int row)
{
    if (row < 0 || row >= m_model.customShortcuts().size())
        return;
    m_deleted.append(m_model.deleteCustom(m_model.customShortcuts()[row]));
    m_undoTimer.start(m_undoTime);
    emit deletedChanged();
}

void CustomShortcuts::undo()
{
    if (m_deleted.isEmpty())
        return;
    m_model.restoreCustom(m_deleted.takeLast());
    if (m_deleted.isEmpty())
        m_undoTimer.stop();
    else
        m_undoTimer.start(m_undoTime);
    emit deletedChanged();
}

void CustomShortcuts::follow()
{
    m_list->setShortcuts(m_model.customShortcuts());
    ++m_revision;
    emit changed();
}

} // namespace keyvora
