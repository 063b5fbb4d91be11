#include "author/markup.h"

#include "scene/color.h"
#include "scene/fonts.h"
#include "scene/suggest.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QXmlStreamReader>

namespace AnimText::author {
namespace {

/** Reads the tags. Raises errors in the XML reader, which knows the line and the column. */
struct MarkupReader
{
    const QString& markup;
    layout::StyledText* const text;
    QVector<layout::StyleRun> styles; // the innermost last
    const QString opening = "<text>";
    QXmlStreamReader xml{opening + markup + "</text>"};

    bool Read(QString* error)
    {
        while (!xml.atEnd()) {
            switch (xml.readNext()) {
            case QXmlStreamReader::StartElement: Open(); break;
            case QXmlStreamReader::EndElement: styles.removeLast(); break;
            case QXmlStreamReader::Characters:
                text->Append(xml.text().toString(), styles.last());
                break;
            case QXmlStreamReader::DTD: xml.raiseError("unexpected <!DOCTYPE"); break;
            default: break;
            }
        }
        if (!xml.hasError())
            return true;
        const qint64 own = xml.lineNumber() == 1 ? opening.size() : 0;
        *error =
            QStringLiteral("the markup at %1:%2: %3%4")
                .arg(xml.lineNumber())
                .arg(qBound(qint64(1), xml.columnNumber() + 1 - own, qint64(markup.size() + 1)))
                .arg(xml.errorString().simplified(),
                     xml.error() == QXmlStreamReader::CustomError
                         ? QString()
                         : " Close every tag; write &lt; for < and &amp; for &");
        return false;
    }

    void Open()
    {
        layout::StyleRun style = styles.last();
        const bool isOuter = styles.size() == 1 && xml.name() == QLatin1String("text");
        if (xml.name() == QLatin1String("b"))
            style.font.setBold(true);
        else if (xml.name() == QLatin1String("i"))
            style.font.setItalic(true);
        else if (xml.name() == QLatin1String("u"))
            style.font.setUnderline(true);
        else if (!isOuter && xml.name() != QLatin1String("font"))
            xml.raiseError(QStringLiteral("unknown tag <%1>; expected <b>, <i>, <u> or <font>")
                               .arg(xml.name().toString()));
        for (const QXmlStreamAttribute& attribute : xml.attributes()) {
            const QString fault =
                xml.name() == QLatin1String("font")
                    ? Apply(attribute.name().toString(), attribute.value().toString(), &style)
                    : QStringLiteral("<%1> takes no attributes").arg(xml.name().toString());
            if (!fault.isEmpty())
                xml.raiseError(fault);
        }
        styles.append(style);
    }

    /** Applies an attribute of <font>. @return what is wrong with it, or empty */
    QString Apply(const QString& name, const QString& value, layout::StyleRun* style)
    {
        if (name == "face") {
            QString family;
            QString fault;
            if (scene::FindFamily(value, &family, &fault))
                style->font.setFamily(family);
            return fault;
        }
        if (name == "size")
            return ApplySize(value, style);
        if (name == "color") {
            QString hint;
            return scene::ReadColor(value, &style->color, &hint)
                       ? QString()
                       : QStringLiteral("unknown color \"%1\"; expected a name or #rrggbb%2")
                             .arg(value, hint);
        }
        return QStringLiteral("unknown attribute %1; <font> takes face, size and color").arg(name);
    }

    QString ApplySize(const QString& value, layout::StyleRun* style)
    {
        static const QRegularExpression form("^(\\d{1,6})(px|pt|%|)$");
        const QRegularExpressionMatch match = form.match(value);
        const QString unit = match.captured(2);
        const qreal number = match.captured(1).toInt();
        const qreal size = unit == "pt"  ? number * 96 / 72
                           : unit == "%" ? number * style->font.pixelSize() / 100
                                         : number;
        if (!match.hasMatch() || qRound(size) < 1 || size > layout::largestFontSize)
            return QStringLiteral(
                       "size is \"%2\"; expected 1 to %1 pixels, such as 32, 32px, 24pt or 150%")
                .arg(layout::largestFontSize)
                .arg(value);
        style->font.setPixelSize(qRound(size));
        text->sized = text->sized || unit != "%";
        return QString();
    }
};

layout::StyleRun StyleOf(const QTextCharFormat& format, const layout::StyleRun& base, bool* sized)
{
    layout::StyleRun style = base;
    style.font = format.font().resolve(base.font);
    const QFont own = format.font();
    const bool hasSize = format.hasProperty(QTextFormat::FontPointSize) ||
                         format.hasProperty(QTextFormat::FontPixelSize) ||
                         format.hasProperty(QTextFormat::FontSizeAdjustment);
    if (!hasSize)
        style.font.setPixelSize(base.font.pixelSize());
    else if (own.pixelSize() <= 0)
        style.font.setPixelSize(qMax(1, qRound(own.pointSizeF() * 96 / 72)));
    *sized = *sized || hasSize;
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        style.color = format.foreground().color();
    style.color.setAlpha(255);
    // Outlines do not contain these bars.
    style.font.setStrikeOut(false);
    style.font.setOverline(false);
    return style;
}

/** Lists the formats that signs cannot show. */
void NoteLosses(const QTextBlock& block, const QTextCharFormat& format, QStringList* lost)
{
    const auto note = [lost](bool isThere, const char* what) {
        if (isThere && !lost->contains(QLatin1String(what)))
            lost->append(QLatin1String(what));
    };
    note(format.hasProperty(QTextFormat::BackgroundBrush), "backgrounds");
    note(format.fontStrikeOut() || format.fontOverline(), "bars through or above letters");
    note(format.verticalAlignment() != QTextCharFormat::AlignNormal, "raised or lowered letters");
    note(format.isImageFormat(), "pictures");
    note(block.textList() != nullptr, "list marks");
}

/**
 * The text of @p html with its families, sizes, weights, slants, underlines and colors; the others
 * are those of @p base. Paragraphs end in line breaks.
 */
layout::StyledText FromHtml(const QString& html, const layout::StyleRun& base, QStringList* notes)
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(html);
    layout::StyledText text;
    QStringList lost;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            NoteLosses(block, fragment.charFormat(), &lost);
            const layout::StyleRun style = StyleOf(fragment.charFormat(), base, &text.sized);
            text.Append(fragment.text().remove(QChar::ObjectReplacementCharacter), style);
        }
        if (block.next().isValid())
            text.Append("\n", text.runs.isEmpty() ? base : text.runs.last());
    }
    if (!lost.isEmpty())
        notes->append(
            QStringLiteral("left out because signs cannot show them: %1").arg(lost.join(", ")));
    return text;
}

} // namespace

bool ParseMarkup(const QString& markup, const layout::StyleRun& base, layout::StyledText* text,
                 QStringList* notes, QString* error)
{
    const QString start = markup.trimmed().left(9).toLower();
    if (start.startsWith("<html") || start == "<!doctype") {
        *text = FromHtml(markup, base, notes);
        return true;
    }
    *text = layout::StyledText();
    return MarkupReader{markup, text, {base}}.Read(error);
}

bool ReadText(const WrittenText& written, TextSource* source, QStringList* notes, QString* error)
{
    layout::StyledText& text = source->text;
    if (!written.hasTags)
        text.Append(written.words, written.style);
    else if (!ParseMarkup(written.words, written.style, &text, notes, error))
        return false;
    if (!written.isSized && !text.sized && source->fit == layout::Fit::None)
        source->fit = layout::Fit::Line;
    return layout::ToOneLine(&text, notes, error);
}

} // namespace AnimText::author
