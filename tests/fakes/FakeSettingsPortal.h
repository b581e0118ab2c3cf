// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <utility>

namespace keyvora {

/// The desktop's settings as programs read them over the session bus. It takes its place at construction.
class FakeSettingsPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakeSettingsPortal(const QDBusConnection &bus)
        : m_bus(bus)
    {
        // Exported signals find the type by its name.
        qRegisterMetaType<QDBusVariant>();
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportScriptableSlots |
                                 QDBusConnection::ExportScriptableSignals);
        m_hasPlace = m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    [[nodiscard]] bool hasPlace() const { return m_hasPlace; }

    /// How many questions have come, answered or not.
    [[nodiscard]] int questions() const { return m_questions; }

    /// What is answered from now on, without telling anybody.
    void set(const QString &group, const QString &key, const QVariant &value)
    {
        m_settings.insert({group, key}, value);
    }

    /// Changes a setting and tells everybody.
    void change(const QString &group, const QString &key, const QVariant &value)
    {
        set(group, key, value);
        emit SettingChanged(group, key, QDBusVariant(value));
    }

    /// Keeps whoever asks waiting until `answer`.
    void fallSilent() { m_isSilent = true; }

    void answer()
    {
        m_isSilent = false;
        for (const QDBusMessage &question : std::exchange(m_unanswered, {})) {
            const QVariantList arguments = question.arguments();
            m_bus.send(question.createReply(
                wrapped(setting(arguments.value(0).toString(), arguments.value(1).toString()))));
        }
    }

public slots:
    Q_SCRIPTABLE QDBusVariant Read(const QString &group, const QString &key)
    {
        ++m_questions;
        if (m_isSilent) {
            setDelayedReply(true);
            m_unanswered.append(message());
        } else if (!m_settings.contains({group, key})) {
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                           QStringLiteral("no such setting"));
        }
        return qvariant_cast<QDBusVariant>(wrapped(setting(group, key)));
    }

signals:
    Q_SCRIPTABLE void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    [[nodiscard]] QVariant setting(const QString &group, const QString &key) const
    {
        return m_settings.value({group, key}, QString());
    }

    /// Portals wrap what they answer twice.
    static QVariant wrapped(const QVariant &value)
    {
        return QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(value))));
    }

    QDBusConnection m_bus;
    bool m_hasPlace = false;
    bool m_isSilent = false;
    int m_questions = 0;
    QHash<std::pair<QString, QString>, QVariant> m_settings;
    QList<QDBusMessage> m_unanswered;
};

} // namespace keyvora
