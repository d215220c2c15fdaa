// What a test of the desktop throws when something isn't as it has to be.
#pragma once

#include <QString>

#include <utility>

struct Failure
{
    Failure(QString whatWasExpected, QString whatWasSeen)
        : expected(std::move(whatWasExpected)), seen(std::move(whatWasSeen))
    {
    }

    QString expected;
    QString seen;
};
