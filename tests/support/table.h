/**
 * @file
 * The table of a test that is run once for each row.
 */
#pragma once

#include <QtTest>

/** Makes columns of these types; called with a name and their values it adds a row. */
template <typename... Values>
class Table
{
public:
    template <typename... Names>
    explicit Table(Names... names)
    {
        (QTest::addColumn<Values>(names), ...);
    }

    void operator()(const QString& name, const Values&... values) const
    {
        (QTest::newRow(name.toUtf8().constData()) << ... << values);
    }
};
