// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QString>

namespace keyvora {

/// What a status area shows: an icon of the desktop's themes, which it can tint to suit its colours, or,
/// where there is none or it cannot, a picture that is legible on any colour.
struct StatusIcon
{
    QString themeName; ///< empty when no theme has the icon
    QIcon picture;
};

} // namespace keyvora
