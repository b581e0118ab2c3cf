// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariantList>

namespace keyvora {

class AppModel;
class ShortcutListModel;

/// A keyboard whose keys tell which shortcuts use them. It follows the model's modifier filters and search
/// while it is the selected screen. Main thread only.
class VisualKeyboard : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList rows READ rows CONSTANT)
    Q_PROPERTY(QStringList availableKeys READ availableKeys NOTIFY availableKeysChanged)
    Q_PROPERTY(QString selectedKey READ selectedKey NOTIFY selectedKeyChanged)
    Q_PROPERTY(int matchCount READ matchCount NOTIFY matchCountChanged)
    Q_PROPERTY(keyvora::ShortcutListModel *matches READ matches CONSTANT)

public:
    /// How many shortcuts of a key are listed.
    static constexpr qsizetype maximumMatches = 12;

    /// The model outlives the keyboard.
    explicit VisualKeyboard(AppModel &model, QObject *parent = nullptr);

    /// Four rows of key tokens (each a list of texts), from the top.
    [[nodiscard]] static QVariantList rows();
    /// The keys that some shortcut of the library's present list uses; none while no modifier is chosen.
    [[nodiscard]] QStringList availableKeys() const;
    /// The token of the key that was clicked last; empty before.
    [[nodiscard]] const QString &selectedKey() const { return m_selectedKey; }
    /// How many shortcuts of the present list use the selected key.
    [[nodiscard]] int matchCount() const { return m_matchCount; }
    /// The first of them.
    [[nodiscard]] ShortcutListModel *matches() const { return m_matches; }

    Q_INVOKABLE void select(const QString &key);
    /// Leaves the keyboard for the whole library.
    Q_INVOKABLE void openLibrary();

signals:
    void availableKeysChanged();
    void selectedKeyChanged();
    void matchCountChanged();

private:
    void follow();
    void update();

    AppModel &m_model;
    QSet<QString> m_availableKeys;
    QString m_selectedKey;
    int m_matchCount = 0;
    ShortcutListModel *m_matches;
};

} // namespace keyvora
