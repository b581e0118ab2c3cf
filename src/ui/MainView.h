// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/KeyvoraView.h"

#include <QQmlComponent>
#include <QVariantMap>

#include <memory>

namespace keyvora {

/// The main window. It comes up with its ground alone; what it shows is read meanwhile, and made after the
/// first frame, so that a person sees at once that the program answers. It needs a theme and `load` before it
/// is shown.
class MainView : public KeyvoraView
{
    Q_OBJECT

public:
    explicit MainView(QQmlEngine *engine);

    /// Begins to read what the window comes up with, on a thread of the engine's.
    void prepare();

    /// Makes what the window comes up with, and remembers what its content is to be given.
    void load(const QVariantMap &contentProperties);

    /// Below which the content would be cut. Once loaded.
    [[nodiscard]] QSize leastSize() const;

    /// The content; null as long as there is none.
    [[nodiscard]] QQuickItem *content() const;

    /// Makes the content at once, unless there is one. Once loaded.
    void makeContent();

signals:
    /// There is content, which no frame has shown yet. May come while an event is being delivered.
    void contentMade(QQuickItem *content);

protected:
    /// The first key or click is for the content.
    bool event(QEvent *event) override;

private:
    /// Whether a sheet lies over the content that nobody has seen yet.
    [[nodiscard]] bool hasUnseenSheet() const;
    void readContent();
    void makeReadContent();

    QVariantMap m_contentProperties;
    std::unique_ptr<QQmlComponent> m_reading; ///< of what is needed next
    QMetaObject::Connection m_frames;
    bool m_isContentSeen = false;
};

} // namespace keyvora
