// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/ApplicationIcon.h"

#include <QFileInfo>

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QIcon applicationIcon()
{
    return QIcon(u":/keyvora/app.keyvora.Keyvora.svg"_s);
}

StatusIcon trayIcon(const QStringList &dataDirs)
{
    const auto name = u"app.keyvora.Keyvora-symbolic"_s;
    // Where an icon is missing, some status areas show a placeholder instead of the picture.
    const bool isInstalled = std::ranges::any_of(dataDirs, [&name](const QString &dataDir) {
        return QFileInfo::exists(dataDir + u"/icons/hicolor/symbolic/apps/"_s + name + u".svg"_s);
    });
    return {.themeName = isInstalled ? name : QString(),
            .picture = QIcon(u":/keyvora/app.keyvora.Keyvora-tray.svg"_s)};
}

} // namespace keyvora
