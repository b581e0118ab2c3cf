// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "WarningGate.h"

#include <QApplication>
#include <QQuickWindow>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new keyvora::WarningGate);
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const int result = RUN_ALL_TESTS();
    // What warns behind the last test counts, too.
    return testing::UnitTest::GetInstance()->Failed() ? 1 : result;
}
