// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxStatusItem.h"

#include "fakes/FakeStatusNotifierWatcher.h"
#include "fakes/FakeXEmbedTray.h"
#include "platform/linux/X11Connection.h"

#include <QDBusMessage>
#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace keyvora;
using namespace Qt::Literals::StringLiterals;

using Host = StatusItem::Host;

/// Runs on a session bus and an X display of its own, without any desktop.
class LinuxStatusItemTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void knowsNothingBeforeTheDesktopAnswers();
    void hasNoHostOnBareDesktop();
    void knowsAtOnceThatNothingCanBeThere();
    void embedsOnlyWithX11();
    void embedsIntoTrayThatIsThere();
    void embedsIntoTrayThatComesLater();
    void embedsAgainAfterTrayRestarted();
    void prefersWatcherToEmbedding();
    void leavesTrayWhileWatcherHasHost();
    void passesClicksOn();

private:
    void makeItem();

    QDBusConnection m_bus{QString()};
    std::unique_ptr<X11Connection> m_x11;
    std::unique_ptr<LinuxStatusItem> m_item;
};

void LinuxStatusItemTest::initTestCase()
{
    m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"item"_s);
    QVERIFY(m_bus.isConnected());
}

void LinuxStatusItemTest::init()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    m_x11 = X11Connection::open();
    QVERIFY(m_x11);
}

void LinuxStatusItemTest::cleanup()
{
    m_item.reset();
    m_x11.reset();
}

void LinuxStatusItemTest::makeItem()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::red);
    m_item = std::make_unique<LinuxStatusItem>(StatusIcon{.themeName = {}, .picture = QIcon(pixmap)}, m_bus,
                                               m_x11.get());
}

void LinuxStatusItemTest::knowsNothingBeforeTheDesktopAnswers()
{
    makeItem();
    QCOMPARE(m_item->host(), Host::Unknown);
}

void LinuxStatusItemTest::hasNoHostOnBareDesktop()
{
    makeItem();
    QSignalSpy changed(m_item.get(), &StatusItem::hostChanged);
    QTRY_COMPARE(m_item->host(), Host::None);
    QCOMPARE(changed.size(), 1);
}

void LinuxStatusItemTest::knowsAtOnceThatNothingCanBeThere()
{
    const LinuxStatusItem item({}, QDBusConnection(u"never connected"_s), nullptr);
    QCOMPARE(item.host(), Host::None);
}

void LinuxStatusItemTest::embedsOnlyWithX11()
{
    const FakeXEmbedTray tray;
    const LinuxStatusItem item({}, m_bus, nullptr);
    QTRY_COMPARE(item.host(), Host::None);
    QCOMPARE(tray.iconCount(), 0);
}

void LinuxStatusItemTest::embedsIntoTrayThatIsThere()
{
    const FakeXEmbedTray tray;
    makeItem();
    QTRY_COMPARE(m_item->host(), Host::XEmbed);
    QTRY_COMPARE(tray.iconCount(), 1);
    m_item.reset();
    QGuiApplication::sync(); // else the request waits for the next one
    QTRY_COMPARE(tray.iconCount(), 0);
}

void LinuxStatusItemTest::embedsIntoTrayThatComesLater()
{
    makeItem();
    QTRY_COMPARE(m_item->host(), Host::None);
    const FakeXEmbedTray tray;
    QTRY_COMPARE(m_item->host(), Host::XEmbed);
    QTRY_COMPARE(tray.iconCount(), 1);
}

void LinuxStatusItemTest::embedsAgainAfterTrayRestarted()
{
    auto tray = std::make_unique<FakeXEmbedTray>();
    makeItem();
    QTRY_COMPARE(tray->iconCount(), 1);
    tray.reset();
    QTRY_COMPARE(m_item->host(), Host::None);
    tray = std::make_unique<FakeXEmbedTray>();
    QTRY_COMPARE(tray->iconCount(), 1);
    QCOMPARE(m_item->host(), Host::XEmbed);
}

void LinuxStatusItemTest::prefersWatcherToEmbedding()
{
    const FakeXEmbedTray tray;
    const FakeStatusNotifierWatcher watcher(u"watcher"_s);
    makeItem();
    QSignalSpy changed(m_item.get(), &StatusItem::hostChanged);
    QTRY_COMPARE(m_item->host(), Host::StatusNotifier);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(watcher.items().size(), 1);
    QCOMPARE(tray.iconCount(), 0);
}

void LinuxStatusItemTest::leavesTrayWhileWatcherHasHost()
{
    const FakeXEmbedTray tray;
    FakeStatusNotifierWatcher watcher(u"watcher"_s, FakeStatusNotifierWatcher::Hosts::None);
    makeItem();
    QTRY_COMPARE(tray.iconCount(), 1);
    watcher.addHost();
    QTRY_COMPARE(tray.iconCount(), 0);
    QCOMPARE(m_item->host(), Host::StatusNotifier);
    watcher.removeHost(FakeStatusNotifierWatcher::Hosts::None);
    QTRY_COMPARE(tray.iconCount(), 1);
    QCOMPARE(m_item->host(), Host::XEmbed);
}

void LinuxStatusItemTest::passesClicksOn()
{
    makeItem();
    QSignalSpy activated(m_item.get(), &StatusItem::activated);
    const auto desktop = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
    QDBusMessage click = QDBusMessage::createMethodCall(m_bus.baseService(), u"/StatusNotifierItem"_s,
                                                        u"org.kde.StatusNotifierItem"_s, u"Activate"_s);
    click.setArguments({20, 10});
    desktop.send(click);
    QTRY_COMPARE(activated.size(), 1);
    QCOMPARE(activated.constFirst(), QVariantList({QPoint(20, 10), QString()}));
}

QTEST_MAIN(LinuxStatusItemTest)
#include "LinuxStatusItemTest.moc"
