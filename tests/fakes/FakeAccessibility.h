// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Accessibility.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QPromise>

#include <memory>
#include <tuple>
#include <utility>

namespace keyvora {

/// Other applications as the test makes them up. Answers at once, or when the test says so.
class FakeAccessibility : public Accessibility
{
public:
    using Accessibility::Accessibility;

    [[nodiscard]] QFuture<bool> isTrusted() override
    {
        ++m_trustChecks;
        return m_givesAnswers ? QtFuture::makeReadyFuture(m_isTrusted) : QFuture<bool>();
    }
    [[nodiscard]] QFuture<bool> grantTrust() override
    {
        m_isTrusted = m_isTrusted || m_obeys;
        return QtFuture::makeReadyFuture(m_isTrusted);
    }
    [[nodiscard]] QFuture<std::optional<MenuTree>> menuBar(qint32 pid) override
    {
        m_menuBarsRead.append(pid);
        if (!m_givesAnswers)
            return {};
        const auto promise = std::make_shared<QPromise<std::optional<MenuTree>>>();
        promise->start();
        m_waiting.append({pid, promise});
        if (!m_holdsAnswers)
            answer();
        return promise->future();
    }
    [[nodiscard]] QFuture<QString> menuItemTitleAt(qint32 pid, QPoint position) override
    {
        m_hitTests.append({pid, position});
        return m_givesAnswers ? QtFuture::makeReadyFuture(m_titles.value({pid, position.x(), position.y()}))
                              : QFuture<QString>();
    }

    void setTrusted(bool isTrusted) { m_isTrusted = isTrusted; }
    /// Whether granting trust has an effect.
    void setObeys(bool obeys) { m_obeys = obeys; }
    void setMenuBar(qint32 pid, const MenuTree &tree) { m_menuBars.insert(pid, tree); }
    void setTitleAt(qint32 pid, QPoint position, const QString &title)
    {
        m_titles.insert({pid, position.x(), position.y()}, title);
    }
    /// Whether questions get an answer; where not, their futures end without one.
    void setGivesAnswers(bool gives) { m_givesAnswers = gives; }
    /// From now on menu bars are read only when `answer` is called.
    void setHoldsAnswers(bool holds) { m_holdsAnswers = holds; }
    /// Finishes what waits to be read, oldest first.
    void answer()
    {
        for (const auto &[pid, promise] : std::exchange(m_waiting, {})) {
            const auto known = m_menuBars.constFind(pid);
            promise->addResult(known == m_menuBars.constEnd() ? std::nullopt : std::optional(*known));
            promise->finish();
        }
    }

    [[nodiscard]] int trustChecks() const { return m_trustChecks; }
    /// The processes whose menu bars were asked for, oldest first.
    [[nodiscard]] const QList<qint32> &menuBarsRead() const { return m_menuBarsRead; }
    [[nodiscard]] const QList<std::pair<qint32, QPoint>> &hitTests() const { return m_hitTests; }

private:
    struct Waiting
    {
        qint32 pid;
        std::shared_ptr<QPromise<std::optional<MenuTree>>> promise;
    };

    bool m_isTrusted = true;
    bool m_obeys = true;
    bool m_givesAnswers = true;
    bool m_holdsAnswers = false;
    int m_trustChecks = 0;
    QList<qint32> m_menuBarsRead;
    QList<std::pair<qint32, QPoint>> m_hitTests;
    QList<Waiting> m_waiting;
    QHash<qint32, MenuTree> m_menuBars;
    QMap<std::tuple<qint32, int, int>, QString> m_titles;
};

} // namespace keyvora
