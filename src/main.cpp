// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DBusApplication.h"
#include "system/KeyvoraApp.h"

#include <QApplication>
#include <QDBusConnection>
#include <QSessionManager>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The overlay and everything that looks beyond our own windows needs X11, which Wayland sessions offer, too.
/// Holds while the toolkit makes its choice: programs that are started from here make their own.
class PreferenceForX11
{
public:
    explicit PreferenceForX11(const QProcessEnvironment &environment)
        : m_isOurs(!environment.contains(u"QT_QPA_PLATFORM"_s) && environment.contains(u"DISPLAY"_s))
    {
        if (m_isOurs)
            qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
    ~PreferenceForX11()
    {
        if (m_isOurs)
            qunsetenv("QT_QPA_PLATFORM");
    }
    Q_DISABLE_COPY_MOVE(PreferenceForX11)

private:
    bool m_isOurs;
};

/// Whether the program is there at login is for the login item to say, not for what was open at logout.
void leaveSessionAlone(QSessionManager &manager)
{
    manager.setRestartHint(QSessionManager::RestartNever);
}

QString activationToken(const QProcessEnvironment &environment)
{
    const QString token = environment.value(u"XDG_ACTIVATION_TOKEN"_s);
    return token.isEmpty() ? environment.value(u"DESKTOP_STARTUP_ID"_s) : token;
}

} // namespace

int main(int argc, char *argv[])
{
    // The toolkit takes startup tokens out of the environment, so it is read before.
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::optional<PreferenceForX11> preference(environment);
    QApplication application(argc, argv);
    preference.reset();
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &leaveSessionAlone);
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &leaveSessionAlone);
    QApplication::setApplicationName(u"Keyvora"_s);
    QApplication::setApplicationVersion(QStringLiteral(KEYVORA_VERSION));
    QApplication::setDesktopFileName(u"app.keyvora.Keyvora"_s);
    QApplication::setQuitOnLastWindowClosed(false);

    keyvora::DBusApplication instance(QDBusConnection::sessionBus());
    if (instance.claim(activationToken(environment)) == keyvora::ApplicationInstance::Claim::HandedOver)
        return 0;

    const keyvora::KeyvoraApp keyvora(instance, environment);
    return QApplication::exec();
}
