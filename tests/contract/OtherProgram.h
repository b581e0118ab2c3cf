// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/BareScreen.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRect>

namespace keyvora {

/// Another process that shows a window for as long as this lives.
class OtherProgram
{
public:
    enum class Window : quint8 {
        Ordinary,
        Popup, ///< one that the window manager has no part in, such as a menu
    };

    /// The window is there when this returns.
    OtherProgram(const BareScreen &screen, Window window, QRect geometry)
    {
        m_process.setProcessEnvironment(screen.environment());
        m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/keyvora_other_program"),
                        {window == Window::Popup ? QStringLiteral("popup") : QStringLiteral("window"),
                         QString::number(geometry.x()), QString::number(geometry.y()),
                         QString::number(geometry.width()), QString::number(geometry.height())});
        m_isShown = m_process.waitForReadyRead();
    }

    ~OtherProgram()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(OtherProgram)

    [[nodiscard]] bool isShown() const { return m_isShown; }
    [[nodiscard]] qint32 pid() const { return static_cast<qint32>(m_process.processId()); }

private:
    QProcess m_process;
    bool m_isShown = false;
};

} // namespace keyvora
