#include "cli/option.h"
#include "cli/output.h"
#include "scene/catalog.h"
#include "scene/color.h"
#include "scene/fonts.h"
#include "scene/suggest.h"
#include "scene/times.h"

#include <QColor>
#include <QPair>
#include <QPoint>
#include <QRegularExpression>
#include <QSize>

namespace AnimText::cli {

namespace {

[[noreturn]] void Refuse(const Option& option, const QString& text, const QString& expected)
{
    throw Misuse{QStringLiteral("--%1 is \"%2\"; expected %3")
                     .arg(QLatin1String(option.name), text, expected)};
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

/** "plain, linear or radial" */
QString OneOf(const QStringList& words)
{
    return QStringList(words.mid(0, words.size() - 1)).join(", ") + " or " + words.last();
}

QVariant ToTime(const Option& option, const QString& text)
{
    double milliseconds = 0;
    if (!scene::ReadTime(text, &milliseconds) || !IsWithin(option, milliseconds / 1000))
        Refuse(option, text,
               "a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds " +
                   Limits(option));
    int units = 0;
    if (option.kind == Kind::Time)
        return milliseconds;
    if (!scene::ToHoldUnits(milliseconds, &units))
        Refuse(option, text, "whole tenths of a second, such as 2.5s");
    return units;
}

/** The two whole numbers that @p pattern captures, or one for both. */
QPair<int, int> ToPair(const Option& option, const QString& text, const char* pattern,
                       const QString& expected)
{
    const QRegularExpression expression(
        QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)));
    const auto match = expression.match(text);
    bool hasFirst = false;
    bool hasSecond = false;
    const int first = match.captured(1).toInt(&hasFirst);
    const int second = match.captured(match.lastCapturedIndex()).toInt(&hasSecond);
    if (!hasFirst || !hasSecond || !IsWithin(option, first) || !IsWithin(option, second))
        Refuse(option, text, expected);
    return {first, second};
}

} // namespace

QVariant ReadValue(const Option& option, const QString& text)
{
    bool isNumber = false;
    QString hint;
    switch (option.kind) {
    case Kind::Flag:
    case Kind::Text: break;
    case Kind::File:
        if (text.isEmpty())
            throw Misuse{QStringLiteral("--%1 is empty; expected a file name")
                             .arg(QLatin1String(option.name))};
        break;
    case Kind::Number:
    case Kind::Fraction: {
        const bool isWhole = option.kind == Kind::Number;
        const double number = isWhole ? text.toInt(&isNumber) : text.toDouble(&isNumber);
        if (!isNumber || !IsWithin(option, number))
            Refuse(option, text,
                   QLatin1String(isWhole ? "a whole number " : "a number ") + Limits(option));
        return number;
    }
    case Kind::Time:
    case Kind::Hold: return ToTime(option, text);
    case Kind::Size: {
        const auto [width, height] = ToPair(option, text, "(\\d+)[x×](\\d+)",
                                            "a size such as 512x64, each side " + Limits(option));
        return QSize(width, height);
    }
    case Kind::Point: {
        const auto [x, y] = ToPair(option, text, "(-?\\d+),(-?\\d+)",
                                   "two whole numbers such as 16,0, each " + Limits(option));
        return QPoint(x, y);
    }
    case Kind::Range: {
        const QString expected = "a number such as 5, or a range such as 0-99";
        const auto ends = ToPair(option, text, "(\\d+)(?:-(\\d+))?", expected);
        if (ends.first > ends.second)
            Refuse(option, text, expected);
        return QVariant::fromValue(ends);
    }
    case Kind::Color: {
        QColor color;
        if (!scene::ReadColor(text, &color, &hint))
            Refuse(option, text, "a color name or #rrggbb" + hint);
        return color;
    }
    case Kind::Font: {
        QString family;
        if (!scene::FindFamily(text, &family, &hint))
            throw Misuse{hint};
        return family;
    }
    case Kind::Choice:
        for (int i = 0; i < option.choices.size(); ++i) {
            if (text.compare(option.choices.at(i), Qt::CaseInsensitive) == 0)
                return i;
        }
        Refuse(option, text, OneOf(option.choices) + scene::DidYouMean(text, option.choices));
    case Kind::Effect:
        if (const scene::Motion* effect = scene::FindEffect(text))
            return effect->number;
        Refuse(option, text,
               QStringLiteral("a number from 0 to %1 or a name from animtext effects%2")
                   .arg(scene::Effects().last().number)
                   .arg(scene::DidYouMeanOneOf(text, option.choices)));
    case Kind::Scroll:
        if (const scene::Motion* scroll = scene::FindScroll(text))
            return scroll->number;
        Refuse(option, text, OneOf(option.choices) + scene::DidYouMeanOneOf(text, option.choices));
    }
    return text;
}

} // namespace AnimText::cli
