// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

namespace keyvora {

/// The program's icon in the desktop's status area. It appears in whatever host there is, now or later, and
/// survives a host that restarts; without any host it does nothing.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    /// The kind of host that shows the icon.
    enum class Host : quint8 {
        Unknown, ///< still asking the desktop
        None,    ///< the desktop has no status area
        StatusNotifier,
        XEmbed,
    };
    Q_ENUM(Host)

    using QObject::QObject;

    [[nodiscard]] virtual Host host() const = 0;

signals:
    /// A person clicked the icon. The position is in screen pixels, null where the host does not tell; the
    /// token is what the desktop wants to see before it lets a window come to the front, often empty.
    void activated(QPoint position, const QString &activationToken);
    void hostChanged(keyvora::StatusItem::Host host);
};

} // namespace keyvora
