// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTranslator>

namespace keyvora {

/// Has the toolkit's own dialogs speak the interface language, as far as its translations are installed.
class ToolkitTexts : public QObject
{
    Q_OBJECT

public:
    explicit ToolkitTexts(QObject *parent = nullptr);

private:
    void followLanguage();

    QTranslator m_translator;
};

} // namespace keyvora
