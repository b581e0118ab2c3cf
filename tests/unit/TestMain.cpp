// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>
#include <mutex>
#include <utility>

namespace {

std::mutex messagesMutex;
QStringList unexpectedMessages;
QtMessageHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const std::scoped_lock lock(messagesMutex);
        unexpectedMessages.append(message);
        return;
    }
    previousHandler(type, context, message);
}

/// Fails the test that runs when something warns.
class WarningGate : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo & /*test*/) override { report(); }
    void OnTestProgramEnd(const testing::UnitTest & /*program*/) override { report(); }

    static void report()
    {
        const std::scoped_lock lock(messagesMutex);
        for (const QString &message : std::exchange(unexpectedMessages, {}))
            ADD_FAILURE() << "unexpected warning: " << message.toStdString();
    }
};

} // namespace

int main(int argc, char **argv)
{
    previousHandler = qInstallMessageHandler(&handleMessage);
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new WarningGate);
    const int result = RUN_ALL_TESTS();
    return testing::UnitTest::GetInstance()->Failed() ? 1 : result;
}
