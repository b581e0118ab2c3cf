// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

/// What other programs make of a document.
class PdfTools
{
public:
    explicit PdfTools(const QByteArray &document)
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size())
            ADD_FAILURE() << "cannot write " << path().toStdString();
    }

    [[nodiscard]] QString text() const { return output(u"pdftotext"_s, {u"-layout"_s, path(), u"-"_s}); }
    [[nodiscard]] QString info() const { return output(u"pdfinfo"_s, {u"-box"_s, u"-rawdates"_s, path()}); }
    [[nodiscard]] QString check() const { return output(u"qpdf"_s, {u"--check"_s, path()}); }

    /// One line a font.
    [[nodiscard]] QStringList fonts() const { return table(u"pdffonts"_s); }

    /// One line an image.
    [[nodiscard]] QStringList images() const { return table(u"pdfimages"_s, {u"-list"_s}); }

    /// What `pdfinfo` says behind a label.
    [[nodiscard]] QString info(const QString &label) const
    {
        for (const QString &line : info().split(u'\n')) {
            if (line.startsWith(label + u':'))
                return line.mid(label.size() + 1).simplified();
        }
        return {};
    }

    /// The first page in shades of grey, as a PNG file's content.
    [[nodiscard]] QByteArray picture(int dotsPerInch) const
    {
        const QString root = m_folder.filePath(u"page"_s);
        output(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsPerInch), u"-gray"_s, u"-png"_s, u"-singlefile"_s,
                               path(), root});
        QFile file(root + u".png"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(u"sheet.pdf"_s); }

    static QString output(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            ADD_FAILURE() << program.toStdString() << ": " << process.readAllStandardError().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    /// The lines below the heading.
    [[nodiscard]] QStringList table(const QString &program, QStringList arguments = {}) const
    {
        arguments.append(path());
        return output(program, arguments).split(u'\n', Qt::SkipEmptyParts).mid(2);
    }

    QTemporaryDir m_folder;
};

} // namespace keyvora
