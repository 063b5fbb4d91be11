#include "cli/values.h"

#include "cli/filenames.h"
#include "cli/output.h"
#include "scene/color.h"
#include "scene/suggest.h"
#include "scene/times.h"

#include <QRegularExpression>

#include <cmath>

namespace AnimText {

namespace {

[[noreturn]] void Refuse(const Option& option, const QString& what, const QString& text,
                         const QString& hint = QString())
{
    throw Misuse{QStringLiteral("--%1 is \"%2\"; expected %3%4")
                     .arg(QLatin1String(option.name), text, what, hint)};
}

QString Limits(const Option& option)
{
    return QStringLiteral("from %1 to %2")
        .arg(option.least, 0, 'g', 10)
        .arg(option.most, 0, 'g', 10);
}

bool IsWithin(const Option& option, double value)
{
    return value >= option.least && value <= option.most; // also false for "nan"
}

/** Reads two whole numbers by @p pattern; false, with unspecified numbers, if @p text differs. */
bool ReadPair(const QString& text, const char* pattern, QPoint* pair)
{
    const QRegularExpression expression(
        QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)));
    const auto match = expression.match(text);
    bool first = false;
    bool second = false;
    *pair = QPoint(match.captured(1).toInt(&first), match.captured(2).toInt(&second));
    return first && second;
}

} // namespace

QString OneOf(const QStringList& words)
{
    const QString most = QStringList(words.mid(0, words.size() - 1)).join(QStringLiteral(", "));
    return words.size() < 2 ? words.value(0) : most + QStringLiteral(" or ") + words.last();
}

int ToNumber(const Option& option, const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || !IsWithin(option, number))
        Refuse(option, QStringLiteral("a whole number ") + Limits(option), text);
    return number;
}

double ToFraction(const Option& option, const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !IsWithin(option, number))
        Refuse(option, QStringLiteral("a number ") + Limits(option), text);
    return number;
}

double ToMilliseconds(const Option& option, const QString& text)
{
    constexpr int second = 1000;
    double milliseconds = 0;
    bool hasUnit = false;
    const bool isTime = ReadTime(text, &milliseconds, &hasUnit);
    // A plain number means seconds, which nobody intends where the option counts in hours.
    const bool isClear = hasUnit || option.unit == second || milliseconds == 0;
    if (!isTime || !isClear || !IsWithin(option, milliseconds / option.unit))
        Refuse(option,
               (option.unit == second
                    ? QStringLiteral("a time such as 2.5s, 1500ms or 40t (ticks), or a number of "
                                     "seconds ")
                    : QStringLiteral("a time with its unit, such as 24h or 90min, in hours ")) +
                   Limits(option),
               text);
    return milliseconds;
}

QSize ToSize(const Option& option, const QString& text)
{
    QPoint pair;
    if (!ReadPair(text, "(\\d+)[x×](\\d+)", &pair) || !IsWithin(option, pair.x()) ||
        !IsWithin(option, pair.y()))
        Refuse(option, QStringLiteral("a size such as 512x64, each side ") + Limits(option), text);
    return {pair.x(), pair.y()};
}

QPoint ToPoint(const Option& option, const QString& text)
{
    QPoint point;
    if (!ReadPair(text, "(-?\\d+),(-?\\d+)", &point) || !IsWithin(option, point.x()) ||
        !IsWithin(option, point.y()))
        Refuse(option, QStringLiteral("two whole numbers such as 16,0, each ") + Limits(option),
               text);
    return point;
}

QColor ToColor(const Option& option, const QString& text)
{
    QColor color;
    QString hint;
    if (!ReadColor(text, &color, &hint))
        Refuse(option, QStringLiteral("a color name or #rrggbb"), text, hint);
    return color;
}

QPair<int, int> ToRange(const Option& option, const QString& text)
{
    const bool isOne = !text.contains(QLatin1Char('-'));
    QPoint ends;
    if (!ReadPair(isOne ? text + QLatin1Char('-') + text : text, "(\\d+)-(\\d+)", &ends) ||
        ends.x() > ends.y())
        Refuse(option, QStringLiteral("a number such as 5, or a range such as 0-99"), text);
    return {ends.x(), ends.y()};
}

int ToChoice(const Option& option, const QString& text)
{
    for (int i = 0; i < option.choices.size(); ++i) {
        if (text.compare(option.choices.at(i), Qt::CaseInsensitive) == 0)
            return i;
    }
    Refuse(option, OneOf(option.choices), text, DidYouMean(text, option.choices));
}

void CheckValue(const Option& option, const QString& text)
{
    if (option.kind != Kind::File && !IsUtf8(text))
        throw Misuse{
            QStringLiteral("the value of --%1 is not valid UTF-8").arg(QLatin1String(option.name))};
    switch (option.kind) {
    case Kind::Flag:
    case Kind::Text: break;
    case Kind::File:
        if (text.isEmpty())
            throw Misuse{QStringLiteral("--%1 is empty; expected a file name")
                             .arg(QLatin1String(option.name))};
        break;
    case Kind::Number: ToNumber(option, text); break;
    case Kind::Fraction: ToFraction(option, text); break;
    case Kind::Time: ToMilliseconds(option, text); break;
    case Kind::Size: ToSize(option, text); break;
    case Kind::Point: ToPoint(option, text); break;
    case Kind::Color: ToColor(option, text); break;
    case Kind::Range: ToRange(option, text); break;
    case Kind::Choice: ToChoice(option, text); break;
    }
}

} // namespace AnimText
