// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include <QThreadPool>

namespace {

int counter = 0;

} // namespace

/// Races on purpose, in the way in which this program might: between the main thread and a job of the
/// toolkit's pool.
int main()
{
    QThreadPool::globalInstance()->start([] { ++counter; });
    ++counter;
    QThreadPool::globalInstance()->waitForDone();
    return 0;
}
