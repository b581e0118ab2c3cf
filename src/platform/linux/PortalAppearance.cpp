// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/PortalAppearance.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_s;
const auto path = u"/org/freedesktop/portal/desktop"_s;
const auto interface = u"org.freedesktop.portal.Settings"_s;

const auto appearanceGroup = u"org.freedesktop.appearance"_s;
const auto interfaceGroup = u"org.gnome.desktop.interface"_s;
const auto accessibilityGroup = u"org.gnome.desktop.a11y.interface"_s;

bool isPaletteDark()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Replies of `Read` wrap the value twice, signals once.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// The value of a setting; nothing when it is of another type than it should be.
template <typename Value>
std::optional<Value> typed(const QVariant &setting)
{
    return setting.metaType() == QMetaType::fromType<Value>() ? std::optional(setting.value<Value>())
                                                              : std::nullopt;
}

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &sessionBus, QObject *parent)
    : Appearance(parent)
    , m_bus(sessionBus)
{
    // Without a service name, which the toolkit would look up in a call that waits.
    m_bus.connect(QString(), path, interface, u"SettingChanged"_s, this,
                  SLOT(settingAnnounced(QDBusMessage)));
    read(appearanceGroup, u"color-scheme"_s);
    read(appearanceGroup, u"contrast"_s);
    read(appearanceGroup, u"reduced-motion"_s);
    read(accessibilityGroup, u"high-contrast"_s);
    read(interfaceGroup, u"enable-animations"_s);
    qGuiApp->installEventFilter(this);
    m_preferences.isDark = isPaletteDark();
}

bool PortalAppearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        update();
    return Appearance::eventFilter(watched, event);
}

void PortalAppearance::read(const QString &group, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call.setArguments({group, key});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            settingChanged(group, key, QVariant::fromValue(reply.value()));
        watcher->deleteLater();
    });
}

void PortalAppearance::settingAnnounced(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    settingChanged(arguments.value(0).toString(), arguments.value(1).toString(), arguments.value(2));
}

void PortalAppearance::settingChanged(const QString &group, const QString &key, const QVariant &value)
{
    const QVariant setting = unwrapped(value);
    if (group == appearanceGroup && key == "color-scheme"_L1) {
        // 0 is no preference, 1 is dark, 2 is light; numbers still to come mean no preference, too.
        const uint scheme = typed<uint>(setting).value_or(0);
        m_prefersDark = scheme == 1 ? std::optional(true) : scheme == 2 ? std::optional(false) : std::nullopt;
    } else if (group == appearanceGroup && key == "contrast"_L1) {
        m_portalContrast = typed<uint>(setting) == 1;
    } else if (group == appearanceGroup && key == "reduced-motion"_L1) {
        m_portalReducesMotion = typed<uint>(setting) == 1;
    } else if (group == accessibilityGroup && key == "high-contrast"_L1) {
        m_desktopContrast = typed<bool>(setting).value_or(false);
    } else if (group == interfaceGroup && key == "enable-animations"_L1) {
        m_animations = typed<bool>(setting).value_or(true);
    } else {
        return;
    }
    update();
}

void PortalAppearance::update()
{
    const Preferences preferences{
        .isDark = m_prefersDark.value_or(isPaletteDark()),
        .highContrast = m_portalContrast || m_desktopContrast,
        .reducedMotion = m_portalReducesMotion || !m_animations,
    };
    if (preferences == m_preferences)
        return;
    m_preferences = preferences;
    emit preferencesChanged();
}

} // namespace keyvora
