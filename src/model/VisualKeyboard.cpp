// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/VisualKeyboard.h"

#include "model/AppModel.h"
#include "model/Assign.h"
#include "model/Localization.h"
#include "model/ShortcutListModel.h"

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

VisualKeyboard::VisualKeyboard(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_matches(model.makeListModel(this))
{
    follow();
    connect(&m_model, &AppModel::searchChanged, this, &VisualKeyboard::follow);
    connect(&m_model, &AppModel::selectionChanged, this, &VisualKeyboard::follow);
    connect(&m_model, &AppModel::modifierFiltersChanged, this, &VisualKeyboard::follow);
    connect(&m_model, &AppModel::customShortcutsChanged, this, &VisualKeyboard::follow);
    connect(&Localization::shared(), &Localization::languageChanged, this, &VisualKeyboard::follow);
}

QVariantList VisualKeyboard::rows()
{
    return {
        QStringList{u"Esc"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"0"_s,
                    u"−"_s, u"="_s},
        QStringList{u"Tab"_s, u"Q"_s, u"W"_s, u"E"_s, u"R"_s, u"T"_s, u"Y"_s, u"U"_s, u"I"_s, u"O"_s, u"P"_s,
                    u"["_s, u"]"_s},
        QStringList{u"⇧"_s, u"A"_s, u"S"_s, u"D"_s, u"F"_s, u"G"_s, u"H"_s, u"J"_s, u"K"_s, u"L"_s, u";"_s,
                    u"'"_s},
        QStringList{u"Fn"_s, u"⌃"_s, u"⌥"_s, u"⌘"_s, u"Space"_s, u"⌘"_s, u"⌥"_s, u"←"_s, u"↑"_s, u"↓"_s,
                    u"→"_s},
    };
}

QStringList VisualKeyboard::availableKeys() const
{
    return {m_availableKeys.begin(), m_availableKeys.end()};
}

void VisualKeyboard::select(const QString &key)
{
    if (!assign(m_selectedKey, key))
        return;
    emit selectedKeyChanged();
    update();
}

void VisualKeyboard::openLibrary()
{
    m_model.setSelection({.kind = SidebarSelection::Kind::all});
}

void VisualKeyboard::follow()
{
    // Typing in the library would filter it twice.
    if (m_model.selection().kind == SidebarSelection::Kind::keyboard)
        update();
}

void VisualKeyboard::update()
{
    const QList<Shortcut> filtered = m_model.filtered();
    QSet<QString> available;
    if (!m_model.modifierFilters().isEmpty()) {
        for (const Shortcut &shortcut : filtered) {
            for (const QString &key : shortcut.keys)
                available.insert(key);
        }
    }
    QList<Shortcut> matching;
    std::ranges::copy_if(filtered, std::back_inserter(matching),
                         [this](const Shortcut &shortcut) { return shortcut.keys.contains(m_selectedKey); });
    m_matches->setShortcuts(matching.first(std::min(maximumMatches, matching.size())));
    if (assign(m_availableKeys, available))
        emit availableKeysChanged();
    if (assign(m_matchCount, static_cast<int>(matching.size())))
        emit matchCountChanged();
}

} // namespace keyvora
