// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/PlatformPrinters.h"
#include "contract/PrivateBus.h"
#include "contract/Waiting.h"
#include "fakes/FakeAppearance.h"
#include "fakes/FakeSettingsPortal.h"
#include "platform/linux/PortalAppearance.h"

#include <QDBusPendingCallWatcher>
#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QSignalSpy>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;
using Preferences = Appearance::Preferences;

namespace {

const auto appearanceGroup = u"org.freedesktop.appearance"_s;
const auto interfaceGroup = u"org.gnome.desktop.interface"_s;
const auto accessibilityGroup = u"org.gnome.desktop.a11y.interface"_s;
const auto colorScheme = u"color-scheme"_s;
const auto contrast = u"contrast"_s;
const auto reducedMotion = u"reduced-motion"_s;
const auto highContrast = u"high-contrast"_s;
const auto enableAnimations = u"enable-animations"_s;

constexpr Preferences everything{.isDark = true, .highContrast = true, .reducedMotion = true};

/// Colours of the toolkit, until the end of the scope.
class Colours
{
public:
    Colours(Qt::GlobalColor window, Qt::GlobalColor text) { set(window, text); }
    ~Colours() { set(Qt::white, Qt::black); }
    Q_DISABLE_COPY_MOVE(Colours)

    static void set(Qt::GlobalColor window, Qt::GlobalColor text)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        QGuiApplication::setPalette(palette);
    }
};

/// A desktop with a look, as the contract sees it.
class AppearanceBackend
{
public:
    virtual ~AppearanceBackend() = default;

    virtual std::unique_ptr<Appearance> makeAppearance() = 0;
    /// What the user prefers from now on.
    virtual void prefer(const Preferences &preferences) = 0;
};

class FakeBackend : public AppearanceBackend
{
public:
    std::unique_ptr<Appearance> makeAppearance() override
    {
        auto appearance = std::make_unique<FakeAppearance>();
        appearance->setPreferences(m_preferences);
        m_appearance = appearance.get();
        return appearance;
    }

    void prefer(const Preferences &preferences) override
    {
        m_preferences = preferences;
        if (m_appearance)
            m_appearance->setPreferences(preferences);
    }

private:
    Preferences m_preferences;
    QPointer<FakeAppearance> m_appearance;
};

class PortalBackend : public AppearanceBackend
{
public:
    std::unique_ptr<Appearance> makeAppearance() override
    {
        return std::make_unique<PortalAppearance>(m_bus.connect(u"program"_s));
    }

    void prefer(const Preferences &preferences) override
    {
        m_portal.change(appearanceGroup, colorScheme, preferences.isDark ? 1U : 0U);
        m_portal.change(appearanceGroup, contrast, preferences.highContrast ? 1U : 0U);
        m_portal.change(interfaceGroup, enableAnimations, !preferences.reducedMotion);
    }

private:
    Colours m_colours{Qt::white, Qt::black};
    PrivateBus m_bus;
    FakeSettingsPortal m_portal{m_bus.connect(u"desktop"_s)};
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<AppearanceBackend>()> makeBackend;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class AppearanceContract : public testing::TestWithParam<Row>
{
protected:
    AppearanceBackend &backend() { return *m_backend; }

private:
    std::unique_ptr<AppearanceBackend> m_backend = GetParam().makeBackend();
};

/// The program's end and the desktop's end of a bus.
class PortalAppearanceTest : public testing::Test
{
protected:
    FakeSettingsPortal &startPortal() { return m_portal.emplace(m_desktopBus); }

    PortalAppearance &makeAppearance() { return m_appearance.emplace(m_programBus); }

    /// The look once everything that the desktop has said until now has arrived.
    Preferences settledPreferences()
    {
        // Messages from one peer to another keep their order, so the answer to this question is the last.
        QDBusMessage question = QDBusMessage::createMethodCall(
            u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
            u"org.freedesktop.portal.Settings"_s, u"Read"_s);
        question.setArguments({u"org.example"_s, u"last"_s});
        const QDBusPendingCallWatcher answer(m_programBus.asyncCall(question));
        EXPECT_TRUE(becomesTrue([&] { return answer.isFinished(); }));
        QCoreApplication::processEvents();
        return m_appearance ? m_appearance->preferences() : Preferences();
    }

    [[nodiscard]] QDBusConnection desktopBus() const { return m_desktopBus; }

private:
    Colours m_colours{Qt::white, Qt::black};
    PrivateBus m_bus;
    QDBusConnection m_desktopBus = m_bus.connect(u"desktop"_s);
    QDBusConnection m_programBus = m_bus.connect(u"program"_s);
    std::optional<FakeSettingsPortal> m_portal;
    std::optional<PortalAppearance> m_appearance;
};

} // namespace

