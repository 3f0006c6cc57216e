#pragma once

#include <QtTest>

#include <tuple>
#include <utility>

/// The keys of a test table's columns: their positions.
constexpr const char* columnNames[] {"0", "1", "2", "3", "4", "5"};

/// Declares the columns of a test's table.
template<typename... Types>
void addColumns()
{
    const char* const* name = columnNames;
    (QTest::addColumn<Types>(*name++), ...);
}

template<typename... Types, std::size_t... Places>
std::tuple<Types...> valuesAt(std::index_sequence<Places...>)
{
    return {*static_cast<const Types*>(QTest::qData(columnNames[Places], qMetaTypeId<Types>()))...};
}

/// The values of the row under test, in the order of the columns.
template<typename... Types>
std::tuple<Types...> currentRow()
{
    return valuesAt<Types...>(std::index_sequence_for<Types...>());
}
