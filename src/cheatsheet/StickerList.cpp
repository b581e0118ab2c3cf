// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/StickerList.h"

#include "model/ShortcutLibrary.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <iterator>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QList<Shortcut> stickerList(AppLanguage language)
{
    static const QSet<QString> chosen{
        u"copy"_s,       u"paste"_s,        u"undo"_s,        u"save"_s,         u"spotlight"_s,
        u"switch-app"_s, u"close-window"_s, u"force-quit"_s,  u"shot-full"_s,    u"shot-area"_s,
        u"shot-tools"_s, u"emoji"_s,        u"lock"_s,        u"quick-look"_s,   u"new-folder"_s,
        u"trash"_s,      u"dock-toggle"_s,  u"computer"_s,    u"home"_s,         u"icloud"_s,
        u"recents"_s,    u"go-folder"_s,    u"restore-tab"_s, u"minimize-all"_s,
    };
    QList<Shortcut> list;
    std::ranges::copy_if(ShortcutLibrary::all(language), std::back_inserter(list),
                         [](const Shortcut &shortcut) { return chosen.contains(shortcut.id); });
    return list;
}

QList<Shortcut> walletList(const QList<Shortcut> &catalog)
{
    static const std::array order{u"copy"_s, u"paste"_s,     u"undo"_s,
                                  u"save"_s, u"spotlight"_s, u"close-window"_s};
    QList<Shortcut> list;
    for (const QString &id : order) {
        const auto found = std::ranges::find(catalog, id, &Shortcut::id);
        if (found != catalog.end())
            list.append(*found);
    }
    return list;
}

} // namespace keyvora
