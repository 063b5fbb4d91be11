/**
 * @file
 * Reads the words of a command.
 */
#pragma once

#include "cli/option.h"
#include "cli/output.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace AnimText::cli {

/**
 * The options that were given, checked, and the command's arguments. Options are named as in the
 * command's table. One that was not given has its default; where it has no default, it is 0 or
 * empty.
 */
class CommandLine
{
public:
    /**
     * Reads the words after the command's name. Throws Misuse unless they are what @p command
     * expects. Words beside --help are not checked.
     */
    CommandLine(const Command& command, const QStringList& words);

    bool IsSet(const char* option) const { return parser.isSet(QLatin1String(option)); }
    /** The last value that was given. */
    QString Value(const char* option) const { return parser.value(QLatin1String(option)); }
    QStringList Values(const char* option) const { return parser.values(QLatin1String(option)); }
    /** The words that are neither options nor their values. */
    QStringList Arguments() const { return parser.positionalArguments(); }

    /**
     * The last value that was given, in the type of its kind: int for a number, units of 100 ms of
     * a hold, and the index or number of what is chosen; double for a fraction, and milliseconds;
     * QSize, QPoint and QColor; QString for the family of a font; QPair<int, int> for a range.
     */
    template <typename Type>
    Type Get(const char* option) const
    {
        return values.value(option).value<Type>();
    }

private:
    QCommandLineParser parser;
    QHash<QString, QVariant> values; // by the options' names
};

} // namespace AnimText::cli