TEST_P(AppearanceContract, IsOrdinaryWhereNothingIsPreferred)
{
    const auto appearance = backend().makeAppearance();
    EXPECT_EQ(appearance->preferences(), Preferences());
}

TEST_P(AppearanceContract, LearnsWhatIsPreferredAtStart)
{
    backend().prefer(everything);
    const auto appearance = backend().makeAppearance();
    EXPECT_TRUE(becomesTrue([&] { return appearance->preferences() == everything; }));
}

TEST_P(AppearanceContract, FollowsEachPreference)
{
    const auto appearance = backend().makeAppearance();
    for (const Preferences &preferences : {Preferences{.isDark = true}, Preferences{.highContrast = true},
                                           Preferences{.reducedMotion = true}, everything, Preferences{}}) {
        backend().prefer(preferences);
        EXPECT_TRUE(becomesTrue([&] { return appearance->preferences() == preferences; }))
            << testing::PrintToString(preferences);
    }
}

TEST_P(AppearanceContract, TellsEachChangeOnceItHasHappened)
{
    const auto appearance = backend().makeAppearance();
    QList<Preferences> told;
    QObject::connect(appearance.get(), &Appearance::preferencesChanged, appearance.get(),
                     [&] { told.append(appearance->preferences()); });
    backend().prefer({.isDark = true});
    EXPECT_TRUE(becomesTrue([&] { return told.size() == 1; }));
    backend().prefer({.isDark = true});
    backend().prefer({.isDark = true, .reducedMotion = true});
    EXPECT_TRUE(becomesTrue([&] { return told.size() == 2; }));
    backend().prefer({.isDark = true});
    EXPECT_TRUE(becomesTrue([&] { return told.size() == 3; }));
    EXPECT_EQ(told, (QList<Preferences>{
                        {.isDark = true}, {.isDark = true, .reducedMotion = true}, {.isDark = true}}));
}

INSTANTIATE_TEST_SUITE_P(Backends, AppearanceContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeBackend>();
                                             }},
                                         Row{"Portal",
                                             [] {
                                                 return std::make_unique<PortalBackend>();
                                             }}),
                         [](const auto &row) { return row.param.name; });

TEST_F(PortalAppearanceTest, TakesTheToolkitsColoursWithoutASessionBus)
{
    const QDBusConnection noBus(u"never connected"_s);
    EXPECT_EQ(PortalAppearance(noBus).preferences(), Preferences());
    Colours::set(Qt::black, Qt::white);
    EXPECT_EQ(PortalAppearance(noBus).preferences(), (Preferences{.isDark = true}));
}

