// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/FirstAid.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

std::vector<FirstAidGroup> firstAidGroups(AppLanguage language)
{
    const auto text = [language](const QString &czech, const QString &english) {
        return language == AppLanguage::Czech ? czech : english;
    };
    return {
        {.id = u"unresponsive"_s,
         .title = text(u"Aplikace nereaguje"_s, u"App is not responding"_s),
         .symbol = u"warning-fill"_s,
         .items = {u"force-quit"_s}},
        {.id = u"undo"_s,
         .title = text(u"Něco jsem omylem změnil"_s, u"I accidentally changed something"_s),
         .symbol = u"undo"_s,
         .items = {u"undo"_s, u"redo"_s}},
        {.id = u"find"_s,
         .title = text(u"Nemohu najít soubor nebo aplikaci"_s, u"I can't find a file or app"_s),
         .symbol = u"search"_s,
         .items = {u"spotlight"_s, u"find"_s}},
        {.id = u"capture"_s,
         .title = text(u"Potřebuji zachytit obrazovku"_s, u"I need to capture my screen"_s),
         .symbol = u"photo_camera"_s,
         .items = {u"shot-area"_s, u"shot-tools"_s}},
        {.id = u"switch"_s,
         .title = text(u"Chci se rychle vrátit k práci"_s, u"I want to get back to work fast"_s),
         .symbol = u"select_window"_s,
         .items = {u"switch-app"_s, u"mission-control"_s, u"app-windows"_s}},
    };
}

} // namespace keyvora
