// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/PlatformPrinters.h"
#include "fakes/FakeLoginItem.h"
#include "platform/linux/XdgAutostart.h"
#include "unit/platform/linux/Files.h"

#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A desktop that has a login item, as the contract sees it.
class LoginItemBackend
{
public:
    virtual ~LoginItemBackend() = default;

    virtual LoginItem &loginItem() = 0;
    /// Somebody else, the desktop's settings for instance, switches.
    virtual void switchElsewhere(bool enabled) = 0;
    /// From now on nothing can be changed.
    virtual void refuse() = 0;
};

class FakeBackend : public LoginItemBackend
{
public:
    LoginItem &loginItem() override { return m_loginItem; }
    void switchElsewhere(bool enabled) override { m_loginItem.setReported(enabled); }
    void refuse() override { m_loginItem.setError(PlatformError{u"refused"_s}); }

private:
    FakeLoginItem m_loginItem;
};

class XdgBackend : public LoginItemBackend
{
public:
    LoginItem &loginItem() override { return m_loginItem; }

    void switchElsewhere(bool enabled) override
    {
        EXPECT_TRUE(writeFile(m_folder.filePath(u"home/autostart/app.keyvora.Keyvora.desktop"_s),
                              QByteArray("[Desktop Entry]\nType=Application\nName=Keyvora\nExec=keyvora\n") +
                                  "Hidden=" + (enabled ? "false" : "true") + '\n'));
    }

    void refuse() override
    {
        // Below a file nobody can write, not even the superuser; what is on stays on for everybody.
        const bool enabled = m_loginItem.isEnabled();
        QDir(m_folder.filePath(u"home"_s)).removeRecursively();
        EXPECT_TRUE(writeFile(m_folder.filePath(u"home"_s), "a file"));
        if (enabled) {
            EXPECT_TRUE(writeFile(m_folder.filePath(u"system/autostart/app.keyvora.Keyvora.desktop"_s),
                                  "[Desktop Entry]\nType=Application\nName=Keyvora\nExec=keyvora\n"));
        }
    }

private:
    QTemporaryDir m_folder;
    XdgAutostart m_loginItem{m_folder.filePath(u"home"_s), {m_folder.filePath(u"system"_s)}, u"/bin/sh"_s};
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<LoginItemBackend>()> makeBackend;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class LoginItemContract : public testing::TestWithParam<Row>
{
protected:
    LoginItemBackend &backend() { return *m_backend; }
    LoginItem &loginItem() { return m_backend->loginItem(); }

private:
    std::unique_ptr<LoginItemBackend> m_backend = GetParam().makeBackend();
};

} // namespace

TEST_P(LoginItemContract, IsOffBeforeAnybodySwitchedItOn)
{
    EXPECT_FALSE(loginItem().isEnabled());
}

TEST_P(LoginItemContract, IsSwitchedOnAndOff)
{
    for (const bool enabled : {true, false, true, true, false, false}) {
        EXPECT_EQ(loginItem().setEnabled(enabled), std::nullopt);
        EXPECT_EQ(loginItem().isEnabled(), enabled);
    }
}

TEST_P(LoginItemContract, SeesWhatHasBeenSwitchedElsewhere)
{
    for (const bool enabled : {true, false, true}) {
        backend().switchElsewhere(enabled);
        EXPECT_EQ(loginItem().isEnabled(), enabled);
    }
}

TEST_P(LoginItemContract, IsSwitchedFromWhateverStateItWasLeftIn)
{
    backend().switchElsewhere(true);
    EXPECT_EQ(loginItem().setEnabled(false), std::nullopt);
    EXPECT_FALSE(loginItem().isEnabled());
    backend().switchElsewhere(false);
    EXPECT_EQ(loginItem().setEnabled(true), std::nullopt);
    EXPECT_TRUE(loginItem().isEnabled());
}

TEST_P(LoginItemContract, StaysAsItWasAndSaysWhyWhenRefused)
{
    for (const bool enabled : {false, true}) {
        const auto refusing = GetParam().makeBackend();
        refusing->switchElsewhere(enabled);
        refusing->refuse();
        const auto error = refusing->loginItem().setEnabled(!enabled);
        ASSERT_TRUE(error.has_value()) << enabled;
        EXPECT_NE(error->description, QString()) << enabled;
        EXPECT_EQ(refusing->loginItem().isEnabled(), enabled);
    }
}

INSTANTIATE_TEST_SUITE_P(Backends, LoginItemContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeBackend>();
                                             }},
                                         Row{"Xdg",
                                             [] {
                                                 return std::make_unique<XdgBackend>();
                                             }}),
                         [](const auto &row) { return row.param.name; });

} // namespace keyvora
