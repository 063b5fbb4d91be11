/**
 * @file
 * The options of a command, as a table: help, parsing, "did you mean" and shell completion all come
 * from it.
 */
#ifndef ANIMTEXT_OPTION_H
#define ANIMTEXT_OPTION_H

#include <QStringList>
#include <QVector>

namespace AnimText {

class CommandLine;

/** What the value of an option is. */
enum class Kind { Flag, Text, File, Number, Fraction, Time, Size, Point, Color, Range, Choice };

/** One option, made by one of the functions named after its kind. */
struct Option
{
    Kind kind;
    const char* name;  ///< without its dashes
    const char* value; ///< how the help shows the value; empty for a flag
    const char* help;  ///< one sentence
    double least = 0;  ///< of a number, a fraction, a side of a size, or a time in its unit
    double most = 0;
    int unit = 0;          ///< milliseconds in which the limits of a time count
    QStringList choices{}; ///< the words that the value may be, or that completion offers

    char letter = 0;                ///< its short name, if it has one
    bool isRequired = false;        ///< the command does not run without it
    const char* standard = nullptr; ///< taken when the option is not given
    const char* alone = nullptr;    ///< taken when the option is given without a value

    static Option Flag(const char* name, const char* help);
    static Option Text(const char* name, const char* value, const char* help);
    static Option File(const char* name, const char* value, const char* help);
    static Option Number(const char* name, int least, int most, const char* help);
    static Option Fraction(const char* name, double least, double most, const char* value,
                           const char* help);
    /**
     * Times are 2s, 2.5s, 1500ms, 3min, 1h, 40t (ticks); a plain number is seconds, and is refused
     * where @p unit, in milliseconds, in which @p least and @p most count, is another one.
     */
    static Option Time(const char* name, int unit, double least, double most, const char* value,
                       const char* help);
    static Option Size(const char* name, int most, const char* help);
    static Option Point(const char* name, const char* help);
    static Option Color(const char* name, const char* help);
    static Option Range(const char* name, const char* help);
    static Option Choice(const char* name, const char* value, const QStringList& choices,
                         const char* help);

    Option Letter(char letter) const;
    Option Required() const;
    Option Or(const char* standard) const;
    Option Alone(const char* alone) const;
    Option Offering(const QStringList& words) const;
};

/** A command of the program. */
struct Command
{
    const char* name;
    const char* summary;     ///< one line for the list of commands
    const char* arguments;   ///< how its other words are shown, e.g. "SCENE.json..."
    int least, most;         ///< how many of these there may be
    const char* description; ///< for its help
    QVector<Option> options;
    int (*run)(const CommandLine& line); ///< answers the exit status
    QStringList words{};                 ///< what the arguments may be, where they are no files
};

/** "-o" or "--speed": the shortest name of an option. */
QString ShortestName(const Option& option);

} // namespace AnimText

#endif
