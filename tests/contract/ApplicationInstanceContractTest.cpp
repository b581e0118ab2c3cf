// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/PlatformPrinters.h"
#include "contract/PrivateBus.h"
#include "contract/Waiting.h"
#include "fakes/FakeApplicationInstance.h"
#include "platform/linux/DBusApplication.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;
using Claim = ApplicationInstance::Claim;

namespace {

using Call = std::pair<QString, QString>;

/// A session in which the program is started, as the contract sees it.
class Session
{
public:
    virtual ~Session() = default;

    virtual ApplicationInstance &firstStart() = 0;
    virtual void endFirst() = 0;
    /// A start in another process, from its beginning to the answer.
    virtual Claim startAgain(const QString &activationToken) = 0;
    virtual void activateFromDesktop(const QString &activationToken) = 0;
    virtual void chooseAction(const QString &action, const QString &activationToken) = 0;
    virtual void end() = 0;
};

class FakeSession : public Session
{
public:
    ApplicationInstance &firstStart() override { return *m_first; }
    void endFirst() override { m_first.reset(); }

    Claim startAgain(const QString &activationToken) override
    {
        FakeApplicationInstance other(m_session);
        return other.claim(activationToken);
    }

    void activateFromDesktop(const QString &activationToken) override { m_first->activate(activationToken); }

    void chooseAction(const QString &action, const QString &activationToken) override
    {
        m_first->chooseAction(action, activationToken);
    }

    void end() override { m_first->loseSession(); }

private:
    FakeApplicationInstance::Session m_session;
    std::unique_ptr<FakeApplicationInstance> m_first = std::make_unique<FakeApplicationInstance>(m_session);
};

class DBusSession : public Session
{
public:
    ApplicationInstance &firstStart() override { return *m_first; }

    void endFirst() override
    {
        m_first.reset();
        m_bus.release(u"first"_s);
        // The place is free when the bus has noticed.
        EXPECT_TRUE(becomesTrue([this] {
            return !m_desktopBus.interface()->isServiceRegistered(u"app.keyvora.Keyvora"_s).value();
        }));
    }

    Claim startAgain(const QString &activationToken) override
    {
        Claim claim = Claim::Alone;
        // The first one answers from this thread, while the other one waits.
        const std::unique_ptr<QThread> process(QThread::create([&] {
            DBusApplication other(m_bus.connect(u"other"_s));
            claim = other.claim(activationToken);
        }));
        process->start();
        EXPECT_TRUE(becomesTrue([&] { return process->isFinished(); }));
        process->wait();
        m_bus.release(u"other"_s);
        return claim;
    }

    void activateFromDesktop(const QString &activationToken) override
    {
        call(u"Activate"_s, {platformData(activationToken)});
    }

    void chooseAction(const QString &action, const QString &activationToken) override
    {
        call(u"ActivateAction"_s, {action, QVariantList(), platformData(activationToken)});
    }

    void end() override { m_bus.end(); }

    /// Calls the program as desktops do.
    void call(const QString &method, const QVariantList &arguments) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(
            u"app.keyvora.Keyvora"_s, u"/app/keyvora/Keyvora"_s, u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        m_desktopBus.send(message);
        // With an answer to this, the bus has the call, too.
        EXPECT_TRUE(m_desktopBus.interface()->isServiceRegistered(u"app.keyvora.Keyvora"_s).isValid());
    }

    static QVariantMap platformData(const QString &activationToken)
    {
        return activationToken.isEmpty() ? QVariantMap()
                                         : QVariantMap{{u"activation-token"_s, activationToken}};
    }

    PrivateBus &bus() { return m_bus; }

private:
    PrivateBus m_bus;
    QDBusConnection m_desktopBus = m_bus.connect(u"desktop"_s);
    std::unique_ptr<DBusApplication> m_first = std::make_unique<DBusApplication>(m_bus.connect(u"first"_s));
};

/// A program that ends when it should answer.
class EndingProgram : public QDBusVirtualObject
{
public:
    explicit EndingProgram(PrivateBus &bus)
        : m_bus(bus)
    {
        QDBusConnection connection = m_bus.connect(u"ending"_s);
        EXPECT_TRUE(connection.registerVirtualObject(u"/app/keyvora/Keyvora"_s, this));
        EXPECT_TRUE(connection.registerService(u"app.keyvora.Keyvora"_s));
    }

    [[nodiscard]] QString introspect(const QString & /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage & /*message*/, const QDBusConnection & /*connection*/) override
    {
        m_bus.release(u"ending"_s);
        return true;
    }

private:
    PrivateBus &m_bus;
};

/// Writes down what an instance is told.
class Log
{
public:
    explicit Log(ApplicationInstance &instance)
    {
        QObject::connect(&instance, &ApplicationInstance::activated, &instance,
                         [this](const QString &token) { m_activations.append(token); });
        QObject::connect(&instance, &ApplicationInstance::actionActivated, &instance,
                         [this](const QString &action, const QString &token) {
                             m_actions.append({action, token});
                         });
        QObject::connect(&instance, &ApplicationInstance::caughtUp, &instance, [this] {
            ++m_timesCaughtUp;
            m_toldBefore = m_actions.size() + m_activations.size();
        });
        QObject::connect(&instance, &ApplicationInstance::sessionLost, &instance, [this] { ++m_losses; });
    }

