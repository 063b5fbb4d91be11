/**
 * @file
 * Reads the words of a command.
 */
#pragma once

#include "cli/option.h"
#include "cli/output.h"

#include <QColor>
#include <QCommandLineParser>
#include <QPoint>
#include <QSize>
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

    /** A number, units of 100 ms of a hold, or the index or number of what is chosen. */
    int Number(const char* option) const { return Read(option).toInt(); }
    double Fraction(const char* option) const { return Read(option).toDouble(); }
    /** Milliseconds. */
    double Time(const char* option) const { return Read(option).toDouble(); }
    QSize Size(const char* option) const { return Read(option).toSize(); }
    QPoint Point(const char* option) const { return Read(option).toPoint(); }
    QColor Color(const char* option) const { return Read(option).value<QColor>(); }
    /** The family. */
    QString Font(const char* option) const { return Read(option).toString(); }
    /** The first and the last. */
    QPair<int, int> Range(const char* option) const
    {
        return Read(option).value<QPair<int, int>>();
    }

private:
    QVariant Read(const char* name) const;
    void Require() const;

    const Command& command;
    QCommandLineParser parser;
};

} // namespace AnimText::cli
