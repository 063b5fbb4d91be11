#include "studio/window/text/styledformat.h"

#include <QTextBlock>

namespace AnimText {
namespace {

constexpr int sizeProperty = QTextFormat::UserProperty + 1; // size on the sign in pixels
constexpr int readingSize = 20;                             // pixels

} // namespace

QTextCharFormat FormatOf(const StyleRun& run, int common)
{
    QTextCharFormat format;
    QFont font = run.font;
    const int size = run.font.pixelSize();
    font.setPixelSize(qBound(10, qRound(size * double(readingSize) / qMax(1, common)), 48));
    format.setFont(font);
    format.setForeground(run.color);
    format.setProperty(sizeProperty, size);
    return format;
}

StyleRun StyleOf(const QTextCharFormat& format, const StyleRun& base)
{
    StyleRun run = base;
    run.begin = 0;
    if (!format.hasProperty(sizeProperty))
        return run;
    QFont font(format.font().family());
    font.setBold(format.font().bold());
    font.setItalic(format.font().italic());
    font.setUnderline(format.font().underline());
    font.setPixelSize(qMax(1, format.intProperty(sizeProperty)));
    run.font = font;
    run.color = format.foreground().color();
    return run;
}

void Insert(const StyledText& text, int common, QTextCursor* cursor)
{
    cursor->beginEditBlock();
    cursor->removeSelectedText();
    for (int i = 0; i < text.runs.size(); ++i) {
        const int begin = text.runs.at(i).begin;
        const int end = i + 1 < text.runs.size() ? text.runs.at(i + 1).begin : text.text.size();
        cursor->setCharFormat(FormatOf(text.runs.at(i), common));
        cursor->insertText(text.text.mid(begin, end - begin), FormatOf(text.runs.at(i), common));
    }
    cursor->endEditBlock();
}

void Write(const StyledText& text, QTextDocument* document)
{
    QTextCursor cursor(document);
    cursor.select(QTextCursor::Document);
    Insert(text, text.runs.isEmpty() ? readingSize : text.runs.first().font.pixelSize(), &cursor);
}

StyledText Read(const QTextDocument& document, const StyleRun& base)
{
    StyledText text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block != document.begin())
            text.Append(QStringLiteral(" "), text.runs.isEmpty() ? base : text.runs.last());
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QString part = it.fragment().text();
            // Soft line breaks and embedded pictures.
            part.replace(QChar::LineSeparator, QLatin1Char(' '));
            part.remove(QChar::ObjectReplacementCharacter);
            text.Append(part, StyleOf(it.fragment().charFormat(), base));
        }
    }
    if (text.runs.isEmpty())
        text.runs = {StyleOf(document.begin().charFormat(), base)};
    text.runs.first().begin = 0;
    return text;
}

StyledText PartOf(const StyledText& text, int begin, int end)
{
    StyledText part;
    part.sized = text.sized;
    for (int i = begin; i < end; ++i)
        part.Append(text.text.mid(i, 1), text.At(i));
    return part;
}

} // namespace AnimText
