// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/KeyPress.h"
#include "model/Shortcut.h"

#include <QObject>

namespace keyvora {

class AppModel;

/// A shortcut of the user's own while it is being written. Main thread only.
class CustomShortcutDraft : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString keysText READ keysText WRITE setKeysText NOTIFY keysTextChanged)
    Q_PROPERTY(QStringList keys READ keys NOTIFY keysTextChanged)
    Q_PROPERTY(int category READ category WRITE setCategory NOTIFY categoryChanged)
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(QString detail READ detail WRITE setDetail NOTIFY detailChanged)
    Q_PROPERTY(QString conflictTitle READ conflictTitle NOTIFY conflictTitleChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY canSaveChanged)

public:
    /// The model outlives the draft.
    explicit CustomShortcutDraft(AppModel &model, QObject *parent = nullptr);

    [[nodiscard]] const QString &title() const { return m_title; }
    /// The keys as the user wrote them.
    [[nodiscard]] const QString &keysText() const { return m_keysText; }
    /// The key tokens that `keysText` stands for.
    [[nodiscard]] const QStringList &keys() const { return m_keys; }
    /// Position in `allCategories`.
    [[nodiscard]] int category() const { return m_category; }
    /// The application that it belongs to; blank for the whole system.
    [[nodiscard]] const QString &app() const { return m_app; }
    [[nodiscard]] const QString &detail() const { return m_detail; }
    /// The title of the first other shortcut with these keys in an overlapping scope; empty when there is
    /// none. A conflict does not stand in the way of saving.
    [[nodiscard]] const QString &conflictTitle() const { return m_conflictTitle; }
    /// It has a title and keys.
    [[nodiscard]] bool canSave() const { return m_canSave; }

    /// Empties everything; the category becomes that of the library's section, where it is one.
    Q_INVOKABLE void begin();
    void setTitle(const QString &title);
    void setKeysText(const QString &text);
    /// Positions of no category are ignored.
    void setCategory(int category);
    void setApp(const QString &app);
    void setDetail(const QString &detail);
    /// Writes a combination that was pressed: as the next step where the text ends in "→", else instead of
    /// the text. Unlike written ones, pressed keys may be "+" and "→".
    Q_INVOKABLE void takeKeys(const keyvora::KeyPress &press);
    /// Adds the shortcut to the user's own, white space around its texts left out. False, and nothing
    /// happens, when there is something missing.
    Q_INVOKABLE bool save();

signals:
    void titleChanged();
    void keysTextChanged();
    void categoryChanged();
    void appChanged();
    void detailChanged();
    void conflictTitleChanged();
    void canSaveChanged();

private:
    void setKeys(const QString &text, const QStringList &keys);
    void updateConflict();
    void updateCanSave();

    AppModel &m_model;
    QString m_title;
    QString m_keysText;
    QStringList m_keys;
    int m_category = 0;
    QString m_app;
    QString m_detail;
    QString m_conflictTitle;
    bool m_canSave = false;
};

} // namespace keyvora
