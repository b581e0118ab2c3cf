// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/UserInterface.h"

#include <utility>

namespace {

/// A user interface that draws nothing; showing its window ends the program, so that a test sees it.
class StandInUserInterface : public keyvora::UserInterface
{
public:
    explicit StandInUserInterface(Context context)
        : m_context(std::move(context))
    {
    }

    void prepareMainWindow() override {}
    void showMainWindow(const QString & /*activationToken*/) override { m_context.quit(); }
    void togglePanel(QPoint /*position*/, const QString & /*activationToken*/) override
    {
        m_context.showMainWindow();
    }
    void showOverlay() override { m_isOverlayVisible = true; }
    void hideOverlay() override { m_isOverlayVisible = false; }
    [[nodiscard]] bool isOverlayVisible() const override { return m_isOverlayVisible; }
    void showSuggestion() override {}
    void askForTrust() override {}

private:
    Context m_context;
    bool m_isOverlayVisible = false;
};

} // namespace

extern "C" Q_DECL_EXPORT keyvora::UserInterface *
keyvoraCreateUserInterface(const keyvora::UserInterface::Context &context)
{
    return new StandInUserInterface(context);
}
