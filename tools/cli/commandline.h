/**
 * @file
 * The words of a command, read as its table of options says.
 */
#ifndef ANIMTEXT_COMMANDLINE_H
#define ANIMTEXT_COMMANDLINE_H

#include "cli/option.h"
#include "cli/output.h"

#include <QColor>
#include <QMap>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

namespace AnimText {

/**
 * The options that were given, checked, and the command's arguments. Names of options are those of
 * the table; where an option was not given, its standard counts. An option that has none must be
 * asked for with IsSet() first.
 */
class CommandLine
{
public:
    /**
     * Reads the words that follow the command's name. Throws Misuse unless they are what the table
     * says; after --help, which is an option of every command, the others are not looked at.
     */
    CommandLine(const Command& command, const QStringList& words);

    bool IsSet(const char* option) const { return given.contains(QLatin1String(option)); }
    QString Value(const char* option) const;
    /** All that were given, of an option that may be repeated. */
    QStringList Values(const char* option) const;
    /** The words that belong to no option. */
    QStringList Arguments() const { return arguments; }

    int Number(const char* option) const;
    double Fraction(const char* option) const;
    /** In milliseconds. */
    double Time(const char* option) const;
    QSize Size(const char* option) const;
    QPoint Point(const char* option) const;
    QColor Color(const char* option) const;
    /** The first and the last. */
    QPair<int, int> Range(const char* option) const;
    /** The index of the word among the option's choices. */
    int Choice(const char* option) const;

private:
    const Option& Find(const QString& name) const;
    void ReadLong(const QString& word, QStringList* rest);
    void ReadShort(const QString& word, QStringList* rest);
    void Take(const Option& option, bool hasValue, const QString& value, QStringList* rest);
    void Require() const;

    const Command& command;
    QMap<QString, QStringList> given; // by the option's name; the last one counts
    QStringList arguments;
};

/** --help, which every command has. */
const Option& HelpOption();

} // namespace AnimText

#endif
