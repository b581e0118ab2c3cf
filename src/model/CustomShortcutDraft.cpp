// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/CustomShortcutDraft.h"

#include "model/AppModel.h"
#include "model/Assign.h"
#include "model/KeysText.h"
#include "model/Localization.h"

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

CustomShortcutDraft::CustomShortcutDraft(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&m_model, &AppModel::customShortcutsChanged, this, &CustomShortcutDraft::updateConflict);
    connect(&Localization::shared(), &Localization::languageChanged, this,
            &CustomShortcutDraft::updateConflict);
}

void CustomShortcutDraft::begin()
{
    setTitle({});
    setKeysText({});
    const SidebarSelection section = m_model.selection();
    setCategory(section.kind == SidebarSelection::Kind::category ? static_cast<int>(section.category) : 0);
    setApp({});
    setDetail({});
}

void CustomShortcutDraft::setTitle(const QString &title)
{
    if (!assign(m_title, title))
        return;
    emit titleChanged();
    updateCanSave();
}

void CustomShortcutDraft::setKeysText(const QString &text)
{
    if (m_keysText != text)
        setKeys(text, parsedKeys(text));
}

void CustomShortcutDraft::setCategory(int category)
{
    if (category >= 0 && category < static_cast<int>(allCategories.size()) && assign(m_category, category))
        emit categoryChanged();
}

void CustomShortcutDraft::setApp(const QString &app)
{
    if (!assign(m_app, app))
        return;
    emit appChanged();
    updateConflict();
}

void CustomShortcutDraft::setDetail(const QString &detail)
{
    if (assign(m_detail, detail))
        emit detailChanged();
}

void CustomShortcutDraft::takeKeys(const KeyPress &press)
{
    const QStringList pressed = keyTokens(press);
    const bool isNextStep =
        !m_keys.isEmpty() && m_keysText.trimmed().endsWith(u'→') && m_keys.constLast() != u"→"_s;
    const QStringList keys = isNextStep ? m_keys + QStringList{u"→"_s} + pressed : pressed;
    setKeys(keyvora::keysText(keys), keys);
}

bool CustomShortcutDraft::save()
{
    if (!m_canSave)
        return false;
    // What is saved would collide with itself.
    const QStringList keys = std::exchange(m_keys, {});
    m_model.addCustom(m_title.trimmed(), keys, allCategories.at(static_cast<size_t>(m_category)), m_app,
                      m_detail.trimmed());
    return true;
}

void CustomShortcutDraft::setKeys(const QString &text, const QStringList &keys)
{
    m_keysText = text;
    m_keys = keys;
    emit keysTextChanged();
    updateConflict();
    updateCanSave();
}

void CustomShortcutDraft::updateConflict()
{
    const auto other = m_model.conflict(m_keys, m_app);
    if (assign(m_conflictTitle, other ? displayableTitle(*other) : QString()))
        emit conflictTitleChanged();
}

void CustomShortcutDraft::updateCanSave()
{
    if (assign(m_canSave, !m_title.trimmed().isEmpty() && !m_keys.isEmpty()))
        emit canSaveChanged();
}

} // namespace keyvora
