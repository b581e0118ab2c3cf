// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fakes/FakeStatusNotifierWatcher.h"
#include "platform/linux/StatusNotifierItem.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace keyvora;
using namespace Qt::Literals::StringLiterals;

/// How the icon finds the status areas that come and go. Runs on a session bus of its own.
class StatusNotifierHostTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void knowsNothingBeforeTheDesktopAnswers();
    void hasNoHostWithoutWatcher();
    void worksWithoutSessionBus();
    void registersWithWatcherThatIsThere();
    void registersWithWatcherThatComesLater();
    void registersAgainAfterWatcherRestarted();
    void followsHostsThatComeAndGo();
    void keepsHostWhileAnotherOneIsLeft();
    void asksAgainWithoutWatcher();
    void asksAgainWithWatcher();

private:
    void makeItem();

    QDBusConnection m_itemBus{QString()};
    std::unique_ptr<StatusNotifierItem> m_item;
};

void StatusNotifierHostTest::initTestCase()
{
    m_itemBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"item"_s);
    QVERIFY(m_itemBus.isConnected());
}

void StatusNotifierHostTest::init()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
}

void StatusNotifierHostTest::cleanup()
{
    m_item.reset();
}

void StatusNotifierHostTest::makeItem()
{
    m_item = std::make_unique<StatusNotifierItem>(StatusIcon(), m_itemBus);
}

void StatusNotifierHostTest::knowsNothingBeforeTheDesktopAnswers()
{
    const FakeStatusNotifierWatcher watcher(u"watcher"_s);
    makeItem();
    QVERIFY(!m_item->hasHost());
}

void StatusNotifierHostTest::hasNoHostWithoutWatcher()
{
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
}

void StatusNotifierHostTest::worksWithoutSessionBus()
{
    const QDBusConnection noBus(u"never connected"_s);
    StatusNotifierItem item({}, noBus);
    QCOMPARE(item.hasHost(), std::optional(false));
    item.askAgain();
    QCOMPARE(item.hasHost(), std::optional(false));
}

void StatusNotifierHostTest::registersWithWatcherThatIsThere()
{
    const FakeStatusNotifierWatcher watcher(u"watcher"_s);
    QVERIFY(watcher.hasPlace());
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(true));
    QCOMPARE(watcher.items(), QStringList{m_itemBus.baseService()});
}

void StatusNotifierHostTest::registersWithWatcherThatComesLater()
{
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    const FakeStatusNotifierWatcher watcher(u"watcher"_s);
    QTRY_COMPARE(m_item->hasHost(), std::optional(true));
    QCOMPARE(watcher.items(), QStringList{m_itemBus.baseService()});
}

void StatusNotifierHostTest::registersAgainAfterWatcherRestarted()
{
    auto watcher = std::make_unique<FakeStatusNotifierWatcher>(u"watcher"_s);
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(true));
    watcher.reset();
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    watcher = std::make_unique<FakeStatusNotifierWatcher>(u"restarted watcher"_s);
    QTRY_COMPARE(m_item->hasHost(), std::optional(true));
    QCOMPARE(watcher->items(), QStringList{m_itemBus.baseService()});
}

void StatusNotifierHostTest::followsHostsThatComeAndGo()
{
    FakeStatusNotifierWatcher watcher(u"watcher"_s, FakeStatusNotifierWatcher::Hosts::None);
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    QSignalSpy changed(m_item.get(), &StatusNotifierItem::hasHostChanged);
    watcher.addHost();
    QTRY_COMPARE(m_item->hasHost(), std::optional(true));
    watcher.removeHost(FakeStatusNotifierWatcher::Hosts::None);
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    QCOMPARE(changed.size(), 2);
}

void StatusNotifierHostTest::keepsHostWhileAnotherOneIsLeft()
{
    FakeStatusNotifierWatcher watcher(u"watcher"_s);
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(true));
    QSignalSpy changed(m_item.get(), &StatusNotifierItem::hasHostChanged);
    watcher.removeHost(FakeStatusNotifierWatcher::Hosts::Registered);
    watcher.removeHost(FakeStatusNotifierWatcher::Hosts::None);
    QVERIFY(changed.wait());
    QCOMPARE(m_item->hasHost(), std::optional(false));
}

void StatusNotifierHostTest::asksAgainWithoutWatcher()
{
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    m_item->askAgain();
    QVERIFY(!m_item->hasHost());
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
}

void StatusNotifierHostTest::asksAgainWithWatcher()
{
    const FakeStatusNotifierWatcher watcher(u"watcher"_s, FakeStatusNotifierWatcher::Hosts::None);
    makeItem();
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    m_item->askAgain();
    QVERIFY(!m_item->hasHost());
    QTRY_COMPARE(m_item->hasHost(), std::optional(false));
    QCOMPARE(watcher.items().size(), 1);
}

QTEST_MAIN(StatusNotifierHostTest)
#include "StatusNotifierHostTest.moc"
