#include "author/html.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

namespace AnimText::author {
namespace {

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

} // namespace

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

} // namespace AnimText::author
