#pragma once

#include <QtTest>

/// The columns of a test's table: their types, and the names by which QFETCH finds them.
template<typename... Types>
void addColumns(const char* const (&names)[sizeof...(Types)])
{
    const char* const* name = names;
    (QTest::addColumn<Types>(*name++), ...);
}