    /// The tokens, once there are so many.
    [[nodiscard]] QStringList activations(qsizetype expected) const
    {
        EXPECT_TRUE(becomesTrue([&] { return m_activations.size() >= expected; }));
        return m_activations;
    }

    /// The actions with their tokens, once there are so many.
    [[nodiscard]] QList<Call> actions(qsizetype expected) const
    {
        EXPECT_TRUE(becomesTrue([&] { return m_actions.size() >= expected; }));
        return m_actions;
    }

    /// How much was told before the instance had caught up, once it has.
    [[nodiscard]] qsizetype toldBefore() const
    {
        EXPECT_TRUE(becomesTrue([&] { return m_timesCaughtUp > 0; }));
        EXPECT_EQ(m_timesCaughtUp, 1);
        return m_toldBefore;
    }

    /// How often the session was lost, once that is so many times.
    [[nodiscard]] int losses(int expected) const
    {
        EXPECT_TRUE(becomesTrue([&] { return m_losses >= expected; }));
        return m_losses;
    }

private:
    QStringList m_activations;
    QList<Call> m_actions;
    int m_timesCaughtUp = 0;
    qsizetype m_toldBefore = 0;
    int m_losses = 0;
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<Session>()> makeSession;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class ApplicationInstanceContract : public testing::TestWithParam<Row>
{
protected:
    Session &session() { return *m_session; }

private:
    std::unique_ptr<Session> m_session = GetParam().makeSession();
};

} // namespace

TEST_P(ApplicationInstanceContract, FirstStartGetsThePlace)
{
    const Log log(session().firstStart());
    EXPECT_EQ(session().firstStart().claim(u"token"_s), Claim::First);
    session().activateFromDesktop(u"later"_s);
    EXPECT_EQ(log.activations(1), QStringList{u"later"_s});
}

TEST_P(ApplicationInstanceContract, LaterStartsHandOverWithTheirTokens)
{
    const Log log(session().firstStart());
    ASSERT_EQ(session().firstStart().claim({}), Claim::First);
    EXPECT_EQ(session().startAgain(u"one"_s), Claim::HandedOver);
    EXPECT_EQ(session().startAgain({}), Claim::HandedOver);
    EXPECT_EQ(session().startAgain(u"three"_s), Claim::HandedOver);
    EXPECT_EQ(log.activations(3), (QStringList{u"one"_s, QString(), u"three"_s}));
    EXPECT_EQ(log.actions(0), QList<Call>());
}

TEST_P(ApplicationInstanceContract, TellsOfActions)
{
    const Log log(session().firstStart());
    ASSERT_EQ(session().firstStart().claim({}), Claim::First);
    session().chooseAction(u"practice"_s, u"token"_s);
    session().chooseAction(u"quit"_s, {});
    EXPECT_EQ(log.actions(2), (QList<Call>{{u"practice"_s, u"token"_s}, {u"quit"_s, QString()}}));
    EXPECT_EQ(log.activations(0), QStringList());
}

TEST_P(ApplicationInstanceContract, CatchesUpWithWhatItWasStartedFor)
{
    const Log log(session().firstStart());
    ASSERT_EQ(session().firstStart().claim({}), Claim::First);
    session().chooseAction(u"practice"_s, {});
    EXPECT_EQ(log.toldBefore(), 1);
}

TEST_P(ApplicationInstanceContract, CatchesUpWhereNobodyAsksForAnything)
{
    const Log log(session().firstStart());
    ASSERT_EQ(session().firstStart().claim({}), Claim::First);
    EXPECT_EQ(log.toldBefore(), 0);
}

TEST_P(ApplicationInstanceContract, PlaceIsFreeAgainAfterTheEnd)
{
    ASSERT_EQ(session().firstStart().claim({}), Claim::First);
    session().endFirst();
    EXPECT_EQ(session().startAgain({}), Claim::First);
    EXPECT_EQ(session().startAgain({}), Claim::First);
}

TEST_P(ApplicationInstanceContract, TellsOfTheEndOfTheSession)
{
    const Log log(session().firstStart());
    ASSERT_EQ(session().firstStart().claim({}), Claim::First);
    EXPECT_EQ(session().startAgain({}), Claim::HandedOver);
    EXPECT_EQ(log.losses(0), 0);
    session().end();
    EXPECT_EQ(log.losses(1), 1);
}

INSTANTIATE_TEST_SUITE_P(Backends, ApplicationInstanceContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeSession>();
                                             }},
                                         Row{"DBus",
                                             [] {
                                                 return std::make_unique<DBusSession>();
                                             }}),
                         [](const auto &row) { return row.param.name; });

