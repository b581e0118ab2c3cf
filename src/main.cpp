// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DBusApplication.h"
#include "system/KeyvoraApp.h"

#include <QApplication>
#include <QDBusConnection>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The overlay and everything that looks beyond our own windows needs X11, which Wayland sessions offer, too.
void preferX11(const QProcessEnvironment &environment)
{
    if (!environment.contains(u"QT_QPA_PLATFORM"_s) && environment.contains(u"DISPLAY"_s))
        qputenv("QT_QPA_PLATFORM", "xcb");
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
    preferX11(environment);

    QApplication application(argc, argv);
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
