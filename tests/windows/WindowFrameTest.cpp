// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/WindowFrame.h"

#include "contract/Waiting.h"
#include "model/Defaults.h"
#include "unit/QtPrinters.h"

#include <QTemporaryDir>
#include <QWindow>

#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView name("Window");
constexpr QSize initialSize(420, 320);
constexpr QSize minimumSize(200, 100);

class WindowFrameTest : public testing::Test
{
protected:
    QWindow &window() { return *m_window; }
    [[nodiscard]] QString stored() const { return m_store.text(name).value_or(QString()); }
    void store(const QString &text) { m_store.setText(name, text); }

    void show()
    {
        m_frame->restore(initialSize, minimumSize);
        // Not `show`, after which no window is maximised any more.
        m_window->setVisible(true);
        ASSERT_TRUE(becomesTrue([this] { return m_window->isExposed(); }));
    }

    /// As another start of the program would.
    void makeAnew()
    {
        m_frame.reset();
        m_window = std::make_unique<QWindow>();
        m_frame = std::make_unique<WindowFrame>(*m_window, m_store, name);
    }

    [[nodiscard]] bool becomes(Qt::WindowState state) const
    {
        return becomesTrue([&] { return m_window->windowStates() == state; });
    }

private:
    QTemporaryDir m_folder;
    Defaults m_store{m_folder.filePath(u"windows.json"_s)};
    std::unique_ptr<QWindow> m_window = std::make_unique<QWindow>();
    std::unique_ptr<WindowFrame> m_frame = std::make_unique<WindowFrame>(*m_window, m_store, name);
};

} // namespace

TEST_F(WindowFrameTest, IsRestored)
{
    store(u"60 80 500 400"_s);
    show();
    EXPECT_EQ(window().size(), QSize(500, 400));
    EXPECT_TRUE(becomesTrue([&] { return window().framePosition() == QPoint(60, 80); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowNoState);
}

TEST_F(WindowFrameTest, IsTheInitialOneWhereWhatIsStoredIsNone)
{
    for (const QString &text : {QString(), u"60 80 500"_s, u"60 80 500 400 large"_s, u"60 80 500 400 1 2"_s,
                                u"60 80 500 x"_s, u"60 80 500 1000000"_s, u"maximized"_s}) {
        store(text);
        makeAnew();
        show();
        EXPECT_EQ(window().size(), initialSize) << text.toStdString();
        EXPECT_EQ(window().windowStates(), Qt::WindowNoState) << text.toStdString();
    }
}

TEST_F(WindowFrameTest, OfAMaximisedWindowComesBackMaximised)
{
    store(u"60 80 500 400"_s);
    show();
    window().setWindowStates(Qt::WindowMaximized);
    ASSERT_TRUE(becomesTrue([&] { return window().width() > 500; }));
    window().hide();
    EXPECT_EQ(stored(), u"60 80 500 400 maximized"_s);

    makeAnew();
    show();
    EXPECT_TRUE(becomesTrue([&] { return window().width() > 500; }));
    EXPECT_EQ(window().windowStates(), Qt::WindowMaximized);
    window().setWindowStates(Qt::WindowNoState);
    EXPECT_TRUE(becomesTrue([&] { return window().size() == QSize(500, 400); }));
    EXPECT_TRUE(becomesTrue([&] { return stored() == u"60 80 500 400"_s; }));
}

TEST_F(WindowFrameTest, OfAWindowThatWasNeverMovedIsRememberedAsMaximised)
{
    show();
    window().setWindowStates(Qt::WindowMaximized);
    ASSERT_TRUE(becomesTrue([&] { return window().width() > initialSize.width(); }));
    window().hide();
    EXPECT_TRUE(stored().endsWith(u" maximized"_s));
}

} // namespace keyvora
