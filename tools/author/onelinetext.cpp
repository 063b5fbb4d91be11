#include "author/author.h"

#include <QStringList>

namespace AnimText {
namespace {

bool IsLineBreak(QChar unit)
{
    switch (unit.unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x85:
    case 0x2028:
    case 0x2029: return true;
    default: return false;
    }
}

} // namespace

bool ToOneLine(QString* text, QStringList* notes, QString* error)
{
    text->replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (!text->isEmpty() && IsLineBreak(text->back()))
        text->chop(1);
    if (text->trimmed().isEmpty()) {
        *error = QStringLiteral("expected a text, found %1")
                     .arg(text->isEmpty() ? QStringLiteral("none") : QStringLiteral("only blanks"));
        return false;
    }

    int breaks = 0;
    int tabs = 0;
    for (int i = 0; i < text->size(); ++i) {
        const QChar unit = text->at(i);
        const bool paired =
            unit.isHighSurrogate() && i + 1 < text->size() && text->at(i + 1).isLowSurrogate();
        if (IsLineBreak(unit)) {
            ++breaks;
            (*text)[i] = QLatin1Char(' ');
        } else if (unit == QLatin1Char('\t')) {
            ++tabs;
            (*text)[i] = QLatin1Char(' ');
        } else if (paired) {
            ++i;
        } else if (unit.isSurrogate() || unit.category() == QChar::Other_Control) {
            *error = QStringLiteral("character %1 of the text, U+%2, cannot be shown")
                         .arg(i + 1)
                         .arg(QString::number(unit.unicode(), 16)
                                  .toUpper()
                                  .rightJustified(4, QLatin1Char('0')));
            return false;
        }
    }
    if (breaks > 0)
        notes->append(breaks == 1 ? QStringLiteral("a line break became a space")
                                  : QStringLiteral("%1 line breaks became spaces").arg(breaks));
    if (tabs > 0)
        notes->append(tabs == 1 ? QStringLiteral("a tab became a space")
                                : QStringLiteral("%1 tabs became spaces").arg(tabs));
    return true;
}

} // namespace AnimText
