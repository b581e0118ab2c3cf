// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/KeyPress.h"
#include "ui/KeyReader.h"

#include <QPointer>
#include <QQuickItem>
#include <QTimer>

#include <optional>

namespace keyvora {

/// Takes every key while it has the focus, those of the desktop and of the program's own commands included,
/// and tells what was pressed. Escape pressed twice, a press of the mouse elsewhere, and a long time without
/// any key let go of the keyboard.
class KeyCaptureItem : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(keyvora::KeyReader *reader MEMBER m_reader REQUIRED)
    /// It is visible and has the focus in the active window, and so all keys.
    Q_PROPERTY(bool capturing READ isCapturing NOTIFY capturingChanged)
    /// How long a first Escape waits for a second one, in milliseconds: as the desktop has it for clicks.
    Q_PROPERTY(int escapeInterval MEMBER m_escapeInterval)
    /// How long no key may come, in milliseconds, before the keyboard is free again, for a screen locker to
    /// have it.
    Q_PROPERTY(int patience MEMBER m_patience)
    QML_ELEMENT

public:
    explicit KeyCaptureItem(QQuickItem *parent = nullptr);
    ~KeyCaptureItem() override;

    [[nodiscard]] bool isCapturing() const { return m_isCapturing; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void capturingChanged();
    void pressed(keyvora::KeyPress press);
    /// Escape or the lack of keys ended it: the focus is nobody's now.
    void released();

protected:
    bool event(QEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    void followWindow(QQuickWindow *window);
    void followFocus();
    void begin();
    void end();
    void release();
    void grab();
    void handleKey(const QKeyEvent &event);
    void handleEscape(const KeyPress &press);
    void deliverEscape();

    KeyReader *m_reader = nullptr;
    int m_escapeInterval;
    int m_patience = 120'000;
    bool m_isCapturing = false;
    bool m_hasGrab = false;
    QPointer<QQuickWindow> m_window;  ///< whose activity is followed
    bool m_wasEscape = false;         ///< the key before was Escape alone
    std::optional<KeyPress> m_escape; ///< held back until it is known to be a press
    QTimer m_escapeTimer;
    QTimer m_patienceTimer;
};

} // namespace keyvora
