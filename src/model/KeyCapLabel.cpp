// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeyCapLabel.h"

#include "model/Localization.h"

#include <algorithm>
#include <array>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString keyCapLabel(const QString &token)
{
    if (token == "Space"_L1)
        return Localization::shared().text(u"Mezerník"_s, u"Space"_s);
    return token;
}

QString spokenKeyName(const QString &token)
{
    struct Name
    {
        QString token;
        QString czech;
        QString english;
    };
    static const std::array names{
        Name{u"⌘"_s, u"Command"_s, u"Command"_s},
        Name{u"⌥"_s, u"Option"_s, u"Option"_s},
        Name{u"⇧"_s, u"Shift"_s, u"Shift"_s},
        Name{u"⌃"_s, u"Control"_s, u"Control"_s},
        Name{u"Fn"_s, u"Fn"_s, u"Function"_s},
        Name{u"←"_s, u"šipka doleva"_s, u"Left Arrow"_s},
        Name{u"→"_s, u"šipka doprava"_s, u"Right Arrow"_s},
        Name{u"↑"_s, u"šipka nahoru"_s, u"Up Arrow"_s},
        Name{u"↓"_s, u"šipka dolů"_s, u"Down Arrow"_s},
        Name{u"−"_s, u"minus"_s, u"Minus"_s},
        Name{u"+"_s, u"plus"_s, u"Plus"_s},
        Name{u","_s, u"čárka"_s, u"Comma"_s},
        Name{u"."_s, u"tečka"_s, u"Period"_s},
        Name{u"/"_s, u"lomítko"_s, u"Slash"_s},
        Name{u"`"_s, u"obrácená čárka"_s, u"Backtick"_s},
    };
    const auto found = std::ranges::find(names, token, &Name::token);
    return found == names.end() ? keyCapLabel(token)
                                : Localization::shared().text(found->czech, found->english);
}

} // namespace keyvora
