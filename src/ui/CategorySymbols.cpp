// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CategorySymbols.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString categorySymbol(Shortcut::Category category)
{
    switch (category) {
    case Shortcut::Category::zaklady:
        return u"wand_stars"_s;
    case Shortcut::Category::text:
        return u"text_select_start"_s;
    case Shortcut::Category::okna:
        return u"select_window"_s;
    case Shortcut::Category::finder:
        return u"folder"_s;
    case Shortcut::Category::snimky:
        return u"photo_camera"_s;
    case Shortcut::Category::prohlizec:
        return u"public"_s;
    case Shortcut::Category::profi:
        return u"service_toolbox-fill"_s;
    }
    Q_UNREACHABLE();
}

} // namespace keyvora
