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

    void showMainWindow(const QString & /*activationToken*/) override { m_context.quit(); }
    void togglePanel(QPoint /*position*/) override { m_context.showMainWindow(); }

private:
    Context m_context;
};

} // namespace

extern "C" Q_DECL_EXPORT keyvora::UserInterface *
keyvoraCreateUserInterface(const keyvora::UserInterface::Context &context)
{
    return new StandInUserInterface(context);
}
