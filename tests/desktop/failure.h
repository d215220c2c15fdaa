// What a test of the desktop throws when something isn't as it has to be.
#pragma once

#include <QString>

#include <exception>

struct Failure final : std::exception
{
    Failure(QString whatWasExpected, QString whatWasSeen)
        : expected(std::move(whatWasExpected)), seen(std::move(whatWasSeen))
    {
    }

    const char *what() const noexcept override { return "not as expected"; }

    QString expected;
    QString seen;
};
