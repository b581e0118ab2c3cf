// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The least that a Qt Quick program with a window can be, drawn as Keyvora's windows are; what Keyvora's
// first frame is measured against.

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickView view;
    QQmlComponent component(view.engine());
    component.setData("import QtQuick\nRectangle { color: 'white'; Text { text: 'Text' } }", QUrl());
    view.setContent(QUrl(), &component, component.create());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(980, 680);
    view.show();
    return QApplication::exec();
}