TEST(FakeApplicationInstance, IsAloneWhereTheSessionCannotTell)
{
    FakeApplicationInstance::Session session{.canTell = false, .first = {}};
    EXPECT_EQ(FakeApplicationInstance(session).claim(u"token"_s), Claim::Alone);
    EXPECT_EQ(FakeApplicationInstance(session).claim(u"token"_s), Claim::Alone);
}

TEST(DBusApplication, IsAloneWithoutASessionBus)
{
    DBusApplication application(QDBusConnection(u"never connected"_s));
    EXPECT_EQ(application.claim(u"token"_s), Claim::Alone);
}

TEST(DBusApplication, IsAloneAfterTheSessionBusEnded)
{
    auto bus = std::make_unique<PrivateBus>();
    const QDBusConnection connection = bus->connect(u"first"_s);
    DBusApplication application(connection);
    bus.reset();
    EXPECT_TRUE(becomesTrue([&] { return !connection.isConnected(); }));
    EXPECT_EQ(application.claim(u"token"_s), Claim::Alone);
}

TEST(DBusApplication, HearsWhatWasCalledBeforeTheEventLoopRan)
{
    DBusSession session;
    const Log log(session.firstStart());
    ASSERT_EQ(session.firstStart().claim({}), Claim::First);
    for (int call = 0; call < 20; ++call)
        session.activateFromDesktop(QString::number(call));
    const QStringList tokens = log.activations(20);
    ASSERT_EQ(tokens.size(), 20);
    for (int call = 0; call < 20; ++call)
        EXPECT_EQ(tokens.at(call), QString::number(call));
}

TEST(DBusApplication, IsActivatedByFilesThatItCannotOpen)
{
    DBusSession session;
    const Log log(session.firstStart());
    ASSERT_EQ(session.firstStart().claim({}), Claim::First);
    session.call(u"Open"_s, {QStringList{u"file:///a"_s}, DBusSession::platformData(u"token"_s)});
    EXPECT_EQ(log.activations(1), QStringList{u"token"_s});
}

TEST(DBusApplication, TakesEitherKindOfToken)
{
    DBusSession session;
    const Log log(session.firstStart());
    ASSERT_EQ(session.firstStart().claim({}), Claim::First);
    for (const QVariantMap &platformData : {
             QVariantMap{{u"desktop-startup-id"_s, u"old"_s}},
             QVariantMap{{u"desktop-startup-id"_s, u"old"_s}, {u"activation-token"_s, u"new"_s}},
             QVariantMap{{u"desktop-startup-id"_s, u"old"_s}, {u"activation-token"_s, QString()}},
             QVariantMap{{u"activation-token"_s, QVariantMap{{u"a"_s, 1}}}},
             QVariantMap{{u"another"_s, u"token"_s}},
         })
        session.call(u"Activate"_s, {platformData});
    EXPECT_EQ(log.activations(5), (QStringList{u"old"_s, u"new"_s, u"old"_s, QString(), QString()}));
}

TEST(DBusApplication, TakesThePlaceOfOneThatIsJustEnding)
{
    PrivateBus bus;
    const EndingProgram ending(bus);
    Claim claim = Claim::Alone;
    const std::unique_ptr<QThread> process(QThread::create([&] {
        DBusApplication next(bus.connect(u"next"_s));
        claim = next.claim({});
    }));
    process->start();
    EXPECT_TRUE(becomesTrue([&] { return process->isFinished(); }));
    process->wait();
    EXPECT_EQ(claim, Claim::First);
}

TEST(DBusApplication, HasOnePlaceForManySimultaneousStarts)
{
    PrivateBus bus;
    std::array<Claim, 20> claims{};
    std::array<std::unique_ptr<QThread>, claims.size()> processes;
    std::atomic<int> claimed = 0;
    std::atomic<int> activations = 0;
    claims.fill(Claim::Alone);
    for (size_t number = 0; number < processes.size(); ++number) {
        processes.at(number).reset(QThread::create([&, number] {
            DBusApplication application(bus.connect(QString::number(number)));
            QObject::connect(&application, &ApplicationInstance::activated, &application,
                             [&] { ++activations; });
            claims.at(number) = application.claim({});
            ++claimed;
            // Whoever is the first has others to answer.
            if (claims.at(number) == Claim::First) {
                EXPECT_TRUE(becomesTrue([&] { return claimed == std::ssize(claims); }));
            }
        }));
    }
    for (const auto &process : processes)
        process->start();
    for (const auto &process : processes)
        process->wait();
    EXPECT_EQ(std::ranges::count(claims, Claim::First), 1);
    EXPECT_EQ(std::ranges::count(claims, Claim::HandedOver), std::ssize(claims) - 1);
    EXPECT_EQ(activations, std::ssize(claims) - 1);
}

} // namespace keyvora
