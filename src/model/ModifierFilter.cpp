// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/ModifierFilter.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString rawValue(ModifierFilter filter)
{
    switch (filter) {
    case ModifierFilter::command:
        return u"⌘"_s;
    case ModifierFilter::option:
        return u"⌥"_s;
    case ModifierFilter::shift:
        return u"⇧"_s;
    case ModifierFilter::control:
        return u"⌃"_s;
    case ModifierFilter::fn:
        return u"Fn"_s;
    }
    Q_UNREACHABLE();
}

std::optional<ModifierFilter> modifierFilterFromRawValue(const QString &token)
{
    for (const ModifierFilter filter : allModifierFilters) {
        if (rawValue(filter) == token)
            return filter;
    }
    return std::nullopt;
}

} // namespace keyvora
