// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/MenuShortcutImporter.h"

#include "model/Localization.h"
#include "platform/Accessibility.h"
#include "platform/InBackground.h"
#include "platform/MenuTree.h"
#include "platform/WhenFinished.h"

#include <QCoreApplication>
#include <QPromise>
#include <QTextBoundaryFinder>

#include <memory>
#include <optional>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Words for keys, such as "Page Up", keep their form; characters are shown as they are printed on the key.
QString keyToken(const QString &commandCharacter)
{
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, commandCharacter);
    const bool isSingleCharacter = characters.toNextBoundary() == commandCharacter.size();
    return isSingleCharacter ? commandCharacter.toUpper() : commandCharacter;
}

QStringList keysOf(const MenuElement &element)
{
    const int modifiers = element.modifiers.value_or(0);
    QStringList keys;
    if ((modifiers & MenuModifier::Control) != 0)
        keys.append(u"⌃"_s);
    if ((modifiers & MenuModifier::Option) != 0)
        keys.append(u"⌥"_s);
    if ((modifiers & MenuModifier::Shift) != 0)
        keys.append(u"⇧"_s);
    if ((modifiers & MenuModifier::NoCommand) == 0)
        keys.append(u"⌘"_s);
    keys.append(keyToken(element.commandCharacter));
    return keys;
}

Shortcut shortcutOf(const MenuElement &element, const QString &appName, AppLanguage language)
{
    const QStringList keys = keysOf(element);
    const QString detail =
        language == AppLanguage::Czech ? u"Importováno z menu aplikace %1."_s : u"Imported from %1's menu."_s;
    return {
        .id = "menu-"_L1 + appName + '-'_L1 + element.title + '-'_L1 + keys.join(QString()),
        .title = element.title,
        .keys = keys,
        .category = Shortcut::Category::zaklady,
        .apps = {appName},
        .detail = detail.arg(appName),
    };
}

} // namespace

MenuShortcutImporter::MenuShortcutImporter(Accessibility &accessibility)
    : m_accessibility(accessibility)
{
}

QFuture<MenuImport> MenuShortcutImporter::importFromApplication(qint32 pid, const QString &appName)
{
    const auto promise = std::make_shared<QPromise<MenuImport>>();
    promise->start();
    const auto finish = [promise](MenuImport import) {
        promise->addResult(std::move(import));
        promise->finish();
    };
    const auto convert = [appName, finish](const QFuture<std::optional<MenuTree>> &menuBar) {
        if (menuBar.resultCount() == 0) {
            finish(MenuImportError::menu);
            return;
        }
        const AppLanguage language = Localization::shared().language();
        // A menu may have thousands of entries. (Not as a continuation: Qt 6.4 runs one twice that is
        // attached while the other thread is still finishing the future.)
        startInBackground(*QThreadPool::globalInstance(),
                          [appName, language, finish, tree = menuBar.result()] {
                              if (tree)
                                  finish(collect(*tree, appName, language));
                              else
                                  finish(MenuImportError::menu);
                          });
    };
    whenFinished(m_accessibility.isTrusted(), this,
                 [this, pid, finish, convert](const QFuture<bool> &isTrusted) {
                     if (!resultOr(isTrusted, false)) {
                         m_accessibility.requestTrust();
                         finish(MenuImportError::permission);
                     } else if (pid == QCoreApplication::applicationPid()) {
                         finish(MenuImportError::application);
                     } else {
                         whenFinished(m_accessibility.menuBar(pid), this, convert);
                     }
                 });
    return promise->future();
}

QList<Shortcut> MenuShortcutImporter::collect(const MenuTree &tree, const QString &appName,
                                              AppLanguage language)
{
    /// An element on the way from the bar to the current one.
    struct Step
    {
        size_t element;
        size_t nextChild = 0;
    };
    QList<Shortcut> shortcuts;
    std::vector<bool> isVisited(tree.elements.size());
    std::vector<Step> path;
    const auto enter = [&](size_t element) {
        if (element < tree.elements.size() && !isVisited[element]) {
            isVisited[element] = true;
            path.push_back({element});
        }
    };
    enter(0);
    while (!path.empty()) {
        Step &step = path.back();
        const MenuElement &element = tree.elements[step.element];
        if (step.nextChild < element.children.size()) {
            // A negative index becomes one that no tree reaches.
            enter(static_cast<size_t>(element.children[step.nextChild++]));
            continue;
        }
        if (!element.title.isEmpty() && !element.commandCharacter.isEmpty())
            shortcuts.append(shortcutOf(element, appName, language));
        path.pop_back();
    }
    return shortcuts;
}

QString menuSignature(const Shortcut &shortcut)
{
    const QString signature = shortcut.title.toLower() + shortcut.keys.join(QString());
    return signature.normalized(QString::NormalizationForm_C);
}

} // namespace keyvora
