/**
 * @file
 * Commands and their options as tables, which parsing, help, man pages and completions use.
 */
#pragma once

#include <QStringList>
#include <QVariant>
#include <QVector>

#include <limits>

namespace AnimText::cli {

class CommandLine;

/** The type of an option's value. */
enum class Kind {
    Flag,
    Text,
    File,
    Number,
    Fraction,
    Time,  ///< milliseconds
    Hold,  ///< units of 100 ms
    Size,  ///< pixels
    Point, ///< pixels
    Color,
    Font,   ///< an installed family, or a font file
    Range,  ///< the first number and the last
    Choice, ///< the index of the word among the option's choices
    Effect, ///< the number of an effect, given by its number or name
    Scroll, ///< the number of a scroll, given by its direction or name
};

/** One option, made by one of the functions named after its kind. */
struct Option
{
    Kind kind;
    const char* name;  ///< without dashes
    const char* value; ///< how help shows the value; empty for a flag
    const char* help;
    double least = 0;      ///< limit of a number, of a size's sides, or of a time in seconds
    double most = 0;       ///< the other limit
    QStringList choices{}; ///< the words that completion offers

    char letter = 0; ///< short name, or 0
    bool isRequired = false;
    const char* standard = nullptr; ///< value if the option is not given
    const char* alone = nullptr;    ///< value if the option is given without one

    static Option Flag(const char* name, const char* help) { return {Kind::Flag, name, "", help}; }
    static Option Text(const char* name, const char* value, const char* help)
    {
        return {Kind::Text, name, value, help};
    }
    static Option File(const char* name, const char* value, const char* help)
    {
        return {Kind::File, name, value, help};
    }
    static Option Number(const char* name, int least, int most, const char* help)
    {
        return {Kind::Number, name, "N", help, double(least), double(most)};
    }
    static Option Fraction(const char* name, double least, double most, const char* value,
                           const char* help)
    {
        return {Kind::Fraction, name, value, help, least, most};
    }
    /** Times are written 2s, 2.5s, 1500ms, 3min, 1h or 40t (ticks). A plain number is seconds. */
    static Option Time(const char* name, double least, double most, const char* help)
    {
        return {Kind::Time, name, "TIME", help, least, most};
    }
    static Option Hold(const char* name, const char* help)
    {
        return {Kind::Hold, name, "TIME", help, 0, 100000};
    }
    static Option Size(const char* name, int most, const char* help)
    {
        return {Kind::Size, name, "WxH", help, 1, double(most)};
    }
    static Option Point(const char* name, const char* help)
    {
        return {Kind::Point, name, "X,Y", help, -99999, 99999};
    }
    static Option Color(const char* name, const char* help)
    {
        return {Kind::Color, name, "COLOR", help};
    }
    static Option Font(const char* name, const char* help)
    {
        return {Kind::Font, name, "FAMILY", help};
    }
    static Option Range(const char* name, const char* help)
    {
        return {Kind::Range, name, "A-B", help, 0, std::numeric_limits<int>::max()};
    }
    static Option Choice(const char* name, const char* value, const QStringList& choices,
                         const char* help)
    {
        return {Kind::Choice, name, value, help, 0, 0, choices};
    }
    static Option Effect(const char* name, const char* help);
    static Option Scroll(const char* name, const char* help);

    Option& Letter(char word) { return letter = word, *this; }
    Option& Required() { return isRequired = true, *this; }
    Option& Or(const char* word) { return standard = word, *this; }
    Option& Offering(const QStringList& words) { return choices = words, *this; }
    Option& Alone(const char* word) { return alone = word, *this; }
};

/** @p text as a value of the option's kind; throws Misuse if it is none. */
QVariant ReadValue(const Option& option, const QString& text);

/** The words that a command takes besides its options. */
struct Arguments
{
    const char* shown = ""; ///< how help shows them, such as "SCENE.json..."
    int least = 0, most = 0;
    QStringList words{}; ///< what they may be; empty for files
};

/** A command of the program. */
struct Command
{
    const char* name;
    const char* summary; ///< one line for the list of commands
    Arguments arguments;
    const char* description;
    QVector<Option> options;
    void (*run)(const CommandLine& line); ///< throws Failure or Misuse
    QVector<const char*> examples{};      ///< shell commands that work in the folder of sign.json
};

/** "-o" or "--speed": the shortest name of an option. */
QString ShortestName(const Option& option);

/** The help of an option with its default. */
QString HelpWithDefault(const Option& option);

} // namespace AnimText::cli
