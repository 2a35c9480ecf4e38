#pragma once

#include <QString>

#include <cstdio>

/// One line for the check that set this program to work; it reads along.
inline void say(const QString &line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}