TEST_F(PortalAppearanceTest, FollowsTheToolkitsColoursWithoutAPortal)
{
    PortalAppearance &appearance = makeAppearance();
    QSignalSpy changes(&appearance, &Appearance::preferencesChanged);
    Colours::set(Qt::black, Qt::white);
    EXPECT_TRUE(becomesTrue([&] { return appearance.preferences().isDark; }));
    Colours::set(Qt::white, Qt::black);
    EXPECT_TRUE(becomesTrue([&] { return !appearance.preferences().isDark; }));
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(PortalAppearanceTest, FollowsAPortalThatComesLater)
{
    PortalAppearance &appearance = makeAppearance();
    startPortal().change(appearanceGroup, colorScheme, 1U);
    EXPECT_TRUE(becomesTrue([&] { return appearance.preferences().isDark; }));
}

TEST_F(PortalAppearanceTest, PrefersThePortalToTheToolkitsColours)
{
    Colours::set(Qt::black, Qt::white);
    startPortal().set(appearanceGroup, colorScheme, 2U);
    EXPECT_TRUE(makeAppearance().preferences().isDark);
    EXPECT_EQ(settledPreferences(), Preferences());
}

TEST_F(PortalAppearanceTest, TakesTheToolkitsColoursWhereThePortalPrefersNone)
{
    Colours::set(Qt::black, Qt::white);
    startPortal().set(appearanceGroup, colorScheme, 0U);
    makeAppearance();
    EXPECT_EQ(settledPreferences(), (Preferences{.isDark = true}));
}

TEST_F(PortalAppearanceTest, TakesANumberThatIsStillToComeForNoPreference)
{
    FakeSettingsPortal &portal = startPortal();
    portal.set(appearanceGroup, colorScheme, 7U);
    portal.set(appearanceGroup, contrast, 7U);
    makeAppearance();
    EXPECT_EQ(settledPreferences(), Preferences());
}

TEST_F(PortalAppearanceTest, LearnsOfContrastInEitherWay)
{
    startPortal().set(accessibilityGroup, highContrast, true);
    makeAppearance();
    EXPECT_EQ(settledPreferences(), (Preferences{.highContrast = true}));
}

TEST_F(PortalAppearanceTest, KeepsContrastWhileOneOfBothAsksForIt)
{
    FakeSettingsPortal &portal = startPortal();
    PortalAppearance &appearance = makeAppearance();
    portal.change(appearanceGroup, contrast, 1U);
    portal.change(accessibilityGroup, highContrast, true);
    portal.change(appearanceGroup, contrast, 0U);
    EXPECT_EQ(settledPreferences(), (Preferences{.highContrast = true}));
    portal.change(accessibilityGroup, highContrast, false);
    EXPECT_TRUE(becomesTrue([&] { return !appearance.preferences().highContrast; }));
}

TEST_F(PortalAppearanceTest, KeepsStillWhileOneOfBothAsksForIt)
{
    FakeSettingsPortal &portal = startPortal();
    portal.set(appearanceGroup, reducedMotion, 1U);
    const PortalAppearance &appearance = makeAppearance();
    EXPECT_EQ(settledPreferences(), (Preferences{.reducedMotion = true}));
    portal.change(interfaceGroup, enableAnimations, false);
    portal.change(appearanceGroup, reducedMotion, 0U);
    EXPECT_EQ(settledPreferences(), (Preferences{.reducedMotion = true}));
    portal.change(interfaceGroup, enableAnimations, true);
    EXPECT_TRUE(becomesTrue([&] { return !appearance.preferences().reducedMotion; }));
}

TEST_F(PortalAppearanceTest, IsOrdinaryWhereSettingsAreOfAWrongType)
{
    const QVariant wrongNumbers[] = {u"1"_s, u"prefer-dark"_s,          true,
                                     1.0,    QVariantMap{{u"a"_s, 1U}}, QStringList{u"1"_s}};
    const QVariant wrongFlags[] = {u"true"_s, QString(), 0U, 1, 0.0, QVariantMap(), QStringList()};
    FakeSettingsPortal &portal = startPortal();
    makeAppearance();
    for (const QVariant &wrong : wrongNumbers) {
        portal.change(appearanceGroup, colorScheme, wrong);
        portal.change(appearanceGroup, contrast, wrong);
        portal.change(appearanceGroup, reducedMotion, wrong);
        EXPECT_EQ(settledPreferences(), Preferences()) << wrong.typeName();
    }
    for (const QVariant &wrong : wrongFlags) {
        portal.change(accessibilityGroup, highContrast, wrong);
        portal.change(interfaceGroup, enableAnimations, wrong);
        portal.change(appearanceGroup, colorScheme, 1U);
        EXPECT_EQ(settledPreferences(), (Preferences{.isDark = true})) << wrong.typeName();
    }
}

TEST_F(PortalAppearanceTest, IgnoresOtherSettings)
{
    FakeSettingsPortal &portal = startPortal();
    makeAppearance();
    portal.change(interfaceGroup, colorScheme, 1U);
    portal.change(appearanceGroup, u"accent-color"_s, 1U);
    portal.change(u"org.example"_s, enableAnimations, false);
    EXPECT_EQ(settledPreferences(), Preferences());
}

TEST_F(PortalAppearanceTest, IgnoresAnnouncementsThatAreNone)
{
    startPortal();
    makeAppearance();
    for (const QVariantList &arguments :
         {QVariantList{}, QVariantList{appearanceGroup}, QVariantList{appearanceGroup, colorScheme},
          QVariantList{1, 2, 3}, QVariantList{interfaceGroup, enableAnimations}}) {
        QDBusMessage announcement = QDBusMessage::createSignal(
            u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        announcement.setArguments(arguments);
        desktopBus().send(announcement);
    }
    EXPECT_EQ(settledPreferences(), Preferences());
}

TEST_F(PortalAppearanceTest, DoesNotWaitForASilentPortal)
{
    FakeSettingsPortal &portal = startPortal();
    portal.set(appearanceGroup, colorScheme, 1U);
    portal.fallSilent();
    PortalAppearance &appearance = makeAppearance();
    EXPECT_TRUE(becomesTrue([&] { return portal.questions() == 5; }));
    EXPECT_EQ(appearance.preferences(), Preferences());
    portal.answer();
    EXPECT_TRUE(becomesTrue([&] { return appearance.preferences().isDark; }));
}

} // namespace keyvora
