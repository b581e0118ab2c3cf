// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "WarningGate.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    // A page is measured and drawn the same without any screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new keyvora::WarningGate);
    const int result = RUN_ALL_TESTS();
    // What warns behind the last test counts, too.
    return testing::UnitTest::GetInstance()->Failed() ? 1 : result;
}
