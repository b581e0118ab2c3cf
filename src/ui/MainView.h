// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/KeyvoraView.h"

#include <QQmlComponent>
#include <QVariantMap>

#include <memory>

namespace keyvora {

/// The main window. It comes up with its ground alone; what it shows is read meanwhile, and made after the
/// first frame, so that a person sees at once that the program answers.
class MainView : public KeyvoraView
{
    Q_OBJECT

public:
    explicit MainView(QQmlEngine *engine);

    /// Begins to read what the window comes up with, on a thread of the engine's.
    void prepare();

    /// Makes what the window comes up with, and remembers what its content is to be given.
    void load(const QVariantMap &contentProperties);

    /// Below which the content would be cut.
    [[nodiscard]] QSize leastSize() const;

    /// The content, which is made now unless it is there.
    QQuickItem *content();

    [[nodiscard]] bool hasContent() const { return madeContent() != nullptr; }

signals:
    void contentMade();

protected:
    /// The first key or click is for the content.
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QQuickItem *madeContent() const;
    void readContent();
    void makeContent();

    QVariantMap m_contentProperties;
    std::unique_ptr<QQmlComponent> m_reading; ///< of what is needed next
};

} // namespace keyvora
