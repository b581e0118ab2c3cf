// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace keyvora {

/// An application that runs on the desktop.
struct RunningApplication
{
    /// The name that the user knows it by, in their language where the desktop tells it; empty when it has
    /// none.
    QString name;
    std::optional<qint32> pid;

    friend bool operator==(const RunningApplication &, const RunningApplication &) = default;
};

/// The applications of the desktop, seen from outside.
class Workspace : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The application whose window has the focus; nothing when none has or the desktop does not tell. While
    /// a panel or the desktop itself has it, this is the application before, but never this one.
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// The ordinary applications that run now, those with a window in the task list, in the desktop's order,
    /// each process once, at most 256. Our own included. The future finishes soon, perhaps from another
    /// thread.
    [[nodiscard]] virtual QFuture<QList<RunningApplication>> runningApplications() = 0;

signals:
    /// Another application came to the front, our own included; or the name of the one in front, or of the
    /// one before ours, became known.
    void applicationActivated(const keyvora::RunningApplication &application);
};

} // namespace keyvora
