// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Connection.h"

#include "contract/BareScreen.h"
#include "contract/Waiting.h"
#include "contract/X11Desktop.h"
#include "platform/linux/XcbXkb.h"
#include "unit/QtPrinters.h"

#include <QList>

#include <gtest/gtest.h>
#include <optional>
#include <xcb/res.h>

namespace keyvora {

namespace {

class X11ConnectionTest : public testing::Test
{
protected:
    [[nodiscard]] const BareScreen &screen() const { return m_screen; }
    BareScreen &screen() { return m_screen; }
    X11Desktop &desktop() { return m_desktop; }
    X11Connection &connection() { return *m_connection; }

    /// Follows the root window's properties.
    const QList<xcb_atom_t> &changedProperties()
    {
        m_connection->selectRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
        QObject::connect(m_connection.get(), &X11Connection::eventReceived, m_connection.get(),
                         [this](const xcb_generic_event_t *event) {
                             if (event->response_type == XCB_PROPERTY_NOTIFY)
                                 m_changedProperties.append(
                                     reinterpret_cast<const xcb_property_notify_event_t *>(event)->atom);
                         });
        // The answer to this tells that the server knows what is wanted.
        EXPECT_NE(m_connection->atom("_KEYVORA_READY"), XCB_ATOM_NONE);
        return m_changedProperties;
    }

private:
    BareScreen m_screen;
    X11Desktop m_desktop{m_screen.display()};
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    QList<xcb_atom_t> m_changedProperties;
};

} // namespace

TEST(X11ConnectionWithoutServer, IsNone)
{
    const QByteArray before = qgetenv("DISPLAY");
    for (const QByteArray &display : {QByteArray(":987654"), QByteArray("nonsense"), QByteArray()}) {
        qputenv("DISPLAY", display);
        EXPECT_EQ(X11Connection::open(), nullptr) << display.toStdString();
    }
    qputenv("DISPLAY", before);
}

TEST_F(X11ConnectionTest, KnowsAtoms)
{
    const xcb_atom_t atom = connection().atom("_KEYVORA_TEST");
    EXPECT_NE(atom, XCB_ATOM_NONE);
    EXPECT_EQ(connection().atom("_KEYVORA_TEST"), atom);
    EXPECT_NE(connection().atom("_KEYVORA_TEST_2"), atom);
    EXPECT_EQ(connection().atom("WM_CLASS"), static_cast<xcb_atom_t>(XCB_ATOM_WM_CLASS));
}

TEST_F(X11ConnectionTest, ReadsProperties)
{
    desktop().setRootProperty("TEXT", XCB_ATOM_STRING, "some bytes");
    std::optional<QByteArray> value;
    connection().readProperty(connection().root(), "TEXT", 100,
                              [&](const QByteArray &bytes) { value = bytes; });
    EXPECT_FALSE(value);
    EXPECT_TRUE(becomesTrue([&] { return value.has_value(); }));
    EXPECT_EQ(value, "some bytes");
}

TEST_F(X11ConnectionTest, ReadsNothingOfWhatDoesNotExist)
{
    const xcb_window_t window = desktop().makeWindow({.instance = "a", .windowClass = "A"});
    desktop().destroy(window);
    QList<QByteArray> values;
    const auto take = [&](const QByteArray &bytes) {
        values.append(bytes);
    };
    connection().readProperty(connection().root(), "MISSING", 100, take);
    connection().readProperty(window, "WM_CLASS", 100, take);
    connection().readProperty(XCB_WINDOW_NONE, "WM_CLASS", 100, take);
    EXPECT_TRUE(becomesTrue([&] { return values.size() == 3; }));
    EXPECT_EQ(values, (QList<QByteArray>{{}, {}, {}}));
}

TEST_F(X11ConnectionTest, ReadsNoMoreThanItIsAskedFor)
{
    desktop().setRootProperty("LONG", XCB_ATOM_STRING, QByteArray(100'000, 'x'));
    std::optional<QByteArray> value;
    connection().readProperty(connection().root(), "LONG", 64,
                              [&](const QByteArray &bytes) { value = bytes; });
    EXPECT_TRUE(becomesTrue([&] { return value.has_value(); }));
    EXPECT_EQ(value, QByteArray(64, 'x'));
}

TEST_F(X11ConnectionTest, AnswersInTheOrderOfTheQuestions)
{
    QList<int> answers;
    for (int question = 0; question < 100; ++question)
        connection().readProperty(connection().root(), "MISSING", 4,
                                  [&, question](const QByteArray &) { answers.append(question); });
    EXPECT_TRUE(becomesTrue([&] { return answers.size() == 100; }));
    EXPECT_TRUE(std::ranges::is_sorted(answers));
}

TEST_F(X11ConnectionTest, AnswersQuestionsThatAnswersAsk)
{
    int depth = 0;
    const std::function<void(const QByteArray &)> askAgain = [&](const QByteArray &) {
        if (++depth < 50)
            connection().readProperty(connection().root(), "MISSING", 4, askAgain);
    };
    connection().readProperty(connection().root(), "MISSING", 4, askAgain);
    EXPECT_TRUE(becomesTrue([&] { return depth == 50; }));
}

TEST_F(X11ConnectionTest, FinishesAllQuestionsAtOnceWhereAsked)
{
    int depth = 0;
    const std::function<void(const QByteArray &)> askAgain = [&](const QByteArray &) {
        if (++depth < 5)
            connection().readProperty(connection().root(), "MISSING", 4, askAgain);
    };
    connection().readProperty(connection().root(), "MISSING", 4, askAgain);
    connection().finishPendingReplies();
    EXPECT_EQ(depth, 5);
}

TEST_F(X11ConnectionTest, TellsOfEvents)
{
    const QList<xcb_atom_t> &changed = changedProperties();
    desktop().setRootProperty("ONE", XCB_ATOM_STRING, "1");
    EXPECT_TRUE(becomesTrue([&] { return changed.size() == 1; }));
    desktop().setRootProperty("TWO", XCB_ATOM_STRING, "2");
    EXPECT_TRUE(becomesTrue([&] { return changed.size() == 2; }));
    EXPECT_EQ(changed, (QList<xcb_atom_t>{connection().atom("ONE"), connection().atom("TWO")}));
}

TEST_F(X11ConnectionTest, LetsOthersHaveTheirTurnWhileEventsCome)
{
    constexpr qsizetype many = 5000;
    const QList<xcb_atom_t> &changed = changedProperties();
    for (qsizetype i = 0; i < many; ++i)
        desktop().setRootProperty("TEXT", XCB_ATOM_STRING, "some bytes");
    std::optional<qsizetype> before;
    qsizetype batches = 0;
    QObject::connect(
        &connection(), &X11Connection::eventReceived, &connection(),
        [&] {
            QMetaObject::invokeMethod(
                &connection(), [&] { before = changed.size(); }, Qt::QueuedConnection);
        },
        Qt::SingleShotConnection);
    QObject::connect(&connection(), &X11Connection::eventsDispatched, &connection(), [&] { ++batches; });
    EXPECT_TRUE(becomesTrue([&] { return changed.size() == many; }));
    EXPECT_LT(before.value_or(many), many / 2);
    EXPECT_LT(batches, many / 2);
}

TEST_F(X11ConnectionTest, AddsToTheEventsThatItWants)
{
    const QList<xcb_atom_t> &changed = changedProperties();
    connection().selectRootEvents(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    ASSERT_NE(connection().atom("_KEYVORA_TEST"), XCB_ATOM_NONE);
    desktop().setRootProperty("ONE", XCB_ATOM_STRING, "1");
    EXPECT_TRUE(becomesTrue([&] { return changed.size() == 1; }));
}

TEST_F(X11ConnectionTest, AnswersAQuestionThatALaterOneOvertook)
{
    bool isAnswered = false;
    connection().readProperty(connection().root(), "WM_CLASS", 4,
                              [&](const QByteArray &) { isAnswered = true; });
    // Waits for its own answer, before which the other one comes.
    ASSERT_NE(connection().atom("_KEYVORA_TEST"), XCB_ATOM_NONE);
    EXPECT_TRUE(becomesTrue([&] { return isAnswered; }));
}

TEST_F(X11ConnectionTest, TellsOfAnEventThatALaterAnswerOvertook)
{
    const QList<xcb_atom_t> &changed = changedProperties();
    desktop().setRootProperty("ONE", XCB_ATOM_STRING, "1");
    // Waits for its own answer, before which the event comes.
    ASSERT_NE(connection().atom("_KEYVORA_TEST"), XCB_ATOM_NONE);
    EXPECT_TRUE(becomesTrue([&] { return changed.size() == 1; }));
}

TEST_F(X11ConnectionTest, EndsSilentlyWithTheServer)
{
    bool isAnswered = false;
    connection().readProperty(connection().root(), "WM_CLASS", 4,
                              [&](const QByteArray &) { isAnswered = true; });
    EXPECT_TRUE(becomesTrue([&] { return isAnswered; }));
    screen().end();
    EXPECT_TRUE(becomesTrue([&] { return xcb_connection_has_error(connection().xcb()) != 0; }));
    connection().readProperty(connection().root(), "WM_CLASS", 4,
                              [](const QByteArray &bytes) { EXPECT_EQ(bytes, QByteArray()); });
    connection().finishPendingReplies();
    EXPECT_EQ(connection().atom("_KEYVORA_TEST"), static_cast<xcb_atom_t>(XCB_ATOM_NONE));
    QCoreApplication::processEvents();
}

TEST_F(X11ConnectionTest, LetsNobodyWaitForAServerThatIsGone)
{
    QList<QByteArray> values;
    std::optional<bool> isDone;
    const auto ask = [&] {
        connection().readProperty(connection().root(), "WM_CLASS", 4,
                                  [&](const QByteArray &value) { values.append(value); });
    };
    ask();
    EXPECT_TRUE(becomesTrue([&] { return values.size() == 1; }));
    screen().end();
    ask();
    EXPECT_TRUE(becomesTrue([&] { return values.size() == 2; }));
    ask();
    connection().expectOutcome(xcb_map_window_checked(connection().xcb(), connection().root()).sequence,
                               [&](bool outcome) { isDone = outcome; });
    EXPECT_TRUE(becomesTrue([&] { return values.size() == 3 && isDone; }));
    EXPECT_EQ(values.last(), QByteArray());
    EXPECT_EQ(isDone, false);
}

TEST_F(X11ConnectionTest, TellsWhatBecameOfRequests)
{
    const xcb_window_t window = desktop().makeWindow({.instance = "a", .windowClass = "A"});
    const xcb_window_t gone = desktop().makeWindow({.instance = "b", .windowClass = "B"});
    desktop().destroy(gone);
    QList<bool> outcomes;
    int failures = 0;
    QObject::connect(
        &connection(), &X11Connection::eventReceived, &connection(),
        [&](const xcb_generic_event_t *event) { failures += event->response_type == 0 ? 1 : 0; });
    for (const xcb_window_t target : {window, gone, window}) {
        const auto cookie = xcb_map_window_checked(connection().xcb(), target);
        connection().expectOutcome(cookie.sequence, [&](bool isDone) { outcomes.append(isDone); });
    }
    EXPECT_EQ(outcomes, QList<bool>());
    EXPECT_TRUE(becomesTrue([&] { return outcomes.size() == 3; }));
    EXPECT_EQ(outcomes, (QList<bool>{true, false, true}));
    // Whoever asked has been told, and nobody else.
    EXPECT_EQ(failures, 0);
}

TEST_F(X11ConnectionTest, WaitsForOutcomesAtStartUp)
{
    QList<bool> outcomes;
    for (const xcb_window_t target : {connection().root(), xcb_window_t{XCB_WINDOW_NONE}}) {
        const auto cookie = xcb_map_window_checked(connection().xcb(), target);
        connection().expectOutcome(cookie.sequence, [&](bool isDone) { outcomes.append(isDone); });
    }
    connection().finishPendingReplies();
    EXPECT_EQ(outcomes, (QList<bool>{true, false}));
}

TEST_F(X11ConnectionTest, KnowsExtensions)
{
    const xcb_query_extension_reply_t *keyboard = connection().extension(xcb_xkb_id);
    ASSERT_NE(keyboard, nullptr);
    EXPECT_NE(keyboard->major_opcode, 0);
    EXPECT_EQ(connection().extension(xcb_xkb_id), keyboard);
}

TEST(X11ConnectionWithoutExtensions, KnowsThatThereIsNone)
{
    const BareScreen screen({QStringLiteral("-extension"), QStringLiteral("X-Resource")});
    const auto connection = screen.open();
    ASSERT_NE(connection, nullptr);
    EXPECT_EQ(connection->extension(xcb_res_id), nullptr);
}

} // namespace keyvora
