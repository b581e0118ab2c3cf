// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Activation.h"

#include "contract/Waiting.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"

#include <QRegularExpression>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace keyvora;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The time that the server gives to what happens now.
xcb_timestamp_t serverTime(X11Connection &connection)
{
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    const QObject context;
    QObject::connect(&connection, &X11Connection::eventReceived, &context,
                     [&](const xcb_generic_event_t *event) {
                         if (event->response_type == XCB_PROPERTY_NOTIFY)
                             time = reinterpret_cast<const xcb_property_notify_event_t *>(event)->time;
                     });
    connection.selectRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, connection.root(),
                        connection.atom("_KEYVORA_TIME"), XCB_ATOM_STRING, 8, 0, nullptr);
    connection.flush();
    return becomesTrue([&] { return time != XCB_CURRENT_TIME; }) ? time : XCB_CURRENT_TIME;
}

} // namespace

/// Listens to what the window manager is asked. Runs on a desktop of its own.
class X11ActivationTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void readsTheTimeOfATokenThatTellsIt_data();
    void readsTheTimeOfATokenThatTellsIt();
    void readsNoTimeOfOtherTokens_data();
    void readsNoTimeOfOtherTokens();
    void asksWithTheTimeOnceTheWindowIsShown();
};

void X11ActivationTest::init()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
}

void X11ActivationTest::readsTheTimeOfATokenThatTellsIt_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<quint32>("time");
    QTest::newRow("our own") << u"keyvora_TIME12345"_s << 12345U;
    QTest::newRow("a launcher's") << u"panel-812-host-mousepad-0_TIME99"_s << 99U;
    QTest::newRow("the last possible") << u"_TIME4294967295"_s << 4294967295U;
    QTest::newRow("two marks") << u"a_TIME1_TIME2"_s << 2U;
}

void X11ActivationTest::readsTheTimeOfATokenThatTellsIt()
{
    QFETCH(const QString, token);
    QFETCH(const quint32, time);
    QCOMPARE(timeOfActivationToken(token), std::optional(time));
}

void X11ActivationTest::readsNoTimeOfOtherTokens_data()
{
    QTest::addColumn<QString>("token");
    for (const char *token :
         {"", "abc", "_TIME", "a_TIME0", "a_TIMEx", "a_TIME12x", "a_TIME-1", "a_TIME4294967296", "a_TIME1_b"})
        QTest::newRow(token) << QString::fromLatin1(token);
}

void X11ActivationTest::readsNoTimeOfOtherTokens()
{
    QFETCH(const QString, token);
    QCOMPARE(timeOfActivationToken(token), std::nullopt);
}

void X11ActivationTest::asksWithTheTimeOnceTheWindowIsShown()
{
    struct Request
    {
        uint32_t source;
        xcb_timestamp_t time;

        bool operator==(const Request &) const = default;
    };
    const auto listener = X11Connection::open();
    QVERIFY(listener);
    listener->selectRootEvents(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    QWindow window;
    const auto id = static_cast<xcb_window_t>(window.winId());
    QList<Request> requests;
    connect(listener.get(), &X11Connection::eventReceived, this, [&](const xcb_generic_event_t *event) {
        const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event);
        if (typeOf(*event) != XCB_CLIENT_MESSAGE || message->window != id ||
            message->type != listener->atom("_NET_ACTIVE_WINDOW"))
            return;
        requests.append({message->data.data32[0], message->data.data32[1]});
    });
    const xcb_timestamp_t now = serverTime(*listener);
    window.show();
    QVERIFY(activateX11Window(window, now, *listener));
    QTRY_VERIFY(!requests.isEmpty());
    QCOMPARE(requests, (QList<Request>{{2, now}}));
    QTRY_VERIFY(window.isActive());
}

QTEST_MAIN(X11ActivationTest)
#include "X11ActivationTest.moc"
