// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// Fetches one small document over HTTPS for the program, which starts this as a process of its own:
//
//     keyvora-update-fetch https://HOST/PATH
//
// Writes the document to the standard output and exits with 0, if the server says that all is well with it
// and it is small. Otherwise exits with 1 and writes nothing.

#include "platform/UrlLoader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds deadline(60);
constexpr int maximumRedirects = 5;
constexpr qint64 maximumBytes = keyvora::UrlLoader::maximumBytes;

/// Ends without waiting for threads that ask a silent name server or proxy.
[[noreturn]] void end(int exitCode)
{
    std::_Exit(exitCode);
}

/// Ends the process when it asks for much more memory than a document needs: the headers of an answer may be
/// endless, and the toolkit keeps all of them.
void limitMemory()
{
    // Sanitizers need more than any limit.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    constexpr rlim_t limit = rlim_t{256} * 1024 * 1024;
    const rlimit memory{.rlim_cur = limit, .rlim_max = limit};
    setrlimit(RLIMIT_DATA, &memory);
    std::set_terminate([] { end(EXIT_FAILURE); });
#endif
}

/// Names the certificate authorities as other programs that use OpenSSL take them from the environment. Where
/// it says nothing, they are the system's.
QSslConfiguration sslConfiguration()
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    const QString file = qEnvironmentVariable("SSL_CERT_FILE");
    const QStringList folders =
        qEnvironmentVariable("SSL_CERT_DIR").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (file.isEmpty() && folders.isEmpty())
        return configuration;
    QList<QSslCertificate> authorities;
    if (!file.isEmpty())
        authorities = QSslCertificate::fromPath(file);
    for (const QString &folder : folders) {
        // Certificates stand there under the hash of their subject and a number.
        for (const QFileInfo &entry : QDir(folder).entryInfoList({u"????????.[0-9]*"_s}, QDir::Files))
            authorities += QSslCertificate::fromPath(entry.filePath());
    }
    configuration.setCaCertificates(authorities);
    return configuration;
}

QNetworkRequest request(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setSslConfiguration(sslConfiguration());
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(maximumRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Keyvora"_s);
    // Else the toolkit would tell the user's language.
    request.setRawHeader("Accept-Language", "*");
    // What is small and compressed may be large all the same.
    request.setDecompressedSafetyCheckThreshold(maximumBytes);
    return request;
}

[[noreturn]] void finish(QNetworkReply &reply, const QByteArray &document)
{
    constexpr int ok = 200;
    if (reply.error() != QNetworkReply::NoError ||
        reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != ok)
        end(EXIT_FAILURE);
    QFile output;
    const bool isWritten = output.open(stdout, QIODevice::WriteOnly) &&
                           output.write(document) == document.size() && output.flush();
    end(isWritten ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

int main(int argc, char *argv[])
{
    // Nobody reads what there may be to say.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    limitMemory();
    const QCoreApplication application(argc, argv);

    const QStringList arguments = QCoreApplication::arguments();
    const QUrl address(arguments.value(1), QUrl::StrictMode);
    if (arguments.size() != 2 || address.scheme() != "https"_L1 || address.host().isEmpty())
        end(EXIT_FAILURE);

    QTimer::singleShot(deadline, &application, [] { end(EXIT_FAILURE); });
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    QNetworkAccessManager manager;
    QNetworkReply *reply = manager.get(request(address));
    QByteArray document;
    // A little more than a document may have, so that one that is too large shows.
    reply->setReadBufferSize(maximumBytes + 1);
    const auto read = [&] {
        document += reply->read(maximumBytes + 1 - document.size());
        if (document.size() > maximumBytes)
            end(EXIT_FAILURE);
    };
    QObject::connect(reply, &QNetworkReply::readyRead, reply, read);
    QObject::connect(reply, &QNetworkReply::finished, reply, [&] {
        read();
        finish(*reply, document);
    });
    return QCoreApplication::exec();
}
