// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QChar>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>
#include <QString>

#include <ostream>

// How GoogleTest shows Qt's values when an expectation fails. It looks for these beside the types.

inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *stream)
{
    *stream << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(QChar character, std::ostream *stream)
{
    PrintTo(QString(character), stream);
}

inline void PrintTo(const QJsonObject &object, std::ostream *stream)
{
    *stream << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

inline void PrintTo(const QJsonValue &value, std::ostream *stream)
{
    *stream << QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
}

inline void PrintTo(QPoint point, std::ostream *stream)
{
    *stream << '(' << point.x() << ", " << point.y() << ')';
}
