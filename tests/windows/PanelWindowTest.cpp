// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelWindow.h"

#include "contract/Waiting.h"
#include "fakes/FakeCompositor.h"
#include "unit/QtPrinters.h"

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int gap = 8;

/// A window that another program might have: the focus goes to it.
class OtherWindow : public QWindow
{
public:
    OtherWindow()
    {
        setGeometry(500, 400, 100, 100);
        show();
    }

    [[nodiscard]] bool takeFocus()
    {
        requestActivate();
        return becomesTrue([this] { return isActive(); });
    }
};

class PanelWindowTest : public testing::Test
{
protected:
    PanelWindowTest()
    {
        QFile file(m_folder.filePath(u"Content.qml"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            "import QtQuick\nItem { width: 330; height: 200; focus: true; property bool isRounded }\n");
        file.close();
        m_panel.setSource(QUrl::fromLocalFile(file.fileName()));
    }

    PanelWindow &panel() { return m_panel; }
    FakeCompositor &compositor() { return m_compositor; }
    void pass(std::chrono::milliseconds time) { m_now += time; }

    void click(QPoint icon)
    {
        m_panel.toggle(icon, {}, [](const QWindow &, const QString &) { return false; });
    }

    [[nodiscard]] bool openWithFocus(QPoint icon)
    {
        click(icon);
        return becomesTrue([this] { return m_panel.isActive() && m_panel.isExposed(); });
    }

    static QRect available() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    static QPoint atTheBottom() { return {available().center().x(), available().bottom()}; }

private:
    QTemporaryDir m_folder;
    QObject m_theme;
    QQmlEngine m_engine;
    FakeCompositor m_compositor;
    std::chrono::steady_clock::time_point m_now;
    PanelWindow m_panel{&m_engine, &m_theme, m_compositor, [this] {
                            return m_now;
                        }};
};

} // namespace

TEST_F(PanelWindowTest, OpensBesideTheIconWithTheFocus)
{
    const QSignalSpy opening(&panel(), &PanelWindow::opening);
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    EXPECT_EQ(opening.size(), 1);
    const QPoint expected(atTheBottom().x() - 330 / 2, atTheBottom().y() + 1 - gap - 200);
    EXPECT_TRUE(becomesTrue([&] { return panel().position() == expected; }));
}

TEST_F(PanelWindowTest, AClickClosesItAndTheNextOpensItAgain)
{
    const QSignalSpy opening(&panel(), &PanelWindow::opening);
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    click(atTheBottom());
    EXPECT_FALSE(panel().isVisible());
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    EXPECT_EQ(opening.size(), 2);
}

TEST_F(PanelWindowTest, ClosesWhenItLosesTheFocus)
{
    OtherWindow other;
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    ASSERT_TRUE(other.takeFocus());
    EXPECT_TRUE(becomesTrue([&] { return !panel().isVisible(); }));
}

TEST_F(PanelWindowTest, TheClickThatTookTheFocusDoesNotOpenItAgain)
{
    OtherWindow other;
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    ASSERT_TRUE(other.takeFocus());
    ASSERT_TRUE(becomesTrue([&] { return !panel().isVisible(); }));
    click(atTheBottom());
    EXPECT_FALSE(panel().isVisible());
    click(atTheBottom());
    EXPECT_TRUE(panel().isVisible());
}

TEST_F(PanelWindowTest, AClickLaterOpensIt)
{
    OtherWindow other;
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    ASSERT_TRUE(other.takeFocus());
    ASSERT_TRUE(becomesTrue([&] { return !panel().isVisible(); }));
    pass(2s);
    click(atTheBottom());
    EXPECT_TRUE(panel().isVisible());
}

TEST_F(PanelWindowTest, StaysAtItsEdgeWhenItsHeightChanges)
{
    ASSERT_TRUE(openWithFocus(atTheBottom()));
    for (const int height : {300, 120}) {
        panel().rootObject()->setHeight(height);
        EXPECT_TRUE(becomesTrue([&] {
            return panel().height() == height && panel().y() == atTheBottom().y() + 1 - gap - height;
        })) << height;
    }
}

TEST_F(PanelWindowTest, HasTheHeightOfItsContentWhenItComes)
{
    panel().rootObject()->setHeight(150);
    click(atTheBottom());
    EXPECT_EQ(panel().height(), 150);
    EXPECT_EQ(panel().y(), atTheBottom().y() + 1 - gap - 150);
}

TEST_F(PanelWindowTest, StandsWhereThePointerIsWhenTheClickWasNowhere)
{
    QCursor::setPos(available().center());
    click({-100, -100});
    const QPoint pointer = QCursor::pos();
    EXPECT_EQ(panel().x(), pointer.x() - 330 / 2);
}

TEST_F(PanelWindowTest, CornersAreRoundWhileWindowsAreBlended)
{
    const auto isRounded = [this] {
        return panel().rootObject()->property("isRounded").toBool();
    };
    compositor().setRunning(true);
    click(atTheBottom());
    EXPECT_TRUE(isRounded());
    compositor().setRunning(false);
    EXPECT_FALSE(isRounded());
}

} // namespace keyvora
