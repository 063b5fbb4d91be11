/**
 * @file
 * What every command shares: options, help, errors and the way to the plugin.
 */
#ifndef ANIMTEXT_COMMANDLINE_H
#define ANIMTEXT_COMMANDLINE_H

#include <QByteArray>
#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace AnimText {

/** Exit statuses. */
enum Status { Done = 0, FailedRun = 1, BadInput = 2 };

/** Says "animtext: @p message" on standard error. @return @p status */
int Fail(Status status, const QString& message);

/** Says "animtext: @p message" on standard error. */
void Warn(const QString& message);

/** Writes to standard output. @return false when it cannot take it, say because a disk is full */
bool Print(const QByteArray& text);

/** A number among others on a terminal: @p text filled with blanks from the left to @p width. */
QString RightAligned(const QString& text, int width);

/** The options of one command. */
class CommandLine
{
public:
    /**
     * @param command the command's name
     * @param arguments how its other words are shown in the usage, e.g. "SCENE.json"
     * @param description what it does, for --help
     */
    CommandLine(const QString& command, const QString& arguments, const QString& description);

    /** An option with a value, shown as @p value in the help, or without one when that is empty. */
    void AddOption(const QStringList& names, const QString& description,
                   const QString& value = QString(), const QString& standard = QString());

    /**
     * Reads the words that follow the command.
     * @param least, most how many words that belong to no option there may be
     * @return false when the command ends here, with Status() as its exit status: help was asked
     *         for and shown, or the words are wrong and the error was told
     */
    bool Parse(const QStringList& words, int least, int most);
    Status ExitStatus() const { return status; }

    bool IsSet(const QString& option) const { return parser.isSet(option); }
    QString Value(const QString& option) const { return parser.value(option); }
    QStringList Values(const QString& option) const { return parser.values(option); }
    /** The words that belong to no option. */
    QStringList Arguments() const { return parser.positionalArguments(); }

    /**
     * The whole number that @p option was given, or its standard.
     * @return false when it is none from @p least to @p most; the error was told
     */
    bool Number(const QString& option, int least, int most, int* number);

    /** Tells what is wrong with the words and where to read more. @return BadInput */
    int Misused(const QString& message);

private:
    QString HelpText() const;

    QCommandLineParser parser;
    QString command;
    QString arguments;
    Status status = Done;
};

} // namespace AnimText

#endif
