// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <gtest/gtest.h>
#include <mutex>
#include <utility>

namespace keyvora {

/// Fails the test during which something warns. To be added to GoogleTest's listeners, once.
class WarningGate : public testing::EmptyTestEventListener
{
public:
    WarningGate() { s_previousHandler = qInstallMessageHandler(&handleMessage); }

private:
    void OnTestEnd(const testing::TestInfo & /*test*/) override { report(); }
    void OnTestProgramEnd(const testing::UnitTest & /*program*/) override { report(); }

    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type != QtWarningMsg && type != QtCriticalMsg) {
            s_previousHandler(type, context, message);
            return;
        }
        const std::scoped_lock lock(s_mutex);
        s_unexpected.append(message);
    }

    static void report()
    {
        const std::scoped_lock lock(s_mutex);
        for (const QString &message : std::exchange(s_unexpected, {}))
            ADD_FAILURE() << "unexpected warning: " << message.toStdString();
    }

    // A message handler can reach nothing but statics.
    static inline QtMessageHandler s_previousHandler = nullptr;
    static inline std::mutex s_mutex;
    static inline QStringList s_unexpected;
};

} // namespace keyvora
