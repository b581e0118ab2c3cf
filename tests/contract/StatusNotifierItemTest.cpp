// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/StatusNotifierItem.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QPixmap>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace keyvora;
using namespace Qt::Literals::StringLiterals;

namespace {

const auto itemInterface = u"org.kde.StatusNotifierItem"_s;

QIcon plainIcon(const QColor &color)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(color);
    return QIcon(pixmap);
}

} // namespace

/// What the icon tells status areas and takes from them. Runs on a session bus of its own.
class StatusNotifierItemTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void describesItself_data();
    void describesItself();
    void offersIconInSeveralSizes();
    void offersNoPixelsForNullIcon();
    void showsItsNameAsToolTip();
    void passesClicksOn_data();
    void passesClicksOn();
    void usesActivationTokenOnce();
    void dropsOverlongActivationToken();
    void ignoresTheWheel();

private:
    QDBusMessage callItem(const QString &interface, const QString &method, const QVariantList &arguments);
    QVariant property(const QString &name);
    void makeItem(const QIcon &icon = plainIcon(Qt::red));

    QDBusConnection m_itemBus{QString()};
    QDBusConnection m_desktopBus{QString()};
    std::unique_ptr<StatusNotifierItem> m_item;
};

void StatusNotifierItemTest::initTestCase()
{
    m_itemBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"item"_s);
    m_desktopBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
    QVERIFY(m_itemBus.isConnected());
    QVERIFY(m_desktopBus.isConnected());
}

void StatusNotifierItemTest::init()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
}

void StatusNotifierItemTest::cleanup()
{
    m_item.reset();
}

void StatusNotifierItemTest::makeItem(const QIcon &icon)
{
    m_item = std::make_unique<StatusNotifierItem>(
        StatusIcon{.themeName = u"keys-symbolic"_s, .picture = icon}, m_itemBus);
}

QDBusMessage StatusNotifierItemTest::callItem(const QString &interface, const QString &method,
                                              const QVariantList &arguments)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(m_itemBus.baseService(), u"/StatusNotifierItem"_s, interface, method);
    call.setArguments(arguments);
    // Item and desktop live in one thread here, so the call must not block.
    QDBusPendingCallWatcher pending(m_desktopBus.asyncCall(call));
    QSignalSpy finished(&pending, &QDBusPendingCallWatcher::finished);
    if (!pending.isFinished())
        finished.wait();
    return pending.reply();
}

QVariant StatusNotifierItemTest::property(const QString &name)
{
    const QDBusMessage reply =
        callItem(u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {itemInterface, name});
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

void StatusNotifierItemTest::describesItself_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("category") << u"Category"_s << QVariant(u"ApplicationStatus"_s);
    QTest::newRow("id") << u"Id"_s << QVariant(u"app.keyvora.Keyvora"_s);
    QTest::newRow("title") << u"Title"_s << QVariant(u"Keyvora"_s);
    QTest::newRow("status") << u"Status"_s << QVariant(u"Active"_s);
    QTest::newRow("window") << u"WindowId"_s << QVariant(0);
    QTest::newRow("icon by name") << u"IconName"_s << QVariant(u"keys-symbolic"_s);
    QTest::newRow("a click is not a menu") << u"ItemIsMenu"_s << QVariant(false);
    QTest::newRow("no menu") << u"Menu"_s << QVariant::fromValue(QDBusObjectPath(u"/NO_DBUSMENU"_s));
}

void StatusNotifierItemTest::describesItself()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    makeItem();
    const QVariant told = property(name);
    QCOMPARE(told.metaType(), value.metaType());
    QCOMPARE(told, value);
}

void StatusNotifierItemTest::offersIconInSeveralSizes()
{
    makeItem(plainIcon(QColor(0x11, 0x22, 0x33, 0xff)));
    const auto argument = property(u"IconPixmap"_s).value<QDBusArgument>();
    QCOMPARE(argument.currentSignature(), u"a(iiay)"_s);
    QList<int> widths;
    for (const IconPixmap &pixmap : qdbus_cast<IconPixmapList>(argument)) {
        widths.append(pixmap.width);
        QCOMPARE(pixmap.height, pixmap.width);
        QCOMPARE(pixmap.pixels,
                 QByteArray::fromHex("ff112233").repeated(qsizetype{pixmap.width} * pixmap.height));
    }
    QCOMPARE(widths, QList<int>({16, 22, 24, 32, 48}));
}

void StatusNotifierItemTest::offersNoPixelsForNullIcon()
{
    makeItem(QIcon());
    const auto argument = property(u"IconPixmap"_s).value<QDBusArgument>();
    QCOMPARE(argument.currentSignature(), u"a(iiay)"_s);
    QVERIFY(qdbus_cast<IconPixmapList>(argument).isEmpty());
}

void StatusNotifierItemTest::showsItsNameAsToolTip()
{
    makeItem();
    const auto argument = property(u"ToolTip"_s).value<QDBusArgument>();
    QCOMPARE(argument.currentSignature(), u"(sa(iiay)ss)"_s);
    QCOMPARE(qdbus_cast<IconToolTip>(argument),
             (IconToolTip{.iconName = {}, .iconPixmaps = {}, .title = u"Keyvora"_s, .text = {}}));
}

void StatusNotifierItemTest::passesClicksOn_data()
{
    QTest::addColumn<QString>("method");
    QTest::newRow("left button") << u"Activate"_s;
    QTest::newRow("middle button") << u"SecondaryActivate"_s;
    QTest::newRow("right button") << u"ContextMenu"_s;
}

void StatusNotifierItemTest::passesClicksOn()
{
    QFETCH(QString, method);
    makeItem();
    QSignalSpy activated(m_item.get(), &StatusNotifierItem::activated);
    QCOMPARE(callItem(itemInterface, method, {1165, 13}).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.constFirst(), QVariantList({QPoint(1165, 13), QString()}));
}

void StatusNotifierItemTest::usesActivationTokenOnce()
{
    makeItem();
    QSignalSpy activated(m_item.get(), &StatusNotifierItem::activated);
    callItem(itemInterface, u"ProvideXdgActivationToken"_s, {u"token"_s});
    callItem(itemInterface, u"Activate"_s, {1, 2});
    callItem(itemInterface, u"Activate"_s, {3, 4});
    QCOMPARE(activated.size(), 2);
    QCOMPARE(activated.constFirst().constLast().toString(), u"token"_s);
    QCOMPARE(activated.constLast().constLast().toString(), QString());
}

void StatusNotifierItemTest::dropsOverlongActivationToken()
{
    makeItem();
    QSignalSpy activated(m_item.get(), &StatusNotifierItem::activated);
    callItem(itemInterface, u"ProvideXdgActivationToken"_s, {QString(100'000, u'x')});
    callItem(itemInterface, u"Activate"_s, {1, 2});
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.constFirst().constLast().toString(), QString());
}

void StatusNotifierItemTest::ignoresTheWheel()
{
    makeItem();
    QSignalSpy activated(m_item.get(), &StatusNotifierItem::activated);
    QCOMPARE(callItem(itemInterface, u"Scroll"_s, {120, u"vertical"_s}).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(activated.size(), 0);
}

QTEST_MAIN(StatusNotifierItemTest)
#include "StatusNotifierItemTest.moc"
