/**
 * @file
 * Commands and their options as tables, which parsing, help, man pages and completions use.
 */
#ifndef ANIMTEXT_OPTION_H
#define ANIMTEXT_OPTION_H

#include <QStringList>
#include <QVector>

namespace AnimText {

class CommandLine;

/** The type of an option's value. */
enum class Kind { Flag, Text, File, Number, Fraction, Time, Size, Point, Color, Range, Choice };

/** One option, made by one of the functions named after its kind. */
struct Option
{
    Kind kind;
    const char* name;  ///< without dashes
    const char* value; ///< how help shows the value; empty for a flag
    const char* help;
    double least = 0;      ///< limit of a number, of a size's sides, or of a time in `unit`
    double most = 0;       ///< the other limit
    int unit = 0;          ///< of a time's limits, milliseconds
    QStringList choices{}; ///< allowed values; for Text, words that completion offers

    char letter = 0; ///< short name, or 0
    bool isRequired = false;
    const char* standard = nullptr; ///< value if the option is not given
    const char* alone = nullptr;    ///< value if the option is given without one

    static Option Flag(const char* name, const char* help);
    static Option Text(const char* name, const char* value, const char* help);
    static Option File(const char* name, const char* value, const char* help);
    static Option Number(const char* name, int least, int most, const char* help);
    static Option Fraction(const char* name, double least, double most, const char* value,
                           const char* help);
    /**
     * Times are written 2s, 2.5s, 1500ms, 3min, 1h or 40t (ticks). A plain number is seconds, and
     * is accepted only where @p unit, the unit of @p least and @p most in milliseconds, is a
     * second.
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
    const char* summary;   ///< one line for the list of commands
    const char* arguments; ///< how help shows the arguments, such as "SCENE.json..."
    int least, most;       ///< number of arguments
    const char* description;
    QVector<Option> options;
    int (*run)(const CommandLine& line); ///< returns the exit status
    QVector<const char*> examples{};     ///< shell commands that work in the folder of sign.json
    QStringList words{};                 ///< what the arguments may be; empty for files
};

/** "-o" or "--speed": the shortest name of an option. */
QString ShortestName(const Option& option);

/** The help of an option with its default. */
QString HelpWithDefault(const Option& option);

} // namespace AnimText

#endif
