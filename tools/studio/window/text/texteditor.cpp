#include "studio/window/text/texteditor.h"

#include "author/markup.h"
#include "author/textsource.h"
#include "studio/window/text/styledformat.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QTextDocumentFragment>

#include <memory>

namespace AnimText {
namespace {

const QString ownFormat = QStringLiteral("application/x-animtext-text");
const QByteArray ownKey = "text";

/** Whether @p source has text, and not only pictures or other formats. */
bool HasWords(const QMimeData* source)
{
    return source && (source->hasFormat(ownFormat) || source->hasText() || source->hasHtml());
}

/** The text of @p source; some programs copy only HTML. */
QString WordsIn(const QMimeData* source)
{
    if (source->hasText())
        return source->text();
    QTextDocument document;
    document.setHtml(source->html());
    return document.toPlainText();
}

/** Replaces line breaks by spaces, because a sign has one line, and removes the last one. */
StyledText OnOneLine(StyledText text)
{
    QStringList notes;
    QString error;
    ToOneLine(&text, &notes, &error); // errors are shown below the field
    return text;
}

} // namespace

TextEditor::TextEditor(QWidget* parent)
    : QTextEdit(parent)
{
    setUndoRedoEnabled(false); // the window's undo is used instead
    setTabChangesFocus(true);
}

StyledText TextEditor::Styled() const
{
    return Read(*document(), base);
}

StyleRun TextEditor::CurrentStyle() const
{
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection())
        cursor.setPosition(cursor.selectionStart() + 1);
    return StyleOf(cursor.charFormat(), base);
}

void TextEditor::PutIn(const StyledText& text)
{
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
    TextSource source;
    source.text = PartOf(Styled(), cursor.selectionStart(), cursor.selectionEnd());
    auto* data = new QMimeData;
    data->setText(source.text.text);
    data->setHtml(cursor.selection().toHtml());
    data->setData(ownFormat, SourcesToJson({{ownKey, source}}));
    return data;
}

bool TextEditor::canInsertFromMimeData(const QMimeData* source) const
{
    return HasWords(source);
}

void TextEditor::insertFromMimeData(const QMimeData* source)
{
    if (!HasWords(source))
        return;
    const TextSources own = SourcesFromJson(source->data(ownFormat));
    StyledText text;
    if (own.contains(ownKey))
        text = own.value(ownKey).text;
    else
        text.Append(WordsIn(source), CurrentStyle());
    PutIn(OnOneLine(text));
}

void TextEditor::PasteWithStyles()
{
    const QMimeData* source = QGuiApplication::clipboard()->mimeData();
    if (!source || source->hasFormat(ownFormat) || !source->hasHtml()) {
        paste();
        return;
    }
    const StyleRun current = CurrentStyle();
    StyledText text;
    QStringList notes;
    QString error;
    if (!ParseMarkup(QStringLiteral("<html>") + source->html(), current, &text, &notes, &error))
        return;
    // Black letters of a web page would be invisible on the sign.
    for (StyleRun& run : text.runs)
        run.color = current.color;
    PutIn(OnOneLine(text));
}

void TextEditor::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    QAction* styled = menu->addAction(tr("Paste with styles"), this, &TextEditor::PasteWithStyles);
    styled->setEnabled(canPaste());
    if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
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

} // namespace AnimText
