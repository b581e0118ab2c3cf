// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>
#include <QRect>
#include <QTimer>

class QWindow;

namespace keyvora {

class Defaults;

/// Remembers where a window was, and whether it was maximised. The frame is written a moment after the last
/// change, and at once when the window is hidden.
class WindowFrame : public QObject
{
    Q_OBJECT

public:
    /// `name` is the key in the store, which outlives the frame.
    WindowFrame(QWindow &window, Defaults &store, QLatin1StringView name);
    /// Writes what has not been written yet. The window must still be there.
    ~WindowFrame() override;

    /// Puts the window where it was, as large as it was, and maximised if it was that. Where no screen shows
    /// its title by now it goes to the middle of the main screen, and with the given size when nothing usable
    /// is stored. Never smaller than the minimum, and never larger than its screen, for which the minimum
    /// gives way, too. The minimum becomes the window's own.
    void restore(QSize initialSize, QSize minimumSize);

private:
    void savePending();
    void save();
    void store(const QRect &frame, bool isMaximized);

    QWindow &m_window;
    Defaults &m_store;
    QLatin1StringView m_name;
    QTimer m_saveTimer;
};

} // namespace keyvora
