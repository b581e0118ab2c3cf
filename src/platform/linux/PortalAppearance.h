// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <optional>

namespace keyvora {

/// The look from the desktop portal's settings; what the portal does not tell, above all on desktops without
/// one, comes from the palette that the toolkit took over from the desktop.
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
class PortalAppearance : public Appearance
{
    Q_OBJECT

public:
    explicit PortalAppearance(const QDBusConnection &sessionBus, QObject *parent = nullptr);

    [[nodiscard]] Preferences preferences() const override { return m_preferences; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void settingAnnounced(const QDBusMessage &message);

private:
    void settingChanged(const QString &group, const QString &key, const QVariant &value);
    void read(const QString &group, const QString &key);
    void update();

    QDBusConnection m_bus;
    Preferences m_preferences;
    std::optional<bool> m_prefersDark;
    bool m_portalContrast = false;
    bool m_desktopContrast = false;
    bool m_portalReducesMotion = false;
    bool m_animations = true;
};

} // namespace keyvora
