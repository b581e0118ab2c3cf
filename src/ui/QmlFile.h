// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QUrl>

namespace keyvora {

/// Where a component of our QML module lies.
inline QUrl qmlFile(const QString &name)
{
    using namespace Qt::Literals::StringLiterals;
    return QUrl(u"qrc:/qt/qml/Keyvora/"_s + name + u".qml"_s);
}

} // namespace keyvora
