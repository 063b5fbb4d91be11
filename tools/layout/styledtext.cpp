#include "layout/styledtext.h"

#include <QRegularExpression>

#include <algorithm>

namespace AnimText::layout {

const StyleRun& StyledText::At(int index) const
{
    const auto after =
        std::upper_bound(runs.begin(), runs.end(), index,
                         [](int unit, const StyleRun& run) { return unit < run.begin; });
    return after == runs.begin() ? runs.first() : *(after - 1);
}

void StyledText::Append(const QString& more, const StyleRun& run)
{
    if (more.isEmpty())
        return;
    if (runs.isEmpty() || runs.last().font != run.font || runs.last().color != run.color) {
        runs.append(run);
        runs.last().begin = text.size();
    }
    text += more;
}

bool operator==(const StyledText& a, const StyledText& b)
{
    return a.text == b.text && std::equal(a.runs.begin(), a.runs.end(), b.runs.begin(),
                                          b.runs.end(), [](const StyleRun& x, const StyleRun& y) {
                                              return x.begin == y.begin && x.font == y.font &&
                                                     x.color == y.color;
                                          });
}

bool ToOneLine(StyledText* text, QStringList* notes, QString* error)
{
    static const QString lineBreaks = "\n\v\f\r\u0085\u2028\u2029";
    StyledText line;
    int breaks = 0;
    int tabs = 0;
    const QString& units = text->text;
    for (int i = 0; i < units.size(); ++i) {
        const QChar unit = units.at(i);
        const QChar next = i + 1 < units.size() ? units.at(i + 1) : QChar();
        if (unit == QLatin1Char('\r') && next == QLatin1Char('\n'))
            continue;
        const bool paired = unit.isHighSurrogate() && next.isLowSurrogate();
        const bool isBreak = lineBreaks.contains(unit);
        const bool isTab = unit == QLatin1Char('\t');
        if (isBreak && i + 1 == units.size())
            break;
        breaks += isBreak ? 1 : 0;
        tabs += isTab ? 1 : 0;
        if (!isBreak && !isTab && !paired &&
            (unit.isSurrogate() || unit.category() == QChar::Other_Control)) {
            *error = QStringLiteral("character %1 of the text, U+%2, cannot be shown")
                         .arg(i + 1)
                         .arg(QString::number(unit.unicode(), 16)
                                  .toUpper()
                                  .rightJustified(4, QLatin1Char('0')));
            return false;
        }
        line.Append(isBreak || isTab ? " " : units.mid(i, paired ? 2 : 1), text->At(i));
        i += paired ? 1 : 0;
    }
    if (line.text.trimmed().isEmpty()) {
        *error = line.text.isEmpty() ? "the text is empty" : "the text has only spaces";
        return false;
    }
    *text = line;
    if (breaks > 0)
        notes->append(breaks == 1 ? "a line break became a space"
                                  : QStringLiteral("%1 line breaks became spaces").arg(breaks));
    if (tabs > 0)
        notes->append(tabs == 1 ? "a tab became a space"
                                : QStringLiteral("%1 tabs became spaces").arg(tabs));
    return true;
}

} // namespace AnimText::layout
