// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickView>

#include <functional>

namespace keyvora {

/// A window of ours with QML in it. Tells the theme whether the person is using the keyboard, so that focus
/// rings show only then.
class KeyvoraView : public QQuickView
{
    Q_OBJECT

public:
    /// The theme is the QML singleton, which outlives the view. It is needed before the view is shown.
    explicit KeyvoraView(QQmlEngine *engine, QObject *theme = nullptr);
    void setTheme(QObject *theme) { m_theme = theme; }
    [[nodiscard]] QObject *theme() const { return m_theme; }

    using Activation = std::function<bool(const QWindow &window, const QString &activationToken)>;

    /// Shows the window above the others, as large as it was, and asks for the focus: by `activate`, or
    /// itself where that is false.
    void bringToFront(const QString &activationToken, const Activation &activate);

public slots:
    /// A maximised window comes back maximised.
    void minimize();

protected:
    bool event(QEvent *event) override;
    /// A closed window is kept, but not what it can draw again.
    void hideEvent(QHideEvent *event) override;

private:
    void restoreFocus();

    QObject *m_theme;
};

} // namespace keyvora
