// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// Runs the tst_*.qml files of this folder over the program's own screens.

#include "Fixture.h"

#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTest>

namespace {

class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        m_fixture = std::make_unique<keyvora::Fixture>();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        using namespace Qt::Literals::StringLiterals;
        engine->addImportPath(u"qrc:/qt/qml"_s);
        qmlRegisterSingletonInstance("KeyvoraTest", 1, 0, "Fixture", m_fixture.get());
    }

    void cleanupTestCase() { m_fixture.reset(); }

private:
    std::unique_ptr<keyvora::Fixture> m_fixture;
};

} // namespace

QUICK_TEST_MAIN_WITH_SETUP(keyvora_quick, Setup)

#include "main.moc"
