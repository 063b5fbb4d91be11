/**
 * @file
 * The field in which a text is typed: one line of the sign, each letter in its own style.
 */
#ifndef ANIMTEXT_TEXTEDITOR_H
#define ANIMTEXT_TEXTEDITOR_H

#include "layout/styledtext.h"

#include <QTextEdit>

namespace AnimText {

/**
 * Pastes words in the style at the cursor. What was copied from such a field keeps its styles;
 * those of other programs come along only when they are asked for.
 */
class TextEditor : public QTextEdit
{
    Q_OBJECT

public:
    explicit TextEditor(QWidget* parent = nullptr);

    /** The style of letters that have none of their own; its size is shown as the common one. */
    void SetBase(const StyleRun& style) { base = style; }
    /** All of it. */
    StyledText Styled() const;
    /** That of the first letter that is selected, or of what is typed next. */
    StyleRun CurrentStyle() const;
    /** Pastes words, bold, italic, underline, sizes and fonts; the color stays the sign's. */
    void PasteWithStyles();

signals:
    /** Typing before and after this are steps of their own. */
    void StepEnded();

protected:
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void PutIn(const StyledText& text);

    StyleRun base;
};

} // namespace AnimText

#endif
