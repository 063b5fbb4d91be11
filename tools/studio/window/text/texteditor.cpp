#include "studio/window/text/texteditor.h"

#include "author/markup.h"
#include "author/textsource.h"
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocumentFragment>

#include <memory>

namespace AnimText::studio::window::text {
namespace {

const QString ownFormat = "application/x-animtext-text";
const QByteArray ownKey = "text";
constexpr int fontProperty = QTextFormat::UserProperty + 1; // the font on the sign
constexpr int readingSize = 20;                             // pixels

/**
 * A character format that stores all of @p run. Letters are shown at a readable size; the font on
 * the sign is stored as a property.
 * @param common size in pixels that is shown at the reading size
 */
QTextCharFormat FormatOf(const layout::StyleRun& run, int common)
{
    QTextCharFormat format;
    QFont font = run.font;
    const double size = run.font.pixelSize();
    font.setPixelSize(qBound(10, qRound(size * readingSize / qMax(1, common)), 48));
    format.setFont(font);
    format.setForeground(run.color);
    format.setProperty(fontProperty, run.font);
    return format;
}

/** The style stored in @p format; @p base supplies what is missing. */
layout::StyleRun StyleOf(const QTextCharFormat& format, const layout::StyleRun& base)
{
    layout::StyleRun run = base;
    run.begin = 0;
    if (format.hasProperty(fontProperty)) {
        run.font = format.property(fontProperty).value<QFont>();
        run.color = format.foreground().color();
    }
    return run;
}

/** Replaces the selection of @p cursor with @p text. */
void Insert(const layout::StyledText& text, int common, QTextCursor* cursor)
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

} // namespace

TextEditor::TextEditor(QWidget* parent)
    : QTextEdit(parent)
{
    setUndoRedoEnabled(false); // the window's undo is used instead
    setTabChangesFocus(true);
}

layout::StyledText TextEditor::Styled() const
{
    layout::StyledText text;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block != document()->begin())
            text.Append(" ", text.runs.isEmpty() ? base : text.runs.last());
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QString part = it.fragment().text();
            // Soft line breaks and embedded pictures.
            part.replace(QChar::LineSeparator, QLatin1Char(' '));
            part.remove(QChar::ObjectReplacementCharacter);
            text.Append(part, StyleOf(it.fragment().charFormat(), base));
        }
    }
    if (text.runs.isEmpty())
        text.runs = {StyleOf(document()->begin().charFormat(), base)};
    return text;
}

void TextEditor::SetStyled(const layout::StyledText& text)
{
    base = text.runs.value(0);
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    Insert(text, base.font.pixelSize(), &cursor);
}

layout::StyleRun TextEditor::CurrentStyle() const
{
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection())
        cursor.setPosition(cursor.selectionStart() + 1);
    return StyleOf(cursor.charFormat(), base);
}

void TextEditor::Paste(layout::StyledText text)
{
    QStringList notes;
    QString error;
    layout::ToOneLine(&text, &notes, &error); // errors are shown below the field
    emit StepEnded();
    QTextCursor cursor = textCursor();
    Insert(text, base.font.pixelSize(), &cursor);
    setTextCursor(cursor);
    ensureCursorVisible();
    emit StepEnded();
}

QMimeData* TextEditor::createMimeDataFromSelection() const
{
    const QTextCursor cursor = textCursor();
    author::TextSource source;
    const layout::StyledText all = Styled();
    for (int i = cursor.selectionStart(); i < cursor.selectionEnd(); ++i)
        source.text.Append(all.text.mid(i, 1), all.At(i));
    auto* data = new QMimeData;
    data->setText(source.text.text);
    data->setHtml(cursor.selection().toHtml());
    data->setData(ownFormat, author::SourcesToJson({{ownKey, source}}));
    return data;
}

/** Whether @p source has text; the address of a file is none, so that the window may open it. */
bool TextEditor::canInsertFromMimeData(const QMimeData* source) const
{
    const bool isFile = source->urls().value(0).isLocalFile();
    return !isFile && (source->hasFormat(ownFormat) || source->hasText() || source->hasHtml());
}

void TextEditor::insertFromMimeData(const QMimeData* source)
{
    if (!canInsertFromMimeData(source))
        return;
    const author::TextSources own = author::SourcesFromJson(source->data(ownFormat));
    layout::StyledText text;
    if (own.contains(ownKey))
        text = own.value(ownKey).text;
    else if (source->hasText())
        text.Append(source->text(), CurrentStyle());
    else // some programs copy only HTML
        text.Append(QTextDocumentFragment::fromHtml(source->html()).toPlainText(), CurrentStyle());
    Paste(text);
}

void TextEditor::PasteWithStyles()
{
    const QMimeData* source = QGuiApplication::clipboard()->mimeData();
    if (!source || source->hasFormat(ownFormat) || !source->hasHtml()) {
        paste();
        return;
    }
    const layout::StyleRun current = CurrentStyle();
    layout::StyledText text;
    QStringList notes;
    QString error;
    if (!author::ParseMarkup("<html>" + source->html(), current, &text, &notes, &error))
        return;
    // Black letters of a web page would be invisible on the sign.
    for (layout::StyleRun& run : text.runs)
        run.color = current.color;
    Paste(text);
}

void TextEditor::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    QAction* styled = menu->addAction(tr("Paste with styles"), this, &TextEditor::PasteWithStyles);
    styled->setEnabled(canPaste());
    if (auto* paste = menu->findChild<QAction*>("edit-paste")) {
        const int next = menu->actions().indexOf(paste) + 1;
        menu->insertAction(menu->actions().value(next), styled);
    }
    menu->exec(event->globalPos());
}

void TextEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return; // a sign has one line
    QTextEdit::keyPressEvent(event);
}

bool TextEditor::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            key->ignore(); // the window undoes
            return true;
        }
    }
    if (event->type() == QEvent::FocusOut)
        emit StepEnded();
    return QTextEdit::event(event);
}

} // namespace AnimText::studio::window::text
