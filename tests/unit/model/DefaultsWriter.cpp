// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// A program that the durability tests start in order to kill it or to starve it of disk space.

#include "model/Defaults.h"
#include "unit/model/RecognisableContent.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

namespace {

using namespace keyvora;

constexpr QLatin1StringView smallKey{"small"};
constexpr QLatin1StringView largeKey{"large"};

/// Writes ever longer values, and says how many lines each had once it is written, until it is killed.
int writeForever(const QString &path)
{
    Defaults defaults(path);
    qsizetype count = defaults.textList(RecognisableContent::key).value_or(QStringList()).size();
    for (;;) {
        count = RecognisableContent::nextLineCount(count);
        defaults.setTextList(RecognisableContent::key, RecognisableContent::lines(count));
        std::printf("%lld\n", static_cast<long long>(count));
        std::fflush(stdout);
    }
}

/// Writes a small value and one that no file can hold; says how long both are when they are read again.
int writeTooMuch(const QString &path)
{
    constexpr rlim_t maximumFileBytes = 4096;
    const rlimit limit{maximumFileBytes, maximumFileBytes};
    std::signal(SIGXFSZ, SIG_IGN);
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        return 1;
    Defaults defaults(path);
    defaults.setText(smallKey, QStringLiteral("small"));
    defaults.setText(largeKey, QString(100'000, u'x'));
    std::printf("%lld %lld\n", static_cast<long long>(defaults.text(smallKey).value_or(QString()).size()),
                static_cast<long long>(defaults.text(largeKey).value_or(QString()).size()));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1StringView("forever"))
        return writeForever(arguments.value(2));
    if (arguments.value(1) == QLatin1StringView("too-much"))
        return writeTooMuch(arguments.value(2));
    return 2;
}
