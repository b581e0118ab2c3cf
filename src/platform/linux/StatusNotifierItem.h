// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/IconPixmap.h"
#include "platform/linux/StatusIcon.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QPoint>
#include <QString>

#include <optional>

namespace keyvora {

/// The icon as an object on the session bus, which the desktop's status area reads and draws. It registers
/// with every watcher that comes and knows whether a status area listens there. Without a session bus, none
/// does.
class StatusNotifierItem : public QObject
{
    Q_OBJECT

    // Read over the bus.
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ iconName CONSTANT)
    Q_PROPERTY(keyvora::IconPixmapList IconPixmap READ pixmaps CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(keyvora::IconPixmapList OverlayIconPixmap READ noPixmaps CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(keyvora::IconPixmapList AttentionIconPixmap READ noPixmaps CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT)
    Q_PROPERTY(keyvora::IconToolTip ToolTip READ toolTip CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    StatusNotifierItem(StatusIcon icon, const QDBusConnection &sessionBus, QObject *parent = nullptr);
    ~StatusNotifierItem() override;

    /// Whether a status area shows the icon; no value while that is being asked for the first time, of a new
    /// watcher, or because of `askAgain`.
    [[nodiscard]] std::optional<bool> hasHost() const { return m_hasHost; }

    /// Asks once more whether a status area is there, in case one is about to announce itself.
    void askAgain();

    [[nodiscard]] QString category() const;
    [[nodiscard]] QString id() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] int windowId() const { return 0; }
    [[nodiscard]] QString iconName() const { return m_icon.themeName; }
    [[nodiscard]] QString noName() const { return {}; }
    /// Drawn when the first status area asks, which may be never.
    [[nodiscard]] IconPixmapList pixmaps() const;
    [[nodiscard]] IconPixmapList noPixmaps() const { return {}; }
    [[nodiscard]] IconToolTip toolTip() const;
    [[nodiscard]] bool itemIsMenu() const { return false; }
    [[nodiscard]] QDBusObjectPath menu() const;

    // Called over the bus.
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString &orientation);
    void ProvideXdgActivationToken(const QString &token);

signals:
    void activated(QPoint position, const QString &activationToken);
    void hasHostChanged();

private slots:
    void hostsChanged(const QDBusMessage &signal);

private:
    void findWatcher();
    void followWatcher(const QString &owner);
    void askForHost();
    void setHasHost(bool hasHost);

    QDBusConnection m_bus;
    StatusIcon m_icon;
    mutable IconPixmapList m_pixmaps;
    QString m_activationToken;
    QString m_watcher; ///< the unique name of its connection; empty without one
    std::optional<bool> m_hasHost;
};

} // namespace keyvora
